#include "MainEffectsPlot.h"
#include "PlotRuns.h"

#include <qwt_plot.h>
#include <qwt_plot_curve.h>

class tst_MainEffectsPlot : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EachParameterHasItsMeans();
    void TheFilterCounts();
    void NoRunsAreNoProblem();
};

namespace {

std::vector<double> MeansOf(const MainEffectsPlot& plot, int place)
{
    const QwtPlotItemList curves =
        plot.findChild<QwtPlot*>()->itemList(QwtPlotItem::Rtti_PlotCurve);
    const auto* const curve = static_cast<const QwtPlotCurve*>(curves[place]);
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
    QCOMPARE(MeansOf(shown.plot, 0), std::vector<double>({4.0, 5.0, 6.0, 7.0, 8.0}));
    QVERIFY(shown.plot.Svg().contains(">b<"));
}

void tst_MainEffectsPlot::TheFilterCounts()
{
    ShownPlot<MainEffectsPlot> shown;
    QCOMPARE(shown.table.SetFilter("b == 5 && a < 4"), QString());
    QTest::qWait(0);
    QCOMPARE(shown.plot.Parameters(), QStringList({"a"}));
    QCOMPARE(MeansOf(shown.plot, 0), std::vector<double>({6.0, 7.0, 8.0}));
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

TARN_TEST_MAIN(tst_MainEffectsPlot)
#include "tst_MainEffectsPlot.moc"
