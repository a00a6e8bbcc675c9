#include "MainEffectsPlot.h"
#include "PlotRuns.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_map.h>
#include <qwt_text.h>

class tst_MainEffectsPlot : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EachParameterHasItsMeans();
    void TheFilterCounts();
    void AMeanSelectsItsRuns();
    void TheMeansOfSelectedRunsAreShown();
    void NoRunsAreNoProblem();
    void AxesBearTheirUnits();
};

namespace {

/// The curve of a parameter, or that of the selected runs.
const QwtPlotCurve& CurveOf(const MainEffectsPlot& plot, const QString& title)
{
    const QwtPlotItemList curves =
        plot.findChild<QwtPlot*>()->itemList(QwtPlotItem::Rtti_PlotCurve);
    const auto found = std::find_if(curves.begin(), curves.end(), [&](const QwtPlotItem* item) {
        return item->title().text() == title;
    });
    return static_cast<const QwtPlotCurve&>(**found);
}

QPoint PlaceOf(const MainEffectsPlot& plot, const QPointF& point)
{
    const auto& qwt = *plot.findChild<QwtPlot*>();
    return {qRound(qwt.canvasMap(QwtPlot::xBottom).transform(point.x())),
            qRound(qwt.canvasMap(QwtPlot::yLeft).transform(point.y()))};
}

std::vector<double> MeansOf(const MainEffectsPlot& plot, const QString& parameter)
{
    const QwtPlotCurve* const curve = &CurveOf(plot, parameter);
    constexpr double Digits = 1e9;
    std::vector<double> means;
    for (std::size_t i = 0; i < curve->dataSize(); ++i)
        means.push_back(std::round(curve->sample(int(i)).y() * Digits) / Digits);
    return means;
}

} // namespace

void tst_MainEffectsPlot::EachParameterHasItsMeans()
{
    ShownPlot<MainEffectsPlot> shown;
    QCOMPARE(shown.plot.Parameters(), QStringList({"a", "b"})); // c is constant.
    QCOMPARE(MeansOf(shown.plot, "a"), std::vector<double>({4.0, 5.0, 6.0, 7.0, 8.0}));
    QVERIFY(shown.plot.Svg().contains(">b<"));
}

void tst_MainEffectsPlot::TheFilterCounts()
{
    ShownPlot<MainEffectsPlot> shown;
    QCOMPARE(shown.table.SetFilter("b == 5 && a < 4"), QString());
    QTest::qWait(0);
    QCOMPARE(shown.plot.Parameters(), QStringList({"a"}));
    QCOMPARE(MeansOf(shown.plot, "a"), std::vector<double>({6.0, 7.0, 8.0}));
}

void tst_MainEffectsPlot::AMeanSelectsItsRuns()
{
    ShownPlot<MainEffectsPlot> shown(3);
    DeliverEvents(); // Of the layout.
    QWidget& canvas = *shown.plot.findChild<QwtPlot*>()->canvas();
    const QPointF second = CurveOf(shown.plot, "b").sample(1);
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, PlaceOf(shown.plot, second));
    QCOMPARE(shown.SelectedRuns(), std::vector<int>({2, 5, 8}));
    const QPoint first = PlaceOf(shown.plot, CurveOf(shown.plot, "a").sample(0));
    Drag(canvas, first - QPoint(5, 5), first + QPoint(5, 5));
    QCOMPARE(shown.SelectedRuns(), std::vector<int>({1, 2, 3}));
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, QPoint(2, 2));
    QCOMPARE(shown.SelectedRuns(), std::vector<int>());
}

void tst_MainEffectsPlot::TheMeansOfSelectedRunsAreShown()
{
    ShownPlot<MainEffectsPlot> shown(3); // The sum.
    QVERIFY(MeansOf(shown.plot, "").empty());
    shown.selection.Set({0, 2, 4}); // 1 + 1, 1 + 3 and 2 + 2
    QCOMPARE(MeansOf(shown.plot, ""), std::vector<double>({3.0, 4.0, 2.0, 4.0, 4.0}));
    QVERIFY(PixelsLike(shown.plot.Picture(1), StudyPlot::SelectedColor()) > 20);
}

void tst_MainEffectsPlot::NoRunsAreNoProblem()
{
    StudySelection selection;
    StudyTable table(selection);
    MainEffectsPlot plot(table, selection, nullptr);
    plot.resize(300, 300);
    plot.show();
    QVERIFY(!plot.Picture().isNull());
    QVERIFY(plot.Parameters().isEmpty());
}

void tst_MainEffectsPlot::AxesBearTheirUnits()
{
    const QByteArray svg = SvgWithUnits<MainEffectsPlot>();
    QVERIFY(svg.contains(">a (mm)<"));
    QVERIFY(svg.contains(">b<"));
}

TARN_TEST_MAIN(tst_MainEffectsPlot)
#include "tst_MainEffectsPlot.moc"
