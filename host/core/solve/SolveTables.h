#pragma once

#include "SolveResult.h"

#include <QByteArray>

/// The table "modes.csv": number and frequency of each mode.
QByteArray ModesCsv(const SolveResult& result);

/// The table "static.csv": the greatest values, and the force of the supports.
QByteArray StaticCsv(const SolveResult& result);
