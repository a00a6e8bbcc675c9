#include "OptimumPage.h"
#include "OptimumTable.h"
#include "PlotRuns.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

class tst_OptimumPage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheOptimumKeepsTheLimits();
    void WholeNumbersAreFound();
    void TheLargestIsFound();
    void ARunAtTheOptimumIsCompared();
    void AFailedRunIsReported();
    void ARunIsAskedForOnce();
    void CalculatedParametersAreLeftOut();
    void WhatCannotBeFoundIsSaid_data();
    void WhatCannotBeFoundIsSaid();
    void AnotherLimitForgetsTheOptimum();
    void LimitsStayWhenColumnsCome();
    void ThePageIsExported();
};

namespace {

/// The page over a grid of 5 by 5 runs.
struct ShownPage : ShownPlot<OptimumPage>
{
    using ShownPlot<OptimumPage>::ShownPlot;

    OptimumTable& Rows() const { return ::Find<OptimumTable>(plot, "optimumTable"); }
    int RowFor(const QString& name) const
    {
        for (int row = 0; row < Rows().rowCount(); ++row) {
            if (Rows().item(row, OptimumTable::NameColumn)->text() == name)
                return row;
        }
        return -1;
    }
    QString Cell(const QString& name, int column) const
    {
        return Rows().item(RowFor(name), column)->text();
    }
    void Limit(const QString& name, int column, const QString& text) const
    {
        QTableWidgetItem* const cell = Rows().item(RowFor(name), column);
        QTest::mouseClick(Rows().viewport(), Qt::LeftButton, {},
                          Rows().visualItemRect(cell).center());
        QTest::keyClick(Rows().viewport(), Qt::Key_F2);
        auto* const edit = Rows().viewport()->findChild<QLineEdit*>();
        QVERIFY(edit != nullptr);
        edit->selectAll();
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
        DeliverEvents();
    }
    void TickWhole(const QString& name) const
    {
        Rows().setCurrentCell(RowFor(name), OptimumTable::WholeColumn);
        QTest::keyClick(Rows().viewport(), Qt::Key_Space);
    }
    void Find() const { Click(plot, "pushButton_FindOptimum"); }
    bool IsEnabled(const char* button) const
    {
        return ::Find<QPushButton>(plot, button).isEnabled();
    }
    QString Text() const { return ::Find<QLabel>(plot, "label_Optimum").text(); }
    /// Adds run 26: a, b, c, sum, product, status and error.
    void AddRun(const std::vector<QByteArray>& cells)
    {
        ResultColumns columns({"a", "b", "c"}, {"sum", "product"});
        std::vector<QByteArray> all = {"26"};
        all.insert(all.end(), cells.begin(), cells.end());
        QCOMPARE(columns.Take(all), QString());
        table.Take(columns);
        DeliverEvents();
    }
};

constexpr int Least = OptimumTable::LeastColumn;
constexpr int Greatest = OptimumTable::GreatestColumn;
constexpr int Predicted = OptimumTable::PredictedColumn;

} // namespace

// The least a + b where a * b is at least 9: at 3, 3.
void tst_OptimumPage::TheOptimumKeepsTheLimits()
{
    ShownPage shown;
    QCOMPARE(shown.Rows().rowCount(), 4); // c is constant.
    QVERIFY(!shown.IsEnabled("pushButton_VerifyOptimum"));
    QVERIFY(!shown.IsEnabled("pushButton_MakeOptimumTheDesign"));
    shown.Limit("product", Least, "9");
    shown.Find();
    QCOMPARE(shown.Cell("a", Predicted), QString("3"));
    QCOMPARE(shown.Cell("b", Predicted), QString("3"));
    QCOMPARE(shown.Cell("sum", Predicted), QString("6"));
    QCOMPARE(shown.Cell("product", Predicted), QString("9"));
    QVERIFY(shown.Cell("product", OptimumTable::ErrorColumn).toDouble() < 1e-9);
    QVERIFY2(shown.Text().startsWith("Predicted by quadratic surfaces over 25 runs."),
             qPrintable(shown.Text()));
    QCOMPARE(shown.plot.Point().size(), std::size_t(3));
    QCOMPARE(shown.plot.Point()[2], 7.0);
    QVERIFY(shown.IsEnabled("pushButton_MakeOptimumTheDesign"));
}

// The least a + b where a * b is at least 10 and a is whole: 3 and 10/3.
void tst_OptimumPage::WholeNumbersAreFound()
{
    ShownPage shown;
    shown.Limit("product", Least, "10");
    shown.TickWhole("a");
    shown.Find();
    QCOMPARE(shown.Cell("a", Predicted), QString("3"));
    QCOMPARE(shown.Cell("b", Predicted), QString("3.33333"));
}

void tst_OptimumPage::TheLargestIsFound()
{
    ShownPage shown;
    auto& aim = Find<QComboBox>(shown.plot, "comboBox_Aim");
    QTest::keyClick(&aim, Qt::Key_Down);
    shown.Limit("b", Greatest, "4.5");
    shown.Find();
    QCOMPARE(shown.Cell("a", Predicted), QString("5"));
    QCOMPARE(shown.Cell("b", Predicted), QString("4.5"));
}

void tst_OptimumPage::ARunAtTheOptimumIsCompared()
{
    ShownPage shown;
    shown.Limit("a", Least, "2.5");
    shown.Find();
    QVERIFY(shown.IsEnabled("pushButton_VerifyOptimum"));
    QCOMPARE(shown.plot.Point(), std::vector<double>({2.5, 1.0, 7.0}));
    shown.AddRun({"2.5", "1", "7", "3.6", "2.4", "ok", ""});
    QCOMPARE(shown.Rows().horizontalHeaderItem(OptimumTable::RunColumn)->text(), QString("Run 26"));
    QCOMPARE(shown.Cell("a", OptimumTable::RunColumn), QString("2.5"));
    QCOMPARE(shown.Cell("sum", OptimumTable::RunColumn), QString("3.6"));
    QCOMPARE(shown.Cell("sum", Predicted), QString("3.5"));
    QVERIFY(!shown.IsEnabled("pushButton_VerifyOptimum"));
    QVERIFY2(shown.Text().endsWith("Run 26 verifies it: compare the last columns."),
             qPrintable(shown.Text()));
}

void tst_OptimumPage::AFailedRunIsReported()
{
    ShownPage shown;
    shown.Limit("a", Least, "2.5");
    shown.Find();
    shown.AddRun({"2.5", "1", "7", "", "", "failed", "too thin"});
    QVERIFY2(shown.Text().endsWith("Run 26 failed: too thin"), qPrintable(shown.Text()));
    QVERIFY(shown.IsEnabled("pushButton_VerifyOptimum")); // It may be tried again.
}

void tst_OptimumPage::ARunIsAskedForOnce()
{
    ShownPage shown;
    const QSignalSpy verify(&shown.plot, &OptimumPage::VerifyWanted);
    const QSignalSpy design(&shown.plot, &OptimumPage::DesignWanted);
    shown.Limit("a", Least, "2.5");
    shown.Find();
    shown.plot.AllowRun(false);
    QVERIFY(!shown.IsEnabled("pushButton_VerifyOptimum"));
    shown.plot.AllowRun(true);
    Click(shown.plot, "pushButton_VerifyOptimum");
    Click(shown.plot, "pushButton_MakeOptimumTheDesign");
    QCOMPARE(verify.count(), 1);
    QCOMPARE(design.count(), 1);
    QCOMPARE(shown.plot.Samples().values, std::vector<double>({2.5}));
}

void tst_OptimumPage::CalculatedParametersAreLeftOut()
{
    ShownPage shown;
    shown.table.SetInputs({"b", "c"});
    DeliverEvents();
    QCOMPARE(shown.RowFor("a"), -1);
    QCOMPARE(shown.RowFor("b"), 0);
}

void tst_OptimumPage::WhatCannotBeFoundIsSaid_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QString>("limit");
    QTest::addColumn<QString>("text");
    QTest::newRow("no number")
        << 5 << "many"
        << "An optimum cannot be found: the limit \"many\" of \"product\" is not a number; type a "
           "number or nothing";
    QTest::newRow("out of reach")
        << 5 << "1000"
        << "An optimum cannot be found: no point within the ranges of the parameters keeps all "
           "limits; widen a limit or a range";
    QTest::newRow("few runs") << 2 << "1"
                              << "An optimum cannot be found: a quadratic surface";
    QTest::newRow("no runs") << 1 << ""
                             << "An optimum cannot be found: no parameter varies";
}

void tst_OptimumPage::WhatCannotBeFoundIsSaid()
{
    QFETCH(int, side);
    QFETCH(QString, limit);
    QFETCH(QString, text);
    ShownPage shown(side);
    if (!limit.isEmpty())
        shown.Limit("product", Least, limit);
    shown.Find();
    QVERIFY2(shown.Text().startsWith(text), qPrintable(shown.Text()));
    QVERIFY(!shown.IsEnabled("pushButton_VerifyOptimum"));
    QVERIFY(!shown.IsEnabled("pushButton_MakeOptimumTheDesign"));
}

void tst_OptimumPage::AnotherLimitForgetsTheOptimum()
{
    ShownPage shown;
    shown.Find();
    QVERIFY(!shown.plot.Point().empty());
    shown.Limit("product", Least, "9");
    QVERIFY(shown.plot.Point().empty());
    QCOMPARE(shown.Cell("a", Predicted), QString());
    shown.Find();
    QTest::keyClick(&Find<QComboBox>(shown.plot, "comboBox_Goal"), Qt::Key_Down);
    QVERIFY(shown.plot.Point().empty());
    shown.Find();
    shown.table.Clear();
    QVERIFY(shown.plot.Point().empty());
}

void tst_OptimumPage::LimitsStayWhenColumnsCome()
{
    ShownPage shown;
    shown.Limit("product", Least, "9");
    shown.TickWhole("a");
    shown.AddRun({"5", "5", "8", "10", "25", "ok", ""}); // c varies from now on.
    QCOMPARE(shown.Rows().rowCount(), 5);
    QCOMPARE(shown.Cell("product", Least), QString("9"));
    QCOMPARE(shown.Rows().item(0, OptimumTable::WholeColumn)->checkState(), Qt::Checked);
    QCOMPARE(shown.Cell("sum", Least), QString());
}

void tst_OptimumPage::ThePageIsExported()
{
    ShownPage shown;
    shown.Find();
    QVERIFY(PixelsLike(shown.plot.Picture(1), Qt::black) > 100);
}

TARN_TEST_MAIN(tst_OptimumPage)
#include "tst_OptimumPage.moc"
