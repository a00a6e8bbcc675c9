#include "EmptyDesignStores.h"
#include "ModalDriver.h"
#include "OneParameterDlg.h"
#include "ParameterEntry.h"
#include "SamplingGuard.h"
#include "TestCase.h"

using Values = std::vector<double>;
Q_DECLARE_METATYPE(Values)
Q_DECLARE_METATYPE(sParaArrayData)

class tst_SamplingGuard : public With<TestCase, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void ANewRangeIsAroundTheValue_data();
    void ANewRangeIsAroundTheValue();
    void AnOkWithoutChangesKeepsTheSamples_data();
    void AnOkWithoutChangesKeepsTheSamples();
    void AChangeIsTaken();
};

namespace {

bool RunDialog(const std::function<void(QDialog&)>& step)
{
    const SamplingGuard guard("a");
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then(step);
    dialog.exec();
    return guard.Finish();
}

void PressOk(QDialog& dialog)
{
    Click(dialog, "pushButton_OK");
}

} // namespace

void tst_SamplingGuard::ANewRangeIsAroundTheValue_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<Values>("samples");
    NewRow("bolts", 8.0, Values({7, 8, 9}));
    NewRow("length", 200.0, Values({180, 200, 220}));
    NewRow("negative", -15.0, Values({-17, -15, -13}));
    NewRow("fraction", 0.25, Values({0.22, 0.25, 0.28}));
    NewRow("zero", 0.0, Values({-1, 0, 1}));
}

void tst_SamplingGuard::ANewRangeIsAroundTheValue()
{
    QFETCH(double, value);
    ParameterEntry entry = NewParameter("a");
    entry.SetNumber(value);
    GlobalParaMeterMgr::AddParameter("a", entry.record);
    QVERIFY(RunDialog(PressOk));
    QTEST(g_mapParaArrays["a"].vecValues, "samples");
}

void tst_SamplingGuard::AnOkWithoutChangesKeepsTheSamples_data()
{
    QTest::addColumn<sParaArrayData>("samples");
    NewRow("single values", sParaArrayData{1, "a", {0, 1.0000004}});
    NewRow("a limit of many digits",
           sParaArrayData{1, "a", {0, 1.0000004}, 0, 1.0000004, 1.0000004, 0});
    NewRow("steps of a third", sParaArrayData{1, "a", {0, 1.0 / 3}, 0, 0.5, 1.0 / 3, 0});
}

void tst_SamplingGuard::AnOkWithoutChangesKeepsTheSamples()
{
    QFETCH(sParaArrayData, samples);
    g_mapParaArrays["a"] = samples;
    QVERIFY(!RunDialog(PressOk));
    QCOMPARE(g_mapParaArrays["a"].vecValues, samples.vecValues);
    QCOMPARE(g_mapParaArrays["a"].dMax, samples.dMax);
    QCOMPARE(g_mapParaArrays["a"].dDelta, samples.dDelta);
}

void tst_SamplingGuard::AChangeIsTaken()
{
    g_mapParaArrays["a"] = {1, "a", {0, 1.0000004}};
    QVERIFY(RunDialog([](QDialog& dialog) {
        Type(dialog, "lineEdit_Max", "3");
        Click(dialog, "pushButton_OK");
    }));
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({0, 1, 2, 3}));
}

TARN_TEST_MAIN(tst_SamplingGuard)
#include "tst_SamplingGuard.moc"
