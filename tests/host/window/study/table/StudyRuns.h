#pragma once

#include "ResultColumns.h"

#include <QString>

#include <vector>

/// @file
/// Results of a study for tests: a parameter "a", a mass and a frequency.

/// A run that is ok; @p frequency may be empty.
inline std::vector<QByteArray> OkRun(int run, double a, double mass, const QByteArray& frequency)
{
    return {QByteArray::number(run),
            QByteArray::number(a),
            QByteArray::number(mass),
            frequency,
            "ok",
            ""};
}

/// Runs 1 to @p count: a grows, mass falls, the frequency is a number for every run but the second.
inline ResultColumns SomeRuns(int count)
{
    ResultColumns columns({"a"}, {"mass_kg", "f1_hz"}, {{"a", "mm"}});
    for (int run = 1; run <= count; ++run)
        columns.Take(OkRun(run, run, 100.0 / run, run == 2 ? "" : QByteArray::number(run % 7)));
    return columns;
}
