#pragma once

#include "SampleRange.h"

#include <QString>

#include <vector>

/// The samples of one parameter, given as a range or one by one.
struct SampleList
{
    QString parameter;          ///< The name of the parameter.
    SampleRange range;          ///< Ignored if there are single values.
    std::vector<double> values; ///< Single values; empty if the range gives the samples.
    bool ticked = true;         ///< Whether the parameter takes part in the study.

    /// The single values or the samples of the range, in full precision; empty if the range has a
    /// fault.
    std::vector<double> Samples() const;

    /// Why Samples() is empty, in one line that names the parameter; otherwise empty.
    QString Problem() const;
};

/// What is wrong with a range that has the @p fault, to follow the name of the sample list: "has a
/// ...". Empty without a fault.
QString FaultText(SampleRange::Fault fault);

/// Whether @p values are the samples of @p range, apart from rounding errors. Logarithms may be cut
/// to the six digits of the sampling dialog's cells.
bool MatchesRange(const std::vector<double>& values, const SampleRange& range);
