#pragma once

#include "Column.h"

#include <vector>

/// The mean of a response at one level of a parameter, over all runs at that level.
struct LevelMean
{
    double level = 0.0; ///< The value of the parameter, or the mean value of its group.
    double mean = 0.0;
    int count = 0;
    double least = 0.0;    ///< Of the values of the parameter in the group.
    double greatest = 0.0; ///< As well.
};

/// The main effect of a parameter on a response: its mean at each level, in rising order. Runs
/// without one of the two do not count. A parameter with more than @p levels different values is
/// divided into so many groups of neighbouring values, as equal in number as possible; equal values
/// stay together.
std::vector<LevelMean> MainEffect(const Column& parameter, const Column& response, int levels = 10);
