#include "FileLock.h"
#include "TestCase.h"

#include <QDir>
#include <QFileInfo>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <memory>

class tst_FileLock : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void OneHolderAtATime();
    void AKilledProgramHoldsNothing();
    void WithoutAFolderThereIsNoLock();
};

void tst_FileLock::OneHolderAtATime()
{
    EnterTemporaryDirectory();
    auto first = std::make_unique<FileLock>("a.lock");
    QVERIFY(first->IsHeld());
    {
        const FileLock second("a.lock");
        QVERIFY(!second.IsHeld());
        QVERIFY(second.IsHeldElsewhere());
    }
    QVERIFY(QFileInfo::exists("a.lock"));
    first.reset();
    QVERIFY(!QFileInfo::exists("a.lock"));
    QVERIFY(FileLock("a.lock").IsHeld());
}

void tst_FileLock::AKilledProgramHoldsNothing()
{
    EnterTemporaryDirectory();
    const pid_t child = fork();
    if (child == 0) {
        new FileLock("a.lock"); // Never removed.
        raise(SIGKILL);
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY(QFileInfo::exists("a.lock"));
    QVERIFY(FileLock("a.lock").IsHeld());
}

void tst_FileLock::WithoutAFolderThereIsNoLock()
{
    EnterTemporaryDirectory();
    const FileLock lock("none/a.lock");
    QVERIFY(!lock.IsHeld());
    QVERIFY(!lock.IsHeldElsewhere());
}

TARN_TEST_MAIN(tst_FileLock)
#include "tst_FileLock.moc"
