#include "AnalysisRecords.h"
#include "DesignActions.h"
#include "DesignModel.h"
#include "EmptyDesignStores.h"
#include "HostTestMain.h"
#include "MenuUser.h"
#include "ModalDriver.h"
#include "PartModel.h"
#include "Project.h"
#include "SampleRegistry.h"
#include "sParaArrayData.h"

#include <QMenu>
#include <QSignalSpy>
#include <QTableWidget>

class tst_DesignActions : public With<TestCase, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void ApplyIsAnEdit();
    void ACancelledEditorChangesNothing();
    void ARunIsNotAnEdit();
    void BackToTheDesignResetsTheParameters();
    void TheEditorShowsTheDesign();
    void AParameterThatNobodyUsesIsRemoved();
    void UsersAreNamedBeforeTheRemoval();
    void UsersGoWithTheParameter();
    void RemovedParametersDoNotReturn();
    void FeaturesAndConditionsFollowANewName();
};

namespace {

struct Design
{
    Design()
    {
        const Project project = Project::Load(Project::SamplePath());
        project.FillParameterStore();
        FillSampleRegistry(project.SampleLists());
        part.Replace(project.Features(), project.Conditions());
        actions->FillMenu(menu);
        model.Open({});
    }

    void Generate(int row)
    {
        user.Then([row](QDialog& dialog) {
            Find<QTableWidget>(dialog, "tableWidget_Final").setCurrentCell(row, 0);
            Click(dialog, "pushButton_GenGeo");
            dialog.reject();
        });
        Trigger(window, "action_DesignOfExperiments");
        QVERIFY(user.IsDone());
    }

    bool Has(const QString& name) const
    {
        return GlobalParaMeterMgr::m_nameMapParameters.count(name) != 0;
    }

    DesignModel model;
    PartModel part;
    AnalysisRecords analysis;
    QWidget window;
    QMenu menu;
    DesignActions* actions = new DesignActions(model, part, analysis, nullptr, &window);
    ModalDriver user;
    QSignalSpy edited{&model, &DesignModel::Edited};
};

double Stored(const QString& name)
{
    return GlobalParaMeterMgr::GetParameterRawValue(name).toDouble();
}

} // namespace

void tst_DesignActions::ApplyIsAnEdit()
{
    Design design;
    design.user.Then([](QDialog& editor) {
        Click(editor, "pushButton_Apply");
        Click(editor, "pushButton_Cancel");
    });
    Trigger(design.window, "action_Parameters");
    QVERIFY(design.user.IsDone());
    QCOMPARE(design.edited.count(), 1);
}

void tst_DesignActions::ACancelledEditorChangesNothing()
{
    Design design;
    design.user.Then([](QDialog& editor) { Click(editor, "pushButton_Cancel"); });
    Trigger(design.window, "action_Parameters");
    QVERIFY(design.user.IsDone());
    QCOMPARE(design.edited.count(), 0);
}

void tst_DesignActions::ARunIsNotAnEdit()
{
    Design design;
    design.Generate(17);
    QCOMPARE(Stored("thickness"), 24.0);
    QVERIFY(design.model.HoldsRun());
    QCOMPARE(design.edited.count(), 0);
}

void tst_DesignActions::BackToTheDesignResetsTheParameters()
{
    Design design;
    QVERIFY(!FindAction(design.window, "action_RestoreParameters").isEnabled());
    design.Generate(17);
    Trigger(design.window, "action_RestoreParameters");
    QCOMPARE(Stored("thickness"), 20.0);
    QVERIFY(!FindAction(design.window, "action_RestoreParameters").isEnabled());
}

void tst_DesignActions::TheEditorShowsTheDesign()
{
    Design design;
    design.Generate(17);
    design.user.Then([](QDialog& editor) { Click(editor, "pushButton_OK"); });
    Trigger(design.window, "action_Parameters");
    QCOMPARE(Stored("thickness"), 20.0);
    QVERIFY(!design.model.HoldsRun());
}

void tst_DesignActions::AParameterThatNobodyUsesIsRemoved()
{
    Design design;
    ParameterEntries entries = design.model.Design();
    entries.push_back(NewParameter("spare"));
    design.model.Replace(entries);
    design.actions->RemoveParameters({"spare"});
    QCOMPARE(design.user.Boxes(), ShownBoxes());
    QVERIFY(!design.Has("spare"));
    QCOMPARE(design.edited.count(), 1);
}

void tst_DesignActions::UsersAreNamedBeforeTheRemoval()
{
    Design design;
    design.user.Answer(QMessageBox::Cancel);
    design.actions->RemoveParameters({"bore_diameter"});
    const QString text = design.user.Boxes().at(0).text;
    for (const char* const user : {"parameter \"hub_diameter\"", "feature \"bore\"", "condition"})
        QVERIFY2(text.contains(user), qPrintable(text));
    QVERIFY(design.Has("bore_diameter"));
    QCOMPARE(design.edited.count(), 0);
}

void tst_DesignActions::UsersGoWithTheParameter()
{
    Design design;
    design.user.Answer(QMessageBox::Yes);
    design.actions->RemoveParameters({"thickness"});
    QVERIFY(!design.Has("thickness"));
    QVERIFY(design.part.Features().Find("plate") < 0);
    // It is made from the plate.
    QVERIFY(design.part.Features().Find("body") < 0);
    QCOMPARE(g_mapParaArrays.count("thickness"), std::size_t(0));
    QCOMPARE(design.edited.count(), 1);
}

void tst_DesignActions::RemovedParametersDoNotReturn()
{
    Design design;
    design.Generate(17);
    design.user.Answer(QMessageBox::Yes);
    design.actions->RemoveParameters({"thickness"});
    QVERIFY(!design.model.HoldsRun());
    QVERIFY(!FindAction(design.window, "action_RestoreParameters").isEnabled());
    QVERIFY(!design.Has("thickness"));
}

void tst_DesignActions::FeaturesAndConditionsFollowANewName()
{
    Design design;
    design.model.Rename("outer_diameter", "breite");
    const FeatureList& features = design.part.Features();
    QCOMPARE(features.At(features.Find("plate")).fields[0], QString("breite / 2"));
    for (const Condition& condition : design.part.Conditions())
        QVERIFY(!condition.expression.contains("outer_diameter"));
}

TARN_HOST_TEST_MAIN(tst_DesignActions)
#include "tst_DesignActions.moc"
