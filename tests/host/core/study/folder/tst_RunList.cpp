#include "HostError.h"
#include "RunList.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <cmath>

class tst_RunList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void RunsAreWrittenWithAllTheirDigits();
    void RunsKeepTheirNumbers();
    void EqualRunsAreOne();
    void ABadFileIsReported_data();
    void ABadFileIsReported();
};

void tst_RunList::RunsAreWrittenWithAllTheirDigits()
{
    EnterTemporaryDirectory();
    RunList written({"a", "=b, c"});
    written.Add({0.1, -2});
    written.Add({1e-300, std::nan("")});
    written.Write("r.csv");
    QCOMPARE(ContentOf("r.csv"), QByteArray("run,a,\"'=b, c\"\n1,0.10000000000000001,-2\n"
                                            "2,1e-300,nan\n"));
    RunList read({"a", "=b, c"});
    read.Read("r.csv");
    QCOMPARE(read.Count(), 2);
    QCOMPARE(read.Values(1), std::vector<double>({0.1, -2}));
    QVERIFY(std::isnan(read.Values(2)[1]));
}

void tst_RunList::RunsKeepTheirNumbers()
{
    EnterTemporaryDirectory();
    RunList runs({"a"});
    runs.Add({1.0});
    runs.Add({2.0});
    runs.Write("r.csv");
    RunList more({"a"});
    for (const double value : {1.0, 1.5, 2.0, 2.5})
        more.Add({value});
    RunList read({"a"});
    read.Read("r.csv");
    read.AddAll(more);
    QCOMPARE(read.Count(), 4);
    QCOMPARE(read.Values(2), std::vector<double>({2.0}));
    QCOMPARE(read.Values(3), std::vector<double>({1.5}));
    QCOMPARE(read.Values(4), std::vector<double>({2.5}));
}

void tst_RunList::EqualRunsAreOne()
{
    RunList runs({"a", "b"});
    runs.Add({0.0, 200.0001});
    runs.Add({-0.0, 200.0001});
    runs.Add({0.0, 200.0002});
    QCOMPARE(runs.Count(), 2);
}

void tst_RunList::ABadFileIsReported_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    NewRow("another header", QByteArray("run,b\n"),
           QString("r.csv: is not a list of the runs of this study"));
    NewRow("a missing number", QByteArray("run,a\n1,5\n3,6\n"), QString("r.csv: row 3 is damaged"));
    NewRow("a run twice", QByteArray("run,a\n1,5\n2,5\n"), QString("r.csv: row 3 is damaged"));
    NewRow("cut off", QByteArray("run,a\n1,5\n2,6"), QString("r.csv: row 3 is damaged"));
    NewRow("one cell", QByteArray("run,a\n1\n"), QString("r.csv: row 2 is damaged"));
}

void tst_RunList::ABadFileIsReported()
{
    QFETCH(QByteArray, content);
    EnterTemporaryDirectory();
    Put("r.csv", content);
    RunList runs({"a"});
    try {
        runs.Read("r.csv");
        QFAIL("It was read.");
    } catch (const HostError& error) {
        QTEST(error.Reason(), "reason");
    }
}

TARN_TEST_MAIN(tst_RunList)
#include "tst_RunList.moc"
