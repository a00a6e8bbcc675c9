#include "SobolSequence.h"

#include <cstddef>

namespace {

/// How the directions of a coordinate begin, and the primitive polynomial that continues them.
struct Start
{
    int degree;
    std::uint32_t coefficients; ///< Of the polynomial, without the first and the last one.
    std::array<std::uint32_t, 7> numbers;
};

// Of the second coordinate and those after it.
constexpr std::array<Start, SobolSequence::MaximumDimensions - 1> Starts = {{
    {1, 0, {1}},
    {2, 1, {1, 3}},
    {3, 1, {1, 3, 1}},
    {3, 2, {1, 1, 1}},
    {4, 1, {1, 1, 3, 3}},
    {4, 4, {1, 3, 5, 13}},
    {5, 2, {1, 1, 5, 5, 17}},
    {5, 4, {1, 1, 5, 5, 5}},
    {5, 7, {1, 1, 7, 11, 19}},
    {5, 11, {1, 1, 5, 1, 1}},
    {5, 13, {1, 1, 1, 3, 11}},
    {5, 14, {1, 3, 5, 5, 31}},
    {6, 1, {1, 3, 3, 9, 7, 49}},
    {6, 13, {1, 1, 1, 15, 21, 21}},
    {6, 16, {1, 3, 1, 13, 27, 49}},
    {6, 19, {1, 1, 1, 15, 7, 5}},
    {6, 22, {1, 3, 1, 15, 13, 25}},
    {6, 25, {1, 1, 5, 5, 19, 61}},
    {7, 1, {1, 3, 7, 11, 23, 15, 103}},
    {7, 4, {1, 3, 7, 13, 13, 15, 69}},
}};

} // namespace

SobolSequence::SobolSequence(int dimensions)
    : m_directions(std::size_t(dimensions))
    , m_point(std::size_t(dimensions), 0)
{
    for (int bit = 0; bit < Bits; ++bit)
        m_directions[0][std::size_t(bit)] = 1U << (Bits - 1 - bit);
    for (std::size_t dimension = 1; dimension < m_directions.size(); ++dimension) {
        const Start& start = Starts[dimension - 1];
        std::array<std::uint32_t, Bits>& directions = m_directions[dimension];
        const auto degree = std::size_t(start.degree);
        for (std::size_t bit = 0; bit < degree; ++bit)
            directions[bit] = start.numbers[bit] << (Bits - 1 - int(bit));
        for (std::size_t bit = degree; bit < Bits; ++bit) {
            directions[bit] = directions[bit - degree] ^ (directions[bit - degree] >> degree);
            for (std::size_t term = 1; term < degree; ++term) {
                if (((start.coefficients >> (degree - 1 - term)) & 1U) != 0)
                    directions[bit] ^= directions[bit - term];
            }
        }
    }
}

void SobolSequence::Advance()
{
    // The lowest bit that is 0 is the one in which the next Gray code differs.
    std::size_t bit = 0;
    while (((m_index >> bit) & 1U) != 0)
        ++bit;
    ++m_index;
    for (std::size_t dimension = 0; dimension < m_point.size(); ++dimension)
        m_point[dimension] ^= m_directions[dimension][bit];
}
