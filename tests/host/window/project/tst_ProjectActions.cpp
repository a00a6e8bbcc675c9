#include "DrawerOutput.h"
#include "EmptyDesignStores.h"
#include "FileChoice.h"
#include "HostTestMain.h"
#include "MenuUser.h"
#include "ModalDriver.h"
#include "NewFeature.h"
#include "PartModel.h"
#include "ProjectActions.h"
#include "TestFiles.h"

#include <QDir>
#include <QMenu>
#include <QSignalSpy>

class tst_ProjectActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutAProjectThereIsNothingToLose();
    void AnOpenedProjectFillsStoresAndModel();
    void ItsImportsAreLookedForBesideIt();
    void ImportsAreFoundAfterSavingElsewhere();
    void ChangedSamplesAreAChange();
    void UndoingAFeatureKeepsChangedSamplesAChange();
    void SaveEmitsThatItSaved();
    void AFailedSaveLosesNothing();
};

namespace {

struct Opened
{
    explicit Opened(const QString& path = Project::SamplePath())
    {
        actions->FillMenu(menu);
        actions->Open(Project::Load(path));
    }

    void Trigger(const char* name) const { ::Trigger(window, name); }

    void SaveAs(const QString& path)
    {
        ChooseFile(user, path);
        Trigger("action_SaveProjectAs");
        QVERIFY(user.IsDone());
    }

    EmptyDesignStores stores;
    QWidget window;
    QMenu menu;
    PartModel model;
    ProjectActions* actions = new ProjectActions(model, &window);
    ModalDriver user;
};

const QByteArray ProjectWithImport =
    R"({ "version": 1, "title": "Nut", "density": 1000, "parameters": [],
         "features": [ { "name": "nut", "kind": "import", "file": "parts/nut.step" } ] })";

} // namespace

void tst_ProjectActions::WithoutAProjectThereIsNothingToLose()
{
    const EmptyDesignStores stores;
    QWidget window;
    QMenu menu;
    PartModel model;
    auto* const actions = new ProjectActions(model, &window);
    actions->FillMenu(menu);
    QVERIFY(actions->ConfirmDiscard());
    QCOMPARE(actions->Density(), Project::SteelDensity);
    Trigger(window, "action_SaveProject");
}

void tst_ProjectActions::AnOpenedProjectFillsStoresAndModel()
{
    const Opened opened;
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.size(), std::size_t(9));
    QVERIFY(opened.model.Features() == Project::Load(Project::SamplePath()).Features());
    QCOMPARE(opened.window.windowTitle(), QString("Bolted flange[*] - Tarn host"));
    QVERIFY(!opened.window.isWindowModified());
    QCOMPARE(opened.actions->Density(), 7850.0);
}

void tst_ProjectActions::ItsImportsAreLookedForBesideIt()
{
    const QString directory = EnterTemporaryDirectory();
    Put("nut.json", ProjectWithImport);
    const Opened opened(directory + "/nut.json");
    QCOMPARE(QDir(opened.model.Folder()), QDir(directory));
    QCOMPARE(opened.actions->Density(), 1000.0);
}

void tst_ProjectActions::ImportsAreFoundAfterSavingElsewhere()
{
    const QString directory = EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("a") && QDir().mkpath("b/c"));
    Put("a/nut.json", ProjectWithImport);
    Opened opened(directory + "/a/nut.json");
    // Twice: what was saved first does not change what the second one finds.
    for (const char* const name : {"/b/c/first.json", "/b/second.json"}) {
        opened.SaveAs(directory + name);
        const Project saved = Project::Load(directory + name);
        QCOMPARE(QDir::cleanPath(QDir(saved.Folder()).filePath(saved.Features().At(0).file)),
                 directory + "/a/parts/nut.step");
    }
    QCOMPARE(opened.model.Features().At(0).file, QString("parts/nut.step"));
}

void tst_ProjectActions::ChangedSamplesAreAChange()
{
    Opened opened;
    g_mapParaArrays["bolt_count"].vecValues.push_back(12.0);
    opened.actions->UpdateModified();
    QVERIFY(opened.window.isWindowModified());
    g_mapParaArrays["bolt_count"].vecValues.pop_back();
    opened.actions->UpdateModified();
    QVERIFY(!opened.window.isWindowModified());
}

void tst_ProjectActions::UndoingAFeatureKeepsChangedSamplesAChange()
{
    Opened opened;
    g_mapParaArrays["bolt_count"].vecValues.push_back(12.0);
    opened.actions->UpdateModified();
    opened.model.Add(NewFeature("cube", "box"));
    opened.model.UndoStack().undo();
    QVERIFY(opened.window.isWindowModified());
    opened.user.Answer(QMessageBox::Cancel);
    QVERIFY(!opened.actions->ConfirmDiscard());
}

void tst_ProjectActions::SaveEmitsThatItSaved()
{
    const QString directory = EnterTemporaryDirectory();
    Opened opened;
    QSignalSpy saved(opened.actions, &ProjectActions::Saved);
    opened.model.Add(NewFeature("cube", "box"));
    opened.SaveAs(directory + "/mine");
    QCOMPARE(saved.count(), 1);
    opened.Trigger("action_SaveProject");
    QCOMPARE(saved.count(), 2);
    QVERIFY(Project::Load("mine.json").Features().Find("cube") >= 0);
    QVERIFY(!opened.window.isWindowModified());
}

void tst_ProjectActions::AFailedSaveLosesNothing()
{
    const QString directory = EnterTemporaryDirectory();
    Opened opened;
    opened.model.Add(NewFeature("cube", "box"));
    QVERIFY(QDir().mkpath("gone"));
    opened.SaveAs(directory + "/gone/mine.json");
    QVERIFY(QDir("gone").removeRecursively());
    opened.model.Add(NewFeature("cube_2", "box"));
    QSignalSpy saved(opened.actions, &ProjectActions::Saved);
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    // After a failed save, the project must not be discarded.
    opened.user.Answer(QMessageBox::Save);
    QVERIFY(!opened.actions->ConfirmDiscard());
    QVERIFY(opened.user.IsDone());
    QCOMPARE(posted.count(), 1);
    QVERIFY(posted[0][1].toString().contains("mine.json"));
    QCOMPARE(saved.count(), 0);
    QVERIFY(opened.window.isWindowModified());
}

TARN_HOST_TEST_MAIN(tst_ProjectActions)
#include "tst_ProjectActions.moc"
