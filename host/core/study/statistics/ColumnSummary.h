#pragma once

#include "Column.h"

#include <limits>

/// What the finite values of a column have in common. Numbers that the values do not give are NaN.
struct ColumnSummary
{
    static constexpr double None = std::numeric_limits<double>::quiet_NaN();

    int count = 0;   ///< Of finite values.
    int missing = 0; ///< Runs without a finite value.
    double mean = None;
    double deviation = None; ///< Standard deviation of a sample: the divisor is count - 1.
    double least = None;
    double lowerQuartile = None;
    double median = None;
    double upperQuartile = None;
    double greatest = None;
};

/// Between two values, quartiles are interpolated: definition 7 of Hyndman and Fan (1996),
/// The American Statistician 50.
ColumnSummary Summarize(const Column& column);
