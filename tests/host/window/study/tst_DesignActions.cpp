#include "DesignActions.h"
#include "DrawerOutput.h"
#include "EmptyDesignStores.h"
#include "MessageLevel.h"
#include "ModalDriver.h"
#include "Project.h"
#include "SampleRegistry.h"
#include "TestCase.h"
#include "sParaArrayData.h"

#include <QAction>
#include <QMenu>
#include <QSignalSpy>
#include <QTableWidget>

class tst_DesignActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ApplyEmitsTheParameterChange();
    void ACancelledEditorEmitsNothing();
    void ARunEmitsTheParameterChange();
    void RestoreResetsTheDesignAndEmits();
    void SavingARunIsReportedUntilTheDesignIsRestored();
    void AnotherProjectForgetsTheDesign();
    void RemovedParametersDoNotReturn();
};

namespace {

struct Design
{
    Design()
    {
        const Project project = Project::Load(Project::SamplePath());
        project.FillParameterStore();
        FillSampleRegistry(project.SampleLists());
        actions->FillMenu(menu);
        actions->Start();
    }

    QAction& Action(const char* name) { return *window.findChild<QAction*>(name); }

    void Generate(int row)
    {
        user.Then([row](QDialog& dialog) {
            Find<QTableWidget>(dialog, "tableWidget_Final").setCurrentCell(row, 0);
            Click(dialog, "pushButton_GenGeo");
            dialog.reject();
        });
        Action("action_DesignOfExperiments").trigger();
        QVERIFY(user.IsDone());
    }

    EmptyDesignStores stores;
    QWidget window;
    QMenu menu;
    DesignActions* actions = new DesignActions(&window);
    ModalDriver user;
    QSignalSpy changed{actions, &DesignActions::ParametersChanged};
    QSignalSpy posted{DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage};
};

double Stored(const QString& name)
{
    return GlobalParaMeterMgr::GetParameterRawValue(name).toDouble();
}

} // namespace

void tst_DesignActions::ApplyEmitsTheParameterChange()
{
    Design design;
    design.user.Then([](QDialog& editor) {
        Click(editor, "pushButton_Apply");
        Click(editor, "pushButton_Cancel");
    });
    design.Action("action_Parameters").trigger();
    QVERIFY(design.user.IsDone());
    QCOMPARE(design.changed.count(), 1);
}

void tst_DesignActions::ACancelledEditorEmitsNothing()
{
    Design design;
    design.user.Then([](QDialog& editor) { Click(editor, "pushButton_Cancel"); });
    design.Action("action_Parameters").trigger();
    QVERIFY(design.user.IsDone());
    QCOMPARE(design.changed.count(), 0);
}

void tst_DesignActions::ARunEmitsTheParameterChange()
{
    Design design;
    QSignalSpy edited(design.actions, &DesignActions::SamplesEdited);
    design.Generate(17);
    QCOMPARE(design.changed.count(), 1);
    QCOMPARE(edited.count(), 1);
    QCOMPARE(Stored("thickness"), 24.0);
}

void tst_DesignActions::RestoreResetsTheDesignAndEmits()
{
    Design design;
    QVERIFY(!design.Action("action_RestoreParameters").isEnabled());
    design.Generate(17);
    design.Action("action_RestoreParameters").trigger();
    QCOMPARE(design.changed.count(), 2);
    QCOMPARE(Stored("thickness"), 20.0);
    QVERIFY(!design.Action("action_RestoreParameters").isEnabled());
}

void tst_DesignActions::SavingARunIsReportedUntilTheDesignIsRestored()
{
    Design design;
    design.actions->WarnIfRunIsStored();
    design.Generate(17);
    design.posted.clear();
    design.actions->WarnIfRunIsStored();
    QCOMPARE(design.posted.count(), 1);
    QCOMPARE(design.posted[0][0].toInt(), int(WarningLevel));
    design.Action("action_RestoreParameters").trigger();
    design.posted.clear();
    design.actions->WarnIfRunIsStored();
    QCOMPARE(design.posted.count(), 0);
}

void tst_DesignActions::AnotherProjectForgetsTheDesign()
{
    Design design;
    design.Generate(17);
    design.actions->Start();
    QVERIFY(!design.Action("action_RestoreParameters").isEnabled());
}

void tst_DesignActions::RemovedParametersDoNotReturn()
{
    Design design;
    GlobalParaMeterMgr::AddParameter("", {});
    design.Generate(17);
    QVERIFY(g_mapParaArrays.count("thickness") != 0);
    design.actions->RemoveParameters({"", "thickness"});
    QCOMPARE(design.changed.count(), 2);
    design.Action("action_RestoreParameters").trigger();
    for (const char* const name : {"", "thickness"}) {
        QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.count(name), std::size_t(0));
        QCOMPARE(g_mapParaArrays.count(name), std::size_t(0));
    }
}

TARN_TEST_MAIN(tst_DesignActions)
#include "tst_DesignActions.moc"
