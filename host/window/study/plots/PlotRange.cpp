#include "PlotRange.h"

#include <algorithm>
#include <cmath>
#include <limits>

PlotRange PlotRange::Of(const std::vector<double>& values, const std::vector<int>& rows)
{
    PlotRange range{std::numeric_limits<double>::infinity(),
                    -std::numeric_limits<double>::infinity()};
    for (const int row : rows) {
        const double value = values[std::size_t(row)];
        if (!std::isfinite(value))
            continue;
        range.least = std::min(range.least, value);
        range.greatest = std::max(range.greatest, value);
    }
    if (range.least > range.greatest)
        return {};
    if (range.least == range.greatest) {
        const double half = range.least == 0.0 ? 1.0 : std::abs(range.least) / 2.0;
        return {range.least - half, range.greatest + half};
    }
    return range;
}
