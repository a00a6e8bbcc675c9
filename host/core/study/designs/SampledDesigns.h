#pragma once

#include <cstdint>
#include <optional>
#include <vector>

/// @file
/// Designs of experiments over ranges. The same arguments give the same runs on every machine.

/// From the least to the greatest value of a parameter.
struct DesignRange
{
    double least = 0.0;
    double greatest = 1.0;
};

using DesignRanges = std::vector<DesignRange>;
/// A value of each range, for each run.
using DesignRuns = std::vector<std::vector<double>>;

/// @p runs points of which each has an interval of its own in every coordinate, out of @p runs
/// equal ones, and lies at random in it. McKay, Beckman and Conover (1979), Technometrics 21.
DesignRuns LatinHypercubeRuns(const DesignRanges& ranges, int runs, std::uint32_t seed);

/// The first points of the SobolSequence after the origin. With a seed, the points with the origin,
/// after a random digital shift: the random bits of each coordinate are added without carry. There
/// are at most SobolSequence::MaximumDimensions ranges.
DesignRuns SobolPoints(const DesignRanges& ranges, int runs, std::optional<std::uint32_t> seed);

/// The blocks of Box and Behnken (1960), Technometrics 2, for 3 to 7 ranges, and all pairs of
/// ranges beyond; then the centre, once.
DesignRuns BoxBehnkenRuns(const DesignRanges& ranges);
constexpr int MinimumBoxBehnkenRanges = 3;

/// The corners of the cube, the last range turning fastest; the centres of its faces; the centre,
/// once. There are at most MaximumCentralCompositeRanges.
DesignRuns CentralCompositeRuns(const DesignRanges& ranges);
constexpr int MaximumCentralCompositeRanges = 19;

/// The values @p own, then each sample of each parameter, the others at their own values. A sample
/// that is equal to the own value is left out.
DesignRuns OneAtATimeRuns(const std::vector<double>& own,
                          const std::vector<std::vector<double>>& samples);
