#include "ConvergencePlot.h"
#include "PlotRuns.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_map.h>

class tst_ConvergencePlot : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void LeastGreatestAndMeanFollowTheRuns();
    void ARectangleSelectsRuns();
    void NoRunsAreNoProblem();
};

namespace {

const QwtPlotCurve& CurveOf(const ConvergencePlot& plot, const QString& title)
{
    const QwtPlotItemList curves =
        plot.findChild<QwtPlot*>()->itemList(QwtPlotItem::Rtti_PlotCurve);
    for (const QwtPlotItem* const curve : curves) {
        if (curve->title().text() == title)
            return *static_cast<const QwtPlotCurve*>(curve);
    }
    return *static_cast<const QwtPlotCurve*>(curves.first());
}

} // namespace

void tst_ConvergencePlot::LeastGreatestAndMeanFollowTheRuns()
{
    ShownPlot<ConvergencePlot> shown; // Sums 2 3 4 5 6, 3 4 5 6 7, ...
    const QwtPlotCurve& mean = CurveOf(shown.plot, "Mean so far");
    QCOMPARE(mean.dataSize(), std::size_t(25));
    QCOMPARE(mean.sample(1), QPointF(2.0, 2.5));
    QCOMPARE(mean.sample(24), QPointF(25.0, 6.0));
    QCOMPARE(CurveOf(shown.plot, "Least so far").sample(24).y(), 2.0);
    QCOMPARE(CurveOf(shown.plot, "Greatest so far").sample(5).y(), 6.0);
    QCOMPARE(CurveOf(shown.plot, "Greatest so far").sample(24).y(), 10.0);
    // As runs come in.
    shown.table.Take(GridRuns(6));
    QTest::qWait(0);
    QCOMPARE(CurveOf(shown.plot, "Mean so far").dataSize(), std::size_t(36));
}

void tst_ConvergencePlot::ARectangleSelectsRuns()
{
    ShownPlot<ConvergencePlot> shown;
    auto& qwt = *shown.plot.findChild<QwtPlot*>();
    const auto placeOf = [&qwt](double x, double y) {
        return QPoint(qRound(qwt.canvasMap(QwtPlot::xBottom).transform(x)),
                      qRound(qwt.canvasMap(QwtPlot::yLeft).transform(y)));
    };
    Drag(*qwt.canvas(), placeOf(0.5, 3.3), placeOf(6.5, 1.5));
    QCOMPARE(shown.SelectedRuns(), std::vector<int>({1, 2, 6}));
}

void tst_ConvergencePlot::NoRunsAreNoProblem()
{
    StudySelection selection;
    StudyTable table(selection);
    ConvergencePlot plot(table, selection, nullptr);
    plot.resize(300, 300);
    plot.show();
    QVERIFY(!plot.Picture().isNull());
}

TARN_TEST_MAIN(tst_ConvergencePlot)
#include "tst_ConvergencePlot.moc"
