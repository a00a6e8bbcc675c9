#include "MainEffects.h"
#include "TestCase.h"

#include <limits>

class tst_MainEffects : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ThePilotPlantIsAsPublished_data();
    void ThePilotPlantIsAsPublished();
    void ManyValuesAreGrouped();
    void EqualValuesStayTogether();
    void RunsWithoutBothValuesDoNotCount();
    void NoRunsHaveNoEffect();
};

// The pilot plant of Box, Hunter and Hunter, Statistics for Experimenters (2005), table 5.1: the
// yield for temperature, concentration and catalyst.
void tst_MainEffects::ThePilotPlantIsAsPublished_data()
{
    QTest::addColumn<Column>("parameter");
    QTest::addColumn<double>("effect");
    QTest::newRow("temperature") << Column{160, 180, 160, 180, 160, 180, 160, 180} << 23.0;
    QTest::newRow("concentration") << Column{20, 20, 40, 40, 20, 20, 40, 40} << -5.0;
    QTest::newRow("catalyst") << Column{1, 1, 1, 1, 2, 2, 2, 2} << 1.5;
}

void tst_MainEffects::ThePilotPlantIsAsPublished()
{
    QFETCH(Column, parameter);
    QFETCH(double, effect);
    const std::vector<LevelMean> means = MainEffect(parameter, {60, 72, 54, 68, 52, 83, 45, 80});
    QCOMPARE(means.size(), std::size_t(2));
    QCOMPARE(means[0].level, parameter.front());
    QCOMPARE(means[1].level, parameter.back());
    QCOMPARE(means[0].count, 4);
    QCOMPARE(means[1].mean - means[0].mean, effect);
}

void tst_MainEffects::ManyValuesAreGrouped()
{
    Column parameter;
    Column response;
    for (int i = 0; i < 100; ++i) {
        parameter.push_back((i * 37) % 100);
        response.push_back(2.0 * parameter.back());
    }
    const std::vector<LevelMean> means = MainEffect(parameter, response, 4);
    QCOMPARE(means.size(), std::size_t(4));
    for (std::size_t i = 0; i < means.size(); ++i) {
        QCOMPARE(means[i].count, 25);
        QCOMPARE(means[i].level, 12.0 + 25.0 * double(i));
        QCOMPARE(means[i].mean, 2.0 * means[i].level);
    }
}

void tst_MainEffects::EqualValuesStayTogether()
{
    const std::vector<LevelMean> means =
        MainEffect({1, 1, 1, 1, 1, 2, 3}, {1, 1, 1, 1, 1, 2, 4}, 2);
    QCOMPARE(means.size(), std::size_t(2));
    QCOMPARE(means[0].count, 5);
    QCOMPARE(means[0].level, 1.0);
    QCOMPARE(means[1].level, 2.5);
    QCOMPARE(means[1].mean, 3.0);
}

void tst_MainEffects::RunsWithoutBothValuesDoNotCount()
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    const std::vector<LevelMean> means = MainEffect({1, 1, none, 2}, {3, none, 100, 5});
    QCOMPARE(means.size(), std::size_t(2));
    QCOMPARE(means[0].mean, 3.0);
    QCOMPARE(means[1].mean, 5.0);
}

void tst_MainEffects::NoRunsHaveNoEffect()
{
    QVERIFY(MainEffect({}, {}).empty());
}

QTEST_GUILESS_MAIN(tst_MainEffects)
#include "tst_MainEffects.moc"
