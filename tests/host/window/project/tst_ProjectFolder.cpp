#include "ProjectFolder.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <QDir>
#include <QFile>

#include <memory>

class tst_ProjectFolder : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormerFolderComesBack();
    void AnOwnFolderEndsWithTheProject();
    void FilesAreCopiedButReplaceNothing();
    void OfASavedProjectOnlySharedFilesAreCopied();
    void FoldersInUseAreNotAbandoned();
};

void tst_ProjectFolder::TheFormerFolderComesBack()
{
    const QString directory = EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("a"));
    {
        ProjectFolder folder;
        folder.Enter(directory + "/a");
        QCOMPARE(QDir::currentPath(), directory + "/a");
        QVERIFY(!folder.IsOwn());
    }
    QCOMPARE(QDir::currentPath(), directory);
}

void tst_ProjectFolder::AnOwnFolderEndsWithTheProject()
{
    EnterTemporaryDirectory();
    ProjectFolder folder;
    folder.EnterOwn();
    const QString first = QDir::currentPath();
    Put("a.txt", "a");
    folder.EnterOwn();
    QVERIFY(QDir::currentPath() != first);
    QVERIFY(!QFile::exists(first));
    QVERIFY(folder.IsOwn());
}

void tst_ProjectFolder::FilesAreCopiedButReplaceNothing()
{
    const QString target = EnterTemporaryDirectory();
    Put("same.txt", "same");
    Put("other.txt", "there");
    ProjectFolder folder;
    folder.EnterOwn();
    QVERIFY(QDir().mkpath("parts"));
    Put("parts/a.step", "a");
    Put("same.txt", "same");
    Put("other.txt", "here");
    Put("SysMaterial.xml", "library");
    Put("unsaved.json.autosave", "changes");
    QCOMPARE(folder.CopyFilesTo(target), QStringList("other.txt"));
    folder.Enter(target);
    QCOMPARE(ContentOf("parts/a.step"), QByteArray("a"));
    QCOMPARE(ContentOf("other.txt"), QByteArray("there"));
    QCOMPARE(AllFiles(), QStringList({"other.txt", "parts", "same.txt"}));
}

void tst_ProjectFolder::OfASavedProjectOnlySharedFilesAreCopied()
{
    const QString directory = EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("a") && QDir().mkpath("b"));
    for (const char* const name : {"UserMaterial.xml", "ElementProperty.xml", "letter.txt"})
        Put(QString("a/") + name, name);
    ProjectFolder folder;
    folder.Enter(directory + "/a");
    QCOMPARE(folder.CopyFilesTo(directory + "/b"), QStringList());
    folder.Enter(directory + "/b");
    QCOMPARE(AllFiles(), QStringList({"ElementProperty.xml", "UserMaterial.xml"}));
}

void tst_ProjectFolder::FoldersInUseAreNotAbandoned()
{
    EnterTemporaryDirectory();
    ProjectFolder folder;
    folder.EnterOwn();
    const QDir own = QDir::current();
    QVERIFY(!ProjectFolder::Abandoned().contains(own.path()));
    QVERIFY(QDir(own).mkpath("../left"));
    const QString left = QDir::cleanPath(own.filePath("../left"));
    QCOMPARE(ProjectFolder::Abandoned(), QStringList(left));
    ProjectFolder heir;
    heir.EnterOwn(left);
    QCOMPARE(ProjectFolder::Abandoned(), QStringList());
}

TARN_TEST_MAIN(tst_ProjectFolder)
#include "tst_ProjectFolder.moc"
