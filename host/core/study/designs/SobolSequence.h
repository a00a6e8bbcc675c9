#pragma once

#include <array>
#include <cstdint>
#include <vector>

/// The points of a Sobol sequence: they fill the unit cube more evenly than random ones, and every
/// 2^n of them put one into each of 2^n equal intervals of each coordinate.
///
/// The directions are those of Joe and Kuo (2008), "Constructing Sobol sequences with better
/// two-dimensional projections", SIAM J. Sci. Comput. 30, file new-joe-kuo-6. The points are in the
/// order of the Gray code.
class SobolSequence
{
public:
    static constexpr int MaximumDimensions = 21;

    /// Starts at the origin. @p dimensions is from 1 to MaximumDimensions.
    explicit SobolSequence(int dimensions);

    /// The point at hand, in units of 2^-32.
    const std::vector<std::uint32_t>& Point() const { return m_point; }
    /// Goes to the next point. There are 2^32 - 1 after the first one.
    void Advance();

private:
    static constexpr int Bits = 32;

    std::vector<std::array<std::uint32_t, Bits>> m_directions; // Of each coordinate.
    std::vector<std::uint32_t> m_point;
    std::uint32_t m_index = 0;
};
