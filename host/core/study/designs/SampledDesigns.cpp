#include "SampledDesigns.h"

#include "SobolSequence.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <random>

namespace {

constexpr double Unit = 1.0 / 4294967296.0; // 2^-32

// The distributions of the standard library differ between its makers, its generators do not.
using Generator = std::mt19937;

// From 0 to below @p limit, each as likely.
std::uint32_t Below(Generator& generator, std::uint32_t limit)
{
    const std::uint32_t excess = (0U - limit) % limit; // 2^32 modulo the limit.
    std::uint32_t bits = 0;
    do
        bits = std::uint32_t(generator());
    while (bits < excess);
    return bits % limit;
}

// The place @p t of 0 to 1 in the range. With fma() the compiler has no choice of how to round.
double ValueAt(const DesignRange& range, double t)
{
    const double value = std::fma(t, range.greatest - range.least, range.least);
    return std::min(std::max(value, range.least), range.greatest);
}

// @p levels are -1, 0 and 1.
std::vector<double> RunAt(const DesignRanges& ranges, const std::vector<int>& levels)
{
    constexpr double Middle = 0.5;
    std::vector<double> run;
    run.reserve(ranges.size());
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        if (levels[i] == 0)
            run.push_back(ValueAt(ranges[i], Middle));
        else
            run.push_back(levels[i] < 0 ? ranges[i].least : ranges[i].greatest);
    }
    return run;
}

std::vector<int> CentreOf(const DesignRanges& ranges)
{
    return std::vector<int>(ranges.size(), 0);
}

// Adds all corners of the cube of the ranges @p moved, the last of them turning fastest; the other
// ranges are at their middle.
void AddCorners(const DesignRanges& ranges, const std::vector<std::size_t>& moved, DesignRuns& runs)
{
    const std::size_t corners = std::size_t(1) << moved.size();
    for (std::size_t corner = 0; corner < corners; ++corner) {
        std::vector<int> levels = CentreOf(ranges);
        for (std::size_t i = 0; i < moved.size(); ++i)
            levels[moved[i]] = ((corner >> (moved.size() - 1 - i)) & 1U) != 0 ? 1 : -1;
        runs.push_back(RunAt(ranges, levels));
    }
}

using Blocks = std::vector<std::vector<std::size_t>>;

Blocks BoxBehnkenBlocks(std::size_t ranges)
{
    if (ranges == 6)
        return {{0, 1, 3}, {1, 2, 4}, {2, 3, 5}, {0, 3, 4}, {1, 4, 5}, {0, 2, 5}};
    if (ranges == 7)
        return {{3, 4, 5}, {0, 5, 6}, {1, 4, 6}, {0, 1, 3}, {2, 3, 6}, {0, 2, 4}, {1, 2, 5}};
    Blocks pairs;
    for (std::size_t i = 0; i < ranges; ++i) {
        for (std::size_t j = i + 1; j < ranges; ++j)
            pairs.push_back({i, j});
    }
    return pairs;
}

} // namespace

DesignRuns LatinHypercubeRuns(const DesignRanges& ranges, int runs, std::uint32_t seed)
{
    Generator generator(seed);
    DesignRuns design(std::size_t(runs), std::vector<double>(ranges.size()));
    std::vector<std::uint32_t> intervals(design.size());
    for (std::size_t column = 0; column < ranges.size(); ++column) {
        std::iota(intervals.begin(), intervals.end(), 0U);
        for (std::size_t last = intervals.size(); last > 1; --last)
            std::swap(intervals[last - 1], intervals[Below(generator, std::uint32_t(last))]);
        for (std::size_t run = 0; run < design.size(); ++run) {
            const double place = double(std::uint32_t(generator())) * Unit;
            design[run][column] = ValueAt(ranges[column], (intervals[run] + place) / runs);
        }
    }
    return design;
}

DesignRuns SobolPoints(const DesignRanges& ranges, int runs, std::optional<std::uint32_t> seed)
{
    SobolSequence sequence(int(ranges.size()));
    std::vector<std::uint32_t> shift(ranges.size(), 0);
    if (seed) {
        Generator generator(*seed);
        for (std::uint32_t& bits : shift)
            bits = std::uint32_t(generator());
    } else {
        sequence.Advance();
    }
    DesignRuns design;
    design.reserve(std::size_t(runs));
    for (int run = 0; run < runs; ++run) {
        std::vector<double> values;
        values.reserve(ranges.size());
        for (std::size_t column = 0; column < ranges.size(); ++column)
            values.push_back(
                ValueAt(ranges[column], double(sequence.Point()[column] ^ shift[column]) * Unit));
        design.push_back(std::move(values));
        sequence.Advance();
    }
    return design;
}

DesignRuns BoxBehnkenRuns(const DesignRanges& ranges)
{
    DesignRuns design;
    for (const std::vector<std::size_t>& block : BoxBehnkenBlocks(ranges.size()))
        AddCorners(ranges, block, design);
    design.push_back(RunAt(ranges, CentreOf(ranges)));
    return design;
}

DesignRuns CentralCompositeRuns(const DesignRanges& ranges)
{
    DesignRuns design;
    std::vector<std::size_t> all(ranges.size());
    std::iota(all.begin(), all.end(), std::size_t(0));
    AddCorners(ranges, all, design);
    for (std::size_t column = 0; column < ranges.size(); ++column) {
        for (const int level : {-1, 1}) {
            std::vector<int> levels = CentreOf(ranges);
            levels[column] = level;
            design.push_back(RunAt(ranges, levels));
        }
    }
    design.push_back(RunAt(ranges, CentreOf(ranges)));
    return design;
}

DesignRuns OneAtATimeRuns(const std::vector<double>& own,
                          const std::vector<std::vector<double>>& samples)
{
    DesignRuns design = {own};
    for (std::size_t column = 0; column < own.size(); ++column) {
        for (const double sample : samples[column]) {
            if (sample == own[column])
                continue;
            std::vector<double> run = own;
            run[column] = sample;
            design.push_back(std::move(run));
        }
    }
    return design;
}
