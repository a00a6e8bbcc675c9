#include "DesignModel.h"
#include "EmptyDesignStores.h"
#include "ParameterRows.h"

#include <QSignalSpy>

#include <cmath>

class tst_DesignModel : public With<TestCase, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void AnOpenedProjectIsSettled();
    void AnEditIsToldBeforeTheChange();
    void ReplacingIsNotAnEdit();
    void ARunLeavesTheDesign();
    void ARunOfAStudyIsShown();
    void ARunOfOtherParametersIsRefused();
    void AnEditLeavesTheRun();
    void ANewNameIsTold();
    void ABadNameIsRefused();
};

namespace {

double Value(const char* name)
{
    return GlobalParaMeterMgr::GetParameterRawValue(name).toDouble();
}

/// Writes a run as the DOE dialog does.
void WriteRun(const char* ticked, double value)
{
    for (auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters) {
        const double number = name == ticked ? value : 0.0;
        record.m_dValue = number;
        record.m_varRawValue = number;
        record.m_strValue = QString::number(number);
    }
}

} // namespace

void tst_DesignModel::AnOpenedProjectIsSettled()
{
    Store("b", "a*2");
    Store("a", "3");
    Store("c", "gone");
    GlobalParaMeterMgr::m_nameMapParameters["b"].m_strExpressPara = "old,names";
    DesignModel model;
    const QSignalSpy changed(&model, &DesignModel::Changed);
    model.Open({{"a", "mm"}});
    QCOMPARE(changed.count(), 1);
    QCOMPARE(Value("b"), 6.0);
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters["b"].m_strExpressPara, QString("a"));
    QCOMPARE(model.Design()[1].unit, QString("mm"));
    QCOMPARE(model.ReasonFor("b"), QString());
    QVERIFY(model.ReasonFor("c").contains("\"gone\""));
}

void tst_DesignModel::AnEditIsToldBeforeTheChange()
{
    DesignModel model;
    model.Open({});
    QStringList told;
    connect(&model, &DesignModel::Edited, this, [&](const QString& text) { told << text; });
    connect(&model, &DesignModel::Changed, this, [&] { told << "changed"; });
    model.Edit({NewParameter("a")}, "new");
    QCOMPARE(told, QStringList({"new", "changed"}));
}

void tst_DesignModel::ReplacingIsNotAnEdit()
{
    DesignModel model;
    const QSignalSpy edited(&model, &DesignModel::Edited);
    model.Replace({NewParameter("a")});
    QCOMPARE(edited.count(), 0);
    QCOMPARE(model.Stored().size(), std::size_t(1));
}

void tst_DesignModel::ARunLeavesTheDesign()
{
    Store("a", "3");
    Store("b", "4");
    Store("c", "a*b");
    DesignModel model;
    model.Open({});
    const ParameterEntries design = model.Design();
    model.ExpectRuns();
    WriteRun("a", 10.0);
    QCOMPARE(model.TakeRun({"a"}), 2);
    QVERIFY(model.HoldsRun());
    QCOMPARE(Value("b"), 4.0);
    QCOMPARE(Value("c"), 40.0);
    QVERIFY(model.Design() == design);
    QVERIFY(model.Stored() != design);

    // The next session begins with the design, not with the run.
    model.ExpectRuns();
    WriteRun("b", 7.0);
    model.TakeRun({"b"});
    QCOMPARE(Value("a"), 3.0);
    model.BackToDesign();
    QVERIFY(!model.HoldsRun());
    QVERIFY(model.Stored() == design);
}

void tst_DesignModel::ARunOfAStudyIsShown()
{
    Store("a", "3");
    Store("b", "2*a");
    Store("c", "a*b");
    DesignModel model;
    model.Open({});
    // Also one with an expression; the others are calculated.
    model.ShowRun({"a", "b"}, {5.0, 7.0});
    QVERIFY(model.HoldsRun());
    QCOMPARE(Value("a"), 5.0);
    QCOMPARE(Value("b"), 7.0);
    QCOMPARE(Value("c"), 35.0);
    model.ShowRun({"a"}, {1.0});
    QCOMPARE(Value("b"), 2.0);
    model.BackToDesign();
    QCOMPARE(Value("a"), 3.0);
    QCOMPARE(Value("c"), 18.0);
}

void tst_DesignModel::ARunOfOtherParametersIsRefused()
{
    Store("a", "3");
    DesignModel model;
    model.Open({});
    QVERIFY_EXCEPTION_THROWN(model.ShowRun({"a", "gone"}, {5.0, 7.0}), ParameterError);
    QVERIFY(!model.HoldsRun());
    QCOMPARE(Value("a"), 3.0);
}

void tst_DesignModel::AnEditLeavesTheRun()
{
    Store("a", "3");
    Store("b", "4");
    DesignModel model;
    model.Open({});
    model.ExpectRuns();
    WriteRun("a", 10.0);
    model.TakeRun({"a"});
    ParameterEntries entries = model.Design();
    entries[1].SetNumber(5.0);
    model.Edit(entries, "test");
    QVERIFY(!model.HoldsRun());
    QCOMPARE(Value("a"), 3.0);
    QCOMPARE(Value("b"), 5.0);
}

void tst_DesignModel::ANewNameIsTold()
{
    Store("a", "3");
    DesignModel model;
    model.Open({{"a", "mm"}});
    const QSignalSpy renamed(&model, &DesignModel::Renamed);
    const QSignalSpy edited(&model, &DesignModel::Edited);
    model.Rename("a", "b");
    QCOMPARE(renamed.count(), 1);
    QCOMPARE(edited.count(), 1);
    QCOMPARE(edited[0][0].toString(), QString("Rename \"a\" to \"b\""));
    QCOMPARE(model.Design()[0].unit, QString("mm"));
}

void tst_DesignModel::ABadNameIsRefused()
{
    Store("a", "3");
    Store("b", "3");
    DesignModel model;
    model.Open({});
    for (const char* const name : {"b", "", "2nd", "a b", "a,b"})
        QVERIFY_EXCEPTION_THROWN(model.Rename("a", name), ParameterError);
    QCOMPARE(model.Design()[0].Name(), QString("a"));
}

TARN_TEST_MAIN(tst_DesignModel)
#include "tst_DesignModel.moc"
