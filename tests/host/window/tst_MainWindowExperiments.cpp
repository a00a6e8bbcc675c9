#include "HostApplication.h"
#include "HostTestMain.h"
#include "OpenWindow.h"
#include "ParameterTable.h"

#include <QCheckBox>
#include <QTableWidget>

#include <set>

class tst_MainWindowExperiments : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void GenerateBuildsTheChosenRun();
    void GenerateRestoresTheParametersOutsideTheRun();
    void TicksBelongToParametersByName();
    void RestoreBringsAllParametersBack();
    void RestoreBringsARemovedParameterBack();
    void RestoreEvaluatesParametersAddedLater();
    void RestoreAfterSeveralRunsBringsTheDesignBack();
    void RestoreIsEnabledOnlyAfterARun();
    void AppliedValuesBecomeTheDesignOfTheNextRun();
};

namespace {

// The columns of the parameters in the dialog.
enum Column
{
    NameColumn,
    StatusColumn
};

} // namespace

void tst_MainWindowExperiments::GenerateBuildsTheChosenRun()
{
    OpenWindow open;
    const PostedMessages posted;
    open.user.Then([&open](QDialog& dialog) {
        QCOMPARE(dialog.parentWidget(), static_cast<QWidget*>(&open.window));
        const auto& runs = Find<QTableWidget>(dialog, "tableWidget_Final");
        QCOMPARE(runs.rowCount(), 18);
        // bolt_count 8, bore_diameter 80, thickness 24
        Generate(dialog, 17);
        dialog.reject();
    });
    open.Trigger("action_DesignOfExperiments");
    QVERIFY(open.user.IsDone());
    QCOMPARE(open.user.Boxes(), QVector<ShownBox>());
    QCOMPARE(Stored("thickness"), 24.0);
    QCOMPARE(Stored("bore_diameter"), 80.0);
    QCOMPARE(open.Shown("label_BoundingBox"), QStringLiteral("200 × 200 × 54 mm"));
    QVERIFY(open.Shown("label_Status").startsWith("Built at "));
    QCOMPARE(posted.At(ErrorLevel), QStringList());
}

void tst_MainWindowExperiments::GenerateRestoresTheParametersOutsideTheRun()
{
    OpenWindow open;
    open.user.Then([](QDialog& dialog) {
        Generate(dialog, 17);
        dialog.reject();
    });
    open.Trigger("action_DesignOfExperiments");
    QCOMPARE(Stored("outer_diameter"), 200.0);
    QCOMPARE(Stored("hub_height"), 30.0);
    // Evaluated again from the bore of the run.
    QCOMPARE(Stored("hub_diameter"), 128.0);
    const auto& overview = Find<QTableWidget>(open.window, "parameterTable");
    QCOMPARE(overview.item(RowOf(overview, "outer_diameter"), ParameterTable::ValueColumn)->text(),
             QStringLiteral("200"));
    QCOMPARE(overview.item(RowOf(overview, "thickness"), ParameterTable::ValueColumn)->text(),
             QStringLiteral("24"));
}

void tst_MainWindowExperiments::TicksBelongToParametersByName()
{
    OpenWindow open;
    std::set<QString> ticked;
    open.user.Then([&ticked](QDialog& dialog) {
        const auto& table = Find<QTableWidget>(dialog, "tableWidget_Parameters");
        for (int row = 0; row < table.rowCount(); ++row) {
            const auto* const check = qobject_cast<QCheckBox*>(table.cellWidget(row, StatusColumn));
            if (check->isChecked())
                ticked.insert(table.item(row, NameColumn)->text());
        }
        dialog.reject();
    });
    open.Trigger("action_DesignOfExperiments");
    QCOMPARE(ticked, std::set<QString>({"bolt_count", "bore_diameter", "thickness"}));
}

void tst_MainWindowExperiments::RestoreBringsAllParametersBack()
{
    OpenWindow open;
    const ParameterMap before = GlobalParaMeterMgr::m_nameMapParameters;
    const QString mass = open.Shown("label_Mass");
    open.user.Then([](QDialog& dialog) {
        Generate(dialog, 17);
        dialog.reject();
    });
    open.Trigger("action_DesignOfExperiments");
    QVERIFY(open.Shown("label_Mass") != mass);

    open.Trigger("action_RestoreParameters");
    QCOMPARE(open.Shown("label_Mass"), mass);
    for (const auto& [name, record] : before) {
        const ParametersDef& restored = GlobalParaMeterMgr::m_nameMapParameters.at(name);
        QCOMPARE(restored.m_dValue, record.m_dValue);
        QCOMPARE(restored.m_varRawValue, record.m_varRawValue);
        QCOMPARE(restored.m_strValue, record.m_strValue);
        QCOMPARE(restored.m_strExpression, record.m_strExpression);
    }
    const auto& overview = Find<QTableWidget>(open.window, "parameterTable");
    QCOMPARE(overview.item(RowOf(overview, "thickness"), ParameterTable::ValueColumn)->text(),
             QStringLiteral("20"));
}

void tst_MainWindowExperiments::RestoreBringsARemovedParameterBack()
{
    OpenWindow open;
    open.user.Then([](QDialog& dialog) {
        Generate(dialog, 17);
        dialog.reject();
    });
    open.Trigger("action_DesignOfExperiments");
    GlobalParaMeterMgr::m_nameMapParameters.erase("fillet_radius");
    open.Trigger("action_RestoreParameters");
    QCOMPARE(Stored("fillet_radius"), 5.0);
}

void tst_MainWindowExperiments::RestoreEvaluatesParametersAddedLater()
{
    OpenWindow open;
    open.user.Then([](QDialog& dialog) {
        Generate(dialog, 17);
        dialog.reject();
    });
    open.Trigger("action_DesignOfExperiments");
    ParametersDef later;
    later.m_strName = "later";
    later.m_nType = ParametersDef::ScalarType;
    later.m_strExpression = "thickness * 2";
    later.m_strExpressPara = "thickness";
    GlobalParaMeterMgr::AddParameter("later", later);
    open.Trigger("action_RestoreParameters");
    QCOMPARE(Stored("later"), 40.0);
}

void tst_MainWindowExperiments::RestoreAfterSeveralRunsBringsTheDesignBack()
{
    OpenWindow open;
    for (const int run : {17, 5}) {
        open.user.Then([run](QDialog& dialog) {
            Generate(dialog, run);
            Generate(dialog, run - 1);
            dialog.reject();
        });
        open.Trigger("action_DesignOfExperiments");
    }
    QVERIFY(open.user.IsDone());
    QCOMPARE(Stored("bolt_count"), 4.0);
    open.Trigger("action_RestoreParameters");
    QCOMPARE(Stored("thickness"), 20.0);
    QCOMPARE(Stored("bore_diameter"), 70.0);
    QCOMPARE(Stored("bolt_count"), 8.0);
}

void tst_MainWindowExperiments::RestoreIsEnabledOnlyAfterARun()
{
    OpenWindow open;
    const auto* const restore = open.window.findChild<QAction*>("action_RestoreParameters");
    QVERIFY(!restore->isEnabled());
    open.user.Then([](QDialog& dialog) { dialog.reject(); });
    open.Trigger("action_DesignOfExperiments");
    QVERIFY(!restore->isEnabled());
    open.user.Then([](QDialog& dialog) {
        Generate(dialog, 0);
        dialog.reject();
    });
    open.Trigger("action_DesignOfExperiments");
    QVERIFY(restore->isEnabled());
    open.Trigger("action_RestoreParameters");
    QVERIFY(!restore->isEnabled());
}

void tst_MainWindowExperiments::AppliedValuesBecomeTheDesignOfTheNextRun()
{
    OpenWindow open;
    const auto generate = [&open] {
        open.user.Then([](QDialog& dialog) {
            Generate(dialog, 17);
            dialog.reject();
        });
        open.Trigger("action_DesignOfExperiments");
    };
    generate();
    open.user.Then([](QDialog& editor) {
        TypeValue(editor, "thickness", "33");
        Click(editor, "pushButton_OK");
    });
    open.Trigger("action_Parameters");
    generate();
    open.Trigger("action_RestoreParameters");
    QVERIFY(open.user.IsDone());
    QCOMPARE(Stored("thickness"), 33.0);
}

TARN_HOST_TEST_MAIN(tst_MainWindowExperiments, HostApplication)
#include "tst_MainWindowExperiments.moc"
