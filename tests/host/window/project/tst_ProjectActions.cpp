#include "DrawerOutput.h"
#include "FileChoice.h"
#include "FullDisk.h"
#include "HostTestMain.h"
#include "MenuUser.h"
#include "ModalDriver.h"
#include "NewFeature.h"
#include "OpenSession.h"
#include "ProjectActions.h"
#include "ReadOnlyFolder.h"
#include "TestFiles.h"

#include <QDir>
#include <QMenu>
#include <QSignalSpy>
#include <QTimer>

class tst_ProjectActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutAProjectThereIsNothingToLose();
    void ANewProjectIsEmpty();
    void TheFolderOfTheProjectIsTheWorkingDirectory();
    void AnUnsavedProjectHasAFolderOfItsOwn();
    void ItsFilesGoAlongOnSaveAs();
    void TheTitleHasTitleAndFile();
    void ImportsAreFoundAfterSavingElsewhere();
    void ImportsOfAnUnsavedProjectGoAlong();
    void RecentProjectsAreOffered();
    void RevertBringsTheFileBack();
    void SaveEmitsThatItSaved();
    void AFailedSaveLosesNothing();
    void ChangesAreSavedBesideTheFile();
    void WhatACrashLeftIsOffered_data();
    void WhatACrashLeftIsOffered();
    void AnUnsavedProjectIsRecovered();
    void AFullDiskIsReportedOnce();
    void AReadOnlyFolderIsReported();
};

namespace {

struct Opened : OpenSession
{
    explicit Opened(const QString& path = Project::SamplePath())
    {
        actions->FillMenu(menu);
        if (!path.isEmpty())
            actions->Open(Project::Load(path));
    }

    void Trigger(const char* name) const { ::Trigger(window, name); }

    void SaveAs(const QString& path)
    {
        ChooseFile(user, path);
        Trigger("action_SaveProjectAs");
        QVERIFY(user.IsDone());
    }

    /// The minute is over.
    void Autosave() const
    {
        auto* const timer = actions->findChild<QTimer*>("autosaveTimer");
        QVERIFY(timer != nullptr && timer->isActive());
        QMetaObject::invokeMethod(timer, "timeout");
    }

    QWidget window;
    QMenu menu;
    ProjectActions* actions = new ProjectActions(session, &window);
    ModalDriver user;
};

const QByteArray ProjectWithImport =
    R"({ "version": 1, "title": "Nut", "density": 1000, "parameters": [],
         "features": [ { "name": "nut", "kind": "import", "file": "parts/nut.step" } ] })";
const QByteArray Plain = R"({ "version": 1, "title": "Plain", "parameters": [] })";

} // namespace

void tst_ProjectActions::WithoutAProjectThereIsNothingToLose()
{
    Opened opened{QString()};
    QVERIFY(opened.actions->ConfirmDiscard());
    QCOMPARE(opened.session.Density(), Project::SteelDensity);
    opened.Trigger("action_SaveProject");
}

void tst_ProjectActions::ANewProjectIsEmpty()
{
    Opened opened;
    opened.part.Add(NewFeature("cube", "box"));
    opened.user.Answer(QMessageBox::Discard);
    opened.Trigger("action_NewProject");
    QVERIFY(opened.user.IsDone());
    QVERIFY(GlobalParaMeterMgr::m_nameMapParameters.empty());
    QVERIFY(opened.part.Features().IsEmpty());
    QVERIFY(g_mapParaArrays.empty());
    QVERIFY(!opened.window.isWindowModified());
    QCOMPARE(opened.window.windowTitle(), QString("New project[*] - Tarn host"));
}

void tst_ProjectActions::TheFolderOfTheProjectIsTheWorkingDirectory()
{
    const QString directory = EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("a"));
    Put("a/nut.json", ProjectWithImport);
    {
        const Opened opened("a/nut.json");
        QCOMPARE(QDir::currentPath(), directory + "/a");
        QCOMPARE(QDir(opened.part.Folder()), QDir(directory + "/a"));
        QCOMPARE(opened.session.Density(), 1000.0);
    }
    QCOMPARE(QDir::currentPath(), directory);
}

void tst_ProjectActions::AnUnsavedProjectHasAFolderOfItsOwn()
{
    const QString directory = EnterTemporaryDirectory();
    Put("UserMaterial.xml", "of another project");
    QString own;
    {
        Opened opened;
        own = QDir::currentPath();
        QVERIFY(own != directory);
        QVERIFY(!QFile::exists("UserMaterial.xml"));
        opened.Trigger("action_NewProject");
        QVERIFY(QDir::currentPath() != own);
        QVERIFY(!QFile::exists(own));
        own = QDir::currentPath();
    }
    QVERIFY(!QFile::exists(own));
    QCOMPARE(QDir::currentPath(), directory);
}

void tst_ProjectActions::ItsFilesGoAlongOnSaveAs()
{
    const QString directory = EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("a"));
    Put("a/UserMaterial.xml", "there");
    Opened opened;
    Put("UserMaterial.xml", "mine");
    Put("Model_Active.bdf", "deck");
    const QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    opened.SaveAs(directory + "/a/mine.json");
    QCOMPARE(QDir::currentPath(), directory + "/a");
    QCOMPARE(ContentOf("Model_Active.bdf"), QByteArray("deck"));
    // Nothing of another project is replaced, and that is said.
    QCOMPARE(ContentOf("UserMaterial.xml"), QByteArray("there"));
    QVERIFY(posted[0][1].toString().startsWith("UserMaterial.xml of this project was not saved"));
}

void tst_ProjectActions::TheTitleHasTitleAndFile()
{
    const QString directory = EnterTemporaryDirectory();
    Opened opened;
    QCOMPARE(opened.window.windowTitle(), QString("Bolted flange[*] - Tarn host"));
    opened.SaveAs(directory + "/mine.json");
    QCOMPARE(opened.window.windowTitle(), QString("Bolted flange - mine.json[*] - Tarn host"));
    SetValue(opened.design, "thickness", 33.0);
    QVERIFY(opened.window.isWindowModified());
    opened.part.UndoStack().undo();
    QVERIFY(!opened.window.isWindowModified());
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
    QCOMPARE(opened.part.Features().At(0).file, QString("parts/nut.step"));
}

void tst_ProjectActions::ImportsOfAnUnsavedProjectGoAlong()
{
    const QString directory = EnterTemporaryDirectory();
    Opened opened;
    QVERIFY(QDir().mkpath("parts"));
    Put("parts/nut.step", "a nut");
    Feature nut = NewFeature("nut", "import");
    nut.file = "parts/nut.step";
    opened.part.Add(nut);
    opened.SaveAs(directory + "/mine.json");
    QCOMPARE(QDir(opened.part.Folder()), QDir(directory));
    // Steps of before know the former folder.
    opened.part.UndoStack().undo();
    opened.part.UndoStack().redo();
    SetValue(opened.design, "thickness", 33.0);
    opened.part.UndoStack().undo();
    opened.Trigger("action_SaveProject");
    opened.Trigger("action_NewProject");
    const Project saved = Project::Load(directory + "/mine.json");
    const QString file = saved.Features().At(saved.Features().Size() - 1).file;
    QCOMPARE(file, QString("parts/nut.step"));
    QCOMPARE(ContentOf(QDir(saved.Folder()).filePath(file)), QByteArray("a nut"));
}

void tst_ProjectActions::RecentProjectsAreOffered()
{
    const QString directory = EnterTemporaryDirectory();
    Put("a.json", Plain);
    Put("b.json", Plain);
    Opened opened(directory + "/a.json");
    opened.actions->Open(Project::Load(directory + "/b.json"));
    auto& recent = *opened.menu.findChild<QMenu*>("menu_RecentProjects");
    Q_EMIT recent.aboutToShow();
    QCOMPARE(recent.actions().at(0)->text(), directory + "/b.json");
    recent.actions().at(1)->trigger();
    QVERIFY(opened.window.windowTitle().contains("a.json"));
    // A file that is gone is offered once.
    QVERIFY(QFile::remove(directory + "/b.json"));
    Q_EMIT recent.aboutToShow();
    recent.actions().at(1)->trigger();
    Q_EMIT recent.aboutToShow();
    for (const QAction* const action : recent.actions())
        QVERIFY(!action->text().endsWith("/b.json"));
}

void tst_ProjectActions::RevertBringsTheFileBack()
{
    const QString directory = EnterTemporaryDirectory();
    Opened opened;
    QVERIFY(!FindAction(opened.window, "action_RevertProject").isEnabled());
    opened.SaveAs(directory + "/mine.json");
    SetValue(opened.design, "thickness", 33.0);
    opened.user.Answer(QMessageBox::Cancel);
    opened.Trigger("action_RevertProject");
    QCOMPARE(Stored("thickness"), 33.0);
    opened.user.Answer(QMessageBox::Discard);
    opened.Trigger("action_RevertProject");
    QVERIFY(opened.user.IsDone());
    QCOMPARE(Stored("thickness"), 20.0);
    QVERIFY(!opened.window.isWindowModified());
}

void tst_ProjectActions::SaveEmitsThatItSaved()
{
    const QString directory = EnterTemporaryDirectory();
    Opened opened;
    const QSignalSpy saved(opened.actions, &ProjectActions::Saved);
    opened.part.Add(NewFeature("cube", "box"));
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
    opened.part.Add(NewFeature("cube", "box"));
    QVERIFY(QDir().mkpath(directory + "/gone"));
    opened.SaveAs(directory + "/gone/mine.json");
    QVERIFY(QDir(directory + "/gone").removeRecursively());
    opened.part.Add(NewFeature("cube_2", "box"));
    const QSignalSpy saved(opened.actions, &ProjectActions::Saved);
    const QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    // After a failed save, the project must not be discarded.
    opened.user.Answer(QMessageBox::Save);
    QVERIFY(!opened.actions->ConfirmDiscard());
    QVERIFY(opened.user.IsDone());
    QCOMPARE(posted.count(), 1);
    QVERIFY(posted[0][1].toString().contains("mine.json"));
    QCOMPARE(saved.count(), 0);
    QVERIFY(opened.window.isWindowModified());
}

void tst_ProjectActions::ChangesAreSavedBesideTheFile()
{
    const QString directory = EnterTemporaryDirectory();
    Opened opened;
    opened.SaveAs(directory + "/mine.json");
    const QString file = directory + "/mine.json.autosave";
    opened.Autosave();
    QVERIFY(!QFile::exists(file));
    SetValue(opened.design, "thickness", 33.0);
    opened.Autosave();
    QVERIFY(QFile::exists(file));
    const Project saved = Project::Load(file);
    QVERIFY(saved.HasSameContent(opened.session.Current()));
    opened.part.UndoStack().undo();
    opened.Autosave();
    QVERIFY(!QFile::exists(file));
    opened.part.UndoStack().redo();
    opened.Autosave();
    opened.Trigger("action_SaveProject");
    QVERIFY(!QFile::exists(file));
    opened.actions->Close();
    QCOMPARE(AllFiles(), QStringList("mine.json"));
}

void tst_ProjectActions::WhatACrashLeftIsOffered_data()
{
    QTest::addColumn<bool>("isWanted");
    NewRow("recovered", true);
    NewRow("discarded", false);
}

void tst_ProjectActions::WhatACrashLeftIsOffered()
{
    QFETCH(bool, isWanted);
    const QString directory = EnterTemporaryDirectory();
    Put("mine.json", Plain);
    Put("mine.json.autosave", QByteArray(Plain).replace("Plain", "Left"));
    Opened opened{QString()};
    opened.user.Answer(isWanted ? QMessageBox::Yes : QMessageBox::Discard);
    opened.actions->Open(Project::Load(directory + "/mine.json"));
    QVERIFY(opened.user.IsDone());
    QCOMPARE(opened.user.Boxes().size(), 1);
    QCOMPARE(opened.window.isWindowModified(), isWanted);
    QCOMPARE(opened.session.Current().Title(), QString(isWanted ? "Left" : "Plain"));
    QCOMPARE(QFile::exists("mine.json.autosave"), isWanted);
}

void tst_ProjectActions::AnUnsavedProjectIsRecovered()
{
    QDir unsaved(qEnvironmentVariable("XDG_DATA_HOME") + "/tarnhost/unsaved");
    QVERIFY(unsaved.mkpath("crashed"));
    Put(unsaved.filePath("crashed/unsaved.json.autosave"), Plain);
    Put(unsaved.filePath("crashed/UserMaterial.xml"), "mine");
    Opened opened{QString()};
    opened.user.Answer(QMessageBox::Yes);
    QVERIFY(opened.actions->OfferAbandoned());
    QVERIFY(opened.user.IsDone());
    QCOMPARE(opened.session.Current().Title(), QString("Plain"));
    QVERIFY(QFile::exists("UserMaterial.xml"));
    QVERIFY(!opened.actions->OfferAbandoned());
    QVERIFY(opened.user.UnseenBoxes().isEmpty());
}

void tst_ProjectActions::AFullDiskIsReportedOnce()
{
    FullDisk disk;
    const QString directory = QDir::currentPath();
    Opened opened;
    opened.SaveAs(directory + "/mine.json");
    const QByteArray before = ContentOf("mine.json");
    SetValue(opened.design, "thickness", 33.0);
    disk.Fill();
    const QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    opened.Autosave();
    opened.Autosave();
    QCOMPARE(posted.count(), 1);
    QVERIFY(posted[0][1].toString().contains(disk.Reason()));
    opened.Trigger("action_SaveProject");
    QCOMPARE(posted.count(), 2);
    QCOMPARE(ContentOf("mine.json"), before);
    disk.Empty();
    opened.Autosave();
    QVERIFY(QFile::exists("mine.json.autosave"));
    opened.Trigger("action_SaveProject");
    QVERIFY(!opened.window.isWindowModified());
}

void tst_ProjectActions::AReadOnlyFolderIsReported()
{
    const QString directory = EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("mine"));
    QCOMPARE(chmod(".", 0755), 0);
    Opened opened;
    opened.SaveAs(directory + "/mine/mine.json");
    const QByteArray before = ContentOf("mine.json");
    const QStringList files = AllFiles();
    SetValue(opened.design, "thickness", 33.0);
    const QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    {
        const ReadOnlyFolder folder;
        QVERIFY(folder.Holds());
        opened.Autosave();
        opened.Trigger("action_SaveProject");
        opened.SaveAs(directory + "/mine/other.json");
    }
    QCOMPARE(posted.count(), 3);
    const QString denied = "cannot be written: Permission denied";
    QCOMPARE(posted[0][1].toString(), "The changes are not saved automatically: " + directory +
                                          "/mine/mine.json.autosave: " + denied);
    const QString advice = ". The project stays open with its changes; \"Save project as\" saves "
                           "it elsewhere.";
    QCOMPARE(posted[1][1].toString(), directory + "/mine/mine.json: " + denied + advice);
    QCOMPARE(posted[2][1].toString(), directory + "/mine/other.json: " + denied + advice);
    QCOMPARE(ContentOf("mine.json"), before);
    QCOMPARE(AllFiles(), files);
    QVERIFY(opened.window.isWindowModified());
    QCOMPARE(opened.window.windowTitle(), QString("Bolted flange - mine.json[*] - Tarn host"));
    QCOMPARE(Stored("thickness"), 33.0);
    // Elsewhere, and here again.
    opened.SaveAs(directory + "/elsewhere.json");
    QVERIFY(!opened.window.isWindowModified());
    QVERIFY(Project::Load(directory + "/elsewhere.json").HasSameContent(opened.session.Current()));
}

TARN_HOST_TEST_MAIN(tst_ProjectActions)
#include "tst_ProjectActions.moc"
