#include "EmptyAnalysisStores.h"
#include "EmptyDesignStores.h"
#include "FlangeStudy.h"
#include "HostTestMain.h"
#include "Project.h"
#include "ResultsTable.h"
#include "StudyRunner.h"
#include "TestFiles.h"

#include <QDir>
#include <QFile>

#include <cmath>

class tst_StudyRunner : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EveryRunIsBuiltAndWritten();
    void ARunHoldsTheMeasuresOfItsPart();
    void TheMassIsThatOfTheMaterial();
    void AnUnknownMaterialIsRefused();
    void ASecondCallSkipsWhatIsDone();
    void ARunWithoutItsStepFileIsDoneAgain();
    void AFailedRunDoesNotStopTheStudyAndIsTriedAgain();
    void SamplesKeepAllTheirDigits();
    void OnlyTheRunsAskedForAreDone();
    void RunsThatDoNotExistAreRefused();
    void ResultsOfAnotherStudyAreNotTouched_data();
    void ResultsOfAnotherStudyAreNotTouched();
    void AStudyWithoutRunsIsRefused();
    void SamplesThatCannotBeGeneratedEndTheStudy();
    void TooManyRunsAreRefused();
    void AnExpressionThatCannotBeSettledFailsTheRun();
    void AFeatureThatCannotBeBuiltFailsTheRun_data();
    void AFeatureThatCannotBeBuiltFailsTheRun();
    void AFolderThatCannotBeMadeIsReported();
};

/// A study in the working directory: p.json into the folder "out".
struct Outcome
{
    StudyRunner::Summary summary;
    QStringList told;
    QString error;
};

static Outcome RunStudy(const QByteArray& project, int first = 0, int last = 0)
{
    Put("p.json", project);
    Outcome outcome;
    StudyRunner::Options options;
    options.directory = "out";
    options.firstRun = first;
    options.lastRun = last;
    try {
        const Project loaded = Project::Load("p.json");
        StudyRunner runner(loaded, options, [&](const QString& line) { outcome.told << line; });
        outcome.summary = runner.Run();
    } catch (const HostError& error) {
        outcome.error = error.Reason();
    }
    return outcome;
}

static ResultsTable Results()
{
    ResultsTable table({"outer_diameter", "bore_diameter", "thickness", "bolt_count", "bolt_hole",
                        "bolt_circle", "hub_diameter", "hub_height", "fillet_radius"});
    table.Read("out/results.csv");
    return table;
}

static double Squared(double x)
{
    return x * x;
}

void tst_StudyRunner::EveryRunIsBuiltAndWritten()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    const Outcome outcome = RunStudy(Flange());
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.summary.ok, 4);
    QCOMPARE(outcome.summary.failed, 0);
    QCOMPARE(outcome.summary.skipped, 0);
    QCOMPARE(outcome.told.size(), 5);
    QVERIFY(outcome.told[0].startsWith("run 1 of 4: ok, volume "));
    QCOMPARE(outcome.told[4], QString("4 ok, 0 failed, 0 done before; see out/results.csv"));
    QCOMPARE(
        QDir("out").entryList(QDir::Files),
        QStringList({"journal_0001.csv", "results.csv", "run_0001.step", "run_0002.step",
                     "run_0003.step", "run_0004.step", "runs.csv", "study.json", "study.lock"}));
    QCOMPARE(Results().Runs().size(), std::size_t(4));
}

void tst_StudyRunner::ARunHoldsTheMeasuresOfItsPart()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    RunStudy(Flange(), 3, 3);
    // The last name turns fastest: bore 60, 60, 70, 70 and thickness 16, 20, 16, 20.
    const RunResult run = Results().Runs().at(3);
    QCOMPARE(run.values, std::vector<double>({200, 70, 16, 2, 18, 155, 110, 24, 0}));
    QVERIFY(run.ok);
    QCOMPARE(run.error, QString());
    const double volume =
        std::acos(-1.0) / 4.0 *
        ((Squared(200) - Squared(70) - 2 * Squared(18)) * 16 + (Squared(110) - Squared(70)) * 24);
    QVERIFY(std::abs(run.measures.volume - volume) <= 1e-9 * volume);
    QCOMPARE(run.mass, run.measures.volume * 7850.0 / 1e9);
    QVERIFY(std::abs(run.measures.boundingBox[5] - 40.0) < 1e-6);
}

static QByteArray FlangeOf(const QByteArray& material)
{
    return Flange().replace("\"density\"", "\"material\": \"" + material + "\", \"density\"");
}

void tst_StudyRunner::TheMassIsThatOfTheMaterial()
{
    const EmptyDesignStores stores;
    const EmptyAnalysisStores materials;
    EnterTemporaryDirectory();
    QCOMPARE(RunStudy(FlangeOf("Aluminium EN AW-6082-T6"), 1, 1).error, QString());
    const RunResult run = Results().Runs().at(1);
    QCOMPARE(run.mass, run.measures.volume * 2700.0 / 1e9);
}

void tst_StudyRunner::AnUnknownMaterialIsRefused()
{
    const EmptyDesignStores stores;
    const EmptyAnalysisStores materials;
    EnterTemporaryDirectory();
    QCOMPARE(RunStudy(FlangeOf("Unobtainium")).error,
             QString("p.json: The material \"Unobtainium\" is neither in the system's library nor "
                     "in UserMaterial.xml beside the project."));
    QVERIFY(!QFile::exists("out"));
}

void tst_StudyRunner::ASecondCallSkipsWhatIsDone()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    RunStudy(Flange(), 2, 3);
    const QByteArray step = ContentOf("out/run_0002.step");
    const Outcome outcome = RunStudy(Flange());
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.summary.ok, 2);
    QCOMPARE(outcome.summary.skipped, 2);
    QCOMPARE(outcome.told[1], QString("run 2 of 4: done before"));
    QCOMPARE(ContentOf("out/run_0002.step"), step);
    QCOMPARE(Results().Runs().size(), std::size_t(4));

    const QByteArray table = ContentOf("out/results.csv");
    QCOMPARE(RunStudy(Flange()).summary.skipped, 4);
    QCOMPARE(ContentOf("out/results.csv"), table);
}

void tst_StudyRunner::ARunWithoutItsStepFileIsDoneAgain()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    RunStudy(Flange(), 1, 2);
    QVERIFY(QFile::remove("out/run_0001.step"));
    const Outcome outcome = RunStudy(Flange(), 1, 2);
    QCOMPARE(outcome.summary.ok, 1);
    QCOMPARE(outcome.summary.skipped, 1);
    QVERIFY(QFile::exists("out/run_0001.step"));
}

void tst_StudyRunner::AFailedRunDoesNotStopTheStudyAndIsTriedAgain()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    const QByteArray project = Flange("[60, 150, 70]");
    Outcome outcome = RunStudy(project, 2, 5);
    QCOMPARE(outcome.summary.ok, 2);
    QCOMPARE(outcome.summary.failed, 2);
    const QString reason = "The bore (150) is not smaller than the hub (110).";
    QCOMPARE(outcome.told[1], "run 3 of 6: failed: " + reason);
    QVERIFY(outcome.told[3].startsWith("run 5 of 6: ok"));
    const RunResult failed = Results().Runs().at(3);
    QVERIFY(!failed.ok);
    QCOMPARE(failed.error, reason);
    QCOMPARE(failed.values[1], 150.0);
    QVERIFY(!QFile::exists("out/run_0003.step"));

    outcome = RunStudy(project, 2, 5);
    QCOMPARE(outcome.summary.skipped, 2);
    QCOMPARE(outcome.summary.failed, 2);
}

void tst_StudyRunner::SamplesKeepAllTheirDigits()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    QCOMPARE(RunStudy(Flange("[60.00001, 60.00002, 60.00003]")).summary.ok, 6);
    const std::map<int, RunResult> runs = Results().Runs();
    QCOMPARE(runs.at(1).values[1], 60.00001);
    QCOMPARE(runs.at(3).values[1], 60.00002);
    QCOMPARE(runs.at(5).values[1], 60.00003);
    QVERIFY(runs.at(1).measures.volume > runs.at(3).measures.volume);
    QVERIFY(runs.at(3).measures.volume > runs.at(5).measures.volume);
}

void tst_StudyRunner::OnlyTheRunsAskedForAreDone()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    const Outcome outcome = RunStudy(Flange(), 2, 3);
    QCOMPARE(outcome.summary.ok, 2);
    QVERIFY(outcome.told[0].startsWith("run 2 of 4: "));
    QCOMPARE(QDir("out").entryList({"*.step"}), QStringList({"run_0002.step", "run_0003.step"}));
}

void tst_StudyRunner::RunsThatDoNotExistAreRefused()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    const Outcome outcome = RunStudy(Flange(), 3, 5);
    QCOMPARE(outcome.error, QString("p.json: the study has the runs 1 to 4, so 3-5 cannot be run"));
    QVERIFY(!QFile::exists("out"));
}

void tst_StudyRunner::ResultsOfAnotherStudyAreNotTouched_data()
{
    QTest::addColumn<QByteArray>("project");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QByteArray& project, const char* difference) {
        QTest::newRow(name) << project
                            << QString("out: holds the results of another study: %1; choose "
                                       "another folder")
                                   .arg(difference);
    };
    row("another density", Flange("[60, 70]", "2700"), "its density differs");
    row("a material", FlangeOf("Steel S235"), "its material differs");
    row("other parameters",
        Flange().replace("\"parameters\": [", "\"parameters\": [{\"name\":\"x\",\"value\":1},"),
        "its parameters differ");
    row("another expression", Flange().replace("1.5 * thickness", "2 * thickness"),
        "its expressions differ");
    row("another part", Flange().replace("bolt_hole / 2", "bolt_hole / 3"), "its part differs");
    row("another condition", Flange().replace("<= 360", "<= 300"), "its conditions differ");
    row("another analysis",
        Flange().replace("\"version\": 1", "\"version\": 2, \"analysis\": {\"meshSize\": 5}"),
        "its analysis differs");
    row("a response", Flange().replace("\"version\": 1", R"("version": 2, "study": {"responses": [
            {"name": "r", "expression": "1"}]})"),
        "its analyses or responses differ");
}

void tst_StudyRunner::ResultsOfAnotherStudyAreNotTouched()
{
    const EmptyDesignStores stores;
    const EmptyAnalysisStores materials;
    QFETCH(QByteArray, project);
    EnterTemporaryDirectory();
    RunStudy(Flange(), 3, 3);
    const QByteArray table = ContentOf("out/results.csv");
    const QStringList files = QDir("out").entryList(QDir::Files);
    QTEST(RunStudy(project).error, "reason");
    QCOMPARE(ContentOf("out/results.csv"), table);
    QCOMPARE(QDir("out").entryList(QDir::Files), files);
}

void tst_StudyRunner::AStudyWithoutRunsIsRefused()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    const Outcome outcome =
        RunStudy(R"({"version": 1, "parameters": [{"name": "a", "value": 1}]})");
    QCOMPARE(outcome.error, QString("p.json: the study has no runs; it needs a parameter that is "
                                    "ticked and has samples"));
}

void tst_StudyRunner::SamplesThatCannotBeGeneratedEndTheStudy()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    const Outcome outcome =
        RunStudy(Flange().replace("\"delta\": 4", "\"delta\": 4, \"spacing\": \"Gauss\""));
    QCOMPARE(outcome.error,
             QString("p.json: the sample list of \"thickness\" has Gauss spacing, which "
                     "is not implemented"));
    QVERIFY(!QFile::exists("out"));
}

void tst_StudyRunner::TooManyRunsAreRefused()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    // 2001 thicknesses and 600 bores.
    const QByteArray bores = "[" + QByteArray("60, ").repeated(599) + "60]";
    const Outcome outcome = RunStudy(Flange(bores).replace("\"delta\": 4", "\"delta\": 0.002"));
    QCOMPARE(outcome.error, QString("p.json: Too many runs"));
    QVERIFY(!QFile::exists("out"));
}

void tst_StudyRunner::AnExpressionThatCannotBeSettledFailsTheRun()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    const Outcome outcome = RunStudy(Flange().replace("1.5 * thickness", "1.5 * height"), 1, 1);
    QCOMPARE(outcome.summary.failed, 1);
    QCOMPARE(outcome.told[0],
             QString("run 1 of 4: failed: hub_height: its expression uses \"height\", which is not "
                     "a parameter"));
}

void tst_StudyRunner::AFeatureThatCannotBeBuiltFailsTheRun_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* before, const char* after,
                        const char* reason) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after) << QString(reason);
    };
    row("a length below 0", R"("bolt_hole", "value": 18)", R"("bolt_hole", "value": -18)",
        R"(hole: Radius ("bolt_hole / 2") is -9, but has to be from 0.0001 to 1000000 mm.)");
    row("half a hole", R"("bolt_count", "value": 2)", R"("bolt_count", "value": 2.5)",
        R"(holes: Number ("bolt_count") is 2.5, but has to be a whole number from 1 to 10000.)");
    row("an unknown parameter", R"("height":"hub_height")", R"("height":"hub_hight")",
        R"(hub: Height ("hub_hight") has no value: Position 1: the name 'hub_hight' is unknown.)");
    row("a missing parameter", R"({ "name": "bolt_count", "value": 2 },)", "",
        R"(There are at most 360 bolt holes, not nan. ("bolt_count <= 360" has no value: )"
        R"(Position 1: the name 'bolt_count' is unknown.))");
    row("no edge", R"("y":"hub_diameter / 2")", R"("y":"hub_diameter")",
        "flange: no edge lies at the point (0, 110, 16).");
}

void tst_StudyRunner::AFeatureThatCannotBeBuiltFailsTheRun()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, reason);
    EnterTemporaryDirectory();
    QByteArray project =
        Flange().replace("\"fillet_radius\", \"value\": 0", "\"fillet_radius\", \"value\": 1");
    QVERIFY(project.contains(before));
    const Outcome outcome = RunStudy(project.replace(before, after), 1, 1);
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.summary.failed, 1);
    QCOMPARE(outcome.told[0], "run 1 of 4: failed: " + reason);
    QVERIFY(!QFile::exists("out/run_0001.step"));
}

void tst_StudyRunner::AFolderThatCannotBeMadeIsReported()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    Put("out", "a file");
    QCOMPARE(RunStudy(Flange()).error, QString("out: cannot create the folder"));
}

TARN_HOST_TEST_MAIN(tst_StudyRunner)
#include "tst_StudyRunner.moc"
