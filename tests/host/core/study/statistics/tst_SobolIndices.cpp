#include "ResponseSurface.h"
#include "SobolIndices.h"
#include "TestCase.h"

#include <cmath>

class tst_SobolIndices : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ALinearModelIsAsPublished();
    void AProductOfTwoIsAsPublished();
    void TheIndicesAreSharesOfTheVariance();
    void ASurfaceThatDoesNotVaryHasNone();
};

static const QStringList Names = {QStringLiteral("a"), QStringLiteral("b")};
constexpr int Side = 5;

// Fits the function over a grid of -1 to 1.
template<typename Function>
static ResponseSurface SurfaceOf(Function function)
{
    Columns columns(2);
    Column response;
    for (int i = 0; i < Side * Side; ++i) {
        columns[0].push_back(-1.0 + 0.5 * (i % Side));
        columns[1].push_back(-1.0 + 0.5 * (i / Side));
        response.push_back(function(columns[0].back(), columns[1].back()));
    }
    return ResponseSurface::Fit(Names, columns, response);
}

static bool AreNear(const std::vector<double>& values, const std::vector<double>& expected)
{
    constexpr double Tolerance = 1e-12;
    for (std::size_t i = 0; i < expected.size(); ++i)
        if (!(std::abs(values[i] - expected[i]) <= Tolerance))
            return false;
    return values.size() == expected.size();
}

// Saltelli et al., Global Sensitivity Analysis: The Primer (2008), section 1.2: the indices of a
// linear model are the shares of the squared coefficients.
void tst_SobolIndices::ALinearModelIsAsPublished()
{
    const SobolIndices indices =
        IndicesOf(SurfaceOf([](double x, double y) { return 7 + 2 * x - y; }));
    QVERIFY(AreNear(indices.first, {0.8, 0.2}));
    QVERIFY(AreNear(indices.total, {0.8, 0.2}));
}

// The first two factors of the function that Sobol' (1993), Mathematical Modelling and
// Computational Experiments 1, integrates, with variances 1/3 each: (1 + x)(1 + y) has first
// indices 3/7 each and an interaction of 1/7.
void tst_SobolIndices::AProductOfTwoIsAsPublished()
{
    const SobolIndices indices =
        IndicesOf(SurfaceOf([](double x, double y) { return (1 + x) * (1 + y); }));
    QVERIFY(AreNear(indices.first, {3.0 / 7.0, 3.0 / 7.0}));
    QVERIFY(AreNear(indices.total, {4.0 / 7.0, 4.0 / 7.0}));
}

void tst_SobolIndices::TheIndicesAreSharesOfTheVariance()
{
    const auto function = [](double x, double y) {
        return x + 2 * x * x - 3 * y * y + x * y;
    };
    const SobolIndices indices = IndicesOf(SurfaceOf(function));
    // The variance by numbers, over the middles of many cells.
    constexpr int Cells = 400;
    const auto at = [](int i) {
        return -1.0 + (2.0 * i + 1.0) / Cells;
    };
    double mean = 0.0;
    double squares = 0.0;
    double variancesOfX = 0.0; // Of the mean over y.
    for (int i = 0; i < Cells; ++i) {
        double meanOverY = 0.0;
        for (int j = 0; j < Cells; ++j) {
            const double value = function(at(i), at(j));
            meanOverY += value / Cells;
            squares += value * value / Cells / Cells;
        }
        mean += meanOverY / Cells;
        variancesOfX += meanOverY * meanOverY / Cells;
    }
    const double variance = squares - mean * mean;
    QVERIFY(std::abs(indices.first[0] - (variancesOfX - mean * mean) / variance) < 1e-4);
    QVERIFY(std::abs(indices.first[0] + indices.total[1] - 1.0) < 1e-12);
    QVERIFY(std::abs(indices.first[1] + indices.total[0] - 1.0) < 1e-12);
}

void tst_SobolIndices::ASurfaceThatDoesNotVaryHasNone()
{
    const SobolIndices indices = IndicesOf(SurfaceOf([](double, double) { return 0.0; }));
    QVERIFY(AreNear(indices.first, {0.0, 0.0}));
    QVERIFY(AreNear(indices.total, {0.0, 0.0}));
}

QTEST_GUILESS_MAIN(tst_SobolIndices)
#include "tst_SobolIndices.moc"
