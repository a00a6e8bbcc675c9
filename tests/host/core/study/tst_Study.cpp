#include "EmptyDesignStores.h"
#include "HostTestMain.h"
#include "Project.h"
#include "Study.h"
#include "TestFiles.h"

#include <cmath>

// Which runs there are and what they store. Building and writing them is checked in
// tst_StudyRunner.

class tst_Study : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void RunsAreInTheOrderOfTheNames();
    void SamplesKeepAllTheirDigits();
    void OtherParametersKeepTheValuesOfTheProject();
    void ExpressionsAreEvaluated();
    void AnExpressionWithoutAValueIsToldByTheRun();
    void WithoutTickedSamplesThereIsNoRun();
    void EveryDesignHasItsRuns_data();
    void EveryDesignHasItsRuns();
    void AParameterOutsideTheDesignKeepsItsValue();
    void OneAtATimeStartsWithTheOwnValues();
    void ABadDesignIsRefused_data();
    void ABadDesignIsRefused();
    void ABadStudyIsRefused_data();
    void ABadStudyIsRefused();
};

// A project with the parameters a = 1, b = 2 and c = a + b, and these samples.
static Project WithSamples(const QByteArray& samples, const QByteArray& expression = "a + b")
{
    Put("p.json", R"({"version": 1, "parameters": [
        {"name": "b", "value": 2}, {"name": "a", "value": 1},
        {"name": "c", "expression": ")" +
                      expression + R"(", "expressionParameters": ["a", "b"]}], "samples": [)" +
                      samples + "]}");
    return Project::Load("p.json");
}

static std::vector<double> Stored()
{
    std::vector<double> values;
    for (const char* const name : {"a", "b", "c"})
        values.push_back(GlobalParaMeterMgr::GetParameterRawValue(name).toDouble());
    return values;
}

void tst_Study::RunsAreInTheOrderOfTheNames()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    const Project project = WithSamples(R"({"parameter": "b", "values": [10, 20, 30]},
                                           {"parameter": "a", "min": 3, "max": 4, "delta": 1})");
    const Study study(project);
    QCOMPARE(study.RunCount(), 6);
    QCOMPARE(study.Choose(2), QString());
    QCOMPARE(Stored(), std::vector<double>({3, 20, 23}));
    QCOMPARE(study.Choose(4), QString());
    QCOMPARE(Stored(), std::vector<double>({4, 10, 14}));
}

void tst_Study::SamplesKeepAllTheirDigits()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    const Project project =
        WithSamples(R"({"parameter": "a", "values": [200.0001, 200.0002, 200.0003]},
                       {"parameter": "b", "min": 1, "max": 2, "delta": 1, "spacing": "Ln"})");
    const Study study(project);
    QCOMPARE(study.RunCount(), 6);
    study.Choose(1);
    QCOMPARE(Stored()[0], 200.0001);
    study.Choose(4);
    QCOMPARE(Stored(), std::vector<double>({200.0002, std::log(2.0), 200.0002 + std::log(2.0)}));
    const ParametersDef& record = GlobalParaMeterMgr::m_nameMapParameters.at("a");
    QCOMPARE(record.m_dValue, 200.0002);
    QCOMPARE(record.m_strValue, QString("200.0002"));
}

void tst_Study::OtherParametersKeepTheValuesOfTheProject()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    const Project project = WithSamples(R"({"parameter": "a", "values": [5]},
                                           {"parameter": "b", "values": [7], "ticked": false})");
    const Study study(project);
    GlobalParaMeterMgr::m_nameMapParameters["b"].m_dValue = 99.0;
    QCOMPARE(study.RunCount(), 1);
    QCOMPARE(study.Choose(1), QString());
    QCOMPARE(Stored(), std::vector<double>({5, 2, 7}));
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), std::vector<QString>({"b", "a", "c"}));
}

void tst_Study::ExpressionsAreEvaluated()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    // A ticked parameter has its sample, also if it has an expression.
    const Project project = WithSamples(R"({"parameter": "c", "values": [50]})");
    QCOMPARE(Study(project).Choose(1), QString());
    QCOMPARE(Stored(), std::vector<double>({1, 2, 50}));
}

void tst_Study::AnExpressionWithoutAValueIsToldByTheRun()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    const Project project = WithSamples(R"({"parameter": "a", "values": [0, 1]})", "b / a");
    const Study study(project);
    QCOMPARE(study.Choose(1),
             QString("c = b / a: Position 1: an operation has no finite result, such as "
                     "1/0 or ln(0)"));
    QCOMPARE(study.Choose(2), QString());
    QCOMPARE(Stored(), std::vector<double>({1, 2, 2}));
}

void tst_Study::WithoutTickedSamplesThereIsNoRun()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    QCOMPARE(Study(WithSamples("")).RunCount(), 0);
    const Project project = WithSamples(R"({"parameter": "a", "values": [5], "ticked": false})");
    QCOMPARE(Study(project).RunCount(), 0);
}

// Three ticked parameters from 0 to 2, and d, which is not ticked.
static Project WithDesign(const QByteArray& study, const QByteArray& ticked = "abc")
{
    QByteArray samples;
    for (const char name : ticked)
        samples += QByteArray(samples.isEmpty() ? "" : ", ") + "{\"parameter\": \"" + name +
                   "\", \"values\": [2, 0, 1]}";
    Put("p.json", R"({"version": 2, "parameters": [
        {"name": "a", "value": 1}, {"name": "b", "value": 5}, {"name": "c", "value": 1},
        {"name": "d", "value": 7}], "samples": [)" +
                      samples + R"(], "study": {)" + study + "}}");
    return Project::Load("p.json");
}

void tst_Study::EveryDesignHasItsRuns_data()
{
    QTest::addColumn<QByteArray>("study");
    QTest::addColumn<int>("runs");
    QTest::addColumn<std::vector<double>>("second");
    using Values = std::vector<double>;
    NewRow("full factorial", QByteArray(), 27, Values{2, 2, 0});
    NewRow("full factorial by name", QByteArray(R"("design": "fullFactorial")"), 27,
           Values{2, 2, 0});
    NewRow("Latin hypercube of one interval",
           QByteArray(R"("design": "latinHypercube", "runs": 2, "seed": 1)"), 2, Values());
    NewRow("Sobol", QByteArray(R"("design": "sobol", "runs": 5)"), 5, Values{1.5, 0.5, 0.5});
    NewRow("Box-Behnken", QByteArray(R"("design": "boxBehnken")"), 13, Values{0, 2, 1});
    NewRow("central composite", QByteArray(R"("design": "centralComposite")"), 15, Values{0, 0, 2});
    NewRow("one at a time", QByteArray(R"("design": "oneAtATime")"), 8, Values{2, 5, 1});
    NewRow("list", QByteArray(R"("design": "list", "file": "runs.csv")"), 2, Values{4, 5, 6});
}

void tst_Study::EveryDesignHasItsRuns()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, study);
    QFETCH(std::vector<double>, second);
    EnterTemporaryDirectory();
    Put("runs.csv", "a,b,c\n1,2,3\n4,5,6\n");
    const Project project = WithDesign(study);
    const Study runs(project);
    QTEST(runs.RunCount(), "runs");
    QCOMPARE(runs.Names(), QStringList({"a", "b", "c"}));
    QCOMPARE(runs.Choose(2), QString());
    if (!second.empty())
        QCOMPARE(Stored(), second);
    QCOMPARE(runs.Values(2), Stored());
}

void tst_Study::AParameterOutsideTheDesignKeepsItsValue()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    Put("runs.csv", "\xef\xbb\xbf d ,a\r\n1,2\r\n");
    const Project project = WithDesign(R"("design": "list", "file": "runs.csv")", "a");
    const Study study(project);
    study.Choose(1);
    QCOMPARE(Stored(), std::vector<double>({2, 5, 1}));
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("d").toDouble(), 1.0);
}

void tst_Study::OneAtATimeStartsWithTheOwnValues()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    const Project project = WithDesign(R"("design": "oneAtATime")", "bc");
    const Study study(project);
    std::vector<std::vector<double>> runs;
    for (int run = 1; run <= study.RunCount(); ++run)
        runs.push_back(study.Values(run));
    const std::vector<std::vector<double>> expected = {{5, 1}, {2, 1}, {0, 1},
                                                       {1, 1}, {5, 2}, {5, 0}};
    QCOMPARE(runs, expected);
}

void tst_Study::ABadDesignIsRefused_data()
{
    QTest::addColumn<QByteArray>("study");
    QTest::addColumn<QByteArray>("ticked");
    QTest::addColumn<QString>("reason");
    NewRow("Box-Behnken of two", QByteArray(R"("design": "boxBehnken")"), QByteArray("ab"),
           QString("p.json: the Box-Behnken design needs at least 3 ticked parameters, not 2"));
    NewRow("a list without a ticked parameter",
           QByteArray(R"("design": "list", "file": "runs.csv")"), QByteArray("ad"),
           QString("runs.csv: row 1: the ticked parameter \"d\" has no column"));
    NewRow("no list", QByteArray(R"("design": "list", "file": "none.csv")"), QByteArray("a"),
           QString("none.csv: cannot be opened: No such file or directory"));
}

void tst_Study::ABadDesignIsRefused()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, study);
    QFETCH(QByteArray, ticked);
    EnterTemporaryDirectory();
    Put("runs.csv", "a,b,c\n1,2,3\n4,5,6\n");
    const Project project = WithDesign(study, ticked);
    try {
        const Study runs(project);
        QFAIL("It was taken.");
    } catch (const HostError& error) {
        QTEST(error.Reason(), "reason");
    }
}

void tst_Study::ABadStudyIsRefused_data()
{
    QTest::addColumn<QByteArray>("samples");
    QTest::addColumn<QString>("reason");
    QTest::newRow("Gauss")
        << QByteArray(R"({"parameter": "a", "min": 0, "max": 1, "delta": 1, "spacing": "Gauss"})")
        << "p.json: the sample list of \"a\" has Gauss spacing, which is not implemented";
    QTest::newRow("too many runs")
        << QByteArray(R"({"parameter": "a", "min": 0, "max": 1000, "delta": 1},
                         {"parameter": "b", "min": 0, "max": 1000, "delta": 1})")
        << "p.json: Too many runs";
}

void tst_Study::ABadStudyIsRefused()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, samples);
    QFETCH(QString, reason);
    EnterTemporaryDirectory();
    const Project project = WithSamples(samples);
    try {
        const Study study(project);
        QFAIL("It was taken.");
    } catch (const HostError& error) {
        QCOMPARE(error.Reason(), reason);
    }
}

TARN_HOST_TEST_MAIN(tst_Study)
#include "tst_Study.moc"
