#include "FullDisk.h"
#include "Processes.h"
#include "TestCase.h"
#include "TestFiles.h"
#include "WholeFile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QThread>

#include <sys/stat.h>

#include <csignal>

using tarn::WholeFile;

namespace {

const QString Name = QStringLiteral("file.xml");

bool Write(const QString& path, const QByteArray& content)
{
    return WholeFile(path).Write(content);
}

/// Why the write failed.
QString WriteError(const QString& path, const QByteArray& content = "new")
{
    WholeFile file(path);
    return file.Write(content) ? QStringLiteral("it was written") : file.Error();
}

} // namespace

class tst_WholeFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WrittenContentReadsBack_data();
    void WrittenContentReadsBack();
    void TheLimitIsTheLargestSize();
    void AnUnreadableFileIsReported_data();
    void AnUnreadableFileIsReported();
    void AResourceIsRead();

    void OnlyRegularFilesAreReplaced();
    void AWriteWithoutFolderFails();
    void AReadOnlyFolderLeavesTheOldFile();
    void AReadOnlyFileIsNotReplaced();
    void AFullDiskLeavesTheOldFile_data();
    void AFullDiskLeavesTheOldFile();
    void NotOneByteMayBeMissing_data();
    void NotOneByteMayBeMissing();
    void AVetoLeavesTheOldFile();
    void FilesOfOthersStay();

    void ASymbolicLinkStaysALink();
    void AChainOfLinksStays();
    void ALinkToNothingCreatesItsTarget();
    void CircularLinksFail();
    void ALinkInALinkedFolderIsFollowedAsTheSystemDoes();
    void TheParentOfALinkedFolderIsTheSystems();

    void PermissionsStay_data();
    void PermissionsStay();
    void ANewFileHasTheDefaultPermissions();

    void ACopyIsANewFile();
    void ACopyHasThePermissionsOfTheFile();
    void AFullDiskLeavesNoCopy();
    void ACopyHasNoLimit();

    void AKilledProcessLeavesAWholeFile();
};

void tst_WholeFile::WrittenContentReadsBack_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zero bytes") << QByteArray(10, '\0');
    QTest::newRow("larger than a block") << QByteArray(3000000, 'x');
}

void tst_WholeFile::WrittenContentReadsBack()
{
    EnterTemporaryDirectory();
    QFETCH(QByteArray, content);
    QVERIFY(Write(Name, content));
    QByteArray read;
    QVERIFY(WholeFile(Name).Read(read));
    QCOMPARE(read, content);
    QCOMPARE(AllFiles(), QStringList(Name));
}

void tst_WholeFile::TheLimitIsTheLargestSize()
{
    EnterTemporaryDirectory();
    WholeFile file(Name, 3);
    QVERIFY(file.Write("123"));
    QVERIFY(!file.Write("1234"));
    QCOMPARE(file.Error(), QString("exceeds the limit of 3 bytes"));
    QByteArray read;
    QVERIFY(file.Read(read));
    QCOMPARE(read, QByteArray("123"));
    Put(Name, "1234");
    QVERIFY(!file.Read(read));
    QCOMPARE(read, QByteArray("123"));
}

void tst_WholeFile::AnUnreadableFileIsReported_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("error");
    QTest::newRow("missing") << "missing"
                             << "cannot be opened: No such file or directory";
    QTest::newRow("no name") << ""
                             << "cannot be opened: No such file or directory";
    QTest::newRow("missing resource") << ":/missing"
                                      << "cannot be opened: No such file or directory";
    QTest::newRow("folder") << "folder"
                            << "is a folder, not a file";
    QTest::newRow("pipe without a writer") << "pipe"
                                           << "is not a regular file";
    QTest::newRow("device") << "/dev/zero"
                            << "is not a regular file";
    QTest::newRow("too large") << "large"
                               << "exceeds the limit of 2 MB";
    QTest::newRow("circular link") << "circle"
                                   << "cannot be opened: Too many levels of symbolic links";
}

void tst_WholeFile::AnUnreadableFileIsReported()
{
    EnterTemporaryDirectory();
    QFETCH(QString, path);
    constexpr int Limit = 2 * 1024 * 1024;
    QDir().mkdir("folder");
    QCOMPARE(mkfifo("pipe", 0600), 0);
    QVERIFY(QFile::link("circle", "circle"));
    Put("large", QByteArray(Limit + 1, 'x'));
    WholeFile file(path, Limit);
    QByteArray content("as before");
    QVERIFY(!file.Read(content));
    QTEST(file.Error(), "error");
    QCOMPARE(content, QByteArray("as before"));
}

void tst_WholeFile::AResourceIsRead()
{
    EnterTemporaryDirectory();
    // One of Qt's own.
    const QString resource =
        QStringLiteral(":/qt-project.org/styles/commonstyle/images/left-32.png");
    QByteArray content;
    QVERIFY(WholeFile(resource).Read(content));
    QVERIFY(content.contains("PNG"));
    QVERIFY(WholeFile(resource).CopyTo("copy.png"));
    QCOMPARE(ContentOf("copy.png"), content);
    // A resource is read-only, the copy is not.
    QVERIFY(Write("copy.png", "new"));
    QVERIFY((ModeOf("copy.png") & S_IWUSR) != 0);
}

void tst_WholeFile::OnlyRegularFilesAreReplaced()
{
    EnterTemporaryDirectory();
    QDir().mkdir("folder");
    QCOMPARE(mkfifo("pipe", 0600), 0);
    QCOMPARE(WriteError("folder"), QString("is a folder, not a file"));
    QCOMPARE(WriteError("pipe"), QString("is not a regular file"));
    QCOMPARE(WriteError(""), QString("cannot be written: No such file or directory"));
    QCOMPARE(AllFiles(), QStringList({"folder", "pipe"}));
    struct stat status
    {
    };
    QCOMPARE(stat("pipe", &status), 0);
    QVERIFY(S_ISFIFO(status.st_mode));
}

void tst_WholeFile::AWriteWithoutFolderFails()
{
    EnterTemporaryDirectory();
    Put("plain", "old");
    QCOMPARE(WriteError("missing/file.xml"),
             QString("cannot be written: No such file or directory"));
    QCOMPARE(WriteError("plain/file.xml"), QString("cannot be written: Not a directory"));
    QCOMPARE(AllFiles(), QStringList("plain"));
    QCOMPARE(ContentOf("plain"), QByteArray("old"));
}

void tst_WholeFile::AReadOnlyFolderLeavesTheOldFile()
{
    EnterTemporaryDirectory();
    QVERIFY(Write(Name, "old"));
    QCOMPARE(chmod(".", 0555), 0);
    const pid_t child = ForkUnprivileged([] {
        const QString denied = "cannot be written: Permission denied";
        return WriteError(Name) == denied && WriteError("another.xml") == denied;
    });
    QCOMPARE(ExitCodeOf(child), 0);
    QCOMPARE(chmod(".", 0700), 0);
    QCOMPARE(ContentOf(Name), QByteArray("old"));
    QCOMPARE(AllFiles(), QStringList(Name));
}

void tst_WholeFile::AReadOnlyFileIsNotReplaced()
{
    EnterTemporaryDirectory();
    QVERIFY(Write(Name, "old"));
    QCOMPARE(chmod("file.xml", 0444), 0);
    QCOMPARE(chmod(".", 0777), 0);
    const pid_t child =
        ForkUnprivileged([] { return WriteError(Name) == "cannot be written: Permission denied"; });
    QCOMPARE(ExitCodeOf(child), 0);
    QCOMPARE(ContentOf(Name), QByteArray("old"));
    QCOMPARE(AllFiles(), QStringList(Name));
}

void tst_WholeFile::AFullDiskLeavesTheOldFile_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<int>("size");
    QTest::newRow("no room at all") << 0 << 100;
    QTest::newRow("room for the first page") << 1 << 8192;
    QTest::newRow("one byte too many") << 2 << 8193;
}

void tst_WholeFile::AFullDiskLeavesTheOldFile()
{
    QFETCH(int, pages);
    QFETCH(int, size);
    FullDisk disk;
    QVERIFY(Write(Name, "old"));
    disk.Fill(pages);
    QCOMPARE(WriteError(Name, QByteArray(size, 'x')), "cannot be written: " + disk.Reason());
    disk.Empty();
    QCOMPARE(ContentOf(Name), QByteArray("old"));
    QCOMPARE(AllFiles(), QStringList(Name));
    QVERIFY(Write(Name, QByteArray(size, 'x')));
    QCOMPARE(ContentOf(Name), QByteArray(size, 'x'));
    QCOMPARE(AllFiles(), QStringList(Name));
}

void tst_WholeFile::NotOneByteMayBeMissing_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("size");
    QTest::newRow("no room at all") << 0 << 100;
    QTest::newRow("half") << 50 << 100;
    QTest::newRow("one byte") << 16383 << 16384;
    QTest::newRow("one byte, larger") << 99999 << 100000;
    QTest::newRow("nearly all") << 10 << 100000;
    QTest::newRow("the second block") << 1048576 << 1048577;
}

void tst_WholeFile::NotOneByteMayBeMissing()
{
    EnterTemporaryDirectory();
    QFETCH(int, room);
    QFETCH(int, size);
    QVERIFY(Write(Name, "old"));
    QString error;
    {
        const FileSizeLimit limit{rlim_t(room)};
        error = WriteError(Name, QByteArray(size, 'x'));
    }
    QCOMPARE(error, QString("cannot be written: File too large"));
    QCOMPARE(ContentOf(Name), QByteArray("old"));
    QCOMPARE(AllFiles(), QStringList(Name));
    QVERIFY(Write(Name, QByteArray(size, 'x')));
    QCOMPARE(AllFiles(), QStringList(Name));
}

void tst_WholeFile::AVetoLeavesTheOldFile()
{
    EnterTemporaryDirectory();
    Put(Name, "old");
    WholeFile file(Name);
    QByteArray during;
    QVERIFY(!file.Write("new", [&during] {
        during = ContentOf(Name);
        return QString("not yet");
    }));
    QCOMPARE(file.Error(), QString("cannot be written: not yet"));
    QCOMPARE(during, QByteArray("old"));
    QCOMPARE(ContentOf(Name), QByteArray("old"));
    QCOMPARE(AllFiles(), QStringList(Name));
}

void tst_WholeFile::FilesOfOthersStay()
{
    EnterTemporaryDirectory();
    const QStringList others = {"file.xml.bak", "file.xml.part", "file.xml.tmp", "file.xml~"};
    for (const QString& other : others)
        Put(other, "mine");
    QVERIFY(Write(Name, "new"));
    for (const QString& other : others)
        QCOMPARE(ContentOf(other), QByteArray("mine"));
    QCOMPARE(AllFiles(), QStringList(Name) + others);
}

void tst_WholeFile::ASymbolicLinkStaysALink()
{
    EnterTemporaryDirectory();
    QDir().mkdir("elsewhere");
    Put("elsewhere/real.xml", "old");
    QVERIFY(QFile::link("elsewhere/real.xml", Name));
    QVERIFY(Write(Name, "new"));
    QVERIFY(QFileInfo(Name).isSymLink());
    QCOMPARE(ContentOf("elsewhere/real.xml"), QByteArray("new"));
    QCOMPARE(QDir("elsewhere").entryList(QDir::Files), QStringList("real.xml"));
    QCOMPARE(AllFiles(), QStringList({"elsewhere", Name}));
}

void tst_WholeFile::AChainOfLinksStays()
{
    EnterTemporaryDirectory();
    Put("real.xml", "old");
    QVERIFY(QFile::link("real.xml", "second"));
    QVERIFY(QFile::link("second", "first"));
    QVERIFY(Write("first", "new"));
    QVERIFY(QFileInfo("first").isSymLink());
    QVERIFY(QFileInfo("second").isSymLink());
    QVERIFY(!QFileInfo("real.xml").isSymLink());
    QCOMPARE(ContentOf("real.xml"), QByteArray("new"));
}

void tst_WholeFile::ALinkToNothingCreatesItsTarget()
{
    EnterTemporaryDirectory();
    QVERIFY(QFile::link("real.xml", Name));
    QVERIFY(Write(Name, "new"));
    QVERIFY(QFileInfo(Name).isSymLink());
    QCOMPARE(ContentOf("real.xml"), QByteArray("new"));
}

void tst_WholeFile::CircularLinksFail()
{
    EnterTemporaryDirectory();
    QVERIFY(QFile::link("b", "a"));
    QVERIFY(QFile::link("a", "b"));
    QCOMPARE(WriteError("a"), QString("cannot be written: Too many levels of symbolic links"));
    QCOMPARE(AllFiles(), QStringList({"a", "b"}));
}

void tst_WholeFile::ALinkInALinkedFolderIsFollowedAsTheSystemDoes()
{
    EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("far/folder"));
    QVERIFY(QFile::link("far/folder", "near"));
    // QFile::link() would make the target absolute.
    QCOMPARE(symlink("../real.xml", "far/folder/file.xml"), 0);
    QVERIFY(Write("near/file.xml", "made"));
    QCOMPARE(ContentOf("far/real.xml"), QByteArray("made"));
    QVERIFY(Write("near/file.xml", "replaced"));
    QCOMPARE(ContentOf("far/real.xml"), QByteArray("replaced"));
    QVERIFY(QFileInfo("far/folder/file.xml").isSymLink());
    QCOMPARE(AllFiles(), QStringList({"far", "near"}));
    QCOMPARE(QDir("far").entryList(QDir::Files), QStringList("real.xml"));
}

void tst_WholeFile::TheParentOfALinkedFolderIsTheSystems()
{
    EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("far/folder"));
    QVERIFY(QFile::link("far/folder", "near"));
    QVERIFY(Write("near/../file.xml", "made"));
    QVERIFY(Write("near/../file.xml", "replaced"));
    QCOMPARE(ContentOf("far/file.xml"), QByteArray("replaced"));
    QCOMPARE(QDir("far").entryList(QDir::Files), QStringList("file.xml"));
    QCOMPARE(AllFiles(), QStringList({"far", "near"}));
}

void tst_WholeFile::PermissionsStay_data()
{
    QTest::addColumn<uint>("mode");
    for (const uint mode : {0600U, 0640U, 0644U, 0666U, 0755U})
        QTest::newRow(qPrintable(QString::number(mode, 8))) << mode;
}

void tst_WholeFile::PermissionsStay()
{
    EnterTemporaryDirectory();
    QFETCH(uint, mode);
    QVERIFY(Write(Name, "old"));
    QCOMPARE(chmod("file.xml", mode), 0);
    QVERIFY(Write(Name, "new"));
    QCOMPARE(ModeOf(Name), mode);
}

void tst_WholeFile::ANewFileHasTheDefaultPermissions()
{
    EnterTemporaryDirectory();
    Put("usual.xml", "x");
    QVERIFY(Write(Name, "new"));
    QCOMPARE(ModeOf(Name), ModeOf("usual.xml"));
}

void tst_WholeFile::ACopyIsANewFile()
{
    EnterTemporaryDirectory();
    Put(Name, "content");
    WholeFile file(Name);
    QVERIFY(file.CopyTo("copy.xml"));
    QCOMPARE(ContentOf("copy.xml"), QByteArray("content"));
    Put(Name, "other");
    QVERIFY(!file.CopyTo("copy.xml"));
    QCOMPARE(file.Error(), QString("cannot be copied: File exists"));
    QCOMPARE(ContentOf("copy.xml"), QByteArray("content"));
    QVERIFY(!WholeFile("missing").CopyTo("another.xml"));
    QCOMPARE(AllFiles(), QStringList({"copy.xml", Name}));
}

void tst_WholeFile::ACopyHasThePermissionsOfTheFile()
{
    EnterTemporaryDirectory();
    Put(Name, "content");
    QCOMPARE(chmod("file.xml", 0640), 0);
    QVERIFY(WholeFile(Name).CopyTo("copy.xml"));
    QCOMPARE(ModeOf("copy.xml"), 0640U);
}

void tst_WholeFile::AFullDiskLeavesNoCopy()
{
    FullDisk disk;
    Put(Name, QByteArray(8192, 'x'));
    disk.Fill(1);
    WholeFile file(Name);
    QVERIFY(!file.CopyTo("copy.xml"));
    QCOMPARE(file.Error(), "cannot be copied: " + disk.Reason());
    QCOMPARE(AllFiles(), QStringList(Name));
}

void tst_WholeFile::ACopyHasNoLimit()
{
    EnterTemporaryDirectory();
    Put(Name, "content");
    QVERIFY(WholeFile(Name, 1).CopyTo("copy.xml"));
    QCOMPARE(ContentOf("copy.xml"), QByteArray("content"));
}

void tst_WholeFile::AKilledProcessLeavesAWholeFile()
{
    EnterTemporaryDirectory();
    const QByteArray one(300000, '1');
    const QByteArray other(200000, '2');
    QElapsedTimer timer;
    timer.start();
    QVERIFY(Write(Name, other) && Write(Name, one));
    // Long enough for several writes, whatever the disk.
    const auto longest = quint32(2 * timer.nsecsElapsed() / 1000 + 2000);
    int ones = 0;
    int others = 0;
    for (int i = 0; i < 200; ++i) {
        const pid_t child = Fork([&one, &other] {
            while (Write(Name, other) && Write(Name, one)) {
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
    }
    // Otherwise no process got as far as replacing the file.
    QVERIFY2(ones > 0 && others > 0, qPrintable(QString::number(ones)));
}

TARN_TEST_MAIN(tst_WholeFile)
#include "tst_WholeFile.moc"
