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
