#include "HostError.h"
#include "SurfaceOptimum.h"
#include "TestCase.h"

#include <cmath>
#include <functional>

class tst_SurfaceOptimum : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void RosenAndSuzukiAreAsPublished();
    void TheOtherWayRoundTheLimitsHoldFromBelow();
    void TheBestOfManyPeaksIsFound();
    void AnOptimumMayLieInACorner();
    void LimitsThatNothingKeepsAreRefused();
    void ASurfaceThatDoesNotVaryHasAnOptimumAnywhere();
    void TheChoiceOfAParameterMayBeNarrower();
    void WholeNumbersAreExact_data();
    void WholeNumbersAreExact();
    void LimitsThatNoWholeNumberKeepsAreRefused();
};

using Point = std::vector<double>;

// Fits the function over the grid of -3, 0 and 3 in all coordinates.
static ResponseSurface SurfaceOf(int dimensions,
                                 const std::function<double(const Point&)>& function)
{
    constexpr int Levels = 3;
    const int runs = int(std::lround(std::pow(Levels, dimensions)));
    QStringList names;
    Columns columns;
    for (int k = 0; k < dimensions; ++k) {
        names << QString::number(k);
        columns.emplace_back();
    }
    Column response;
    for (int i = 0; i < runs; ++i) {
        Point point;
        for (int k = 0, rest = i; k < dimensions; ++k, rest /= Levels) {
            point.push_back(3.0 * (rest % Levels - 1));
            columns[std::size_t(k)].push_back(point.back());
        }
        response.push_back(function(point));
    }
    return ResponseSurface::Fit(names, columns, response);
}

static bool IsNear(const Point& point, const Point& expected, double tolerance)
{
    for (std::size_t i = 0; i < expected.size(); ++i)
        if (!(std::abs(point[i] - expected[i]) <= tolerance)) {
            qWarning("coordinate %d: %.10g", int(i), point[i]);
            return false;
        }
    return point.size() == expected.size();
}

static double RosenSuzuki(const Point& x)
{
    return x[0] * x[0] + x[1] * x[1] + 2 * x[2] * x[2] + x[3] * x[3] - 5 * x[0] - 5 * x[1] -
           21 * x[2] + 7 * x[3];
}

// The limits of the same problem, which must not be above 8, 10 and 5.
static std::vector<ResponseSurface> RosenSuzukiLimits()
{
    return {SurfaceOf(4,
                      [](const Point& x) {
                          return x[0] * x[0] + x[1] * x[1] + x[2] * x[2] + x[3] * x[3] + x[0] -
                                 x[1] + x[2] - x[3];
                      }),
            SurfaceOf(4,
                      [](const Point& x) {
                          return x[0] * x[0] + 2 * x[1] * x[1] + x[2] * x[2] + 2 * x[3] * x[3] -
                                 x[0] - x[3];
                      }),
            SurfaceOf(4, [](const Point& x) {
                return 2 * x[0] * x[0] + x[1] * x[1] + x[2] * x[2] + 2 * x[0] - x[1] - x[3];
            })};
}

// Problem 43 of Hock and Schittkowski, Test Examples for Nonlinear Programming Codes (1981): all
// functions are quadratic; the least value is -44 at (0, 1, 2, -1).
void tst_SurfaceOptimum::RosenAndSuzukiAreAsPublished()
{
    const std::vector<ResponseSurface> limits = RosenSuzukiLimits();
    SurfaceLimit first{limits[0]};
    first.greatest = 8;
    SurfaceLimit second{limits[1]};
    second.greatest = 10;
    SurfaceLimit third{limits[2]};
    third.greatest = 5;
    const SurfaceOptimum optimum =
        FindOptimum(SurfaceOf(4, RosenSuzuki), Aim::Least, {first, second, third});
    QVERIFY(IsNear(optimum.point, {0, 1, 2, -1}, 1e-4));
    QVERIFY(std::abs(optimum.value + 44) < 1e-4);
    QVERIFY(IsNear(optimum.limited, {8, 9, 5}, 1e-3));
}

void tst_SurfaceOptimum::TheOtherWayRoundTheLimitsHoldFromBelow()
{
    const ResponseSurface goal = SurfaceOf(1, [](const Point& x) { return x[0] * x[0]; });
    SurfaceLimit limit{SurfaceOf(1, [](const Point& x) { return x[0]; })};
    limit.least = 1.0;
    QVERIFY(IsNear(FindOptimum(goal, Aim::Least, {limit}).point, {1.0}, 1e-5));
    limit.greatest = 2.0;
    QVERIFY(IsNear(FindOptimum(goal, Aim::Greatest, {limit}).point, {2.0}, 1e-5));
}

void tst_SurfaceOptimum::TheBestOfManyPeaksIsFound()
{
    // Each corner of the square is a peak, one is a little higher.
    const ResponseSurface goal = SurfaceOf(
        2, [](const Point& x) { return x[0] * x[0] + x[1] * x[1] + 0.001 * x[0] - 0.001 * x[1]; });
    QVERIFY(IsNear(FindOptimum(goal, Aim::Greatest, {}).point, {3, -3}, 1e-6));
}

void tst_SurfaceOptimum::AnOptimumMayLieInACorner()
{
    const ResponseSurface goal =
        SurfaceOf(2, [](const Point& x) { return 1000 * x[0] - 2000 * x[1]; });
    const SurfaceOptimum optimum = FindOptimum(goal, Aim::Least, {});
    QVERIFY(IsNear(optimum.point, {-3, 3}, 1e-9));
    QVERIFY(std::abs(optimum.value + 9000) < 1e-6);
}

void tst_SurfaceOptimum::LimitsThatNothingKeepsAreRefused()
{
    const ResponseSurface goal = SurfaceOf(1, [](const Point& x) { return x[0]; });
    SurfaceLimit limit{SurfaceOf(1, [](const Point& x) { return x[0] * x[0]; })};
    limit.greatest = -1.0;
    try {
        FindOptimum(goal, Aim::Least, {limit});
        QFAIL("an optimum was found");
    } catch (const HostError& error) {
        QCOMPARE(error.Reason(),
                 QStringLiteral("no point within the ranges of the parameters keeps all limits; "
                                "widen a limit or a range"));
    }
}

void tst_SurfaceOptimum::ASurfaceThatDoesNotVaryHasAnOptimumAnywhere()
{
    const SurfaceOptimum optimum =
        FindOptimum(SurfaceOf(1, [](const Point&) { return 5.0; }), Aim::Least, {});
    QVERIFY(std::abs(optimum.value - 5.0) < 1e-12);
    QVERIFY(optimum.point[0] >= -3.0 && optimum.point[0] <= 3.0);
}

void tst_SurfaceOptimum::TheChoiceOfAParameterMayBeNarrower()
{
    const ResponseSurface goal = SurfaceOf(2, [](const Point& x) { return x[0] + x[1]; });
    ParameterChoice first;
    first.least = -1.25;
    QCOMPARE(FindOptimum(goal, Aim::Least, {}, {first, {}}).point, Point({-1.25, -3.0}));
    first.least = 3.5; // Outside the runs.
    QVERIFY_EXCEPTION_THROWN(FindOptimum(goal, Aim::Least, {}, {first, {}}), HostError);
}

void tst_SurfaceOptimum::WholeNumbersAreExact_data()
{
    QTest::addColumn<double>("centre");
    QTest::newRow("between two") << 0.4;
    QTest::newRow("on one") << -2.0;
    QTest::newRow("outside the range") << 7.3;
}

// Compared with each of the whole points: a bowl whose axes are not those of the parameters.
void tst_SurfaceOptimum::WholeNumbersAreExact()
{
    QFETCH(double, centre);
    const auto bowl = [centre](const Point& x) {
        const double a = x[0] - centre;
        const double b = x[1] + 0.6;
        return a * a + 8.0 * b * b + 5.0 * a * b;
    };
    SurfaceLimit limit{SurfaceOf(2, [](const Point& x) { return x[0] + x[1]; })};
    limit.least = -1.5;
    double least = 1e9;
    Point expected;
    for (int a = -3; a <= 3; ++a) {
        for (int b = -3; b <= 3; ++b) {
            const Point point = {double(a), double(b)};
            if (a + b >= -1.5 && bowl(point) < least) {
                least = bowl(point);
                expected = point;
            }
        }
    }
    ParameterChoice whole;
    whole.isWhole = true;
    const SurfaceOptimum optimum =
        FindOptimum(SurfaceOf(2, bowl), Aim::Least, {limit}, {whole, whole});
    QCOMPARE(optimum.point, expected);
    QVERIFY(std::abs(optimum.value - least) < 1e-9);
    // One of them alone cannot be worse.
    QVERIFY(FindOptimum(SurfaceOf(2, bowl), Aim::Least, {limit}, {whole, {}}).value <=
            least + 1e-9);
}

void tst_SurfaceOptimum::LimitsThatNoWholeNumberKeepsAreRefused()
{
    const ResponseSurface goal = SurfaceOf(1, [](const Point& x) { return x[0]; });
    SurfaceLimit limit{SurfaceOf(1, [](const Point& x) { return x[0]; })};
    limit.least = 0.4;
    limit.greatest = 0.6;
    ParameterChoice whole;
    whole.isWhole = true;
    QVERIFY_EXCEPTION_THROWN(FindOptimum(goal, Aim::Least, {limit}, {whole}), HostError);
}

QTEST_GUILESS_MAIN(tst_SurfaceOptimum)
#include "tst_SurfaceOptimum.moc"
