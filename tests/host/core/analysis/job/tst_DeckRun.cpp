#include "DeckRun.h"
#include "HostTestMain.h"
#include "ResultFile.h"
#include "Script.h"
#include "SolvedProject.h"

#include <QProcess>

class tst_DeckRun : public With<TestCase, TemporaryDirectory>
{
    Q_OBJECT

private Q_SLOTS:
    void TheDeckBesideIsSolved();
    void AFailureLeavesNoResults_data();
    void AFailureLeavesNoResults();
    void WhatIsMissingIsNamed();
    void TheProgramSolves();
    void TheProgramRefusesInOneLine_data();
    void TheProgramRefusesInOneLine();
};

namespace {

// Its decks in the working directory.
void WriteDecks()
{
    SolvedProject solved;
    SolveInput input = solved.Input(BeamProject);
    input.isWithoutRun = true;
    QCOMPARE(solved.job.Run(input)->problem, QString());
    for (const char* const suffix : {".inp", ".bdf"})
        QVERIFY(QFile::rename("out/" + SolveFolder::InJob(suffix), SolveFolder::InJob(suffix)));
    QVERIFY(QDir("out").removeRecursively());
}

QString Problem(const QString& deck, const AnalysisTools& tools)
{
    try {
        DeckRun(deck, tools).Run();
        return "solved";
    } catch (const HostError& error) {
        return error.Reason();
    }
}

} // namespace

void tst_DeckRun::TheDeckBesideIsSolved()
{
    WriteDecks();
    QCOMPARE(Problem("Model_Active.bdf", {}), QString("solved"));
    const QStringList left = AllFiles();
    for (const char* const name : {"Model_Active.frd", "Model_Active.dat", "solver.log"})
        QVERIFY2(left.contains(name), name);
    QVERIFY(left.filter("tarn-ccx").isEmpty());
    // Three modes and four spare ones.
    QCOMPARE(ReadResultFile(ContentOf("Model_Active.frd")).fields.size(), std::size_t(7));
}

void tst_DeckRun::AFailureLeavesNoResults_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("problem");
    NewRow("crash", QByteArray("kill -9 $$\n"), QString("tool crashed."));
    NewRow("status", QByteArray("echo '*ERROR in x'\nexit 201\n"),
           QString("tool ended with exit status 201. *ERROR in x"));
    NewRow("not finished", QByteArray("echo hello\n"),
           QString("The solver ended before its job was finished."));
    NewRow("garbage", QByteArray("echo Job finished\necho x > Model_Active.frd\n"),
           QString("The solver's file of results is damaged or not complete."));
    NewRow("no results", QByteArray("echo Job finished\n"), QString("Model_Active.frd: "));
}

void tst_DeckRun::AFailureLeavesNoResults()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, problem);
    Put("Model_Active.inp", "*NODE\n");
    Put("Model_Active.frd", "old");
    AnalysisTools tools;
    tools.solver.path = PutScript("tool", script);
    const QString reason = Problem("Model_Active.bdf", tools);
    QVERIFY2(reason.startsWith(problem), qPrintable(reason));
    QCOMPARE(AllFiles(), QStringList({"Model_Active.inp", "solver.log", "tool"}));
}

void tst_DeckRun::WhatIsMissingIsNamed()
{
    AnalysisTools tools;
    tools.solver.program = "no-such-program";
    QVERIFY(Problem("none/Model_Active.bdf", {}).contains("none/Model_Active.inp is missing"));
    Put("Model_Active.inp", "*NODE\n");
    QVERIFY(
        Problem("Model_Active.bdf", tools).startsWith("The program no-such-program is missing"));
}

void tst_DeckRun::TheProgramSolves()
{
    WriteDecks();
    QProcess program;
    program.start(TARN_CCX_PROGRAM, {"Model_Active.bdf"});
    QVERIFY(program.waitForFinished(60000));
    QCOMPARE(program.readAllStandardError(), QByteArray());
    QCOMPARE(program.readAllStandardOutput(), QByteArray());
    QCOMPARE(program.exitCode(), 0);
    QVERIFY(QFile::exists("Model_Active.frd"));
}

void tst_DeckRun::TheProgramRefusesInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    NewRow("no deck", QStringList{"Model_Active.bdf"}, 1);
    NewRow("no argument", QStringList{}, 2);
    NewRow("two arguments", QStringList{"a", "b"}, 2);
    NewRow("unknown option", QStringList{"--fast"}, 2);
    NewRow("help", QStringList{"--help"}, 0);
    NewRow("version", QStringList{"--version"}, 0);
}

void tst_DeckRun::TheProgramRefusesInOneLine()
{
    QFETCH(QStringList, arguments);
    QProcess program;
    program.start(TARN_CCX_PROGRAM, arguments);
    QVERIFY(program.waitForFinished(60000));
    QTEST(program.exitCode(), "code");
    const QByteArray error = program.readAllStandardError();
    QCOMPARE(error.count('\n'), program.exitCode() == 0 ? 0 : 1);
    QCOMPARE(program.readAllStandardOutput().isEmpty(), program.exitCode() != 0);
}

TARN_HOST_TEST_MAIN(tst_DeckRun)
#include "tst_DeckRun.moc"
