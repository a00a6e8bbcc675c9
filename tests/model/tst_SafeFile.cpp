#include "SafeFile.h"
#include "TestCase.h"
#include "XmlFiles.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QThread>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

using tarn::SafeFile;

namespace {

const QString Name = QStringLiteral("file.xml");

/// Runs @p work in a process of its own and returns its id; the process ends with the work.
pid_t Fork(const std::function<bool()>& work)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(work() ? 0 : 1);
    return child;
}

int ExitCodeOf(pid_t child)
{
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

QStringList AllFiles()
{
    return QDir().entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                            QDir::Name);
}

mode_t ModeOf(const QString& path)
{
    struct stat status
    {
    };
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777U : 0;
}

} // namespace

class tst_SafeFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WhatIsWrittenIsRead();
    void WhatIsWrittenIsRead_data();
    void WhatIsNoFileIsNotRead();
    void WhatIsNoFileIsNotReplaced();
    void AWriteWithoutDirectoryFails();
    void AReadOnlyDirectoryLeavesTheOldFile();
    void AFullDiskLeavesTheOldFile();
    void AFullDiskLeavesTheOldFile_data();
    void WhereTheCopyFindsNoRoomNothingIsWritten();
    void ASymbolicLinkStaysALink();
    void AChainOfLinksStays();
    void ALinkToNothingMakesItsTarget();
    void LinksInACircleFail();
    void ALinkInALinkedFolderIsFollowedAsTheSystemDoes();
    void AFolderUpFromALinkedOneIsTheSystems();
    void PermissionsStay();
    void PermissionsStay_data();
    void ACopyHasThePermissionsOfTheFile();
    void ACopyIsKeptOfWhatIsNotRemembered();
    void CopiesDoNotReplaceEachOther();
    void AKilledProcessLeavesAWholeFile();
    void TwoProcessesLeaveAWholeFile();
};

void tst_SafeFile::WhatIsWrittenIsRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zero bytes") << QByteArray(10, '\0');
    QTest::newRow("large") << QByteArray(3000000, 'x');
}

void tst_SafeFile::WhatIsWrittenIsRead()
{
    EnterTemporaryDirectory();
    QFETCH(QByteArray, content);
    SafeFile file;
    QVERIFY(file.Write(Name, content));
    QByteArray read;
    QVERIFY(SafeFile::Read(Name, read));
    QCOMPARE(read, content);
    QCOMPARE(AllFiles(), QStringList(Name));
}

void tst_SafeFile::WhatIsNoFileIsNotRead()
{
    EnterTemporaryDirectory();
    QDir().mkdir("directory");
    QCOMPARE(mkfifo("pipe", 0600), 0);
    QByteArray content;
    QVERIFY(!SafeFile::Read("missing", content));
    QVERIFY(!SafeFile::Read("directory", content));
    QVERIFY(!SafeFile::Read("pipe", content));
    QVERIFY(!SafeFile::Read("/dev/zero", content));
}

void tst_SafeFile::WhatIsNoFileIsNotReplaced()
{
    EnterTemporaryDirectory();
    QDir().mkdir("directory");
    QCOMPARE(mkfifo("pipe", 0600), 0);
    SafeFile file;
    QVERIFY(!file.Write("directory", "x"));
    QVERIFY(!file.Write("pipe", "x"));
    QVERIFY(!file.Write("", "x"));
    QCOMPARE(AllFiles(), QStringList({"directory", "pipe"}));
    struct stat status
    {
    };
    QCOMPARE(stat("pipe", &status), 0);
    QVERIFY(S_ISFIFO(status.st_mode));
}

void tst_SafeFile::AWriteWithoutDirectoryFails()
{
    EnterTemporaryDirectory();
    Put("plain", "old");
    SafeFile file;
    QVERIFY(!file.Write("missing/file.xml", "x"));
    QVERIFY(!file.Write("plain/file.xml", "x"));
    QCOMPARE(AllFiles(), QStringList("plain"));
    QCOMPARE(ContentOf("plain"), QByteArray("old"));
}

void tst_SafeFile::AReadOnlyDirectoryLeavesTheOldFile()
{
    EnterTemporaryDirectory();
    SafeFile file;
    QVERIFY(file.Write(Name, "old"));
    QCOMPARE(chmod(".", 0555), 0);
    // Permissions do not bind the administrator, so the write is another user's.
    const pid_t child = Fork([&file] {
        const uid_t nobody = 65534;
        if (geteuid() == 0 && seteuid(nobody) != 0)
            return false;
        return !file.Write(Name, "new") && !file.Write("another.xml", "new");
    });
    QCOMPARE(ExitCodeOf(child), 0);
    QCOMPARE(chmod(".", 0700), 0);
    QCOMPARE(ContentOf(Name), QByteArray("old"));
    QCOMPARE(AllFiles(), QStringList(Name));
}

void tst_SafeFile::AFullDiskLeavesTheOldFile_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("size");
    QTest::newRow("no room at all") << 0 << 100;
    QTest::newRow("only the last buffer fails") << 50 << 100;
    QTest::newRow("one byte short") << 16383 << 16384;
    QTest::newRow("one byte short, with blocks") << 99999 << 100000;
    QTest::newRow("the first block fails") << 10 << 100000;
}

void tst_SafeFile::AFullDiskLeavesTheOldFile()
{
    EnterTemporaryDirectory();
    QFETCH(int, room);
    QFETCH(int, size);
    SafeFile file;
    QVERIFY(file.Write(Name, "old"));
    bool isWritten = true;
    {
        const FullDisk full{rlim_t(room)};
        isWritten = file.Write(Name, QByteArray(size, 'x'));
    }
    QVERIFY(!isWritten);
    QCOMPARE(ContentOf(Name), QByteArray("old"));
    QCOMPARE(AllFiles(), QStringList(Name));
    QVERIFY(file.Write(Name, QByteArray(size, 'x')));
    QCOMPARE(AllFiles(), QStringList(Name));
}

void tst_SafeFile::WhereTheCopyFindsNoRoomNothingIsWritten()
{
    EnterTemporaryDirectory();
    const QByteArray old(100000, 'o');
    for (const int room : {50, 99999}) {
        Put(Name, old);
        SafeFile file;
        bool isWritten = true;
        {
            const FullDisk full{rlim_t(room)};
            isWritten = file.Write(Name, "new");
        }
        QVERIFY(!isWritten);
        QCOMPARE(ContentOf(Name), old);
        QCOMPARE(AllFiles(), QStringList(Name));
    }
}

void tst_SafeFile::ASymbolicLinkStaysALink()
{
    EnterTemporaryDirectory();
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

void tst_SafeFile::AChainOfLinksStays()
{
    EnterTemporaryDirectory();
    Put("real.xml", "old");
    QVERIFY(QFile::link("real.xml", "second"));
    QVERIFY(QFile::link("second", "first"));
    SafeFile file;
    QVERIFY(file.Write("first", "new"));
    QVERIFY(QFileInfo("first").isSymLink());
    QVERIFY(QFileInfo("second").isSymLink());
    QVERIFY(!QFileInfo("real.xml").isSymLink());
    QCOMPARE(ContentOf("real.xml"), QByteArray("new"));
    QCOMPARE(CopiesOf("real.xml").size(), 1);
}

void tst_SafeFile::ALinkToNothingMakesItsTarget()
{
    EnterTemporaryDirectory();
    QVERIFY(QFile::link("real.xml", Name));
    SafeFile file;
    QVERIFY(file.Write(Name, "new"));
    QVERIFY(QFileInfo(Name).isSymLink());
    QCOMPARE(ContentOf("real.xml"), QByteArray("new"));
}

void tst_SafeFile::LinksInACircleFail()
{
    EnterTemporaryDirectory();
    QVERIFY(QFile::link("b", "a"));
    QVERIFY(QFile::link("a", "b"));
    SafeFile file;
    QByteArray content;
    QVERIFY(!SafeFile::Read("a", content));
    QVERIFY(!file.Write("a", "x"));
    QCOMPARE(AllFiles(), QStringList({"a", "b"}));
}

void tst_SafeFile::ALinkInALinkedFolderIsFollowedAsTheSystemDoes()
{
    EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("far/folder"));
    QVERIFY(QFile::link("far/folder", "near"));
    // QFile::link() would make the target absolute.
    QCOMPARE(symlink("../real.xml", "far/folder/file.xml"), 0);
    SafeFile file;
    QVERIFY(file.Write("near/file.xml", "made"));
    QCOMPARE(ContentOf("far/real.xml"), QByteArray("made"));
    QVERIFY(file.Write("near/file.xml", "replaced"));
    QCOMPARE(ContentOf("far/real.xml"), QByteArray("replaced"));
    QVERIFY(QFileInfo("far/folder/file.xml").isSymLink());
    QCOMPARE(AllFiles(), QStringList({"far", "near"}));
    QCOMPARE(QDir("far").entryList(QDir::Files), QStringList("real.xml"));
}

void tst_SafeFile::AFolderUpFromALinkedOneIsTheSystems()
{
    EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("far/folder"));
    QVERIFY(QFile::link("far/folder", "near"));
    SafeFile file;
    QVERIFY(file.Write("near/../file.xml", "made"));
    QVERIFY(file.Write("near/../file.xml", "replaced"));
    QCOMPARE(ContentOf("far/file.xml"), QByteArray("replaced"));
    QCOMPARE(QDir("far").entryList(QDir::Files), QStringList("file.xml"));
    QCOMPARE(AllFiles(), QStringList({"far", "near"}));
}

void tst_SafeFile::PermissionsStay_data()
{
    QTest::addColumn<uint>("mode");
    for (const uint mode : {0600U, 0640U, 0644U, 0666U, 0755U})
        QTest::newRow(qPrintable(QString::number(mode, 8))) << mode;
}

void tst_SafeFile::PermissionsStay()
{
    EnterTemporaryDirectory();
    QFETCH(uint, mode);
    SafeFile file;
    QVERIFY(file.Write(Name, "old"));
    QCOMPARE(chmod("file.xml", mode), 0);
    QVERIFY(file.Write(Name, "new"));
    QCOMPARE(ModeOf(Name), mode_t(mode));
}

void tst_SafeFile::ACopyHasThePermissionsOfTheFile()
{
    EnterTemporaryDirectory();
    Put(Name, "old");
    QCOMPARE(chmod("file.xml", 0640), 0);
    SafeFile file;
    QVERIFY(file.Write(Name, "new"));
    const QStringList copies = CopiesOf(Name);
    QCOMPARE(copies.size(), 1);
    QCOMPARE(ModeOf(copies.first()), mode_t(0640));
}

void tst_SafeFile::ACopyIsKeptOfWhatIsNotRemembered()
{
    EnterTemporaryDirectory();
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

void tst_SafeFile::CopiesDoNotReplaceEachOther()
{
    EnterTemporaryDirectory();
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

void tst_SafeFile::AKilledProcessLeavesAWholeFile()
{
    EnterTemporaryDirectory();
    const QByteArray one(300000, '1');
    const QByteArray other(200000, '2');
    SafeFile file;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(file.Write(Name, other) && file.Write(Name, one));
    // Long enough for several writes, whatever the disk.
    const auto longest = quint32(2 * timer.nsecsElapsed() / 1000 + 2000);
    int ones = 0;
    int others = 0;
    for (int i = 0; i < 200; ++i) {
        const pid_t child = Fork([&file, &one, &other] {
            while (file.Write(Name, other) && file.Write(Name, one)) {
            }
            return false;
        });
        QVERIFY(child > 0);
        QThread::usleep(QRandomGenerator::global()->bounded(longest));
        QCOMPARE(kill(child, SIGKILL), 0);
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status));
        const QByteArray content = ContentOf(Name);
        QVERIFY2(content == one || content == other, qPrintable(QString::number(content.size())));
        ++(content == one ? ones : others);
        file.Remember(Name, content);
    }
    // Otherwise no process came as far as to replace the file.
    QVERIFY2(ones > 0 && others > 0, qPrintable(QString::number(ones)));
}

void tst_SafeFile::TwoProcessesLeaveAWholeFile()
{
    EnterTemporaryDirectory();
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

TARN_TEST_MAIN(tst_SafeFile)
#include "tst_SafeFile.moc"
