#include "EmptyDesignStores.h"
#include "FullDisk.h"
#include "GlobalParaMeterMgr.h"
#include "NewFeature.h"
#include "NotAFile.h"
#include "ParameterEvaluator.h"
#include "ProjectFiles.h"
#include "TestCase.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <limits>

class tst_ProjectSaving : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ASavedProjectIsLoadedTheSame_data();
    void ASavedProjectIsLoadedTheSame();
    void TheParametersOfTheStoreAreSaved();
    void EveryChangeMakesAnotherContent();
    void EveryNameIsSaved_data();
    void EveryNameIsSaved();
    void ImportsAreFoundFromAnotherFolder();
    void AProjectThatCouldNotBeReloadedIsNotSaved_data();
    void AProjectThatCouldNotBeReloadedIsNotSaved();
    void AnUnwritableFileIsReported();
    void OnlyAFileIsReplaced_data();
    void OnlyAFileIsReplaced();
    void AFullDiskLeavesTheOldFile();
    void AKilledProgramLeavesAWholeFile();
};

// A project and the parameters that it stores, as text.
static QString Everything(const Project& project)
{
    project.FillParameterStore();
    ParameterEvaluator::Evaluate();
    QStringList lines = {project.Title(), QString::number(project.Density(), 'g', 17)};
    for (const auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters)
        lines << name << QString::number(record.m_nType) << record.m_strValue
              << QString::number(record.m_dValue, 'g', 17)
              << QString("%1 %2 %3").arg(record.m_dX).arg(record.m_dY).arg(record.m_dZ)
              << QString::fromStdString(record.m_strExpression) << record.m_strExpressPara
              << record.m_strDescription << project.Units().value(name);
    for (const SampleList& list : project.SampleLists()) {
        lines << list.parameter << QString::number(int(list.ticked))
              << QString::number(list.range.spacing);
        for (const double value : {list.range.min, list.range.max, list.range.step})
            lines << QString::number(value, 'g', 17);
        for (const double value : list.values)
            lines << QString::number(value, 'g', 17);
    }
    return lines.join('\n');
}

void tst_ProjectSaving::ASavedProjectIsLoadedTheSame_data()
{
    QTest::addColumn<QByteArray>("content");
    QFile sample(Project::SamplePath());
    QVERIFY(sample.open(QIODevice::ReadOnly));
    QTest::newRow("the sample") << sample.readAll();
    QTest::newRow("little") << QByteArray("{\"version\": 1}");
    QTest::newRow("everything") << QByteArray(R"({"version": 1, "title": "板", "density": 0.1,
        "parameters": [
          {"name": "z", "type": "Bool", "value": true},
          {"name": "长", "value": 0.30000000000000004, "expression": "2*宽",
           "expressionParameters": ["宽", "z"], "unit": "mm", "description": "a length"},
          {"name": "宽", "expression": "1 +"},
          {"name": "v", "type": "Vector", "value": [1, 2.5, -3]},
          {"name": "t", "type": "Tensor", "value": "1 0; 0 1"}],
        "samples": [
          {"parameter": "z", "values": [8, 4.123456789012, 8], "ticked": false},
          {"parameter": "长", "min": 0.1, "max": 10, "delta": 0.7, "spacing": "Ln"}],
        "features": [
          {"name": "a", "kind": "box", "fields": {"x": "长", "y": 0.1}},
          {"name": "b", "kind": "import", "file": "parts/b.step", "suppressed": true},
          {"name": "c", "kind": "fuse", "inputs": ["a", "b"]}],
        "conditions": [{"expression": "z > 0", "message": "No {z}."}]})");
    QTest::newRow("version 2") << QByteArray(R"({"version": 2, "material": "钢",
        "analysis": {"meshSize": "t / 2", "localMeshes": [{"size": 2, "faces": ["a.xmin"]}]},
        "study": {"design": "sobol", "runs": 8, "analyses": ["static"]}})");
}

void tst_ProjectSaving::ASavedProjectIsLoadedTheSame()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, content);
    EnterTemporaryDirectory();
    Project project = Project::Load(Write(content));
    const QString before = Everything(project);
    project.Save("saved.json");
    QCOMPARE(project.Path(), QString("saved.json"));
    Project again = Project::Load("saved.json");
    QCOMPARE(Everything(again), before);
    QVERIFY(again.Features() == Project::Load("p.json").Features());
    QVERIFY(again.Conditions() == Project::Load("p.json").Conditions());
    QCOMPARE(again.Material(), Project::Load("p.json").Material());
    QVERIFY(again.Analysis() == Project::Load("p.json").Analysis());
    QVERIFY(again.Study() == Project::Load("p.json").Study());

    QFile file("saved.json");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    again.Save("saved.json");
    QFile twice("saved.json");
    QVERIFY(twice.open(QIODevice::ReadOnly));
    QCOMPARE(twice.readAll(), bytes);
}

void tst_ProjectSaving::TheParametersOfTheStoreAreSaved()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    Project project = Project::Load(Project::SamplePath());
    project.FillParameterStore();
    GlobalParaMeterMgr::m_nameMapParameters["thickness"].m_varRawValue = 25.0;
    GlobalParaMeterMgr::m_nameMapParameters.erase("fillet_radius");
    project.TakeParameterStore();
    project.SetSampleLists({{"bolt_count", {}, {6}}});
    FeatureList features = project.Features();
    features.SetSuppressed(10, true);
    project.SetFeatures(features);
    project.Save("saved.json");

    const Project saved = Project::Load("saved.json");
    saved.FillParameterStore();
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("thickness").toDouble(), 25.0);
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.count("fillet_radius"), std::size_t(0));
    QCOMPARE(saved.SampleLists().size(), std::size_t(1));
    QCOMPARE(saved.SampleLists()[0].values, std::vector<double>({6}));
    QVERIFY(saved.Features() == features);
}

void tst_ProjectSaving::EveryChangeMakesAnotherContent()
{
    const EmptyDesignStores stores;
    const Project project = Project::Load(Project::SamplePath());
    QVERIFY(project.HasSameContent(Project::Load(Project::SamplePath())));
    Project other = project;
    ParameterEntry entry = {project.Parameters().front(), "mm"};
    other.SetParameters({entry});
    QCOMPARE(other.Units().value(entry.Name()), QString("mm"));
    QVERIFY(!project.HasSameContent(other));
    other = project;
    other.SetTitle("other");
    QVERIFY(!project.HasSameContent(other));
    other = project;
    other.SetMaterial("other");
    QVERIFY(!project.HasSameContent(other));
}

void tst_ProjectSaving::EveryNameIsSaved_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << "";
    QTest::newRow("blank") << " ";
    QTest::newRow("comma") << "b,c";
    QTest::newRow("only a comma") << ",";
    QTest::newRow("line end") << "b\r\nc";
    QTest::newRow("zero") << QString("b") + QChar(0);
    QTest::newRow("quotes and backslash") << R"("b"\)";
    QTest::newRow("Chinese") << QStringLiteral("长度，宽度");
    QTest::newRow("beyond the basic plane") << QStringLiteral("\U0001F529");
    QTest::newRow("half a pair") << QString(QChar(0xD83D)) + "b";
    QTest::newRow("no character") << QString(QChar(0xFFFE));
    QTest::newRow("long") << QString(100000, 'b');
}

void tst_ProjectSaving::EveryNameIsSaved()
{
    const EmptyDesignStores stores;
    QFETCH(QString, name);
    EnterTemporaryDirectory();
    Project project = Project::Load(Write(WithParameter(R"({"name": "a", "value": 1})")));
    project.FillParameterStore();
    ParametersDef record;
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = 2.0;
    record.m_strExpression = "2*a";
    record.m_strExpressPara = "a";
    GlobalParaMeterMgr::AddParameter(name, record);
    project.TakeParameterStore();
    project.SetSampleLists({{name, {}, {1, 2}}});
    project.Save("saved.json");

    GlobalParaMeterMgr::m_nameMapParameters.clear();
    const Project saved = Project::Load("saved.json");
    saved.FillParameterStore();
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), std::vector<QString>({"a", name}));
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.at(name).m_strExpressPara, QString("a"));
    QCOMPARE(saved.SampleLists().at(0).parameter, name);
}

void tst_ProjectSaving::ImportsAreFoundFromAnotherFolder()
{
    const EmptyDesignStores stores;
    const QString directory = EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("a/b"));
    const QByteArray content = R"({"version": 1, "features": [
        {"name": "a", "kind": "import", "file": "parts/a.step"},
        {"name": "b", "kind": "import", "file": "/parts/b.step"}]})";
    Project project = Project::Load(Write(content, "a/p.json"));
    QCOMPARE(project.Folder(), directory + "/a");
    project.FillParameterStore();
    project.Save("a/q.json");
    QCOMPARE(project.Features().At(0).file, QString("parts/a.step"));
    project.Save("a/b/q.json");
    QCOMPARE(project.Features().At(0).file, QString("../parts/a.step"));
    QCOMPARE(project.Features().At(1).file, QString("/parts/b.step"));
    project.Save("q.json");
    QCOMPARE(Project::Load("q.json").Features().At(0).file, QString("a/parts/a.step"));
}

void tst_ProjectSaving::AProjectThatCouldNotBeReloadedIsNotSaved_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("features");
    QTest::addColumn<QString>("reason");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("no number") << "b" << nan << 1
                               << "parameter 2, \"b\", has a \"value\" that is not a number";
    QTest::newRow("two features of a name")
        << "b" << 1.0 << 2 << "features: x: another feature has the same name.";
}

void tst_ProjectSaving::AProjectThatCouldNotBeReloadedIsNotSaved()
{
    const EmptyDesignStores stores;
    QFETCH(QString, name);
    QFETCH(double, value);
    QFETCH(int, features);
    QFETCH(QString, reason);
    EnterTemporaryDirectory();
    Project project = Project::Load(Write(WithParameter(R"({"name": "a", "value": 1})")));
    project.FillParameterStore();
    ParametersDef record;
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = value;
    GlobalParaMeterMgr::AddParameter(name, record);
    project.TakeParameterStore();
    FeatureList list;
    for (int i = 0; i < features; ++i) {
        list.Append(NewFeature("x", "box"));
    }
    project.SetFeatures(list);
    Write("kept", "old.json");
    try {
        project.Save("old.json");
        QFAIL("It was saved.");
    } catch (const ProjectError& error) {
        QCOMPARE(error.Reason(), "old.json: the project cannot be saved: " + reason);
    }
    QFile old("old.json");
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), QByteArray("kept"));
    QCOMPARE(project.Path(), QString("p.json"));
}

void tst_ProjectSaving::AnUnwritableFileIsReported()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    Project project = Project::Load(Write("{\"version\": 1}"));
    project.FillParameterStore();
    try {
        project.Save("none/p.json");
        QFAIL("It was saved.");
    } catch (const ProjectError& error) {
        QCOMPARE(error.Reason(),
                 QString("none/p.json: cannot be written: No such file or directory"));
    }
    QCOMPARE(project.Path(), QString("p.json"));
}

void tst_ProjectSaving::OnlyAFileIsReplaced_data()
{
    AddNotAFileRows();
}

void tst_ProjectSaving::OnlyAFileIsReplaced()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    QFETCH(QString, kind);
    QFETCH(QString, error);
    Project project = Project::Load(Write("{\"version\": 1}"));
    QVERIFY(PutNotAFile(kind, "q.json"));
    const QStringList before = AllFiles();
    try {
        project.Save("q.json");
        QFAIL("It was saved.");
    } catch (const ProjectError& refusal) {
        QCOMPARE(refusal.Reason(), "q.json: " + error);
    }
    QCOMPARE(AllFiles(), before);
    QCOMPARE(project.Path(), QString("p.json"));
}

void tst_ProjectSaving::AFullDiskLeavesTheOldFile()
{
    const EmptyDesignStores stores;
    FullDisk disk;
    Project project =
        Project::Load(Write(R"({"version": 1, "title": ")" + QByteArray(7000, 'x') + R"("})"));
    project.FillParameterStore();
    project.Save("p.json");
    const QByteArray before = ContentOf("p.json");
    disk.Fill(1);
    try {
        project.Save("p.json");
        QFAIL("It was saved.");
    } catch (const ProjectError& error) {
        QCOMPARE(error.Reason(), "p.json: cannot be written: " + disk.Reason());
    }
    QCOMPARE(ContentOf("p.json"), before);
    QCOMPARE(AllFiles(), QStringList("p.json"));
    disk.Empty();
    project.Save("p.json");
    QCOMPARE(ContentOf("p.json"), before);
}

void tst_ProjectSaving::AKilledProgramLeavesAWholeFile()
{
    constexpr int Kills = 200;
    EnterTemporaryDirectory();
    Project project = Project::Load(Project::SamplePath());
    project.Save("p.json");
    QRandomGenerator random(1);
    for (int kill = 0; kill < Kills; ++kill) {
        int started[2];
        QCOMPARE(pipe(started), 0);
        const pid_t child = fork();
        if (child == 0) {
            for (int i = 0;; ++i) {
                project.SetTitle(QString::number(i));
                project.Save("p.json");
                if (i == 0 && write(started[1], "x", 1) != 1)
                    _exit(1);
            }
        }
        char byte = 0;
        QCOMPARE(read(started[0], &byte, 1), ssize_t(1));
        usleep(random.bounded(2000));
        QCOMPARE(::kill(child, SIGKILL), 0);
        QCOMPARE(waitpid(child, nullptr, 0), child);
        close(started[0]);
        close(started[1]);
        const Project left = Project::Load("p.json");
        QVERIFY(left.Features() == project.Features());
    }
}

TARN_TEST_MAIN(tst_ProjectSaving)
#include "tst_ProjectSaving.moc"
