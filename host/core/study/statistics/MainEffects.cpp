#include "MainEffects.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace {

using Pairs = std::vector<std::pair<double, double>>;

Pairs SortedPairs(const Column& parameter, const Column& response)
{
    Pairs pairs;
    for (std::size_t i = 0; i < parameter.size(); ++i)
        if (std::isfinite(parameter[i]) && std::isfinite(response[i]))
            pairs.emplace_back(parameter[i], response[i]);
    std::sort(pairs.begin(), pairs.end());
    return pairs;
}

LevelMean MeanOf(Pairs::const_iterator begin, Pairs::const_iterator end)
{
    LevelMean mean;
    mean.count = int(end - begin);
    mean.least = begin->first;
    mean.greatest = (end - 1)->first;
    for (auto i = begin; i != end; ++i) {
        mean.level += i->first / mean.count;
        mean.mean += i->second / mean.count;
    }
    if (mean.least == mean.greatest)
        mean.level = mean.least; // Without the error of the sum.
    return mean;
}

int CountLevels(const Pairs& pairs)
{
    int levels = pairs.empty() ? 0 : 1;
    for (std::size_t i = 1; i < pairs.size(); ++i)
        levels += pairs[i].first != pairs[i - 1].first ? 1 : 0;
    return levels;
}

} // namespace

std::vector<LevelMean> MainEffect(const Column& parameter, const Column& response, int levels)
{
    const Pairs pairs = SortedPairs(parameter, response);
    const bool isGrouped = CountLevels(pairs) > levels;
    std::vector<LevelMean> means;
    for (auto begin = pairs.begin(); begin != pairs.end();) {
        auto end = begin + 1;
        if (isGrouped)
            end = begin + std::max<std::ptrdiff_t>(1, (pairs.end() - begin) /
                                                          (levels - std::ptrdiff_t(means.size())));
        while (end != pairs.end() && end->first == (end - 1)->first)
            ++end;
        means.push_back(MeanOf(begin, end));
        begin = end;
    }
    return means;
}
