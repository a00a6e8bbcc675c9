#pragma once

#include "AnalysisDefinition.h"

#include <QString>

// What the tree says of the entries of a set-up. Numbers bear their units; expressions are shown as
// they are.

QString SolverTypeText(const SolverType& type);
QString EntryText(const ConstraintDefinition& constraint);
QString EntryText(const LoadDefinition& load);
QString EntryText(const PropertyDefinition& property);
QString EntryText(const LocalMeshDefinition& mesh);
QString EntryText(const FrequencyRange& range);
