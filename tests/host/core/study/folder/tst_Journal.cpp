#include "FullDisk.h"
#include "Journal.h"
#include "SolveFolder.h"
#include "StudyRecords.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <QDir>
#include <QFile>

// What programs write into their journals, and what they read out of all of them.

class tst_Journal : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WhatIsWrittenIsReadAgain();
    void LinesAreReadAsTheyCome();
    void EveryProgramHasItsOwnFile();
    void ADamagedLineDoesNotCount_data();
    void ADamagedLineDoesNotCount();
    void WhatWasMeasuredStays();
    void AFullDiskLeavesWholeLines();
    void AStepFileIsRecognised_data();
    void AStepFileIsRecognised();
};

static RunRecord Record(RunRecord::State state, const QByteArray& row)
{
    RunRecord record;
    record.state = state;
    record.row = row;
    return record;
}

void tst_Journal::WhatIsWrittenIsReadAgain()
{
    EnterTemporaryDirectory();
    Journal journal(".");
    RunRecord good = Record(RunRecord::Ok, "7,1,2,\"a, b\",ok,\n");
    good.step.size = 5000000000;
    good.step.time = 1234;
    good.step.hash = "abc";
    journal.Begin(7);
    journal.End(7, good);
    journal.Begin(2);
    journal.End(2, Record(RunRecord::Failed, "2,,failed,no\n"));
    journal.Begin(3);
    StudyRecords records(".");
    records.Refresh();
    QCOMPARE(records.Of(7).state, RunRecord::Ok);
    QCOMPARE(records.Of(7).row, good.row);
    QCOMPARE(records.Of(7).step.size, good.step.size);
    QCOMPARE(records.Of(7).step.time, good.step.time);
    QCOMPARE(records.Of(7).step.hash, good.step.hash);
    QVERIFY(!records.Of(7).isBegun);
    QCOMPARE(records.Of(2).state, RunRecord::Failed);
    QCOMPARE(records.Of(2).row, QByteArray("2,,failed,no\n"));
    QCOMPARE(records.Of(3).state, RunRecord::Open);
    QVERIFY(records.Of(3).isBegun);
    QCOMPARE(records.Of(100).state, RunRecord::Open);
}

void tst_Journal::LinesAreReadAsTheyCome()
{
    EnterTemporaryDirectory();
    Journal journal(".");
    StudyRecords records(".");
    records.Refresh();
    for (int run = 1; run <= 3; ++run) {
        QCOMPARE(records.Of(run).state, RunRecord::Open);
        journal.End(run, Record(RunRecord::Ok, "row\n"));
        records.Refresh();
        QCOMPARE(records.Of(run).state, RunRecord::Ok);
        QCOMPARE(records.Of(run).ends, 1);
    }
}

void tst_Journal::EveryProgramHasItsOwnFile()
{
    EnterTemporaryDirectory();
    Journal first(".");
    Journal second(".");
    QCOMPARE(AllFiles(), QStringList());
    first.Begin(1);
    second.Begin(2);
    first.Begin(3);
    QCOMPARE(AllFiles(), QStringList({"journal_0001.csv", "journal_0002.csv"}));
    StudyRecords records(".");
    records.Refresh();
    QVERIFY(records.Of(1).isBegun && records.Of(2).isBegun && records.Of(3).isBegun);
}

void tst_Journal::ADamagedLineDoesNotCount_data()
{
    QTest::addColumn<int>("cut");
    QTest::addColumn<QByteArray>("added");
    NewRow("torn", 4, QByteArray());
    NewRow("without its line end", 1, QByteArray());
    NewRow("torn, with more behind", 4, QByteArray("\n"));
    NewRow("zeros of a power failure", 4, QByteArray(4, '\0'));
    NewRow("another digit", 3, QByteArray("9k\n"));
}

void tst_Journal::ADamagedLineDoesNotCount()
{
    QFETCH(int, cut);
    QFETCH(QByteArray, added);
    EnterTemporaryDirectory();
    {
        Journal journal(".");
        journal.End(1, Record(RunRecord::Ok, "1,ok\n"));
        journal.End(2, Record(RunRecord::Ok, "2,ok\n"));
    }
    const QByteArray content = ContentOf("journal_0001.csv");
    Put("journal_0001.csv", content.chopped(cut) + added);
    StudyRecords records(".");
    records.Refresh();
    QCOMPARE(records.Of(1).state, RunRecord::Ok);
    QCOMPARE(records.Of(2).state, RunRecord::Open);
}

void tst_Journal::WhatWasMeasuredStays()
{
    EnterTemporaryDirectory();
    Journal journal(".");
    journal.End(1, Record(RunRecord::Failed, "bad\n"));
    journal.End(1, Record(RunRecord::Ok, "good\n"));
    journal.End(1, Record(RunRecord::Failed, "bad\n"));
    StudyRecords records(".");
    records.Refresh();
    QCOMPARE(records.Of(1).row, QByteArray("good\n"));
    QCOMPARE(records.Of(1).ends, 3);
}

void tst_Journal::AFullDiskLeavesWholeLines()
{
    FullDisk disk;
    Journal journal(".");
    journal.End(1, Record(RunRecord::Ok, "1\n"));
    disk.Fill(0);
    QVERIFY_EXCEPTION_THROWN(journal.End(2, Record(RunRecord::Ok, QByteArray(100000, 'x') + '\n')),
                             FolderError);
    disk.Empty();
    journal.End(3, Record(RunRecord::Ok, "3\n"));
    StudyRecords records(".");
    records.Refresh();
    QCOMPARE(records.Of(1).state, RunRecord::Ok);
    QCOMPARE(records.Of(2).state, RunRecord::Open);
    QCOMPARE(records.Of(3).state, RunRecord::Ok);
}

void tst_Journal::AStepFileIsRecognised_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isSame");
    NewRow("the same", QByteArray("part"), true);
    NewRow("cut", QByteArray("par"), false);
    NewRow("empty", QByteArray(), false);
    NewRow("other content of its size", QByteArray("tarp"), false);
}

void tst_Journal::AStepFileIsRecognised()
{
    QFETCH(QByteArray, content);
    EnterTemporaryDirectory();
    Put("a.step", "part");
    StepStamp stamp = StepStamp::Of("a.step");
    QVERIFY(stamp.IsOf("a.step"));
    stamp.time -= 1; // The file was touched since.
    Put("a.step", content);
    QTEST(stamp.IsOf("a.step"), "isSame");
    QFile::remove("a.step");
    QVERIFY(!stamp.IsOf("a.step"));
    QDir().mkdir("a.step");
    QVERIFY(!stamp.IsOf("a.step"));
}

TARN_TEST_MAIN(tst_Journal)
#include "tst_Journal.moc"
