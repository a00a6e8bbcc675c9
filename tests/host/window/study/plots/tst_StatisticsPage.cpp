#include "PlotRuns.h"
#include "StatisticsPage.h"

#include <QLabel>
#include <QTableWidget>

class tst_StatisticsPage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheColumnsAreSummarized();
    void TheParametersHaveTheirShares();
    void TooFewRunsHaveNoSurface();
    void ManyRunsWaitForTheButton();
    void TheSummaryBearsUnits();
    void ThePageIsExported();
};

static QStringList RowTexts(const QTableWidget& table, int row)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column)
        texts << table.item(row, column)->text();
    return texts;
}

void tst_StatisticsPage::TheColumnsAreSummarized()
{
    ShownPlot<StatisticsPage> shown;
    const auto& summary = Find<QTableWidget>(shown.plot, "summaryTable");
    QCOMPARE(summary.rowCount(), 5);
    QCOMPARE(RowTexts(summary, 0), QStringList({"a", "25", "0", "3", "1.44338", "1", "3", "5"}));
    QCOMPARE(RowTexts(summary, 4).mid(0, 3), QStringList({"product", "24", "1"}));
    QCOMPARE(shown.table.SetFilter("a == 5"), QString());
    QTest::qWait(0);
    QCOMPARE(summary.item(0, 3)->text(), QString("5"));
}

void tst_StatisticsPage::TheParametersHaveTheirShares()
{
    ShownPlot<StatisticsPage> shown; // Of the sum.
    const auto& effects = Find<QTableWidget>(shown.plot, "effectsTable");
    QCOMPARE(effects.rowCount(), 2);
    QCOMPARE(RowTexts(effects, 1).mid(0, 2), QStringList({"b", "0.707107"}));
    QCOMPARE(qRound(effects.item(1, 3)->text().toDouble() * 1000.0), 500);
    QCOMPARE(qRound(effects.item(1, 4)->text().toDouble() * 1000.0), 500);
    const QString text = Find<QLabel>(shown.plot, "label_Surface").text();
    QVERIFY2(text.startsWith("A quadratic surface over 25 runs explains 1 of the variance"),
             qPrintable(text));
}

void tst_StatisticsPage::TooFewRunsHaveNoSurface()
{
    ShownPlot<StatisticsPage> shown(2);
    const QString text = Find<QLabel>(shown.plot, "label_Surface").text();
    QVERIFY2(text.startsWith("a quadratic surface"), qPrintable(text));
    const auto& effects = Find<QTableWidget>(shown.plot, "effectsTable");
    QCOMPARE(RowTexts(effects, 0), QStringList({"a", "0.707107", "0.707107", "", ""}));
}

void tst_StatisticsPage::ManyRunsWaitForTheButton()
{
    ShownPlot<StatisticsPage> shown(145);
    const auto& summary = Find<QTableWidget>(shown.plot, "summaryTable");
    QCOMPARE(summary.rowCount(), 0);
    Click(shown.plot, "pushButton_Calculate");
    QCOMPARE(summary.rowCount(), 5);
}

void tst_StatisticsPage::TheSummaryBearsUnits()
{
    ShownPlot<StatisticsPage> shown;
    shown.table.Take(ResultColumns({"a"}, {"f1_hz", "x_max"}, {{"a", "mm"}}));
    QTest::qWait(0);
    const auto& summary = Find<QTableWidget>(shown.plot, "summaryTable");
    QCOMPARE(RowTexts(summary, 0)[0], QString("a (mm)"));
    QCOMPARE(RowTexts(summary, 1)[0], QString("f1_hz"));
    QCOMPARE(RowTexts(summary, 2)[0], QString("x_max (mm)"));
}

void tst_StatisticsPage::ThePageIsExported()
{
    ShownPlot<StatisticsPage> shown;
    const QImage picture = shown.plot.Picture(1);
    QVERIFY(PixelsLike(picture, Qt::black) > 100);
}

TARN_TEST_MAIN(tst_StatisticsPage)
#include "tst_StatisticsPage.moc"
