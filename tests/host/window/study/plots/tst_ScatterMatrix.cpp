#include "PlotCanvas.h"
#include "PlotRuns.h"
#include "ScatterMatrix.h"

#include <QMenu>
#include <QToolButton>

class tst_ScatterMatrix : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ARectangleInAFieldSelectsRuns();
    void SelectedRunsAreDrawn();
    void DrawingsOfFewRunsHaveNoImage();
    void TheColumnsAreChosen();
    void WithoutRunsThePlotSaysSo();
    void AxesBearTheirUnits();
};

namespace {

// Of four columns: a, b, sum and product.
QPoint InField(const QWidget& canvas, int column, int row, double x, double y)
{
    return {int((column + x) * canvas.width() / 4.0), int((row + y) * canvas.height() / 4.0)};
}

} // namespace

void tst_ScatterMatrix::ARectangleInAFieldSelectsRuns()
{
    ShownPlot<ScatterMatrix> shown;
    auto& canvas = *shown.plot.findChild<PlotCanvas*>();
    // The corner of least a and least b: the second row of fields is b.
    Drag(canvas, InField(canvas, 0, 1, 0.02, 0.85), InField(canvas, 0, 1, 0.15, 0.98));
    QCOMPARE(shown.SelectedRuns(), std::vector<int>({1}));
    // On the diagonal there is nothing to select.
    Drag(canvas, InField(canvas, 1, 1, 0.1, 0.1), InField(canvas, 1, 1, 0.9, 0.9));
    QCOMPARE(shown.SelectedRuns(), std::vector<int>({1}));
}

void tst_ScatterMatrix::SelectedRunsAreDrawn()
{
    ShownPlot<ScatterMatrix> shown;
    QCOMPARE(PixelsLike(shown.plot.Picture(1), StudyPlot::SelectedColor()), 0);
    shown.selection.Set({3, 4, 5, 6, 7});
    QVERIFY(PixelsLike(shown.plot.Picture(1), StudyPlot::SelectedColor()) > 0 ||
            shown.plot.Picture(1) != QImage());
    QVERIFY(shown.plot.Svg().contains("product"));
}

void tst_ScatterMatrix::DrawingsOfFewRunsHaveNoImage()
{
    ShownPlot<ScatterMatrix> shown;
    shown.selection.Set({3});
    QVERIFY(!shown.plot.Svg().contains("<image"));
    // Each run in 12 fields; two of them have no product.
    QCOMPARE(shown.plot.Svg().count("<circle") + shown.plot.Svg().count("<ellipse"),
             24 * 12 + 6 + 12);
    ShownPlot<ScatterMatrix> many(45);
    QVERIFY(many.plot.Svg().contains("<image"));
}

void tst_ScatterMatrix::TheColumnsAreChosen()
{
    ShownPlot<ScatterMatrix> shown;
    const QImage before = shown.plot.Picture(1);
    const QList<QAction*> actions = Find<QToolButton>(shown.plot, "columnPicker").menu()->actions();
    QCOMPARE(actions.size(), 5);
    QVERIFY(!actions[2]->isChecked()); // It is constant.
    actions[0]->trigger();
    QTest::qWait(0);
    QVERIFY(shown.plot.Picture(1) != before);
}

void tst_ScatterMatrix::WithoutRunsThePlotSaysSo()
{
    StudySelection selection;
    StudyTable table(selection);
    ScatterMatrix plot(table, selection, nullptr);
    plot.resize(300, 300);
    plot.show();
    QVERIFY(plot.Svg().contains("No column varies yet."));
}

void tst_ScatterMatrix::AxesBearTheirUnits()
{
    const QByteArray svg = SvgWithUnits<ScatterMatrix>();
    QVERIFY(svg.contains(">a (mm)<"));
    QVERIFY(svg.contains(">b<"));
}

TARN_TEST_MAIN(tst_ScatterMatrix)
#include "tst_ScatterMatrix.moc"
