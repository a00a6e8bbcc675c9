#include "HostError.h"
#include "ResponseSurface.h"
#include "TestCase.h"

#include <cmath>
#include <limits>

class tst_ResponseSurface : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheChemicalProcessIsAsPublished();
    void AQuadraticFunctionIsFoundExactly();
    void TheCrossErrorIsThatOfLeavingRunsOut();
    void TheGradientIsThatOfTheSurface();
    void RunsWithoutAResultDoNotCount();
    void AConstantResponseIsExplained();
    void WhatRunsDoNotDetermineIsRefused_data();
    void WhatRunsDoNotDetermineIsRefused();
    void TooManyNumbersAreRefused();
};

// Montgomery, Design and Analysis of Experiments (2012), example 11.2: the yield of a chemical
// process for time and temperature, in a central composite design.
static const Columns Process = {{-1, -1, 1, 1, 0, 0, 0, 0, 0, 1.414, -1.414, 0, 0},
                                {-1, 1, -1, 1, 0, 0, 0, 0, 0, 0, 0, 1.414, -1.414}};
static const Column Yield = {76.5, 77.0, 78.0, 79.5, 79.9, 80.3, 80.0,
                             79.7, 79.8, 78.4, 75.6, 78.5, 77.0};

static bool IsNear(double value, double expected, double tolerance)
{
    if (std::abs(value - expected) <= tolerance)
        return true;
    qWarning("%.10g instead of %.10g", value, expected);
    return false;
}

void tst_ResponseSurface::TheChemicalProcessIsAsPublished()
{
    const ResponseSurface surface =
        ResponseSurface::Fit({QStringLiteral("time"), QStringLiteral("heat")}, Process, Yield);
    QCOMPARE(surface.RunCount(), 13);
    const ResponseSurface::Coefficients& scaled = surface.Scaled();
    constexpr double Unit = 1.414;
    QVERIFY(IsNear(scaled.constant, 79.94, 5e-3));
    QVERIFY(IsNear(scaled.linear[0] / Unit, 0.99505, 5e-5));
    QVERIFY(IsNear(scaled.linear[1] / Unit, 0.51520, 5e-5));
    QVERIFY(IsNear(scaled.squares[0] / (Unit * Unit), -1.37645, 5e-4));
    QVERIFY(IsNear(scaled.squares[1] / (Unit * Unit), -1.00134, 5e-4));
    QVERIFY(IsNear(scaled.products[0] / (Unit * Unit), 0.25, 1e-12));
    QVERIFY(IsNear(surface.Determination(), 0.9827, 5e-5));
    QVERIFY(IsNear(surface.Prediction(), 0.9184, 5e-4));
    QVERIFY(IsNear(surface.CrossError() * surface.CrossError() * 13, 2.35, 5e-3)); // "PRESS"
    // The stationary point.
    QVERIFY(IsNear(surface.ValueAt({0.389, 0.306}), 80.21, 5e-3));
}

static double Quadratic(double x, double y, double z)
{
    return 3 + 2 * x - y + 0.5 * z + x * x - 4 * y * y + 0.25 * z * z - x * y + 2 * x * z + y * z;
}

// A grid over ranges that are nowhere near -1 to 1.
static Columns Grid()
{
    Columns columns(3);
    for (int i = 0; i < 27; ++i) {
        columns[0].push_back(1000.0 + i % 3);
        columns[1].push_back(-0.001 * (i / 3 % 3));
        columns[2].push_back(5.0 * (i / 9));
    }
    return columns;
}

static const QStringList GridNames = {QStringLiteral("a"), QStringLiteral("b"),
                                      QStringLiteral("c")};

static Column GridValues()
{
    const Columns grid = Grid();
    Column values;
    for (std::size_t i = 0; i < grid[0].size(); ++i)
        values.push_back(Quadratic(grid[0][i] - 1000.0, 1000.0 * grid[1][i], grid[2][i]));
    return values;
}

void tst_ResponseSurface::AQuadraticFunctionIsFoundExactly()
{
    const ResponseSurface surface = ResponseSurface::Fit(GridNames, Grid(), GridValues());
    QVERIFY(IsNear(surface.ValueAt({1000.7, -0.0003, 8.0}), Quadratic(0.7, -0.3, 8.0), 1e-9));
    QVERIFY(IsNear(surface.Determination(), 1.0, 1e-14));
    QVERIFY(IsNear(surface.Prediction(), 1.0, 1e-14));
    QVERIFY(surface.CrossError() < 1e-10);
    QCOMPARE(surface.Ranges()[0].least, 1000.0);
    QCOMPARE(surface.Ranges()[0].greatest, 1002.0);
}

void tst_ResponseSurface::TheCrossErrorIsThatOfLeavingRunsOut()
{
    const QStringList names = {QStringLiteral("time"), QStringLiteral("heat")};
    double squares = 0.0;
    for (std::size_t left = 0; left < Yield.size(); ++left) {
        Column fewer = Yield;
        fewer[left] = std::numeric_limits<double>::quiet_NaN();
        const double predicted = ResponseSurface::Fit(names, Process, fewer)
                                     .ValueAt({Process[0][left], Process[1][left]});
        squares += (predicted - Yield[left]) * (predicted - Yield[left]);
    }
    const ResponseSurface surface = ResponseSurface::Fit(names, Process, Yield);
    QVERIFY(IsNear(surface.CrossError(), std::sqrt(squares / 13), 1e-10));
}

void tst_ResponseSurface::TheGradientIsThatOfTheSurface()
{
    const ResponseSurface surface = ResponseSurface::Fit(GridNames, Grid(), GridValues());
    const std::vector<double> point = {1000.7, -0.0003, 8.0};
    const std::vector<double> gradient = surface.GradientAt(point);
    for (std::size_t i = 0; i < point.size(); ++i) {
        const DesignRange& range = surface.Ranges()[i];
        const double step = 1e-4 * (range.greatest - range.least);
        std::vector<double> before = point;
        std::vector<double> after = point;
        before[i] -= step;
        after[i] += step;
        const double slope = (surface.ValueAt(after) - surface.ValueAt(before)) / (2 * step);
        QVERIFY(IsNear(gradient[i], slope, 1e-6 * std::abs(slope)));
    }
}

void tst_ResponseSurface::RunsWithoutAResultDoNotCount()
{
    Columns parameters = Grid();
    Column response = GridValues();
    const double none = std::numeric_limits<double>::quiet_NaN();
    for (Column& column : parameters)
        column.push_back(4e9); // Far outside, also of the ranges.
    response.push_back(none);
    const ResponseSurface surface = ResponseSurface::Fit(GridNames, parameters, response);
    QCOMPARE(surface.RunCount(), 27);
    QCOMPARE(surface.Ranges()[0].greatest, 1002.0);
}

void tst_ResponseSurface::AConstantResponseIsExplained()
{
    const ResponseSurface surface = ResponseSurface::Fit(GridNames, Grid(), Column(27, 4.0));
    QVERIFY(IsNear(surface.ValueAt({1001, 0, 0}), 4.0, 1e-12));
    QCOMPARE(surface.Determination(), 1.0);
}

void tst_ResponseSurface::WhatRunsDoNotDetermineIsRefused_data()
{
    QTest::addColumn<Columns>("parameters");
    QTest::addColumn<Column>("response");
    QTest::addColumn<QString>("message");
    QTest::newRow("too few runs") << Columns{{1, 2, 3, 4, 5}, {1, 3, 2, 5, 4}}
                                  << Column{1, 2, 3, 4, 5}
                                  << QStringLiteral("a quadratic surface over these parameters "
                                                    "needs at least 6 runs with a result; there "
                                                    "are 5");
    QTest::newRow("two values") << Columns{{1, 2, 3, 4, 5, 6}, {1, 3, 1, 3, 1, 3}}
                                << Column{1, 2, 3, 4, 5, 6}
                                << QStringLiteral("a quadratic surface needs at least three "
                                                  "different values of \"b\"");
    QTest::newRow("together") << Columns{{1, 2, 3, 4, 5, 6, 7}, {2, 4, 6, 8, 10, 12, 14}}
                              << Column{1, 2, 3, 4, 5, 6, 7}
                              << QStringLiteral("the runs do not determine a quadratic surface; "
                                                "some parameters change only together");
}

void tst_ResponseSurface::WhatRunsDoNotDetermineIsRefused()
{
    QFETCH(Columns, parameters);
    QFETCH(Column, response);
    QFETCH(QString, message);
    try {
        ResponseSurface::Fit(GridNames, parameters, response);
        QFAIL("the surface was fitted");
    } catch (const HostError& error) {
        QCOMPARE(error.Reason(), message);
    }
}

void tst_ResponseSurface::TooManyNumbersAreRefused()
{
    const Columns parameters(300, Column(50000, 1.0));
    QVERIFY_EXCEPTION_THROWN(ResponseSurface::Fit({}, parameters, Column(50000, 1.0)), HostError);
}

QTEST_GUILESS_MAIN(tst_ResponseSurface)
#include "tst_ResponseSurface.moc"
