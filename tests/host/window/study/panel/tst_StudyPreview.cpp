#include "EmptyDesignStores.h"
#include "FlangeStudy.h"
#include "GlobalParaMeterMgr.h"
#include "StudyPreview.h"
#include "TestCase.h"

class tst_StudyPreview : public With<TestCase, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void TheRunsAreCounted_data();
    void TheRunsAreCounted();
    void AProblemIsReported_data();
    void AProblemIsReported();
    void TheParameterStoreStays();
    void DurationsHaveUnits_data();
    void DurationsHaveUnits();
};

static Project ProjectOf(const StudyDefinition& study)
{
    Put("p.json", Flange());
    Project project = Project::Load("p.json");
    project.SetStudy(study);
    return project;
}

static StudyDefinition StudyOf(StudyDefinition::Design design, int runs = 0)
{
    StudyDefinition study;
    study.design = design;
    study.runs = runs;
    return study;
}

void tst_StudyPreview::TheRunsAreCounted_data()
{
    QTest::addColumn<int>("design");
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("runs");
    NewRow("full factorial", int(StudyDefinition::FullFactorial), 0, 4);
    NewRow("Latin hypercube", int(StudyDefinition::LatinHypercube), 50, 50);
    NewRow("a million", int(StudyDefinition::Sobol), 1000000, 1000000);
    NewRow("central composite", int(StudyDefinition::CentralComposite), 0, 9);
    NewRow("one at a time", int(StudyDefinition::OneAtATime), 0, 3);
}

void tst_StudyPreview::TheRunsAreCounted()
{
    QFETCH(int, design);
    QFETCH(int, asked);
    QFETCH(int, runs);
    EnterTemporaryDirectory();
    const StudyPreview preview =
        PreviewOf(ProjectOf(StudyOf(StudyDefinition::Design(design), asked)));
    QCOMPARE(preview.problem, QString());
    QCOMPARE(preview.runs, runs);
}

void tst_StudyPreview::AProblemIsReported_data()
{
    QTest::addColumn<QString>("problem");
    QTest::addColumn<int>("design");
    QTest::addColumn<QString>("response");
    NewRow("too few parameters",
           QString("the Box-Behnken design needs at least 3 ticked parameters, not 2"),
           int(StudyDefinition::BoxBehnken), QString());
    NewRow(
        "a response without a value",
        QString(
            "the response \"r\" cannot be calculated: Position 1: the name 'nothing' is unknown"),
        int(StudyDefinition::FullFactorial), QString("nothing + 1"));
}

void tst_StudyPreview::AProblemIsReported()
{
    QFETCH(QString, problem);
    QFETCH(int, design);
    QFETCH(QString, response);
    EnterTemporaryDirectory();
    StudyDefinition study = StudyOf(StudyDefinition::Design(design));
    if (!response.isEmpty())
        study.responses = {{"r", response}};
    QCOMPARE(PreviewOf(ProjectOf(study)).problem, problem);
}

void tst_StudyPreview::TheParameterStoreStays()
{
    EnterTemporaryDirectory();
    ParametersDef record;
    record.m_strName = "own";
    GlobalParaMeterMgr::AddParameter("own", record);
    PreviewOf(ProjectOf({}));
    QCOMPARE(int(GlobalParaMeterMgr::m_nameMapParameters.size()), 1);
    QCOMPARE(int(GlobalParaMeterMgr::m_nameMapParameters.count("own")), 1);
}

void tst_StudyPreview::DurationsHaveUnits_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("text");
    NewRow("part of a second", 0.44, QString("0.4 s"));
    NewRow("seconds", 99.6, QString("100 s"));
    NewRow("minutes", 150.0, QString("3 min"));
    NewRow("hours", 2 * 3600.0 + 59.8 * 60.0, QString("3 h 0 min"));
    NewRow("days", 100.0 * 3600.0, QString("100 h 0 min"));
}

void tst_StudyPreview::DurationsHaveUnits()
{
    QFETCH(double, seconds);
    QFETCH(QString, text);
    QCOMPARE(DurationText(seconds), text);
}

TARN_TEST_MAIN(tst_StudyPreview)
#include "tst_StudyPreview.moc"
