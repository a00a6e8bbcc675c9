#include "SampledDesigns.h"
#include "TestCase.h"

#include <cmath>
#include <set>

class tst_SampledDesigns : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ALatinHypercubeHasOnePointInEveryInterval_data();
    void ALatinHypercubeHasOnePointInEveryInterval();
    void ALatinHypercubeFollowsItsSeed();
    void ALatinHypercubeIsTheSameOnEveryMachine();
    void SobolPointsBeginAfterTheOrigin();
    void ShiftedSobolPointsStayEven();
    void BoxBehnkenHasThePublishedNumberOfRuns_data();
    void BoxBehnkenHasThePublishedNumberOfRuns();
    void BoxBehnkenIsBalanced_data();
    void BoxBehnkenIsBalanced();
    void CentralCompositeHasCornersFacesAndCentre();
    void TwoCentralRangesMakeAGrid();
    void OneAtATimeMovesOneValue();
    void EveryRunStaysInItsRanges();
};

static DesignRanges Cube(int dimensions)
{
    return DesignRanges(std::size_t(dimensions), DesignRange{-1.0, 1.0});
}

static bool AreDistinct(const DesignRuns& runs)
{
    return std::set<std::vector<double>>(runs.begin(), runs.end()).size() == runs.size();
}

void tst_SampledDesigns::ALatinHypercubeHasOnePointInEveryInterval_data()
{
    QTest::addColumn<int>("runs");
    QTest::newRow("one") << 1;
    QTest::newRow("two") << 2;
    QTest::newRow("a hundred") << 100;
    QTest::newRow("no power of two") << 997;
}

void tst_SampledDesigns::ALatinHypercubeHasOnePointInEveryInterval()
{
    QFETCH(int, runs);
    const DesignRuns design = LatinHypercubeRuns({{0, 1}, {10, 30}, {-5, 5}}, runs, 3);
    QCOMPARE(design.size(), std::size_t(runs));
    const DesignRanges ranges = {{0, 1}, {10, 30}, {-5, 5}};
    for (std::size_t column = 0; column < ranges.size(); ++column) {
        std::set<int> intervals;
        for (const std::vector<double>& run : design) {
            const double width = ranges[column].greatest - ranges[column].least;
            intervals.insert(int(std::floor((run[column] - ranges[column].least) / width * runs)));
        }
        QCOMPARE(intervals.size(), std::size_t(runs));
        QCOMPARE(*intervals.begin(), 0);
        QCOMPARE(*intervals.rbegin(), runs - 1);
    }
}

void tst_SampledDesigns::ALatinHypercubeFollowsItsSeed()
{
    QCOMPARE(LatinHypercubeRuns(Cube(3), 20, 1), LatinHypercubeRuns(Cube(3), 20, 1));
    QVERIFY(LatinHypercubeRuns(Cube(3), 20, 1) != LatinHypercubeRuns(Cube(3), 20, 2));
}

void tst_SampledDesigns::ALatinHypercubeIsTheSameOnEveryMachine()
{
    const DesignRuns expected = {{0.24010816309601068, 33.30135051316272},
                                 {0.9775191204001507, 71.55852975168577},
                                 {0.33337146036016446, 41.20296587546666}};
    QCOMPARE(LatinHypercubeRuns({{0, 1}, {0, 100}}, 3, 1), expected);
}

void tst_SampledDesigns::SobolPointsBeginAfterTheOrigin()
{
    const DesignRuns expected = {{5, 0.5}, {7.5, 0.25}, {2.5, 0.75}, {3.75, 0.375}};
    QCOMPARE(SobolPoints({{0, 10}, {0, 1}}, 4, std::nullopt), expected);
}

void tst_SampledDesigns::ShiftedSobolPointsStayEven()
{
    const DesignRuns design = SobolPoints({{0, 64}, {0, 64}}, 64, 7);
    for (std::size_t column = 0; column < 2; ++column) {
        std::set<int> intervals;
        for (const std::vector<double>& run : design)
            intervals.insert(int(run[column]));
        QCOMPARE(intervals.size(), std::size_t(64));
    }
    QCOMPARE(design, SobolPoints({{0, 64}, {0, 64}}, 64, 7));
    QVERIFY(design != SobolPoints({{0, 64}, {0, 64}}, 64, 8));
}

void tst_SampledDesigns::BoxBehnkenHasThePublishedNumberOfRuns_data()
{
    QTest::addColumn<int>("ranges");
    QTest::addColumn<int>("runs");
    // Each with one centre.
    QTest::newRow("3") << 3 << 13;
    QTest::newRow("4") << 4 << 25;
    QTest::newRow("5") << 5 << 41;
    QTest::newRow("6") << 6 << 49;
    QTest::newRow("7") << 7 << 57;
    QTest::newRow("8, all pairs") << 8 << 113;
}

void tst_SampledDesigns::BoxBehnkenHasThePublishedNumberOfRuns()
{
    QFETCH(int, ranges);
    const DesignRuns design = BoxBehnkenRuns(Cube(ranges));
    QTEST(int(design.size()), "runs");
    QVERIFY(AreDistinct(design));
    QCOMPARE(design.back(), std::vector<double>(std::size_t(ranges), 0.0));
}

void tst_SampledDesigns::BoxBehnkenIsBalanced_data()
{
    QTest::addColumn<int>("ranges");
    for (int ranges = 3; ranges <= 8; ++ranges)
        QTest::newRow(qPrintable(QString::number(ranges))) << ranges;
}

// Every parameter is moved in as many runs, and no linear effect or interaction is mixed with
// another one.
void tst_SampledDesigns::BoxBehnkenIsBalanced()
{
    QFETCH(int, ranges);
    const DesignRuns design = BoxBehnkenRuns(Cube(ranges));
    const auto count = std::size_t(ranges);
    std::vector<double> squares(count, 0.0);
    for (std::size_t i = 0; i < count; ++i) {
        double sum = 0.0;
        for (const std::vector<double>& run : design) {
            sum += run[i];
            squares[i] += run[i] * run[i];
        }
        QCOMPARE(sum, 0.0);
        QCOMPARE(squares[i], squares[0]);
        for (std::size_t j = 0; j < i; ++j) {
            double product = 0.0;
            double together = 0.0;
            for (const std::vector<double>& run : design) {
                product += run[i] * run[j];
                together += std::abs(run[i] * run[j]);
            }
            QCOMPARE(product, 0.0);
            QVERIFY2(together > 0.0, "An interaction cannot be seen.");
        }
    }
}

void tst_SampledDesigns::CentralCompositeHasCornersFacesAndCentre()
{
    const DesignRuns design = CentralCompositeRuns(Cube(3));
    QCOMPARE(design.size(), std::size_t(15));
    QVERIFY(AreDistinct(design));
    QCOMPARE(design[0], std::vector<double>({-1, -1, -1}));
    QCOMPARE(design[1], std::vector<double>({-1, -1, 1}));
    QCOMPARE(design[7], std::vector<double>({1, 1, 1}));
    QCOMPARE(design[8], std::vector<double>({-1, 0, 0}));
    QCOMPARE(design[13], std::vector<double>({0, 0, 1}));
    QCOMPARE(design[14], std::vector<double>({0, 0, 0}));
}

void tst_SampledDesigns::TwoCentralRangesMakeAGrid()
{
    const DesignRuns design = CentralCompositeRuns({{0, 2}, {10, 30}});
    QCOMPARE(design.size(), std::size_t(9));
    std::set<std::vector<double>> grid;
    for (const double x : {0, 1, 2}) {
        for (const double y : {10, 20, 30})
            grid.insert({x, y});
    }
    QVERIFY(std::set<std::vector<double>>(design.begin(), design.end()) == grid);
}

void tst_SampledDesigns::OneAtATimeMovesOneValue()
{
    const DesignRuns expected = {{1, 5}, {0, 5}, {2, 5}, {1, 6}};
    QCOMPARE(OneAtATimeRuns({1, 5}, {{0, 1, 2}, {5, 6}}), expected);
}

void tst_SampledDesigns::EveryRunStaysInItsRanges()
{
    const DesignRanges ranges = {{0.1, 0.3}, {-1e300, 1e300}, {5, 5}, {1e-300, 2e-300}};
    for (const DesignRuns& design :
         {LatinHypercubeRuns(ranges, 1000, 1), SobolPoints(ranges, 1000, std::nullopt),
          SobolPoints(ranges, 1000, 1), BoxBehnkenRuns(ranges), CentralCompositeRuns(ranges)}) {
        for (const std::vector<double>& run : design) {
            for (std::size_t column = 0; column < ranges.size(); ++column)
                QVERIFY(run[column] >= ranges[column].least &&
                        run[column] <= ranges[column].greatest);
        }
    }
}

TARN_TEST_MAIN(tst_SampledDesigns)
#include "tst_SampledDesigns.moc"
