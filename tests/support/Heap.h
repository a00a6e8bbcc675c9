#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>

/// The bytes that the process has allocated and not freed.
std::size_t HeapInUse();

/// A leak of this many bytes in each call is more than chance.
constexpr double SmallestLeak = 16.0;

/// How many bytes each call of @p run leaves on the heap.
///
/// The first calls fill the caches of the toolkit. Of the rounds after them the one with the least
/// growth counts: a leak shows in every round, a cache that grows now and then does not.
template<class Run>
double HeapGrowth(const Run& run)
{
    constexpr int WarmUp = 100;
    constexpr int Rounds = 3;
    constexpr int Calls = 100;
    for (int i = 0; i < WarmUp; ++i)
        run();
    double least = std::numeric_limits<double>::infinity();
    for (int round = 0; round < Rounds; ++round) {
        const std::size_t before = HeapInUse();
        for (int i = 0; i < Calls; ++i)
            run();
        least = std::min(least, (double(HeapInUse()) - double(before)) / Calls);
    }
    return least;
}
