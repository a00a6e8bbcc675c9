#include "AnalysisRecords.h"
#include "EmptyAttributeNames.h"
#include "FileChoice.h"
#include "HostApplication.h"
#include "HostTestMain.h"
#include "OpenWindow.h"
#include "PartModel.h"
#include "ProjectSession.h"
#include "TestFiles.h"

#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QTableWidget>

class tst_MainWindowProjects : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AnotherProjectReplacesTheFirst();
    void AnotherProjectHasAnAnalysisOfItsOwn();
    void TheSampleCanBeAnalysed();
    void ABadProjectIsReportedAndChangesNothing();
    void ACancelledFileDialogChangesNothing();
    void ASavedProjectIsReadBackUnchanged();
    void SaveOverwritesTheFileOfTheProject();
    void TheSampleIsSavedUnderAnotherName();
    void SavingARunSavesTheDesign();
    void AFailedSaveIsReported();
    void TheTitleMarksChanges();
    void OpeningAsksBeforeDiscardingChanges();
};

void tst_MainWindowProjects::AnotherProjectReplacesTheFirst()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    QByteArray project = SampleProject();
    project.replace("Bolted flange", "Another flange");
    project.replace("\"value\": 200", "\"value\": 260");
    Put("other.json", project);
    ChooseFile(open.user, directory + "/other.json");
    open.Trigger("action_OpenProject");
    QVERIFY(open.user.IsDone());
    QVERIFY(open.window.windowTitle().contains("Another flange"));
    QCOMPARE(open.Shown("label_BoundingBox"), QStringLiteral("260 × 260 × 50 mm"));
}

void tst_MainWindowProjects::AnotherProjectHasAnAnalysisOfItsOwn()
{
    const EmptyAttributeNames names;
    OpenWindow open;
    const auto accept = [](QDialog& dialog) {
        Click(dialog, "okButton");
    };
    const AnalysisDefinition ofSample = open.window.Analysis().Definition();
    open.user.Then(accept);
    open.Trigger("action_LoadForce");
    QCOMPARE(open.window.Analysis().Definition().loads.size(), ofSample.loads.size() + 1);
    open.OpenProject(Project::SamplePath());
    QVERIFY(open.window.Analysis().Definition() == ofSample);
    open.user.Then(accept);
    open.Trigger("action_LoadForce");
    QCOMPARE(open.window.Analysis().Definition().loads.size(), ofSample.loads.size() + 1);
    QVERIFY(open.user.IsDone());
    QCOMPARE(open.user.Boxes(), QVector<ShownBox>());
}

void tst_MainWindowProjects::TheSampleCanBeAnalysed()
{
    OpenWindow open;
    open.Trigger("action_CheckSetup");
    const auto& list = Find<QListWidget>(open.window, "setupCheckList");
    QStringList problems;
    for (int row = 0; row < list.count(); ++row)
        problems << list.item(row)->text();
    // Its material is that of the part.
    problems.removeAll("Load \"bolts\" has no effect on natural frequencies");
    QCOMPARE(problems, QStringList());
}

void tst_MainWindowProjects::ABadProjectIsReportedAndChangesNothing()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    Put("bad.json", "{ 100% nonsense");
    const PostedMessages posted;
    ChooseFile(open.user, directory + "/bad.json");
    open.Trigger("action_OpenProject");
    QVERIFY(open.user.IsDone());
    const QStringList errors = posted.At(ErrorLevel);
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors[0].contains("bad.json"), qPrintable(errors[0]));
    QVERIFY(open.window.windowTitle().contains("Bolted flange"));
    QCOMPARE(Stored("outer_diameter"), 200.0);
}

void tst_MainWindowProjects::ACancelledFileDialogChangesNothing()
{
    OpenWindow open;
    const PostedMessages posted;
    open.user.Then([](QDialog& dialog) { dialog.reject(); });
    open.Trigger("action_OpenProject");
    QVERIFY(open.user.IsDone());
    QCOMPARE(posted.Count(), 0);
}

void tst_MainWindowProjects::ASavedProjectIsReadBackUnchanged()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    open.SelectFeature("flange");
    open.Trigger("action_Suppress");
    Find<QTableWidget>(open.window, "fieldTable").item(0, 1)->setText("rounded");
    open.user.Then([](QDialog& editor) {
        TypeValue(editor, "outer_diameter", "240");
        Click(editor, "pushButton_OK");
    });
    open.Trigger("action_Parameters");
    const FeatureList features = open.window.Part().Features();
    const QString mass = open.Shown("label_Mass");
    ChooseFile(open.user, directory + "/saved");
    open.Trigger("action_SaveProjectAs");
    QVERIFY(open.user.IsDone());
    QVERIFY(!open.window.isWindowModified());

    open.OpenProject(Project::SamplePath());
    QVERIFY(open.Shown("label_Mass") != mass);
    open.OpenProject(directory + "/saved.json");
    QVERIFY(open.window.Part().Features() == features);
    QCOMPARE(open.Shown("label_Mass"), mass);
    QCOMPARE(Stored("outer_diameter"), 240.0);
}

void tst_MainWindowProjects::SaveOverwritesTheFileOfTheProject()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    Put("mine.json", SampleProject());
    open.OpenProject(directory + "/mine.json");
    open.SelectFeature("flange");
    open.Trigger("action_DeleteFeature");
    QVERIFY(open.window.isWindowModified());
    open.Trigger("action_SaveProject");
    QVERIFY(!open.window.isWindowModified());
    QCOMPARE(Project::Load("mine.json").Features().Find("flange"), -1);
    // After undo, the project differs from the file.
    open.Trigger("action_Undo");
    QVERIFY(open.window.isWindowModified());
    open.Trigger("action_Redo");
    QVERIFY(!open.window.isWindowModified());
}

void tst_MainWindowProjects::TheSampleIsSavedUnderAnotherName()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    open.user.Then([](QDialog& dialog) { dialog.reject(); });
    open.Trigger("action_SaveProject");
    QVERIFY(open.user.IsDone());
    ChooseFile(open.user, directory + "/flange.json");
    open.Trigger("action_SaveProject");
    QVERIFY(open.user.IsDone());
    QVERIFY(QFile::exists("flange.json"));
    // From now on without a question.
    open.Trigger("action_SaveProject");
}

void tst_MainWindowProjects::SavingARunSavesTheDesign()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    open.user.Then([](QDialog& dialog) {
        Generate(dialog, 17);
        dialog.reject();
    });
    open.Trigger("action_DesignOfExperiments");
    QCOMPARE(Stored("thickness"), 24.0);
    QVERIFY(!open.window.isWindowModified());
    QVERIFY(Find<QWidget>(open.window, "runBar").isVisible());
    ChooseFile(open.user, directory + "/run.json");
    open.Trigger("action_SaveProject");
    const Project saved = Project::Load("run.json");
    QVERIFY(saved.HasSameContent(open.window.Session().Current()));
    for (const ParametersDef& record : saved.Parameters()) {
        if (record.m_strName == "thickness")
            QCOMPARE(record.m_dValue, 20.0);
    }
    Click(open.window, "pushButton_BackToDesign");
    QVERIFY(!Find<QWidget>(open.window, "runBar").isVisible());
    QCOMPARE(Stored("thickness"), 20.0);
}

void tst_MainWindowProjects::AFailedSaveIsReported()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("gone"));
    Put("gone/mine.json", SampleProject());
    open.OpenProject(directory + "/gone/mine.json");
    open.SelectFeature("flange");
    open.Trigger("action_DeleteFeature");
    QVERIFY(QDir(directory + "/gone").removeRecursively());
    const PostedMessages posted;
    open.Trigger("action_SaveProject");
    const QStringList errors = posted.At(ErrorLevel);
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors[0].contains("mine.json"), qPrintable(errors[0]));
    QVERIFY(open.window.isWindowModified());
}

void tst_MainWindowProjects::TheTitleMarksChanges()
{
    OpenWindow open;
    QVERIFY(!open.window.isWindowModified());
    open.Trigger("action_Add_box");
    QVERIFY(open.window.isWindowModified());
    open.Trigger("action_Undo");
    QVERIFY(!open.window.isWindowModified());
    for (const char* const value : {"33", "20"}) {
        open.user.Then([value](QDialog& editor) {
            TypeValue(editor, "thickness", value);
            Click(editor, "pushButton_OK");
        });
        open.Trigger("action_Parameters");
        QCOMPARE(open.window.isWindowModified(), QString(value) == "33");
    }
}

void tst_MainWindowProjects::OpeningAsksBeforeDiscardingChanges()
{
    OpenWindow open;
    open.Trigger("action_Add_box");
    open.user.Answer(QMessageBox::Cancel);
    open.Trigger("action_OpenProject");
    QVERIFY(open.user.IsDone());
    QCOMPARE(open.user.Boxes().size(), 1);
    QVERIFY(open.window.Part().Features().Find("box") >= 0);
}

TARN_HOST_TEST_MAIN(tst_MainWindowProjects, HostApplication)
#include "tst_MainWindowProjects.moc"
