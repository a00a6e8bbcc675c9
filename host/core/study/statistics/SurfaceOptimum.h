#pragma once

#include "ParetoFront.h"
#include "ResponseSurface.h"

#include <limits>
#include <vector>

/// What a response must not leave.
struct SurfaceLimit
{
    ResponseSurface surface;
    double least = -std::numeric_limits<double>::infinity();
    double greatest = std::numeric_limits<double>::infinity();
};

/// The best point that was found. A run there is to verify it: the surface is an approximation.
struct SurfaceOptimum
{
    std::vector<double> point;   ///< A value of each parameter.
    double value = 0.0;          ///< Of the goal.
    std::vector<double> limited; ///< The values of the responses that have limits.
};

/// Finds the least or greatest value of the @p goal within its ranges and the @p limits, whose
/// surfaces are over the same parameters. Sequential quadratic programming (Kraft 1994, ACM
/// Transactions on Mathematical Software 20) starts from many points that are the same each time.
/// @throws HostError if no point that was found keeps all limits
SurfaceOptimum FindOptimum(const ResponseSurface& goal, Aim aim,
                           const std::vector<SurfaceLimit>& limits);
