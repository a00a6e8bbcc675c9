#include "Correlation.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numeric>

namespace {

void DropIncomplete(Column& first, Column& second)
{
    std::size_t kept = 0;
    for (std::size_t i = 0; i < first.size(); ++i) {
        if (!std::isfinite(first[i]) || !std::isfinite(second[i]))
            continue;
        first[kept] = first[i];
        second[kept] = second[i];
        ++kept;
    }
    first.resize(kept);
    second.resize(kept);
}

double MeanOf(const Column& column)
{
    return std::accumulate(column.begin(), column.end(), 0.0) / double(column.size());
}

double CompleteCorrelation(const Column& first, const Column& second)
{
    const double firstMean = MeanOf(first);
    const double secondMean = MeanOf(second);
    double product = 0.0;
    double firstSquares = 0.0;
    double secondSquares = 0.0;
    for (std::size_t i = 0; i < first.size(); ++i) {
        const double dx = first[i] - firstMean;
        const double dy = second[i] - secondMean;
        product += dx * dy;
        firstSquares += dx * dx;
        secondSquares += dy * dy;
    }
    const double scale = std::sqrt(firstSquares) * std::sqrt(secondSquares);
    if (!(scale > 0.0))
        return std::numeric_limits<double>::quiet_NaN();
    return std::clamp(product / scale, -1.0, 1.0);
}

Column RanksOf(const Column& column)
{
    std::vector<std::size_t> order(column.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return column[a] < column[b]; });
    Column ranks(column.size());
    constexpr double Half = 0.5;
    for (std::size_t begin = 0; begin < order.size();) {
        std::size_t end = begin + 1;
        while (end < order.size() && column[order[end]] == column[order[begin]])
            ++end;
        for (std::size_t i = begin; i < end; ++i)
            ranks[order[i]] = Half * double(begin + end - 1);
        begin = end;
    }
    return ranks;
}

} // namespace

double Correlation(const Column& first, const Column& second)
{
    Column x = first;
    Column y = second;
    DropIncomplete(x, y);
    return CompleteCorrelation(x, y);
}

double RankCorrelation(const Column& first, const Column& second)
{
    Column x = first;
    Column y = second;
    DropIncomplete(x, y);
    return CompleteCorrelation(RanksOf(x), RanksOf(y));
}
