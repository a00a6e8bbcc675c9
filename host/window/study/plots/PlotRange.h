#pragma once

#include <vector>

/// The range of the values that are shown of a column.
struct PlotRange
{
    double least = 0.0;
    double greatest = 1.0;

    /// The values of the rows @p rows; a range around a single value.
    static PlotRange Of(const std::vector<double>& values, const std::vector<int>& rows);
    /// The place of @p value between 0 and 1.
    double ShareOf(double value) const { return (value - least) / (greatest - least); }
    double ValueAt(double share) const { return least + share * (greatest - least); }
};
