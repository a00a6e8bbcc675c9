#include "SobolSequence.h"
#include "TestCase.h"

#include <set>

class tst_SobolSequence : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFirstPointsAreThePublishedOnes();
    void EveryCoordinateIsEvenlySpread();
    void EveryOctantOfTheCubeGetsAPoint();
    void NoTwoCoordinatesAreEqual();
};

using Point = std::vector<std::uint32_t>;

static std::vector<Point> Points(int dimensions, int count)
{
    SobolSequence sequence(dimensions);
    std::vector<Point> points;
    for (int i = 0; i < count; ++i) {
        points.push_back(sequence.Point());
        sequence.Advance();
    }
    return points;
}

// Joe and Kuo print these for their directions.
void tst_SobolSequence::TheFirstPointsAreThePublishedOnes()
{
    const std::vector<std::vector<double>> published = {
        {0, 0, 0},
        {0.5, 0.5, 0.5},
        {0.75, 0.25, 0.25},
        {0.25, 0.75, 0.75},
        {0.375, 0.375, 0.625},
        {0.875, 0.875, 0.125},
        {0.625, 0.125, 0.875},
        {0.125, 0.625, 0.375},
        {0.1875, 0.3125, 0.9375},
        {0.6875, 0.8125, 0.4375},
    };
    const std::vector<Point> points = Points(3, int(published.size()));
    for (std::size_t i = 0; i < points.size(); ++i) {
        for (std::size_t j = 0; j < 3; ++j)
            QCOMPARE(points[i][j] / 4294967296.0, published[i][j]);
    }
}

void tst_SobolSequence::EveryCoordinateIsEvenlySpread()
{
    constexpr int Bits = 10;
    const std::vector<Point> points = Points(SobolSequence::MaximumDimensions, 1 << Bits);
    for (int dimension = 0; dimension < SobolSequence::MaximumDimensions; ++dimension) {
        std::set<std::uint32_t> intervals;
        for (const Point& point : points)
            intervals.insert(point[std::size_t(dimension)] >> (32 - Bits));
        QCOMPARE(intervals.size(), points.size());
    }
}

// Property A, which these directions are published to have: the first 2^d points are in different
// parts of the cube that is halved along all d coordinates. The points are linear in the bits of
// their index, so that it is enough to find the leading bits of d of them independent.
void tst_SobolSequence::EveryOctantOfTheCubeGetsAPoint()
{
    SobolSequence sequence(SobolSequence::MaximumDimensions);
    std::vector<std::uint32_t> halves; // A bit for each coordinate.
    for (std::uint32_t index = 0; int(halves.size()) < SobolSequence::MaximumDimensions; ++index) {
        const bool isPowerOf2 = index != 0 && (index & (index - 1)) == 0;
        if (isPowerOf2) {
            std::uint32_t bits = 0;
            for (const std::uint32_t coordinate : sequence.Point())
                bits = (bits << 1) | (coordinate >> 31);
            halves.push_back(bits);
        }
        sequence.Advance();
    }
    for (int dimensions = 1; dimensions <= SobolSequence::MaximumDimensions; ++dimensions) {
        std::vector<std::uint32_t> rows(halves.begin(), halves.begin() + dimensions);
        for (std::uint32_t& row : rows)
            row >>= SobolSequence::MaximumDimensions - dimensions;
        int rank = 0;
        for (int bit = 0; bit < dimensions; ++bit) {
            for (std::size_t i = std::size_t(rank); i < rows.size(); ++i) {
                if (((rows[i] >> bit) & 1U) == 0)
                    continue;
                std::swap(rows[i], rows[std::size_t(rank)]);
                for (std::size_t j = 0; j < rows.size(); ++j) {
                    if (j != std::size_t(rank) && ((rows[j] >> bit) & 1U) != 0)
                        rows[j] ^= rows[std::size_t(rank)];
                }
                ++rank;
                break;
            }
        }
        QCOMPARE(rank, dimensions);
    }
}

void tst_SobolSequence::NoTwoCoordinatesAreEqual()
{
    const std::vector<Point> points = Points(SobolSequence::MaximumDimensions, 64);
    std::set<std::vector<std::uint32_t>> columns;
    for (std::size_t dimension = 0; dimension < points[0].size(); ++dimension) {
        std::vector<std::uint32_t> column;
        for (const Point& point : points)
            column.push_back(point[dimension]);
        QVERIFY(columns.insert(column).second);
    }
}

TARN_TEST_MAIN(tst_SobolSequence)
#include "tst_SobolSequence.moc"
