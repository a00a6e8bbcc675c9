#include "Solved.h"
#include "TestCase.h"

class tst_SolverVerdict : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void ASoundDeckHasNoProblem();
    void ADeckThatTheSolverRefusesIsReported_data();
    void ADeckThatTheSolverRefusesIsReported();
    void AMissingDeckIsReported();
    void AnEndBeforeTheJobIsFinishedIsReported();
    void AFailedMesherIsReported_data();
    void AFailedMesherIsReported();
};

namespace {

// A tetrahedron of steel that stands on one face.
const QByteArray Deck = "*NODE\n1,0,0,0\n2,10,0,0\n3,0,10,0\n4,0,0,10\n5,5,0,0\n6,5,5,0\n7,0,5,0\n"
                        "8,0,0,5\n9,5,0,5\n10,0,5,5\n"
                        "*ELEMENT,TYPE=C3D10,ELSET=E1\n1,1,2,3,4,5,6,7,8,9,10\n"
                        "*MATERIAL,NAME=M1\n*ELASTIC\n210000,0.3\n*DENSITY\n7.85e-9\n"
                        "*SOLID SECTION,ELSET=E1,MATERIAL=M1\n"
                        "*BOUNDARY\n1,1,3\n2,1,3\n3,1,3\n5,1,3\n6,1,3\n7,1,3\n"
                        "*STEP\n*FREQUENCY\n2\n*NODE FILE\nU\n*END STEP\n";

} // namespace

void tst_SolverVerdict::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

void tst_SolverVerdict::ASoundDeckHasNoProblem()
{
    Put("job.inp", Deck);
    QCOMPARE(RunSolver().problem, QString());
    QCOMPARE(ReadModesTable(ContentOf("job.dat")).modes.size(), std::size_t(2));
}

void tst_SolverVerdict::ADeckThatTheSolverRefusesIsReported_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* name, const char* from, const QByteArray& to,
                        const char* problem) {
        NewRow(name, QByteArray(from), to, QString(problem));
    };
    const char* const refused = "ccx ended with exit status 201. *ERROR";
    row("material missing", "*MATERIAL,NAME=M1\n*ELASTIC\n210000,0.3\n*DENSITY\n7.85e-9\n", "",
        refused);
    row("material misnamed", "NAME=M1", "NAME=M2", refused);
    row("no section", "*SOLID SECTION,ELSET=E1,MATERIAL=M1\n", "", refused);
    row("unknown set", "SECTION,ELSET=E1", "SECTION,ELSET=E2", refused);
    row("unknown node", "8,9,10\n*MAT", "8,9,11\n*MAT", "ccx ");
    row("modulus 0", "210000", "0", refused);
    row("misspelt keyword", "*ELASTIC", "*ELASTYC", refused);
    row("no density", "*DENSITY\n7.85e-9\n", "", refused);
    row("density 0", "7.85e-9", "0", "ccx ");
    row("Poisson's ratio -1", "0.3", "-1", "ccx ");
    row("Poisson's ratio 0.5", "0.3", "0.5", refused);
    row("all nodes held", "7,1,3\n*STEP", "7,1,3\n4,1,3\n8,1,3\n9,1,3\n10,1,3\n*STEP", "ccx ");
    row("too many modes", "*FREQUENCY\n2", "*FREQUENCY\n1000",
        "The solver reports an error: *ERROR");
    row("long name", "NAME=M1", "NAME=" + QByteArray(100, 'M'), refused);
    row("inside out", "\n1,1,2,3,4,5,6,7,8,9,10\n", "\n1,1,3,2,4,7,6,5,8,10,9\n", refused);
}

void tst_SolverVerdict::ADeckThatTheSolverRefusesIsReported()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, problem);
    QByteArray deck = Deck;
    QVERIFY(deck.contains(from));
    Put("job.inp", deck.replace(from, to));
    const SolverRun run = RunSolver();
    QVERIFY2(run.problem.startsWith(problem), qPrintable(run.problem));
    QVERIFY(!run.problem.contains('\n') && run.problem.size() < 400);
}

void tst_SolverVerdict::AMissingDeckIsReported()
{
    // The solver ends with exit status 0.
    const QString problem = RunSolver().problem;
    QVERIFY2(problem.startsWith("The solver reports an error: *ERROR"), qPrintable(problem));
}

void tst_SolverVerdict::AnEndBeforeTheJobIsFinishedIsReported()
{
    QCOMPARE(SolverProblem(ToolEnd(), "Using up to 1 cpu(s)"),
             QString("The solver ended before its job was finished."));
    QCOMPARE(SolverProblem(ToolEnd(), "  Job finished\n"), QString());
}

void tst_SolverVerdict::AFailedMesherIsReported_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<QString>("problem");
    NewRow("sound", QString(), QByteArray("Info    : Done\n"), QString());
    NewRow("crashed", QString("gmsh crashed."), QByteArray(),
           QString("The part cannot be meshed: gmsh crashed."));
    NewRow(
        "with a reason", QString("gmsh ended with exit status 1."),
        QByteArray("Info    : a\nError   : Self-crossing face\nInfo\nInfo\n"),
        QString("The part cannot be meshed: gmsh ended with exit status 1. Error : Self-crossing "
                "face"));
    NewRow("an error without a status", QString(), QByteArray("Error   : Unknown\n"),
           QString("The part cannot be meshed: Error : Unknown"));
}

void tst_SolverVerdict::AFailedMesherIsReported()
{
    QFETCH(QString, end);
    QFETCH(QByteArray, log);
    ToolEnd toolEnd;
    toolEnd.problem = end;
    QTEST(MesherProblem(toolEnd, log), "problem");
}

TARN_TEST_MAIN(tst_SolverVerdict)
#include "tst_SolverVerdict.moc"
