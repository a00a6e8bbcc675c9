#include "HostError.h"
#include "ResultsFile.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <cmath>

class tst_ResultsFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheColumnsHaveTheNumbersOfTheFile();
    void AnotherProgramMayHaveWrittenTheFile_data();
    void AnotherProgramMayHaveWrittenTheFile();
    void TheDecimalSignIsTheFullStopEverywhere();
    void ABadTableIsReported_data();
    void ABadTableIsReported();
    void AMissingFileIsReported();
    void TwoHundredThousandRunsAreRead();
};

static const QByteArray Header = "run,a,b,volume_mm3,ratio,status,error\n";

static QString ReasonNotRead()
{
    try {
        ReadResults("r.csv");
    } catch (const HostError& error) {
        return error.Reason();
    }
    return "it was read";
}

void tst_ResultsFile::TheColumnsHaveTheNumbersOfTheFile()
{
    EnterTemporaryDirectory();
    Put("r.csv", Header + "1,0.10000000000000001,2,1e-20,,ok,\n"
                          "3,4,5,,,failed,\"no body, \"\"really\"\"\nnone\"\n");
    const ResultColumns columns = ReadResults("r.csv");
    QCOMPARE(columns.Names(), QStringList({"a", "b", "volume_mm3", "ratio"}));
    QCOMPARE(columns.ParameterCount(), 2);
    QCOMPARE(columns.ResultNames(), QStringList({"volume_mm3", "ratio"}));
    QCOMPARE(columns.Count(), 2);
    QCOMPARE(columns.Run(1), 3);
    QCOMPARE(columns.Value(0, 0), 0.1);
    QCOMPARE(columns.Value(2, 0), 1e-20);
    QVERIFY(std::isnan(columns.Value(3, 0)));
    QVERIFY(columns.IsOk(0));
    QCOMPARE(columns.Error(0), QString());
    QVERIFY(!columns.IsOk(1));
    QCOMPARE(columns.Error(1), QString("no body, \"really\"\nnone"));
    QVERIFY(std::isnan(columns.Value(2, 1)));
}

void tst_ResultsFile::AnotherProgramMayHaveWrittenTheFile_data()
{
    QTest::addColumn<QByteArray>("content");
    NewRow("without the last line end", Header + QByteArray("1,0.5,2,3,4,ok,"));
    NewRow("line ends of other systems",
           QByteArray("run,a,b,volume_mm3,ratio,status,error\r\n1,0.5,2,3,4,ok,\r\n"));
    NewRow("every cell quoted",
           QByteArray("\"run\",\"a\",\"b\",\"volume_mm3\",\"ratio\",\"status\",\"error\"\n"
                      "\"1\",\"0.5\",\"2\",\"3\",\"4\",\"ok\",\"\"\n"));
    NewRow("a byte order mark", QByteArray("\xEF\xBB\xBF") + Header + "1,0.5,2,3,4,ok,\n");
}

void tst_ResultsFile::AnotherProgramMayHaveWrittenTheFile()
{
    QFETCH(QByteArray, content);
    EnterTemporaryDirectory();
    Put("r.csv", content);
    const ResultColumns columns = ReadResults("r.csv");
    QCOMPARE(columns.Names(), QStringList({"a", "b", "volume_mm3", "ratio"}));
    QCOMPARE(columns.Count(), 1);
    QCOMPARE(columns.Value(0, 0), 0.5);
    QCOMPARE(columns.Value(3, 0), 4.0);
    QVERIFY(columns.IsOk(0));
}

void tst_ResultsFile::TheDecimalSignIsTheFullStopEverywhere()
{
    UseLocale("de_DE.UTF-8");
    EnterTemporaryDirectory();
    Put("r.csv", Header + "1,0.5,2,3,4,ok,\n");
    QCOMPARE(ReadResults("r.csv").Value(0, 0), 0.5);
}

void tst_ResultsFile::ABadTableIsReported_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    const auto add = [](const char* name, const QByteArray& content, const char* reason) {
        NewRow(name, content, QString("r.csv: ") + reason);
    };
    add("empty", "", "is empty");
    add("no run", "a,b,status,error\n", "is not a table of results; it has no column \"run\"");
    add("no status", "run,a,error\n", "is not a table of results; it has no column \"status\"");
    add("no error", "run,a,status\n", "is not a table of results; it has no column \"error\"");
    add("columns in another order", "a,run,status,error\n",
        "is not a table of results; its first column has to be \"run\", its last ones \"status\" "
        "and \"error\"");
    add("a column twice", "run,a,a,status,error\n", "two columns have the same name");
    add("a missing cell", Header + "1,2,3,4,5,ok,\n2,2,3,4,ok,\n",
        "row 3: has 6 cells instead of 7");
    add("a word", Header + "1,2,3,abc,5,ok,\n",
        "row 2: \"abc\" in the column volume_mm3 is not a number");
    add("half a number", Header + "1,2,3,4 mm,5,ok,\n",
        "row 2: \"4 mm\" in the column volume_mm3 is not a number");
    add("a comma as the decimal sign", Header + "1,2,3,\"4,5\",5,ok,\n",
        "row 2: \"4,5\" in the column volume_mm3 is not a number");
    add("no run number", Header + "x,2,3,4,5,ok,\n",
        "row 2: \"x\" in the column run is not the number of a run");
    add("run 0", Header + "0,2,3,4,5,ok,\n",
        "row 2: \"0\" in the column run is not the number of a run");
    add("another status", Header + "1,2,3,4,5,fine,\n",
        "row 2: \"fine\" in the column status is neither ok nor failed");
    add("an open quote", Header + "1,2,3,4,5,ok,\n2,2,3,\"4,5,ok,\n",
        "row 3: has 4 cells instead of 7");
}

void tst_ResultsFile::ABadTableIsReported()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    EnterTemporaryDirectory();
    Put("r.csv", content);
    QCOMPARE(ReasonNotRead(), reason);
}

void tst_ResultsFile::AMissingFileIsReported()
{
    EnterTemporaryDirectory();
    QCOMPARE(ReasonNotRead(), QString("r.csv: cannot be opened: No such file or directory"));
}

void tst_ResultsFile::TwoHundredThousandRunsAreRead()
{
    EnterTemporaryDirectory();
    constexpr int Runs = 200000;
    QByteArray text = Header;
    for (int run = 1; run <= Runs; ++run)
        text += QByteArray::number(run) + "," + QByteArray::number(run * 0.1, 'g', 17) +
                ",70.123456789012345,1,2,ok,\n";
    Put("r.csv", text);
    const ResultColumns columns = ReadResults("r.csv");
    QCOMPARE(columns.Count(), Runs);
    QCOMPARE(columns.Value(0, Runs - 1), Runs * 0.1);
}

TARN_TEST_MAIN(tst_ResultsFile)
#include "tst_ResultsFile.moc"
