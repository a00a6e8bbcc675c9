#include "FullDisk.h"
#include "HostTestMain.h"
#include "Script.h"
#include "SolvedProject.h"

#include <QSignalSpy>

#include <csignal>

class tst_SolveFaults : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void AProgramThatFailsIsReported_data();
    void AProgramThatFailsIsReported();
    void AMesherWithoutMemoryIsReported_data();
    void AMesherWithoutMemoryIsReported();
    void AMissingProgramNamesItsPackage();
    void ResultsOfAnEarlierRunAreNotTaken();
    void AFullDiskIsReported();
    void AFolderThatCannotBeWrittenIsReported();
    void CancelEndsAJobInEachStage_data();
    void CancelEndsAJobInEachStage();
    void TheProgramsEndWithTheJob();
};

namespace {

// Tells its process id, and does not end.
const QByteArray Endless = "echo $$ > id.new\nmv id.new id\nexec sleep 600\n";
const QByteArray Sleep = "exec sleep 600\n";
const QByteArray MeshFirst = "gmsh \"$@\"\n";
const QByteArray SolveFirst = "ccx \"$@\"\n";

} // namespace

void tst_SolveFaults::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

void tst_SolveFaults::AProgramThatFailsIsReported_data()
{
    QTest::addColumn<bool>("isMesher");
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("problem");
    const auto mesher = [](const char* name, const QByteArray& script, const char* problem) {
        NewRow(name, true, script, QString(problem));
    };
    mesher("mesher killed", "kill -9 $$\n", "The part cannot be meshed: tool crashed.");
    mesher("mesher endless", Sleep,
           "The part cannot be meshed: tool did not finish within 3 s, the time limit.");
    mesher("mesher with a status", MeshFirst + "exit 1\n",
           "The part cannot be meshed: tool ended with exit status 1.");
    mesher("mesher with an error", MeshFirst + "echo 'Error   : no memory'\n",
           "The part cannot be meshed: Error : no memory");
    mesher("mesher without a file", "exit 0\n", "The file of the mesh cannot be opened");
    mesher("mesher writes garbage", "head -c 100000 /dev/urandom > part.msh\n",
           "The file of the mesh is damaged or not complete.");
    mesher("mesh cut short", MeshFirst + "head -c 3000 part.msh > a\nmv a part.msh\n",
           "The file of the mesh is damaged or not complete.");
    const auto solver = [](const char* name, const QByteArray& script, const char* problem) {
        NewRow(name, false, script, QString(problem));
    };
    solver("solver killed", "kill -9 $$\n", "tool crashed.");
    solver("solver endless", Sleep, "tool did not finish within 3 s, the time limit.");
    solver("solver without a word", "exit 0\n", "The solver ended before its job was finished.");
    solver("solver writes garbage",
           "echo Job finished\nhead -c 100000 /dev/urandom > Model_Active.dat\n",
           "The solver found 0 of 7 modes.");
    solver("no file of results", SolveFirst + "rm *.frd\n", "Model_Active.frd: ");
    solver("results cut short", SolveFirst + "head -c 3000 *.frd > a\nmv a Model_Active.frd\n",
           "The solver's file of results is damaged or not complete.");
    solver("no table of modes", SolveFirst + "rm *.dat\n", "Model_Active.dat: ");
    solver("fewer modes", SolveFirst + "head -n 9 *.dat > a\nmv a Model_Active.dat\n",
           "The solver found 2 of 7 modes.");
    solver("results of another mesh",
           SolveFirst + "sed 's/^ -1         1/ -1    999999/' *.frd > a\nmv a Model_Active.frd\n",
           "The solver's results do not belong to this mesh.");
}

void tst_SolveFaults::AProgramThatFailsIsReported()
{
    QFETCH(bool, isMesher);
    QFETCH(QByteArray, script);
    QFETCH(QString, problem);
    SolvedProject solved;
    AnalysisTool& tool = isMesher ? solved.tools.mesher : solved.tools.solver;
    tool.path = PutScript("tool", script);
    if (script == Sleep)
        solved.tools.seconds = 3;
    const SolveResultPointer result = solved.Solve(BeamProject);
    QCOMPARE(result->outcome, SolveResult::Failed);
    QVERIFY2(result->problem.startsWith(problem), qPrintable(result->problem));
}

// The mesher itself, which needs 110 MB for its libraries.
void tst_SolveFaults::AMesherWithoutMemoryIsReported_data()
{
    QTest::addColumn<int>("megabytes");
    NewRow("for the mesh", 150);
    NewRow("for the program", 60);
}

void tst_SolveFaults::AMesherWithoutMemoryIsReported()
{
    QFETCH(int, megabytes);
    SolvedProject solved;
    solved.tools.megabytes = megabytes;
    const SolveResultPointer result = solved.Solve(Beam(R"("l / 10")", "0.55"));
    QCOMPARE(result->outcome, SolveResult::Failed);
    const QString problem = QString("The part cannot be meshed: gmsh ran out of memory; its limit "
                                    "is %1 MB. Choose a greater mesh size")
                                .arg(megabytes);
    QVERIFY2(result->problem.startsWith(problem), qPrintable(result->problem));
}

void tst_SolveFaults::AMissingProgramNamesItsPackage()
{
    SolvedProject solved;
    solved.tools.solver.program = "no-such-program";
    const SolveResultPointer result = solved.Solve(BeamProject);
    QCOMPARE(result->outcome, SolveResult::Failed);
    QCOMPARE(result->problem,
             QString("The program no-such-program is missing: install the Debian package "
                     "calculix-ccx, or set the path of the program."));
    // The next analysis is not affected.
    solved.tools = AnalysisTools();
    QCOMPARE(solved.Solve(BeamProject)->problem, QString());
}

void tst_SolveFaults::ResultsOfAnEarlierRunAreNotTaken()
{
    SolvedProject solved;
    QCOMPARE(solved.Solve(BeamProject)->problem, QString());
    solved.tools.solver.path = PutScript("tool", "echo Job finished\n");
    QVERIFY(solved.Solve(BeamProject)->problem.startsWith("Model_Active.dat: "));
}

void tst_SolveFaults::AFullDiskIsReported()
{
    FullDisk disk;
    SolvedProject solved;
    const SolveInput input = solved.Input(Beam(R"("l / 10")", "2"));
    disk.Fill(100);
    const SolveResultPointer result = solved.job.Run(input);
    QCOMPARE(result->outcome, SolveResult::FolderFailed);
    QVERIFY2(result->problem.endsWith(disk.Reason()), qPrintable(result->problem));
}

void tst_SolveFaults::AFolderThatCannotBeWrittenIsReported()
{
    SolvedProject solved;
    SolveInput input = solved.Input(BeamProject);
    input.folder = "/proc/1";
    const SolveResultPointer result = solved.job.Run(input);
    QCOMPARE(result->outcome, SolveResult::FolderFailed);
    QVERIFY2(result->problem.startsWith("/proc/1/"), qPrintable(result->problem));
}

void tst_SolveFaults::CancelEndsAJobInEachStage_data()
{
    QTest::addColumn<int>("stage");
    NewRow("building", int(SolveStage::Building));
    NewRow("meshing", int(SolveStage::Meshing));
    NewRow("modelling", int(SolveStage::Modelling));
    NewRow("solving", int(SolveStage::Solving));
    NewRow("reading", int(SolveStage::Reading));
}

void tst_SolveFaults::CancelEndsAJobInEachStage()
{
    QFETCH(int, stage);
    SolvedProject solved;
    QSignalSpy ends(&solved.job, &SolveJob::Finished);
    const auto watch =
        connect(&solved.job, &SolveJob::StageChanged, &solved.job, [&](SolveStage reached) {
            // When the stage has begun.
            if (int(reached) == stage)
                QMetaObject::invokeMethod(
                    &solved.job, [&] { solved.job.Cancel(); }, Qt::QueuedConnection);
        });
    const SolveResultPointer result = solved.Solve(BeamProject);
    QCOMPARE(result->outcome, SolveResult::Cancelled);
    QCOMPARE(result->problem, QString("The analysis was cancelled."));
    QCOMPARE(ends.count(), 1);
    disconnect(watch);
    solved.job.Cancel();
    QCOMPARE(solved.Solve(BeamProject)->outcome, SolveResult::Done);
}

void tst_SolveFaults::TheProgramsEndWithTheJob()
{
    {
        SolvedProject solved;
        solved.tools.solver.path = PutScript("tool", Endless);
        solved.job.Start(solved.Input(BeamProject));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists("out/id"), 30000);
    }
    QCOMPARE(::kill(pid_t(ContentOf("out/id").toInt()), 0), -1);
}

TARN_HOST_TEST_MAIN(tst_SolveFaults)
#include "tst_SolveFaults.moc"
