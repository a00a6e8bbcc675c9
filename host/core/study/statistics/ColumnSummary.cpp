#include "ColumnSummary.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

namespace {

// The value below which the @p share of the @p sorted values lies.
double QuantileOf(const Column& sorted, double share)
{
    const double place = share * double(sorted.size() - 1);
    const std::size_t below = std::size_t(place);
    const std::size_t above = std::min(below + 1, sorted.size() - 1);
    return sorted[below] + (place - double(below)) * (sorted[above] - sorted[below]);
}

} // namespace

ColumnSummary Summarize(const Column& column)
{
    Column values;
    std::copy_if(column.begin(), column.end(), std::back_inserter(values),
                 [](double value) { return std::isfinite(value); });
    ColumnSummary summary;
    summary.count = int(values.size());
    summary.missing = int(column.size() - values.size());
    if (values.empty())
        return summary;
    std::sort(values.begin(), values.end());
    // Deviations from a value of the column keep the digits that large values would lose.
    const double origin = values[values.size() / 2];
    double sum = 0.0;
    for (double value : values)
        sum += value - origin;
    const double shift = sum / summary.count;
    summary.mean = origin + shift;
    if (summary.count > 1) {
        double squares = 0.0;
        for (double value : values)
            squares += (value - origin - shift) * (value - origin - shift);
        summary.deviation = std::sqrt(squares / (summary.count - 1));
    }
    constexpr double Quarter = 0.25;
    summary.least = values.front();
    summary.lowerQuartile = QuantileOf(values, Quarter);
    summary.median = QuantileOf(values, 2 * Quarter);
    summary.upperQuartile = QuantileOf(values, 3 * Quarter);
    summary.greatest = values.back();
    return summary;
}
