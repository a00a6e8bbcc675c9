#include "FullDisk.h"
#include "LostWrites.h"
#include "NotAFile.h"
#include "Processes.h"
#include "SafeFile.h"
#include "TestCase.h"
#include "TestFiles.h"
#include "XmlFiles.h"

#include <QElapsedTimer>
#include <QLockFile>
#include <QSet>

#include <sys/stat.h>

using tarn::SafeFile;

namespace {

const QString Name = QStringLiteral("file.xml");
const QString LockName = QStringLiteral("file.xml.lock");

} // namespace

class tst_SafeFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void UnknownContentIsBackedUp();
    void KnownContentIsReplaced();
    void ACopyIsKeptBesideTheTargetOfALink();
    void ACopyHasThePermissionsOfTheFile();
    void CopiesDoNotReplaceEachOther();
    void WithoutRoomForTheBackupNothingIsWritten();
    void AFullDiskLeavesTheOldFileAndNoCopy();
    void AFailedWriteIsNotRemembered();

    void TwoProcessesLeaveAWholeFile();
    void NothingIsLostAmongProcesses();
    void ALockOfADeadProcessIsIgnored();
    void ALockThatStaysDelaysTheWriteOnly();
    void WhatIsNotALockIsIgnored_data();
    void WhatIsNotALockIsIgnored();
    void WhereNoLockCanBeMadeTheFileIsWritten();

private:
    void init() override;
};

void tst_SafeFile::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

void tst_SafeFile::UnknownContentIsBackedUp()
{
    SafeFile file;
    QVERIFY(file.Write(Name, "first"));
    QVERIFY(file.Write("./file.xml", "second"));
    QCOMPARE(CopiesOf(Name).size(), 0);
    Put(Name, "foreign");
    QVERIFY(file.Write(Name, "third"));
    QCOMPARE(CopiesOf(Name).size(), 1);
    QCOMPARE(ContentOf(CopiesOf(Name).constFirst()), QByteArray("foreign"));
    file.Clear();
    QVERIFY(file.Write(Name, "fourth"));
    QCOMPARE(CopiesOf(Name).size(), 2);
    QCOMPARE(ContentOf(Name), QByteArray("fourth"));
}

void tst_SafeFile::KnownContentIsReplaced()
{
    QDir().mkdir("elsewhere");
    Put("elsewhere/real.xml", "old");
    QVERIFY(QFile::link("elsewhere/real.xml", Name));
    SafeFile file;
    file.Remember("elsewhere/real.xml", "old");
    QVERIFY(file.Write(Name, "new"));
    QVERIFY(QFileInfo(Name).isSymLink());
    QCOMPARE(ContentOf("elsewhere/real.xml"), QByteArray("new"));
    QCOMPARE(QDir("elsewhere").entryList(QDir::Files), QStringList("real.xml"));
    QCOMPARE(AllFiles(), QStringList({"elsewhere", Name}));
}

void tst_SafeFile::ACopyIsKeptBesideTheTargetOfALink()
{
    QDir().mkdir("elsewhere");
    Put("elsewhere/real.xml", "old");
    QVERIFY(QFile::link("elsewhere/real.xml", "second"));
    QVERIFY(QFile::link("second", "first"));
    SafeFile file;
    QVERIFY(file.Write("first", "new"));
    QCOMPARE(AllFiles(), QStringList({"elsewhere", "first", "second"}));
    QVERIFY(QDir::setCurrent("elsewhere"));
    QCOMPARE(ContentOf("real.xml"), QByteArray("new"));
    QCOMPARE(CopiesOf("real.xml").size(), 1);
    QCOMPARE(ContentOf(CopiesOf("real.xml").constFirst()), QByteArray("old"));
}

void tst_SafeFile::ACopyHasThePermissionsOfTheFile()
{
    Put(Name, "old");
    QCOMPARE(chmod("file.xml", 0640), 0);
    SafeFile file;
    QVERIFY(file.Write(Name, "new"));
    const QStringList copies = CopiesOf(Name);
    QCOMPARE(copies.size(), 1);
    QCOMPARE(ModeOf(copies.first()), 0640U);
}

void tst_SafeFile::CopiesDoNotReplaceEachOther()
{
    const int count = 50;
    for (int i = 0; i < count; ++i) {
        Put(Name, QByteArray::number(i));
        SafeFile file;
        QVERIFY(file.Write(Name, "new"));
    }
    QSet<QByteArray> contents;
    const QStringList copies = CopiesOf(Name);
    for (const QString& copy : copies)
        contents.insert(ContentOf(copy));
    QCOMPARE(contents.size(), count);
}

void tst_SafeFile::WithoutRoomForTheBackupNothingIsWritten()
{
    const QByteArray old(100000, 'o');
    for (const int room : {50, 99999}) {
        Put(Name, old);
        SafeFile file;
        bool isWritten = true;
        {
            const FileSizeLimit limit{rlim_t(room)};
            isWritten = file.Write(Name, "new");
        }
        QVERIFY(!isWritten);
        QCOMPARE(ContentOf(Name), old);
        QCOMPARE(AllFiles(), QStringList(Name));
    }
}

void tst_SafeFile::AFullDiskLeavesTheOldFileAndNoCopy()
{
    FullDisk disk;
    Put(Name, "old");
    disk.Fill();
    SafeFile file;
    QVERIFY(!file.Write(Name, "new"));
    QCOMPARE(ContentOf(Name), QByteArray("old"));
    QCOMPARE(AllFiles(), QStringList(Name));
}

void tst_SafeFile::AFailedWriteIsNotRemembered()
{
    SafeFile file;
    QVERIFY(file.Write(Name, "old"));
    {
        const FileSizeLimit limit{0};
        QVERIFY(!file.Write(Name, "new"));
    }
    Put(Name, "new");
    QVERIFY(file.Write(Name, "newer"));
    QCOMPARE(CopiesOf(Name).size(), 1);
    QCOMPARE(ContentOf(CopiesOf(Name).constFirst()), QByteArray("new"));
}

void tst_SafeFile::TwoProcessesLeaveAWholeFile()
{
    const QByteArray one(100000, '1');
    const QByteArray other(150000, '2');
    SafeFile file;
    QVERIFY(file.Write(Name, one));
    const auto writer = [&file](const QByteArray& content) {
        return [&file, content] {
            for (int i = 0; i < 40; ++i) {
                if (!file.Write(Name, content))
                    return false;
            }
            return true;
        };
    };
    const pid_t first = Fork(writer(one));
    const pid_t second = Fork(writer(other));
    bool isWhole = true;
    int status = 0;
    while (waitpid(first, &status, WNOHANG) == 0) {
        const QByteArray content = ContentOf(Name);
        isWhole = isWhole && (content == one || content == other);
    }
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 0);
    QCOMPARE(ExitCodeOf(second), 0);
    QVERIFY(isWhole);
    const QByteArray last = ContentOf(Name);
    QVERIFY(last == one || last == other);
    const QStringList copies = CopiesOf(Name);
    for (const QString& copy : copies) {
        const QByteArray content = ContentOf(copy);
        QVERIFY2(content == one || content == other, qPrintable(copy));
    }
    QCOMPARE(AllFiles().size(), copies.size() + 1);
}

void tst_SafeFile::NothingIsLostAmongProcesses()
{
    const QStringList lost = LostAmongProcesses(Name, [](const QString& name) {
        // One that remembers nothing, so that each content of the file is to be copied.
        return SafeFile().Write(Name, '"' + name.toUtf8() + '"');
    });
    QCOMPARE(lost, QStringList());
}

void tst_SafeFile::ALockOfADeadProcessIsIgnored()
{
    const pid_t child = Fork([] {
        QLockFile lock(LockName);
        // Ends with the process, which does not unlock it.
        return lock.tryLock(0) && kill(getpid(), SIGKILL) == 0;
    });
    QCOMPARE(ExitCodeOf(child), -1);
    QVERIFY(QFile::exists(LockName));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(SafeFile().Write(Name, "new"));
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(ContentOf(Name), QByteArray("new"));
    QCOMPARE(AllFiles(), QStringList(Name));
}

void tst_SafeFile::ALockThatStaysDelaysTheWriteOnly()
{
    // A link to nothing can be neither created nor recognised as left behind.
    QVERIFY(QFile::link("nowhere", LockName));
    Put(Name, "old");
    QVERIFY(SafeFile().Write(Name, "new"));
    QCOMPARE(ContentOf(Name), QByteArray("new"));
    QCOMPARE(CopiesOf(Name).size(), 1);
    QVERIFY(QFileInfo(LockName).isSymLink());
}

void tst_SafeFile::WhatIsNotALockIsIgnored_data()
{
    AddNotAFileRows();
}

void tst_SafeFile::WhatIsNotALockIsIgnored()
{
    QFETCH(QString, kind);
    QVERIFY(PutNotAFile(kind, LockName));
    Put(Name, "old");
    QVERIFY(SafeFile().Write(Name, "new"));
    QCOMPARE(ContentOf(Name), QByteArray("new"));
    QCOMPARE(CopiesOf(Name).size(), 1);
    QVERIFY(!QFileInfo(LockName).isFile());
}

void tst_SafeFile::WhereNoLockCanBeMadeTheFileIsWritten()
{
    FullDisk disk;
    SafeFile file;
    QVERIFY(file.Write(Name, "old"));
    disk.Fill(1); // The file finds room, the lock does not.
    QVERIFY(file.Write(Name, "new"));
    QCOMPARE(ContentOf(Name), QByteArray("new"));
    QCOMPARE(AllFiles(), QStringList(Name));
}

TARN_TEST_MAIN(tst_SafeFile)
#include "tst_SafeFile.moc"
