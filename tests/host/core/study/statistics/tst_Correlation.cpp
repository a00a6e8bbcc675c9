#include "Correlation.h"
#include "TestCase.h"

#include <cmath>
#include <limits>

class tst_Correlation : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheQuartetIsAsPublished_data();
    void TheQuartetIsAsPublished();
    void RanksShareEqualValues();
    void RanksFindWhatOnlyRises();
    void RunsWithoutBothValuesDoNotCount();
    void AColumnThatDoesNotVaryHasNone();
};

static const Column AnscombeX = {10, 8, 13, 9, 11, 14, 6, 4, 12, 7, 5};

// Anscombe (1973), "Graphs in statistical analysis", The American Statistician 27.
void tst_Correlation::TheQuartetIsAsPublished_data()
{
    QTest::addColumn<Column>("x");
    QTest::addColumn<Column>("y");
    QTest::newRow("I") << AnscombeX
                       << Column{8.04, 6.95, 7.58, 8.81, 8.33, 9.96, 7.24, 4.26, 10.84, 4.82, 5.68};
    QTest::newRow("II") << AnscombeX
                        << Column{9.14, 8.14, 8.74, 8.77, 9.26, 8.10, 6.13, 3.10, 9.13, 7.26, 4.74};
    QTest::newRow("III") << AnscombeX << Column{7.46, 6.77, 12.74, 7.11, 7.81, 8.84,
                                                6.08, 5.39, 8.15,  6.42, 5.73};
    QTest::newRow("IV") << Column{8, 8, 8, 8, 8, 8, 8, 19, 8, 8, 8}
                        << Column{6.58, 5.76,  7.71, 8.84, 8.47, 7.04,
                                  5.25, 12.50, 5.56, 7.91, 6.89};
}

void tst_Correlation::TheQuartetIsAsPublished()
{
    QFETCH(Column, x);
    QFETCH(Column, y);
    QVERIFY(std::abs(Correlation(x, y) - 0.8165) < 5e-4);
    QCOMPARE(Correlation(x, y), Correlation(y, x));
}

void tst_Correlation::RanksShareEqualValues()
{
    // The ranks are 1, 2.5, 2.5, 4 and 1, 2, 3, 4.
    QVERIFY(std::abs(RankCorrelation({1, 2, 2, 3}, {1, 2, 3, 4}) - 4.5 / std::sqrt(4.5 * 5.0)) <
            1e-15);
}

void tst_Correlation::RanksFindWhatOnlyRises()
{
    const Column x = {1, 2, 3, 4, 5};
    const Column y = {1, 10, 100, 1000, 10000};
    QCOMPARE(RankCorrelation(x, y), 1.0);
    QVERIFY(Correlation(x, y) < 0.9);
    QCOMPARE(RankCorrelation(x, {5, 4, 3, 2, -10}), -1.0);
}

void tst_Correlation::RunsWithoutBothValuesDoNotCount()
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    QCOMPARE(Correlation({1, none, 2, 3, 100}, {2, 50, 4, 6, none}), 1.0);
    QCOMPARE(RankCorrelation({1, none, 2, 3, 100}, {2, 50, 4, 6, none}), 1.0);
}

void tst_Correlation::AColumnThatDoesNotVaryHasNone()
{
    QVERIFY(std::isnan(Correlation({1, 1, 1}, {1, 2, 3})));
    QVERIFY(std::isnan(Correlation({}, {})));
    QVERIFY(std::isnan(RankCorrelation({1, 2, 3}, {7, 7, 7})));
}

QTEST_GUILESS_MAIN(tst_Correlation)
#include "tst_Correlation.moc"
