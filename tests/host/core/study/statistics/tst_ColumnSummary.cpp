#include "ColumnSummary.h"
#include "TestCase.h"

#include <cmath>
#include <limits>

class tst_ColumnSummary : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void MeanAndDeviationAreThoseOfTheReferenceData_data();
    void MeanAndDeviationAreThoseOfTheReferenceData();
    void QuartilesLieBetweenValues();
    void ValuesThatAreMissingAreCounted();
    void OneValueHasNoDeviation();
    void NoValueHasNothing();
};

// The univariate data sets "NumAcc" of the Statistical Reference Datasets of NIST are made to show
// lost digits: a value, then two values in turn.
static Column ReferenceData(double first, double low, double high, int pairs)
{
    Column column = {first};
    for (int i = 0; i < pairs; ++i) {
        column.push_back(low);
        column.push_back(high);
    }
    return column;
}

void tst_ColumnSummary::MeanAndDeviationAreThoseOfTheReferenceData_data()
{
    QTest::addColumn<Column>("column");
    QTest::addColumn<double>("mean");
    QTest::addColumn<double>("deviation");
    QTest::newRow("NumAcc1") << Column{10000001, 10000003, 10000002} << 10000002.0 << 1.0;
    QTest::newRow("NumAcc2") << ReferenceData(1.2, 1.1, 1.3, 500) << 1.2 << 0.1;
    QTest::newRow("NumAcc3") << ReferenceData(1000000.2, 1000000.1, 1000000.3, 500) << 1000000.2
                             << 0.1;
    QTest::newRow("NumAcc4") << ReferenceData(10000000.2, 10000000.1, 10000000.3, 500) << 10000000.2
                             << 0.1;
}

void tst_ColumnSummary::MeanAndDeviationAreThoseOfTheReferenceData()
{
    QFETCH(Column, column);
    QFETCH(double, mean);
    QFETCH(double, deviation);
    const ColumnSummary summary = Summarize(column);
    QVERIFY(std::abs(summary.mean - mean) <= 1e-15 * mean);
    // The values themselves are rounded to 2e-9 in NumAcc4.
    QVERIFY2(std::abs(summary.deviation - deviation) <= 1e-8,
             qPrintable(QString::number(summary.deviation, 'g', 17)));
    QCOMPARE(summary.count, int(column.size()));
}

void tst_ColumnSummary::QuartilesLieBetweenValues()
{
    const ColumnSummary summary = Summarize({4, 1, 3, 2});
    QCOMPARE(summary.least, 1.0);
    QCOMPARE(summary.lowerQuartile, 1.75);
    QCOMPARE(summary.median, 2.5);
    QCOMPARE(summary.upperQuartile, 3.25);
    QCOMPARE(summary.greatest, 4.0);
}

void tst_ColumnSummary::ValuesThatAreMissingAreCounted()
{
    const double infinity = std::numeric_limits<double>::infinity();
    const ColumnSummary summary = Summarize({1, ColumnSummary::None, 3, infinity, -infinity});
    QCOMPARE(summary.count, 2);
    QCOMPARE(summary.missing, 3);
    QCOMPARE(summary.mean, 2.0);
}

void tst_ColumnSummary::OneValueHasNoDeviation()
{
    const ColumnSummary summary = Summarize({7});
    QCOMPARE(summary.mean, 7.0);
    QCOMPARE(summary.median, 7.0);
    QVERIFY(std::isnan(summary.deviation));
}

void tst_ColumnSummary::NoValueHasNothing()
{
    const ColumnSummary summary = Summarize({ColumnSummary::None});
    QCOMPARE(summary.count, 0);
    QCOMPARE(summary.missing, 1);
    QVERIFY(std::isnan(summary.mean));
    QVERIFY(std::isnan(summary.greatest));
}

QTEST_GUILESS_MAIN(tst_ColumnSummary)
#include "tst_ColumnSummary.moc"
