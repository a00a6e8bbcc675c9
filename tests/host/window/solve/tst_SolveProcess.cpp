#include "HostTestMain.h"
#include "PathWithoutSolver.h"
#include "Solving.h"

class tst_SolveProcess
    : public With<TestCase, TemporaryDirectory, EmptyDesignStores, EmptyAnalysisStores>
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void AProjectIsSolved();
    void ChangesThatAreNotSavedCount();
    void AFailureIsReported();
    void AMissingProgramIsNamed();
    void CancelEndsAllPrograms();
    void TheProgramsEndWithTheObject();
    void ItSolvesAgainAfterACancel();
    void AProjectThatCannotBeWrittenIsRefused();
};

namespace {

/// Solves, and remembers what was told.
struct Solver
{
    Solver()
    {
        QObject::connect(&process, &SolveProcess::Told, &process,
                         [this](const SolveMessage& message) { told.push_back(message); });
        QObject::connect(&process, &SolveProcess::Finished, &process,
                         [this](SolveProcess::Outcome ended, const QString& why) {
                             ++ends;
                             outcome = ended;
                             problem = why;
                         });
    }

    void Run(const Project& project, SolveKind kind = SolveKind::Vibration)
    {
        const int before = ends;
        process.Start(project, kind, "target");
        QTRY_COMPARE_WITH_TIMEOUT(ends, before + 1, 60000);
        QVERIFY(!process.IsBusy());
    }

    SolveProcess process;
    std::vector<SolveMessage> told;
    int ends = 0;
    SolveProcess::Outcome outcome = SolveProcess::Failed;
    QString problem;
};

} // namespace

void tst_SolveProcess::init()
{
    TestCase::init();
    QDir().mkpath("target");
}

void tst_SolveProcess::AProjectIsSolved()
{
    Solver solver;
    solver.Run(BeamFrom());
    QCOMPARE(solver.problem, QString());
    QCOMPARE(solver.outcome, SolveProcess::Done);
    QVERIFY(solver.process.Report() != nullptr);
    QCOMPARE(solver.process.Report()->modes.size(), std::size_t(3));
    QVERIFY(solver.told.size() > 5);
    QVERIFY(QFile::exists("target/modes.csv"));
    solver.Run(BeamFrom(), SolveKind::Static);
    QVERIFY(solver.process.Report()->kind == SolveKind::Static);
}

void tst_SolveProcess::ChangesThatAreNotSavedCount()
{
    Solver solver;
    Project project = BeamFrom();
    project.SetMaterial("mine");
    auto* const mine = new KVMaterialInfo;
    mine->m_strName = "mine";
    mine->m_nType = MATERIAL_USER;
    mine->m_strElasticModulus = "2.1e11";
    mine->m_strPoisson = "0.3";
    mine->m_strDensity = "7850";
    KVMaterialData::GetInstance()->AddMaterialInfo(mine);
    solver.Run(project, SolveKind::Mesh);
    QCOMPARE(solver.problem, QString());
}

void tst_SolveProcess::AFailureIsReported()
{
    Solver solver;
    solver.Run(BeamFrom(Beam("beam.xmin", "hole.side")));
    QCOMPARE(solver.outcome, SolveProcess::Failed);
    QVERIFY2(solver.problem.startsWith("The boundary condition \"clamp\": "),
             qPrintable(solver.problem));
    QVERIFY(solver.process.Report() == nullptr);
}

void tst_SolveProcess::AMissingProgramIsNamed()
{
    const PathWithoutSolver path;
    Solver solver;
    solver.Run(BeamFrom());
    QCOMPARE(solver.outcome, SolveProcess::Failed);
    QVERIFY2(solver.problem.contains("install the Debian package calculix-ccx"),
             qPrintable(solver.problem));
    // There is a mesh nevertheless.
    QVERIFY(solver.process.Report()->kind == SolveKind::Mesh);
}

void tst_SolveProcess::CancelEndsAllPrograms()
{
    const EndlessSolver endless;
    Solver solver;
    solver.process.Start(BeamFrom(), SolveKind::Vibration, "target");
    QTRY_VERIFY_WITH_TIMEOUT(endless.HasStarted(), 60000);
    QVERIFY(endless.IsRunning());
    solver.process.Cancel();
    QCOMPARE(solver.ends, 1);
    QCOMPARE(solver.outcome, SolveProcess::Cancelled);
    QCOMPARE(solver.problem, QString("The analysis was cancelled."));
    QTRY_VERIFY(!endless.IsRunning());
    QVERIFY(QDir("target").isEmpty());
    solver.process.Cancel();
    QCOMPARE(solver.ends, 1);
}

void tst_SolveProcess::TheProgramsEndWithTheObject()
{
    const EndlessSolver endless;
    {
        Solver solver;
        solver.process.Start(BeamFrom(), SolveKind::Vibration, "target");
        QTRY_VERIFY_WITH_TIMEOUT(endless.HasStarted(), 60000);
    }
    QTRY_VERIFY(!endless.IsRunning());
}

void tst_SolveProcess::ItSolvesAgainAfterACancel()
{
    Solver solver;
    solver.process.Start(BeamFrom(), SolveKind::Vibration, "target");
    solver.process.Cancel();
    QCOMPARE(solver.outcome, SolveProcess::Cancelled);
    solver.Run(BeamFrom(), SolveKind::Mesh);
    QCOMPARE(solver.outcome, SolveProcess::Done);
}

void tst_SolveProcess::AProjectThatCannotBeWrittenIsRefused()
{
    SolveProcess process;
    Project project = BeamFrom();
    project.SetDensity(-1.0);
    QVERIFY_EXCEPTION_THROWN(process.Start(project, SolveKind::Mesh, "target"), HostError);
    QVERIFY(!process.IsBusy());
}

TARN_HOST_TEST_MAIN(tst_SolveProcess)
#include "tst_SolveProcess.moc"
