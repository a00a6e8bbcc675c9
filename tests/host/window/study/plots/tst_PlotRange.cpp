#include "PlotRange.h"
#include "TestCase.h"

#include <limits>

class tst_PlotRange : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheRangeHoldsTheShownValues_data();
    void TheRangeHoldsTheShownValues();
    void PlacesAreShares();
};

constexpr double None = std::numeric_limits<double>::quiet_NaN();

void tst_PlotRange::TheRangeHoldsTheShownValues_data()
{
    QTest::addColumn<std::vector<double>>("values");
    QTest::addColumn<std::vector<int>>("rows");
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("greatest");
    using Values = std::vector<double>;
    using Rows = std::vector<int>;
    NewRow("some", Values{3.0, None, -1.0, 9.0}, Rows{0, 1, 2}, -1.0, 3.0);
    NewRow("one value", Values{4.0, 4.0}, Rows{0, 1}, 2.0, 6.0);
    NewRow("0 alone", Values{0.0}, Rows{0}, -1.0, 1.0);
    NewRow("none", Values{None}, Rows{0}, 0.0, 1.0);
    NewRow("no rows", Values{4.0}, Rows{}, 0.0, 1.0);
}

void tst_PlotRange::TheRangeHoldsTheShownValues()
{
    QFETCH(std::vector<double>, values);
    QFETCH(std::vector<int>, rows);
    QFETCH(double, least);
    QFETCH(double, greatest);
    const PlotRange range = PlotRange::Of(values, rows);
    QCOMPARE(range.least, least);
    QCOMPARE(range.greatest, greatest);
}

void tst_PlotRange::PlacesAreShares()
{
    const PlotRange range{10.0, 20.0};
    QCOMPARE(range.ShareOf(12.5), 0.25);
    QCOMPARE(range.ValueAt(0.25), 12.5);
}

TARN_TEST_MAIN(tst_PlotRange)
#include "tst_PlotRange.moc"
