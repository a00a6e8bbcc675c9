#pragma once

#include <vector>

class ResponseSurface;

/// Which share of the variance of a response each parameter causes, from 0 to 1.
struct SobolIndices
{
    std::vector<double> first; ///< By itself.
    std::vector<double> total; ///< By itself and together with others; they sum up to 1 or more.
};

/// The indices of a surface whose parameters are independent and each equally likely in its range.
/// They are exact: the terms are turned into orthogonal polynomials (Sudret 2008, Reliability
/// Engineering and System Safety 93). All are 0 for a surface that does not vary.
SobolIndices IndicesOf(const ResponseSurface& surface);
