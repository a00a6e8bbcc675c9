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

/// Which values of a parameter are allowed, within its range in the runs.
struct ParameterChoice
{
    double least = -std::numeric_limits<double>::infinity();
    double greatest = std::numeric_limits<double>::infinity();
    bool isWhole = false; ///< Whole numbers only, such as a number of bolts.
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
/// Whole numbers come from branching (Land and Doig 1960, Econometrica 28): where the best value is
/// not whole, the ranges below and above it are searched. @p choices are those of the parameters;
/// empty if all of their ranges is allowed.
/// @throws HostError if no point that was found keeps all limits, or if too many whole numbers
/// would have to be tried
SurfaceOptimum FindOptimum(const ResponseSurface& goal, Aim aim,
                           const std::vector<SurfaceLimit>& limits,
                           const std::vector<ParameterChoice>& choices = {});
