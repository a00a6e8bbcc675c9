#include "FlangeStudy.h"
#include "StudyProgram.h"
#include "TestCase.h"

#include <QDir>
#include <QRegularExpression>

#include <csignal>
#include <vector>

// Programs that work on the folder of a study one after the other, at once, or until they are
// killed: the results have the same bytes.

class tst_StudyPrograms : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheNumberOfWorkersDoesNotShow_data();
    void TheNumberOfWorkersDoesNotShow();
    void TwoProgramsShareTheRuns();
    void AKilledProgramIsContinued_data();
    void AKilledProgramIsContinued();
    void MoreSamplesExtendTheStudy();
    void AStepFileThatIsNotWholeIsWrittenAgain();
    void WithoutStepFilesNoneIsWritten();
    void ResponsesHaveColumns();
    void ABadResponseIsRefused_data();
    void ABadResponseIsRefused();
    void TheFolderReportsItsRuns();
    void TheTableIsDerived();
};

static QByteArray SixRuns()
{
    return Flange("[60, 65, 70]");
}

void tst_StudyPrograms::TheNumberOfWorkersDoesNotShow_data()
{
    QTest::addColumn<QString>("jobs");
    NewRow("2", QString("2"));
    NewRow("more than runs", QString("9"));
}

void tst_StudyPrograms::TheNumberOfWorkersDoesNotShow()
{
    QFETCH(QString, jobs);
    EnterTemporaryDirectory();
    Put("p.json", SixRuns());
    QString output;
    QCOMPARE(Run(Study + Arguments{"--jobs", jobs}, &output), 0);
    QVERIFY2(output.endsWith("6 ok, 0 failed, 0 done before; see out/results.csv\n"),
             qPrintable(output));
    QCOMPARE(ContentOf("out/results.csv"), Undisturbed());
}

void tst_StudyPrograms::TwoProgramsShareTheRuns()
{
    EnterTemporaryDirectory();
    Put("p.json", SixRuns());
    const std::unique_ptr<QProcess> first = Started(Study + Arguments{"--jobs", "1"});
    const std::unique_ptr<QProcess> second = Started(Study + Arguments{"--jobs", "1"});
    QCOMPARE(CodeOf(*first), 0);
    QCOMPARE(CodeOf(*second), 0);
    const QString output = first->readAllStandardOutput() + second->readAllStandardOutput();
    QRegularExpressionMatchIterator lines =
        QRegularExpression("^run [0-9]+ of 6: ok", QRegularExpression::MultilineOption)
            .globalMatch(output);
    int done = 0;
    for (; lines.hasNext(); lines.next())
        ++done;
    QCOMPARE(done, 6); // None twice.
    QCOMPARE(ContentOf("out/results.csv"), Undisturbed());
}

void tst_StudyPrograms::AKilledProgramIsContinued_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<QByteArray>("after");
    for (const char* after : {"run 1 ", "run 3 ", "run 5 "}) {
        QTest::addRow("killed after %s", after) << SIGKILL << QByteArray(after);
        QTest::addRow("terminated after %s", after) << SIGTERM << QByteArray(after);
    }
    NewRow("interrupted", SIGINT, QByteArray("run 3 "));
}

void tst_StudyPrograms::AKilledProgramIsContinued()
{
    QFETCH(int, signal);
    QFETCH(QByteArray, after);
    EnterTemporaryDirectory();
    Put("p.json", SixRuns());
    const std::unique_ptr<QProcess> process = Started(Study + Arguments{"--jobs", "2"});
    QByteArray output;
    while (!output.contains(after) && process->waitForReadyRead())
        output += process->readAllStandardOutput();
    kill(pid_t(process->processId()), signal);
    const int code = CodeOf(*process);
    if (signal != SIGKILL)
        QVERIFY(code == 128 + signal || code == 0);
    QCOMPARE(Run(Study + Arguments{"--jobs", "2"}), 0);
    QCOMPARE(ContentOf("out/results.csv"), Undisturbed());
    for (int run = 1; run <= 6; ++run) {
        const QString name = QString("run_000%1.step").arg(run);
        QVERIFY(ContentOf("out/" + name).contains("END-ISO-10303-21;"));
        QCOMPARE(ContentOf("out/" + name), ContentOf("whole/" + name));
    }
}

void tst_StudyPrograms::MoreSamplesExtendTheStudy()
{
    EnterTemporaryDirectory();
    Put("p.json", Flange("[60, 70]"));
    QCOMPARE(Run(Study), 0);
    const QByteArray table = ContentOf("out/results.csv");
    const QByteArray step = ContentOf("out/run_0003.step");
    Put("p.json", Flange("[60, 65, 70]"));
    QString output;
    QCOMPARE(Run(Study, &output), 0);
    QVERIFY(output.endsWith("2 ok, 0 failed, 4 done before; see out/results.csv\n"));
    QVERIFY(ContentOf("out/results.csv").startsWith(table));
    QCOMPARE(ContentOf("out/run_0003.step"), step);
    QVERIFY(ContentOf("out/results.csv").contains("\n5,200,65,"));
}

void tst_StudyPrograms::AStepFileThatIsNotWholeIsWrittenAgain()
{
    EnterTemporaryDirectory();
    Put("p.json", Flange());
    QCOMPARE(Run(Study), 0);
    const QByteArray table = ContentOf("out/results.csv");
    Put("out/run_0001.step", ContentOf("out/run_0001.step").left(5000));
    Put("out/run_0002.step", "");
    QFile::remove("out/run_0003.step");
    QString output;
    QCOMPARE(Run(Study, &output), 0);
    QVERIFY(output.endsWith("3 ok, 0 failed, 1 done before; see out/results.csv\n"));
    QCOMPARE(ContentOf("out/results.csv"), table);
    QVERIFY(ContentOf("out/run_0002.step").contains("END-ISO-10303-21;"));
}

void tst_StudyPrograms::WithoutStepFilesNoneIsWritten()
{
    EnterTemporaryDirectory();
    Put("p.json", Flange());
    QCOMPARE(Run(Study + Arguments{"--step", "none"}), 0);
    QCOMPARE(QDir("out").entryList({"*.step"}), QStringList());
    QCOMPARE(ContentOf("out/results.csv"), Undisturbed());
    QString output;
    QCOMPARE(Run(Study + Arguments{"--step", "none"}, &output), 0);
    QVERIFY(output.endsWith("0 ok, 0 failed, 4 done before; see out/results.csv\n"));
    // They are asked for now.
    QCOMPARE(Run(Study, &output), 0);
    QVERIFY(output.endsWith("4 ok, 0 failed, 0 done before; see out/results.csv\n"));
}

void tst_StudyPrograms::ResponsesHaveColumns()
{
    EnterTemporaryDirectory();
    const QByteArray study = R"x("version": 2, "study": {"responses": [
        {"name": "half", "expression": "mass_kg / 2"},
        {"name": "none", "expression": "1 / (bore_diameter - 60)"},
        {"name": "sum", "expression": "half + thickness"}]})x";
    Put("p.json", Flange().replace("\"version\": 1", study));
    QCOMPARE(Run(Study), 0);
    const QList<QByteArray> lines = ContentOf("out/results.csv").split('\n');
    QVERIFY(lines[0].endsWith(",z_max,half,none,sum,status,error"));
    const QList<QByteArray> cells = lines[1].split(',');
    const int half = lines[0].split(',').indexOf("half");
    const int mass = lines[0].split(',').indexOf("mass_kg");
    QCOMPARE(cells[half].toDouble(), cells[mass].toDouble() / 2);
    QCOMPARE(cells[half + 1], QByteArray());
    QCOMPARE(cells[half + 2].toDouble(), cells[half].toDouble() + 16);
    QCOMPARE(cells[half + 3], QByteArray("ok"));
}

void tst_StudyPrograms::ABadResponseIsRefused_data()
{
    QTest::addColumn<QByteArray>("response");
    NewRow("unknown name", QByteArray(R"("name": "r", "expression": "1 / mass_gk")"));
    NewRow("syntax", QByteArray(R"("name": "r", "expression": "mass_kg +")"));
    NewRow("name of a column", QByteArray(R"("name": "mass_kg", "expression": "1")"));
    NewRow("name of a parameter", QByteArray(R"("name": "thickness", "expression": "1")"));
}

void tst_StudyPrograms::ABadResponseIsRefused()
{
    QFETCH(QByteArray, response);
    EnterTemporaryDirectory();
    Put("p.json",
        Flange().replace("\"version\": 1",
                         "\"version\": 2, \"study\": {\"responses\": [{" + response + "}]}"));
    QCOMPARE(Run(Study), 2);
    QVERIFY(!QDir("out").exists());
}

void tst_StudyPrograms::TheFolderReportsItsRuns()
{
    EnterTemporaryDirectory();
    Put("p.json", Flange("[60, 150]"));
    QCOMPARE(Run(Study + Arguments{"--runs", "2-3"}), 1);
    QString output;
    QCOMPARE(Run({"--status", "out"}, &output), 0);
    QCOMPARE(output, QString("1 done, 1 failed, 0 running, 2 open\n"));
    QCOMPARE(Run({"--status", "."}), 2);
}

void tst_StudyPrograms::TheTableIsDerived()
{
    EnterTemporaryDirectory();
    Put("p.json", Flange());
    QCOMPARE(Run(Study), 0);
    const QByteArray table = ContentOf("out/results.csv");
    Put("out/results.csv", "spoiled by a spreadsheet");
    QCOMPARE(Run({"--merge", "out"}), 0);
    QCOMPARE(ContentOf("out/results.csv"), table);
}

TARN_TEST_MAIN(tst_StudyPrograms)
#include "tst_StudyPrograms.moc"
