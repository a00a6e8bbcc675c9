#pragma once

#include "AnalysisDefinition.h"
#include "FiniteElementModel.h"

#include <QByteArray>

/// The deck for Nastran: bulk data of a static analysis (SOL 101).
QByteArray StaticNastranDeck(const FiniteElementModel& model);

/// The deck for Nastran: bulk data of an analysis of vibration (SOL 103).
QByteArray VibrationNastranDeck(const FiniteElementModel& model, const FrequencyRange& range);
