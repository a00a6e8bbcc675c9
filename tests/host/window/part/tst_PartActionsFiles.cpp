#include "FileChoice.h"
#include "FullDisk.h"
#include "HostApplication.h"
#include "HostTestMain.h"
#include "Modelling.h"
#include "ShapeMeasures.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>

class tst_PartActionsFiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AStepFileIsExportedAndImported();
    void TheSelectedFeaturesShapeIsExported();
    void ThereIsNothingToExportWithoutAShape();
    void AFileThatCannotBeWrittenIsReported();
    void AFileBesideTheProjectGetsARelativePath();
    void TheSampleProjectHasNoFolderForFiles();
    void AVanishedFileIsReportedAndTheShapeStays();
};

void tst_PartActionsFiles::AStepFileIsExportedAndImported()
{
    const QString directory = EnterTemporaryDirectory();
    Modelling modelling;
    modelling.Trigger("action_Add_box");
    modelling.Select({});
    ChooseFile(modelling.user, directory + "/part");
    modelling.Trigger("action_ExportStep");
    QVERIFY(modelling.user.IsDone());
    QVERIFY(QFile::exists("part.step"));
    QVERIFY(modelling.posted.last()[1].toString().contains("part.step"));

    modelling.Trigger("action_Undo");
    ChooseFile(modelling.user, directory + "/part.step");
    modelling.Trigger("action_ImportStep");
    QVERIFY(modelling.user.IsDone());
    QCOMPARE(modelling.Last().kind, &KindOf("import"));
    QCOMPARE(modelling.Last().file, directory + "/part.step");
    QVERIFY(qFuzzyCompare(Measure(modelling.model.Shape()).volume, 1000.0));
}

void tst_PartActionsFiles::TheSelectedFeaturesShapeIsExported()
{
    const QString directory = EnterTemporaryDirectory();
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"plate"});
    ChooseFile(modelling.user, directory + "/plate.step");
    modelling.Trigger("action_ExportStep");
    Feature import = NewFeature("import", "import");
    import.file = directory + "/plate.step";
    modelling.model.Add(import);
    modelling.model.WaitUntilIdle();
    QVERIFY(qFuzzyCompare(Measure(modelling.model.ShapeOf("import")).volume, 1000.0));
}

void tst_PartActionsFiles::ThereIsNothingToExportWithoutAShape()
{
    Modelling modelling;
    modelling.Trigger("action_ExportStep");
    QCOMPARE(modelling.posted.count(), 1);
    QCOMPARE(modelling.posted[0][1].toString(),
             QString("The part has no shape to export. Add or correct a body first."));
}

void tst_PartActionsFiles::AFileThatCannotBeWrittenIsReported()
{
    FullDisk disk;
    disk.Fill();
    Modelling modelling;
    modelling.Trigger("action_Add_box");
    modelling.posted.clear();
    ChooseFile(modelling.user, QDir::current().filePath("new.step"));
    modelling.Trigger("action_ExportStep");
    QVERIFY(modelling.user.IsDone());
    modelling.CheckRefused("new.step: cannot be written: " + disk.Reason());
    QVERIFY(!QFile::exists("new.step"));
}

void tst_PartActionsFiles::AFileBesideTheProjectGetsARelativePath()
{
    const QString directory = EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("parts"));
    Modelling modelling;
    modelling.model.Open(FeatureList(), {}, directory);
    modelling.Trigger("action_Add_box");
    ChooseFile(modelling.user, directory + "/parts/box.step");
    modelling.Trigger("action_ExportStep");
    ChooseFile(modelling.user, directory + "/parts/box.step");
    modelling.Trigger("action_ImportStep");
    QCOMPARE(modelling.Last().file, QString("parts/box.step"));
    QVERIFY2(!modelling.model.HasFailed(), qPrintable(modelling.model.Failure()));
    // Another file can be chosen for it.
    QVERIFY(QFile::copy("parts/box.step", "other.step"));
    modelling.Select({"import"});
    ChooseFile(modelling.user, directory + "/other.step");
    modelling.Trigger("action_EditFeature");
    QCOMPARE(modelling.Last().file, QString("other.step"));
    QVERIFY(modelling.user.IsDone());
}

void tst_PartActionsFiles::TheSampleProjectHasNoFolderForFiles()
{
    Modelling modelling;
    modelling.model.Open(FeatureList(), {}, ":/samples");
    modelling.Trigger("action_Add_box");
    for (const char* const action : {"action_ExportStep", "action_ImportStep"}) {
        QString folder;
        modelling.user.Then([&folder](QDialog& dialog) {
            folder = qobject_cast<QFileDialog*>(&dialog)->directory().path();
            dialog.reject();
        });
        modelling.Trigger(action);
        QVERIFY2(QDir(folder).exists() && !folder.startsWith(':'), qPrintable(folder));
    }
}

void tst_PartActionsFiles::AVanishedFileIsReportedAndTheShapeStays()
{
    const QString directory = EnterTemporaryDirectory();
    Modelling modelling;
    modelling.Trigger("action_Add_box");
    ChooseFile(modelling.user, directory + "/part.step");
    modelling.Trigger("action_ExportStep");
    ChooseFile(modelling.user, directory + "/part.step");
    modelling.Trigger("action_ImportStep");
    const TopoDS_Shape shape = modelling.model.Shape();
    QVERIFY(QFile::remove("part.step"));
    modelling.model.Rebuild();
    modelling.model.WaitUntilIdle();
    QCOMPARE(modelling.model.FailedFeature(), QString("import"));
    QVERIFY(modelling.model.Failure().contains("part.step: cannot be opened"));
    QVERIFY(modelling.model.Shape().IsEqual(shape));
    // It can be taken back, and then comes again as what cannot be built.
    modelling.Trigger("action_Undo");
    QVERIFY(!modelling.model.HasFailed());
    modelling.Trigger("action_Redo");
    QVERIFY(modelling.model.HasFailed());
    QCOMPARE(modelling.Names(), QStringList({"box", "import"}));
}

TARN_HOST_TEST_MAIN(tst_PartActionsFiles, HostApplication)
#include "tst_PartActionsFiles.moc"
