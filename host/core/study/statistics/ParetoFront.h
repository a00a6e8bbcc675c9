#pragma once

#include "Column.h"

#include <vector>

enum class Aim
{
    Least,
    Greatest
};

/// The indices of the runs that no other run beats: none is at least as good in both responses and
/// better in one. In the order of the first response, the best first; runs that are equal in both
/// are all there. Runs without one of the two do not count.
std::vector<int> ParetoFront(const Column& first, Aim firstAim, const Column& second,
                             Aim secondAim);
