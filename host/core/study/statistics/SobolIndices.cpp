#include "SobolIndices.h"

#include "ResponseSurface.h"

#include <cstddef>

SobolIndices IndicesOf(const ResponseSurface& surface)
{
    // Variances over -1 to 1: of x, of x^2, and of the product of two.
    constexpr double OfLinear = 1.0 / 3.0;
    constexpr double OfSquare = 4.0 / 45.0;
    constexpr double OfProduct = 1.0 / 9.0;
    const ResponseSurface::Coefficients& terms = surface.Scaled();
    SobolIndices indices;
    double variance = 0.0;
    for (std::size_t i = 0; i < terms.linear.size(); ++i) {
        const double share = OfLinear * terms.linear[i] * terms.linear[i] +
                             OfSquare * terms.squares[i] * terms.squares[i];
        indices.first.push_back(share);
        variance += share;
    }
    indices.total = indices.first;
    auto product = terms.products.begin();
    for (std::size_t i = 0; i < terms.linear.size(); ++i)
        for (std::size_t j = i + 1; j < terms.linear.size(); ++j, ++product) {
            const double share = OfProduct * *product * *product;
            indices.total[i] += share;
            indices.total[j] += share;
            variance += share;
        }
    if (!(variance > 0.0))
        return indices;
    for (std::size_t i = 0; i < terms.linear.size(); ++i) {
        indices.first[i] /= variance;
        indices.total[i] /= variance;
    }
    return indices;
}
