#include "HostTestMain.h"
#include "SolveRunner.h"
#include "SolvedProject.h"

class tst_SolveRunner : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void ModesAreWrittenAndTold();
    void AStaticAnalysisIsWrittenAndTold();
    void WithoutARunThereIsNoTable();
    void AFailureLeavesNoTable();
    void ParametersCanBeSet();
    void WrongArgumentsAreRefused_data();
    void WrongArgumentsAreRefused();
    void AFolderThatCannotBeMadeIsReported();
    void TheSamplesAreSolved_data();
    void TheSamplesAreSolved();
};

namespace {

struct Outcome
{
    SolveResultPointer result;
    QStringList told;
    QString refusal;
};

Outcome Run(const QByteArray& json, const SolveRunner::Options& options)
{
    const EmptyDesignStores design;
    const EmptyAnalysisStores analysis;
    Put("p.json", json);
    Outcome outcome;
    try {
        const Project project = Project::Load("p.json");
        SolveRunner runner(project, options, [&](const QString& line) { outcome.told << line; });
        outcome.result = runner.Run();
    } catch (const HostError& error) {
        outcome.refusal = error.Reason();
    }
    return outcome;
}

SolveRunner::Options To(const QString& directory)
{
    SolveRunner::Options options;
    options.directory = directory;
    return options;
}

double FirstMode()
{
    return ContentOf("out/modes.csv").split('\n').value(1).split(',').value(1).toDouble();
}

} // namespace

void tst_SolveRunner::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

void tst_SolveRunner::ModesAreWrittenAndTold()
{
    const Outcome outcome = Run(BeamProject, To("out"));
    QCOMPARE(outcome.result->problem, QString());
    QVERIFY(ContentOf("out/modes.csv").startsWith("mode,frequency_hz\n1,8"));
    QCOMPARE(ContentOf("out/modes.csv").count('\n'), 4);
    QCOMPARE(outcome.told.filter("mode ").size(), 3);
    QVERIFY(!QFile::exists("out/static.csv"));
}

void tst_SolveRunner::AStaticAnalysisIsWrittenAndTold()
{
    SolveRunner::Options options = To("out");
    options.isStatic = true;
    const Outcome outcome = Run(BeamProject, options);
    QCOMPARE(outcome.result->problem, QString());
    QVERIFY(ContentOf("out/static.csv").contains("\nreaction_z,N,-"));
    QVERIFY(outcome.told.last().startsWith("greatest displacement "));
    QVERIFY(!QFile::exists("out/modes.csv"));
}

void tst_SolveRunner::WithoutARunThereIsNoTable()
{
    SolveRunner::Options options = To("out");
    options.isWithoutRun = true;
    QCOMPARE(Run(BeamProject, options).result->outcome, SolveResult::Done);
    QVERIFY(QFile::exists("out/Model_Active.inp"));
    QVERIFY(!QFile::exists("out/modes.csv"));
}

void tst_SolveRunner::AFailureLeavesNoTable()
{
    QDir().mkpath("out");
    Put("out/modes.csv", "old");
    const Outcome outcome = Run(Beam(R"("l / 10")", "0.01"), To("out"));
    QCOMPARE(outcome.result->outcome, SolveResult::Failed);
    QVERIFY(!QFile::exists("out/modes.csv"));
}

void tst_SolveRunner::ParametersCanBeSet()
{
    Run(BeamProject, To("out"));
    const double before = FirstMode();
    SolveRunner::Options options = To("out");
    options.values = {{"l", 200.0}};
    Run(BeamProject, options);
    // The frequency falls with the square of the length.
    QVERIFY(std::abs(before / FirstMode() - 4.0) < 0.1);
}

void tst_SolveRunner::WrongArgumentsAreRefused_data()
{
    QTest::addColumn<QByteArray>("project");
    QTest::addColumn<QString>("parameter");
    QTest::addColumn<QString>("refusal");
    NewRow("unknown parameter", BeamProject, QString("width"),
           QString("--set width: the project has no parameter of that name"));
    NewRow("parameter with an expression", BeamProject, QString("double_l"),
           QString("--set double_l: the parameter has an expression; set one that it depends on"));
    NewRow("unknown material", Beam("Steel S355", "Unobtainium"), QString("l"), QString());
    NewRow("mesh size below 0", Beam("l / 10", "-l"), QString("l"),
           QString("The mesh: the size is -1, but has to be greater than 0."));
    NewRow("mesh size without value", Beam("l / 10", "k"), QString("l"),
           QString("The mesh: the size (\"k\") has no value: "));
    NewRow("force without value", Beam(R"(0, "l"])", R"(0, "1 / 0"])"), QString("l"),
           QString("The load \"pull\": the force (\"1 / 0\") has no value: "));
}

void tst_SolveRunner::WrongArgumentsAreRefused()
{
    QFETCH(QByteArray, project);
    QFETCH(QString, parameter);
    QFETCH(QString, refusal);
    SolveRunner::Options options = To("out");
    options.values = {{parameter, 1.0}};
    const Outcome outcome = Run(project, options);
    QVERIFY2(!outcome.refusal.isEmpty() && outcome.refusal.startsWith(refusal),
             qPrintable(outcome.refusal));
    QVERIFY(!QFile::exists("out"));
}

void tst_SolveRunner::AFolderThatCannotBeMadeIsReported()
{
    Put("file", "x");
    const Outcome outcome = Run(BeamProject, To("file/out"));
    QCOMPARE(outcome.result->outcome, SolveResult::FolderFailed);
    QCOMPARE(outcome.result->problem, QString("file/out: cannot create the folder"));
}

void tst_SolveRunner::TheSamplesAreSolved_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<double>("frequency");
    NewRow("flange", QString("flange.json"), 5139.0);
    NewRow("bracket", QString("bracket.json"), 143.6);
}

void tst_SolveRunner::TheSamplesAreSolved()
{
    QFETCH(QString, sample);
    QFETCH(double, frequency);
    const QByteArray project = ContentOf(SourcePath("host/samples/" + sample));
    QCOMPARE(Run(project, To("out")).result->problem, QString());
    QVERIFY2(std::abs(FirstMode() / frequency - 1.0) < 1e-3,
             qPrintable(QString::number(FirstMode())));
    SolveRunner::Options options = To("out");
    options.isStatic = true;
    QCOMPARE(Run(project, options).result->problem, QString());
}

TARN_HOST_TEST_MAIN(tst_SolveRunner)
#include "tst_SolveRunner.moc"
