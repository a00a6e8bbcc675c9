#include "FullDisk.h"
#include "HostError.h"
#include "NotAFile.h"
#include "ResultsTable.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <limits>

class tst_ResultsTable : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFileIsATableWithAHeader();
    void WrittenContentIsReadAgain();
    void AwkwardNamesAndErrorsAreQuoted();
    void TheDecimalSignIsTheFullStopEverywhere();
    void ABadTableIsReported_data();
    void ABadTableIsReported();
    void ABadFileLeavesTheRunsAsTheyWere();
    void AMissingFileIsReported();
    void OnlyAFileIsReadAndReplaced_data();
    void OnlyAFileIsReadAndReplaced();
    void AMissingFolderIsReported();
    void AFullDiskLeavesTheOldFile();
};

static const char Header[] = "run,a,b,volume_mm3,area_mm2,mass_kg,x_min,y_min,z_min,x_max,y_max,"
                             "z_max,status,error\n";

static RunResult Good()
{
    RunResult result;
    result.values = {0.1, 2.0};
    result.ok = true;
    result.measures.volume = 1.0 / 3.0;
    result.measures.area = 5.5;
    result.measures.boundingBox = {-1.0, -2.0, -3.0, 1.0, 2.0, 3.0};
    result.mass = 1e-20;
    return result;
}

static RunResult Bad(const QString& error)
{
    RunResult result;
    result.values = {std::numeric_limits<double>::quiet_NaN(), 2.0};
    result.error = error;
    return result;
}

static QString ReasonNotRead(ResultsTable& table)
{
    try {
        table.Read("r.csv");
    } catch (const HostError& error) {
        return error.Reason();
    }
    return "it was read";
}

void tst_ResultsTable::TheFileIsATableWithAHeader()
{
    EnterTemporaryDirectory();
    ResultsTable table({"a", "b"});
    table.Set(2, Bad("no"));
    table.Set(1, Good());
    table.Write("r.csv");
    QCOMPARE(ContentOf("r.csv"),
             QByteArray(Header) +
                 "1,0.10000000000000001,2,0.33333333333333331,5.5,9.9999999999999995e-21,"
                 "-1,-2,-3,1,2,3,ok,\n"
                 "2,nan,2,,,,,,,,,,failed,no\n");
}

void tst_ResultsTable::WrittenContentIsReadAgain()
{
    EnterTemporaryDirectory();
    ResultsTable written({"a", "b"});
    written.Set(1, Good());
    written.Set(7, Bad("no"));
    written.Write("r.csv");

    ResultsTable read({"a", "b"});
    read.Read("r.csv");
    QCOMPARE(read.Runs().size(), std::size_t(2));
    const RunResult& good = read.Runs().at(1);
    QCOMPARE(good.values, Good().values);
    QVERIFY(good.ok);
    QVERIFY(good.measures.volume == Good().measures.volume);
    QCOMPARE(good.measures.area, Good().measures.area);
    QCOMPARE(good.measures.boundingBox, Good().measures.boundingBox);
    QVERIFY(good.mass == Good().mass);
    QVERIFY(!read.Runs().at(7).ok);
    QCOMPARE(read.Runs().at(7).error, QString("no"));
}

void tst_ResultsTable::AwkwardNamesAndErrorsAreQuoted()
{
    EnterTemporaryDirectory();
    const QString name = "a, \"b\"";
    const QString error = "two\r\nlines, \"quoted\", 长";
    ResultsTable written({name, "c"});
    written.Set(1, Bad(error));
    written.Write("r.csv");
    QVERIFY(ContentOf("r.csv").startsWith("run,\"a, \"\"b\"\"\",c,"));
    QVERIFY(ContentOf("r.csv").endsWith("failed,\"two\r\nlines, \"\"quoted\"\", 长\"\n"));

    ResultsTable read({name, "c"});
    read.Read("r.csv");
    QCOMPARE(read.Runs().at(1).error, error);
}

void tst_ResultsTable::TheDecimalSignIsTheFullStopEverywhere()
{
    UseLocale("de_DE.UTF-8");
    EnterTemporaryDirectory();
    ResultsTable table({"a", "b"});
    table.Set(1, Good());
    table.Write("r.csv");
    QVERIFY(ContentOf("r.csv").contains("1,0.10000000000000001,2,"));
    table.Read("r.csv");
    QCOMPARE(table.Runs().at(1).values, Good().values);
}

void tst_ResultsTable::ABadTableIsReported_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QByteArray& content, const char* reason) {
        QTest::newRow(name) << content << QString("r.csv: ") + reason;
    };
    const char* const other = "holds the results of another study; choose another folder";
    const QByteArray good = "1,1,2,3,4,5,6,7,8,9,10,11,ok,\n";
    row("empty", "", other);
    row("another header", "run,x\n", other);
    row("other parameters", QByteArray(Header).replace(",a,", ",c,"), other);
    row("too few cells", Header + QByteArray("1,1,2\n"), "row 2 is not a run of a study");
    row("no number", Header + QByteArray(good).replace("11", "x"), "row 2 is not a run of a study");
    row("run 0", Header + QByteArray("0") + good.mid(1), "row 2 is not a run of a study");
    row("unknown status", Header + QByteArray(good).replace("ok", "fine"),
        "row 2 is not a run of a study");
    row("a run twice", Header + good + good, "row 3 is not a run of a study");
    row("cut off", Header + good + good.left(9), "row 3 is not a run of a study");
}

void tst_ResultsTable::ABadTableIsReported()
{
    QFETCH(QByteArray, content);
    EnterTemporaryDirectory();
    Put("r.csv", content);
    ResultsTable table({"a", "b"});
    QTEST(ReasonNotRead(table), "reason");
}

void tst_ResultsTable::ABadFileLeavesTheRunsAsTheyWere()
{
    EnterTemporaryDirectory();
    Put("r.csv", Header + QByteArray("5,1,2,,,,,,,,,,failed,no\n6\n"));
    ResultsTable table({"a", "b"});
    table.Set(1, Good());
    QCOMPARE(ReasonNotRead(table), QString("r.csv: row 3 is not a run of a study"));
    QCOMPARE(table.Runs().size(), std::size_t(1));
}

void tst_ResultsTable::AMissingFileIsReported()
{
    EnterTemporaryDirectory();
    ResultsTable table({"a", "b"});
    QCOMPARE(ReasonNotRead(table), QString("r.csv: cannot be opened: No such file or directory"));
}

void tst_ResultsTable::OnlyAFileIsReadAndReplaced_data()
{
    AddNotAFileRows();
}

void tst_ResultsTable::OnlyAFileIsReadAndReplaced()
{
    EnterTemporaryDirectory();
    QFETCH(QString, kind);
    QFETCH(QString, error);
    QVERIFY(PutNotAFile(kind, "r.csv"));
    const QStringList before = AllFiles();
    ResultsTable table({"a", "b"});
    QCOMPARE(ReasonNotRead(table), "r.csv: " + error);
    try {
        table.Write("r.csv");
        QFAIL("It was written.");
    } catch (const HostError& refusal) {
        QCOMPARE(refusal.Reason(), "r.csv: " + error);
    }
    QCOMPARE(AllFiles(), before);
}

void tst_ResultsTable::AMissingFolderIsReported()
{
    EnterTemporaryDirectory();
    QVERIFY_EXCEPTION_THROWN(ResultsTable({"a"}).Write("none/r.csv"), HostError);
}

void tst_ResultsTable::AFullDiskLeavesTheOldFile()
{
    FullDisk disk;
    ResultsTable table({"a", "b"});
    table.Set(1, Good());
    table.Write("r.csv");
    const QByteArray before = ContentOf("r.csv");
    for (int run = 2; run < 100; ++run)
        table.Set(run, Good());
    disk.Fill(1);
    QString reason = "it was written";
    try {
        table.Write("r.csv");
    } catch (const HostError& error) {
        reason = error.Reason();
    }
    QCOMPARE(reason, "r.csv: cannot be written: " + disk.Reason());
    disk.Empty();
    QCOMPARE(ContentOf("r.csv"), before);
    QCOMPARE(AllFiles(), QStringList("r.csv"));
    table.Write("r.csv");
    QVERIFY(ContentOf("r.csv").size() > before.size());
}

TARN_TEST_MAIN(tst_ResultsTable)
#include "tst_ResultsTable.moc"
