#include "HostError.h"
#include "OwnedFolder.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <QDir>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

class tst_OwnedFolder : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void ItEndsWithItsOwner();
    void ThatOfAKilledProgramIsRemovedLater();
    void OthersAreKept();
    void AFolderThatCannotBeMadeIsReported();
};

namespace {

QStringList Folders()
{
    return QDir::temp().entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

} // namespace

void tst_OwnedFolder::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
    qputenv("TMPDIR", QFile::encodeName(QDir::currentPath()));
}

void tst_OwnedFolder::cleanup()
{
    qunsetenv("TMPDIR");
    TestCase::cleanup();
}

void tst_OwnedFolder::ItEndsWithItsOwner()
{
    {
        const OwnedFolder folder("work");
        QVERIFY(QFileInfo(folder.Path()).fileName().startsWith("work-"));
        Put(folder.PathOf("a"), "text");
        QCOMPARE(Folders().size(), 1);
    }
    QCOMPARE(Folders(), QStringList());
}

void tst_OwnedFolder::ThatOfAKilledProgramIsRemovedLater()
{
    const pid_t child = fork();
    if (child == 0) {
        new OwnedFolder("work"); // Never removed.
        raise(SIGKILL);
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QCOMPARE(Folders().size(), 1);
    Put(QDir::temp().filePath(Folders().first() + "/a"), "text");
    OwnedFolder::RemoveAbandoned("work");
    QCOMPARE(Folders(), QStringList());
}

void tst_OwnedFolder::OthersAreKept()
{
    const OwnedFolder owned("work");
    for (const char* const name : {"work-abcdef", "work", "works-abcdef"})
        QVERIFY(QDir::temp().mkpath(name));
    Put("works-abcdef/owner.lock", "");
    OwnedFolder::RemoveAbandoned("work");
    QCOMPARE(Folders().size(), 4);
    QVERIFY(QFileInfo::exists(owned.Path()));
}

void tst_OwnedFolder::AFolderThatCannotBeMadeIsReported()
{
    Put("file", "");
    qputenv("TMPDIR", QFile::encodeName(QDir::current().filePath("file")));
    QVERIFY_EXCEPTION_THROWN(const OwnedFolder folder("work"), HostError);
    OwnedFolder::RemoveAbandoned("work");
}

TARN_TEST_MAIN(tst_OwnedFolder)
#include "tst_OwnedFolder.moc"
