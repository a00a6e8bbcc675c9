#include "PlotRuns.h"
#include "ScatterPlot.h"

#include <QCheckBox>
#include <QComboBox>
#include <qwt_plot.h>
#include <qwt_scale_map.h>

class tst_ScatterPlot : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ARectangleSelectsRuns();
    void AClickSelectsTheRunThere();
    void OnlyShownRunsAreSelected();
    void SelectedRunsAreDrawn();
    void TheParetoFrontIsShown_data();
    void TheParetoFrontIsShown();
    void OtherColumnsAreChosen();
    void AHiddenPlotFollowsWhenItIsShown();
    void ThePlotIsExported();
    void NoRunsAreNoProblem();
    void AxesBearTheirUnits();
    void NumbersDoNotFollowTheLocale();
};

namespace {

struct Scatter : ShownPlot<ScatterPlot>
{
    QPoint PlaceOf(double x, double y) const
    {
        const auto& qwt = *plot.findChild<QwtPlot*>();
        return {qRound(qwt.canvasMap(QwtPlot::xBottom).transform(x)),
                qRound(qwt.canvasMap(QwtPlot::yLeft).transform(y))};
    }
    QWidget& Canvas() const { return *plot.findChild<QwtPlot*>()->canvas(); }
    void Choose(const char* box, const QString& name)
    {
        auto& combo = Find<QComboBox>(plot, box);
        combo.setFocus();
        while (combo.currentText() != name && combo.currentIndex() + 1 < combo.count())
            QTest::keyClick(&combo, Qt::Key_Down);
        QCOMPARE(combo.currentText(), name);
        QTest::qWait(0); // The plot follows in an event of its own,
        DeliverEvents(); // and its layout in the next one.
    }
};

} // namespace

void tst_ScatterPlot::ARectangleSelectsRuns()
{
    Scatter scatter; // The sum over a.
    Drag(scatter.Canvas(), scatter.PlaceOf(0.8, 2.2), scatter.PlaceOf(2.2, 0.8));
    QCOMPARE(scatter.SelectedRuns(), std::vector<int>({1}));
    Drag(scatter.Canvas(), scatter.PlaceOf(0.8, 3.2), scatter.PlaceOf(2.2, 1.8));
    QCOMPARE(scatter.SelectedRuns(), std::vector<int>({1, 2, 6}));
}

void tst_ScatterPlot::AClickSelectsTheRunThere()
{
    Scatter scatter;
    QTest::mouseClick(&scatter.Canvas(), Qt::LeftButton, {}, scatter.PlaceOf(1.0, 2.0));
    QCOMPARE(scatter.SelectedRuns(), std::vector<int>({1}));
    QTest::mouseClick(&scatter.Canvas(), Qt::LeftButton, {}, scatter.PlaceOf(1.5, 2.5));
    QCOMPARE(scatter.SelectedRuns(), std::vector<int>());
}

void tst_ScatterPlot::OnlyShownRunsAreSelected()
{
    Scatter scatter;
    QCOMPARE(scatter.table.SetFilter("b > 1"), QString());
    QTest::qWait(0);
    Drag(scatter.Canvas(), scatter.PlaceOf(0.8, 3.2), scatter.PlaceOf(2.2, 1.8));
    QCOMPARE(scatter.SelectedRuns(), std::vector<int>({2}));
}

void tst_ScatterPlot::SelectedRunsAreDrawn()
{
    Scatter scatter;
    QCOMPARE(PixelsLike(scatter.plot.Picture(), StudyPlot::SelectedColor()), 0);
    scatter.selection.Set({0, 12});
    QVERIFY(PixelsLike(scatter.plot.Picture(), StudyPlot::SelectedColor()) > 20);
    QVERIFY(PixelsLike(scatter.plot.Picture(), StudyPlot::PointColor()) > 200);
}

void tst_ScatterPlot::TheParetoFrontIsShown_data()
{
    QTest::addColumn<QStringList>("aims");
    QTest::addColumn<std::vector<int>>("rows");
    // Least a and greatest sum: from (1, 6) to (5, 10).
    NewRow("least and greatest", QStringList({"least across", "greatest upwards"}),
           std::vector<int>({4, 9, 14, 19, 24}));
    NewRow("least of both", QStringList({"least across", "least upwards"}), std::vector<int>({0}));
}

void tst_ScatterPlot::TheParetoFrontIsShown()
{
    QFETCH(QStringList, aims);
    QFETCH(std::vector<int>, rows);
    Scatter scatter;
    QVERIFY(scatter.plot.Front().empty());
    QVERIFY(!Find<QComboBox>(scatter.plot, "comboBox_XAim").isVisible());
    Find<QCheckBox>(scatter.plot, "checkBox_Front").click();
    scatter.Choose("comboBox_XAim", aims[0]);
    scatter.Choose("comboBox_YAim", aims[1]);
    QTRY_COMPARE(scatter.plot.Front(), rows);
}

void tst_ScatterPlot::OtherColumnsAreChosen()
{
    Scatter scatter;
    scatter.Choose("comboBox_X", "sum");
    scatter.Choose("comboBox_Y", "product");
    // The run without a product is not there.
    Drag(scatter.Canvas(), scatter.PlaceOf(1.9, 2.1), scatter.PlaceOf(3.1, 0.9));
    QCOMPARE(scatter.SelectedRuns(), std::vector<int>({1, 6}));
}

void tst_ScatterPlot::AHiddenPlotFollowsWhenItIsShown()
{
    Scatter scatter;
    scatter.plot.hide();
    scatter.table.Take(GridRuns(6));
    scatter.plot.show();
    Drag(scatter.Canvas(), scatter.PlaceOf(5.8, 12.2), scatter.PlaceOf(6.2, 11.8));
    QCOMPARE(int(scatter.selection.Rows().size()), 1);
}

void tst_ScatterPlot::ThePlotIsExported()
{
    Scatter scatter;
    const QByteArray svg = scatter.plot.Svg();
    QVERIFY(svg.startsWith("<?xml"));
    QVERIFY(svg.contains("<svg"));
    QVERIFY(svg.contains(">sum<"));
    QCOMPARE(scatter.plot.Picture(3).width(), scatter.plot.Picture(1).width() * 3);
}

void tst_ScatterPlot::NoRunsAreNoProblem()
{
    StudySelection selection;
    StudyTable table(selection);
    ScatterPlot plot(table, selection, nullptr);
    plot.resize(300, 300);
    plot.show();
    Find<QCheckBox>(plot, "checkBox_Front").click();
    QTest::mouseClick(plot.findChild<QwtPlot*>()->canvas(), Qt::LeftButton);
    QVERIFY(!plot.Picture().isNull());
    table.Take(GridRuns(1));
    QTest::qWait(0);
    QVERIFY(!plot.Picture().isNull());
}

void tst_ScatterPlot::AxesBearTheirUnits()
{
    const QByteArray svg = SvgWithUnits<ScatterPlot>();
    QVERIFY(svg.contains(">a (mm)<"));
    QVERIFY(svg.contains(">sum<"));
}

void tst_ScatterPlot::NumbersDoNotFollowTheLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale::German); // 4.000 and 0,5
    Scatter scatter;
    ResultColumns columns({"a"}, {"f1_hz"});
    columns.Take(std::vector<QByteArray>{"1", "0", "3000", "ok", ""});
    columns.Take(std::vector<QByteArray>{"2", "1", "5000", "ok", ""});
    scatter.table.Take(columns);
    const QByteArray svg = scatter.plot.Svg();
    QLocale::setDefault(before);
    QVERIFY(svg.contains(">4000<"));
    QVERIFY(svg.contains(">0.4<"));
}

TARN_TEST_MAIN(tst_ScatterPlot)
#include "tst_ScatterPlot.moc"
