#include "ParallelPlot.h"
#include "PlotCanvas.h"
#include "PlotRuns.h"

class tst_ParallelPlot : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void RangesAlongAxesSelectRuns();
    void SelectedRunsAreDrawn();
    void DrawingsOfFewRunsHaveNoImage();
    void WithoutRunsThePlotSaysSo();
    void AxesBearTheirUnits();
};

namespace {

// Of four axes: a, b, sum and product. @p share is 0 at the lower end of the axis.
QPoint OnAxis(const QWidget& canvas, int axis, double share)
{
    constexpr int Side = 50;
    const int line = canvas.fontMetrics().height();
    const double top = 2.0 * line + 4.0;
    const double bottom = canvas.height() - line - 4.0;
    return {Side + axis * (canvas.width() - 2 * Side) / 3, qRound(bottom - share * (bottom - top))};
}

} // namespace

void tst_ParallelPlot::RangesAlongAxesSelectRuns()
{
    ShownPlot<ParallelPlot> shown;
    auto& canvas = *shown.plot.findChild<PlotCanvas*>();
    // a from 4 on: its axis is from 1 to 5.
    Drag(canvas, OnAxis(canvas, 0, 1.02), OnAxis(canvas, 0, 0.7));
    QCOMPARE(shown.SelectedRuns(), std::vector<int>({16, 17, 18, 19, 20, 21, 22, 23, 24, 25}));
    // And b up to 1.
    Drag(canvas, OnAxis(canvas, 1, -0.02), OnAxis(canvas, 1, 0.2));
    QCOMPARE(shown.SelectedRuns(), std::vector<int>({16, 21}));
    QCOMPARE(shown.plot.BrushCount(), 2);
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, OnAxis(canvas, 0, 0.5));
    QCOMPARE(shown.SelectedRuns(), std::vector<int>({1, 6, 11, 16, 21}));
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, OnAxis(canvas, 1, 0.5));
    QCOMPARE(shown.SelectedRuns(), std::vector<int>());
    QCOMPARE(shown.plot.BrushCount(), 0);
}

void tst_ParallelPlot::SelectedRunsAreDrawn()
{
    ShownPlot<ParallelPlot> shown;
    const QImage before = shown.plot.Picture();
    shown.selection.Set({3, 4});
    QVERIFY(shown.plot.Picture() != before);
    shown.selection.Clear();
    QVERIFY(shown.plot.Picture() == before);
}

void tst_ParallelPlot::DrawingsOfFewRunsHaveNoImage()
{
    ShownPlot<ParallelPlot> shown;
    const int before = shown.plot.Svg().count("<polyline");
    shown.selection.Set({3, 4});
    const QByteArray svg = shown.plot.Svg();
    QVERIFY(!svg.contains("<image"));
    QCOMPARE(svg.count("<polyline") - before, 2 * 3);
    ShownPlot<ParallelPlot> many(45);
    QVERIFY(many.plot.Svg().contains("<image"));
}

void tst_ParallelPlot::WithoutRunsThePlotSaysSo()
{
    StudySelection selection;
    StudyTable table(selection);
    ParallelPlot plot(table, selection, nullptr);
    plot.resize(300, 300);
    plot.show();
    QTest::mouseClick(plot.findChild<PlotCanvas*>(), Qt::LeftButton);
    QVERIFY(plot.Svg().contains("Choose two columns or more."));
}

void tst_ParallelPlot::AxesBearTheirUnits()
{
    const QByteArray svg = SvgWithUnits<ParallelPlot>();
    QVERIFY(svg.contains(">a (mm)<"));
    QVERIFY(svg.contains(">b<"));
}

TARN_TEST_MAIN(tst_ParallelPlot)
#include "tst_ParallelPlot.moc"
