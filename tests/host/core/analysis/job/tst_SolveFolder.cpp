#include "FullDisk.h"
#include "SolveFolder.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <QDir>

class tst_SolveFolder : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void FilesAreWrittenAndRead();
    void ClearRemovesOnlyTheFilesOfAnAnalysis();
    void AFullDiskIsReported();
    void AFolderThatIsMissingIsReported();
};

namespace {

template<class Act>
QString Refusal(const Act& act)
{
    try {
        act();
        return "done";
    } catch (const FolderError& error) {
        return error.Reason();
    }
}

} // namespace

void tst_SolveFolder::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

void tst_SolveFolder::FilesAreWrittenAndRead()
{
    const SolveFolder folder(".");
    folder.Write(SolveFolder::InJob(".inp"), "*NODE\n");
    QCOMPARE(ContentOf("Model_Active.inp"), QByteArray("*NODE\n"));
    QCOMPARE(folder.ContentOf("Model_Active.inp"), QByteArray("*NODE\n"));
    folder.CheckWritable();
    QCOMPARE(AllFiles(), QStringList("Model_Active.inp"));
}

void tst_SolveFolder::ClearRemovesOnlyTheFilesOfAnAnalysis()
{
    for (const char* const name : {"Model_Active.frd", "Model_Active.dat", "part.msh", "mine.txt"})
        Put(name, "old");
    SolveFolder(".").Clear();
    QCOMPARE(AllFiles(), QStringList("mine.txt"));
}

void tst_SolveFolder::AFullDiskIsReported()
{
    FullDisk disk;
    disk.Fill();
    const QString reason = Refusal([] { SolveFolder(".").CheckWritable(); });
    QVERIFY2(reason.endsWith(disk.Reason()), qPrintable(reason));
}

void tst_SolveFolder::AFolderThatIsMissingIsReported()
{
    const QString reason = Refusal([] { SolveFolder("none").Write("a", "b"); });
    QVERIFY2(reason.contains("/none/a: "), qPrintable(reason));
}

TARN_TEST_MAIN(tst_SolveFolder)
#include "tst_SolveFolder.moc"
