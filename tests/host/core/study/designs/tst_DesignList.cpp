#include "DesignList.h"
#include "HostError.h"
#include "TestCase.h"
#include "TestFiles.h"

class tst_DesignList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void RunsAreRead_data();
    void RunsAreRead();
    void ABadFileIsReportedWithThePlace_data();
    void ABadFileIsReportedWithThePlace();
    void TheDecimalSignIsTheFullStopEverywhere();
};

static const QSet<QString> Known = {"a", "b", "x, y"};

void tst_DesignList::RunsAreRead_data()
{
    QTest::addColumn<QByteArray>("content");
    NewRow("plain", QByteArray("a,x, y,b\n").replace("x, y", "\"x, y\"") + "1,2,3\n4,5e-1,-6\n");
    NewRow("spreadsheet", QByteArray("\xef\xbb\xbf\"a\",\"x, y\",b\r\n1,2,3\r\n4,0.5,-6\r\n"));
    NewRow("spaces and empty lines", QByteArray(" a ,\"x, y\", b\n\n1 , 2,3\n  \n4,.5,-6"));
}

void tst_DesignList::RunsAreRead()
{
    QFETCH(QByteArray, content);
    EnterTemporaryDirectory();
    Put("r.csv", content);
    const DesignList list = ReadDesignList("r.csv", Known);
    QCOMPARE(list.names, QStringList({"a", "x, y", "b"}));
    const DesignRuns expected = {{1, 2, 3}, {4, 0.5, -6}};
    QCOMPARE(list.runs, expected);
}

void tst_DesignList::ABadFileIsReportedWithThePlace_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* content, const char* reason) {
        NewRow(name, QByteArray(content), QString("r.csv: ") + reason);
    };
    row("empty", "", "has no header with the names of parameters");
    row("no runs", "a,b\n", "has no runs below its header");
    row("unknown name", "a,c\n1,2\n", "row 1, column 2: \"c\" is not a parameter of the project");
    row("no name", "a,\n1,2\n", "row 1, column 2: \"\" is not a parameter of the project");
    row("a name twice", "a,a\n1,2\n", "row 1, column 2: \"a\" is there twice");
    row("a short row", "a,b\n1,2\n3\n", "row 3: column \"b\" is missing");
    row("a long row", "a,b\n1,2,3\n", "row 2 has 3 cells, but the header has 2");
    row("an empty cell", "a,b\n1,\n", "row 2, column \"b\": \"\" is not a number");
    row("a word", "a,b\n1,two\n", "row 2, column \"b\": \"two\" is not a number");
    row("a decimal comma", "a,b\n1,\"2,5\"\n", "row 2, column \"b\": \"2,5\" is not a number");
    row("infinity", "a\ninf\n", "row 2, column \"a\": \"inf\" is not a number");
    row("too large", "a\n1e999\n", "row 2, column \"a\": \"1e999\" is not a number");
    row("equal rows", "a,b\n1,2\n3,4\n1.0,2\n", "row 4 is equal to row 2");
    row("zeros of both signs", "a\n0\n-0\n", "row 3 is equal to row 2");
}

void tst_DesignList::ABadFileIsReportedWithThePlace()
{
    QFETCH(QByteArray, content);
    EnterTemporaryDirectory();
    Put("r.csv", content);
    try {
        ReadDesignList("r.csv", Known);
        QFAIL("It was read.");
    } catch (const HostError& error) {
        QTEST(error.Reason(), "reason");
    }
}

void tst_DesignList::TheDecimalSignIsTheFullStopEverywhere()
{
    UseLocale("de_DE.UTF-8");
    EnterTemporaryDirectory();
    Put("r.csv", "a\n1.5\n");
    QCOMPARE(ReadDesignList("r.csv", Known).runs, DesignRuns({{1.5}}));
}

TARN_TEST_MAIN(tst_DesignList)
#include "tst_DesignList.moc"
