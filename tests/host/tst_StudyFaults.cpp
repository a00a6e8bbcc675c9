#include "FlangeStudy.h"
#include "FullDisk.h"
#include "StudyProgram.h"
#include "TestCase.h"

#include <QDir>
#include <QFile>

// Runs that crash or take too long, and a disk that is full.

class tst_StudyFaults : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ARunThatCrashesFailsAndTheOthersGoOn_data();
    void ARunThatCrashesFailsAndTheOthersGoOn();
    void ARunThatTakesTooLongIsGivenUp();
    void AFullDiskEndsTheStudyAndLosesNothing_data();
    void AFullDiskEndsTheStudyAndLosesNothing();
};

// With the radius 12 the second fillet ends the kernel.
static const QByteArray Crashing = R"({ "version": 1,
    "parameters": [ { "name": "r", "value": 1 } ],
    "samples": [ { "parameter": "r", "values": [1, 12, 2], "ticked": true } ],
    "features": [
        { "name": "box", "kind": "box", "fields": { "x": 30, "y": 30, "z": 10 } },
        { "name": "first", "kind": "fillet", "inputs": ["box"],
          "fields": { "radius": 3, "x": 15, "y": 0, "z": 10 } },
        { "name": "second", "kind": "fillet", "inputs": ["first"],
          "fields": { "radius": "r", "x": 0, "y": 15, "z": 10 } } ] })";

// Fuses so many bars that a second is not enough.
static const QByteArray Slow = R"({ "version": 1,
    "parameters": [ { "name": "n", "value": 1 } ],
    "samples": [ { "parameter": "n", "values": [1, 18], "ticked": true } ],
    "features": [
        { "name": "bar", "kind": "box", "fields": { "x": 1, "y": 200, "z": 1 } },
        { "name": "bars", "kind": "rectangularArray", "inputs": ["bar"],
          "fields": { "xNumber": "n", "yNumber": 1, "xDistance": 3, "yDistance": 1 } },
        { "name": "rod", "kind": "cylinder",
          "fields": { "radius": 0.5, "height": 200, "turnY": 90, "moveX": -50, "moveZ": 0.5 } },
        { "name": "rods", "kind": "rectangularArray", "inputs": ["rod"],
          "fields": { "xNumber": 1, "yNumber": "n", "xDistance": 1, "yDistance": 3 } },
        { "name": "grid", "kind": "fuse", "inputs": ["bars", "rods"] } ] })";

static QList<QByteArray> Rows()
{
    return ContentOf("out/results.csv").trimmed().split('\n').mid(1);
}

void tst_StudyFaults::ARunThatCrashesFailsAndTheOthersGoOn_data()
{
    QTest::addColumn<QString>("jobs");
    NewRow("one worker", QString("1"));
    NewRow("two workers", QString("2"));
}

void tst_StudyFaults::ARunThatCrashesFailsAndTheOthersGoOn()
{
    QFETCH(QString, jobs);
    EnterTemporaryDirectory();
    Put("p.json", Crashing);
    QCOMPARE(Run(Study + Arguments{"--jobs", jobs}), 1);
    const QList<QByteArray> rows = Rows();
    QCOMPARE(rows.size(), 3);
    QVERIFY2(rows[0].endsWith(",ok,"), rows[0].constData());
    QVERIFY2(rows[1].contains(",failed,") && rows[1].contains("second"), rows[1].constData());
    QVERIFY2(rows[2].endsWith(",ok,"), rows[2].constData());
    QVERIFY(!QFile::exists("out/run_0002.step"));
}

void tst_StudyFaults::ARunThatTakesTooLongIsGivenUp()
{
    EnterTemporaryDirectory();
    Put("p.json", Slow);
    QCOMPARE(Run(Study + Arguments{"--jobs", "1", "--timeout", "1"}), 1);
    const QList<QByteArray> rows = Rows();
    QCOMPARE(rows.size(), 2);
    QVERIFY2(rows[0].endsWith(",ok,"), rows[0].constData());
    QVERIFY2(rows[1].contains(",failed,") && rows[1].contains("1 s"), rows[1].constData());
}

void tst_StudyFaults::AFullDiskEndsTheStudyAndLosesNothing_data()
{
    QTest::addColumn<bool>("hasBegun");
    QTest::newRow("before it begins") << false;
    QTest::newRow("after the first run") << true;
}

void tst_StudyFaults::AFullDiskEndsTheStudyAndLosesNothing()
{
    QFETCH(bool, hasBegun);
    EnterTemporaryDirectory();
    Put("p.json", Flange());
    const QByteArray expected = Undisturbed();
    const QString project = QDir::current().filePath("p.json");
    FullDisk disk;
    const Arguments study = {"--study", project, "--out", "out", "--jobs", "1", "--step", "none"};
    if (hasBegun)
        QCOMPARE(Run(study + Arguments{"--runs", "1"}), 0);
    disk.Fill();
    const std::unique_ptr<QProcess> process = Started(study);
    QCOMPARE(CodeOf(*process), 3);
    const QByteArray error = process->readAllStandardError();
    QVERIFY2(error.contains(disk.Reason().toLocal8Bit()) && error.count('\n') == 1,
             error.constData());
    disk.Empty();
    QCOMPARE(Run(study), 0);
    QCOMPARE(ContentOf("out/results.csv"), expected);
}

TARN_TEST_MAIN(tst_StudyFaults)
#include "tst_StudyFaults.moc"
