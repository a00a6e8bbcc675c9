#include "EmptyDesignStores.h"
#include "FeatureBuilder.h"
#include "FeatureKinds.h"
#include "FullDisk.h"
#include "GlobalParaMeterMgr.h"
#include "ModalDriver.h"
#include "ParameterEvaluator.h"
#include "Project.h"
#include "TestCase.h"
#include "TestFiles.h"
#include "sParaArrayData.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

#include <limits>

class tst_Project : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheSampleProjectIsAWholeFlange();
    void TheSampleInTheProgramIsTheFileOfTheSources();
    void EveryFieldOfAParameterIsRead();
    void EveryTypeOfParameterIsRead_data();
    void EveryTypeOfParameterIsRead();
    void LittleIsNeeded();
    void TheStoresAreReplaced();
    void ParametersKeepTheOrderOfTheFile();
    void RangesGoThroughTheSamplingDialog_data();
    void RangesGoThroughTheSamplingDialog();
    void SingleValuesAreTakenAsTheyAre();
    void ARangeThatTheDialogRefusesShowsItsNotice();
    void BadFilesAreToldInOneLine_data();
    void BadFilesAreToldInOneLine();
    void AMissingFileIsTold();
    void AFolderIsTold();
    void APipeIsNotWaitedFor();
    void AHugeFileIsNotRead();
    void AnEndlessFileIsNotRead();
    void FeaturesAndConditionsAreRead();
    void ASavedProjectIsLoadedTheSame_data();
    void ASavedProjectIsLoadedTheSame();
    void TheStoresAreSavedAsTheyStand();
    void ImportsAreFoundFromAnotherFolder();
    void WhatCouldNotBeLoadedIsNotSaved_data();
    void WhatCouldNotBeLoadedIsNotSaved();
    void AFileThatCannotBeWrittenIsTold();
    void AFullDiskLeavesTheOldFile();
    void APartWithoutFeaturesIsTold();
};

static QString Write(const QByteArray& content, const QString& path = "p.json")
{
    Put(path, content);
    return path;
}

// A project with this one parameter.
static QByteArray WithParameter(const QByteArray& parameter)
{
    return "{\"version\": 1, \"parameters\": [" + parameter + "]}";
}

// A project with the parameter "a" and these samples.
static QByteArray WithSamples(const QByteArray& samples)
{
    return "{\"version\": 1, \"parameters\": [{\"name\": \"a\", \"value\": 1}], \"samples\": [" +
           samples + "]}";
}

static QString Reason(const QString& path)
{
    try {
        Project::Load(path);
    } catch (const ProjectError& error) {
        return error.Reason();
    }
    return "The file was taken.";
}

void tst_Project::TheSampleProjectIsAWholeFlange()
{
    const Project project = Project::Load(Project::SamplePath());
    QCOMPARE(project.Path(), Project::SamplePath());
    QCOMPARE(project.Title(), QString("Bolted flange"));
    QCOMPARE(project.Density(), 7850.0);
    QVERIFY(project.Parameters().size() >= 8);
    QVERIFY(project.SampleLists().size() >= 3);
    int expressions = 0;
    for (const ParametersDef& record : project.Parameters()) {
        QVERIFY(!record.m_strDescription.isEmpty());
        expressions += record.m_strExpression.empty() ? 0 : 1;
    }
    QVERIFY(expressions >= 2);
}

void tst_Project::TheSampleInTheProgramIsTheFileOfTheSources()
{
    QFile built(Project::SamplePath());
    QFile source(SourcePath("host/samples/flange.json"));
    QVERIFY(built.open(QIODevice::ReadOnly));
    QVERIFY(source.open(QIODevice::ReadOnly));
    QCOMPARE(built.readAll(), source.readAll());
}

void tst_Project::EveryFieldOfAParameterIsRead()
{
    EnterTemporaryDirectory();
    const Project project = Project::Load(Write(WithParameter(
        R"({"name": "长度", "type": "Scalar", "value": 0.1234567890123, "expression": "2*宽",
            "expressionParameters": ["宽", "b"], "description": "a length"})")));
    QCOMPARE(project.Parameters().size(), std::size_t(1));
    const ParametersDef& record = project.Parameters().front();
    QCOMPARE(record.m_strName, QString("长度"));
    QCOMPARE(record.m_nType, int(ParametersDef::ScalarType));
    QCOMPARE(record.m_dValue, 0.1234567890123);
    QCOMPARE(record.m_strValue, QString("0.1234567890123"));
    QCOMPARE(QString::fromUtf8(record.m_strExpression.c_str()), QString("2*宽"));
    QCOMPARE(record.m_strExpressPara, QString("宽,b"));
    QCOMPARE(record.m_strDescription, QString("a length"));
    QVERIFY(!record.m_varRawValue.isValid());
}

void tst_Project::EveryTypeOfParameterIsRead_data()
{
    QTest::addColumn<QByteArray>("entries");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("z");
    const auto row = [](const char* name, const char* entries, int type, const char* text,
                        double value, double z) {
        QTest::newRow(name) << QByteArray(entries) << type << text << value << z;
    };
    row("Bool, true", R"("type": "Bool", "value": true)", 0, "1", 1.0, 0.0);
    row("Bool, false", R"("type": "Bool", "value": false)", 0, "0", 0.0, 0.0);
    row("Scalar", R"("type": "Scalar", "value": -1.5e-7)", 1, "-1.5e-07", -1.5e-7, 0.0);
    row("no type is Scalar", R"("value": 3)", 1, "3", 3.0, 0.0);
    row("Vector", R"("type": "Vector", "value": [1, 2.5, -3])", 2, "1,2.5,-3", 0.0, -3.0);
    row("Tensor", R"("type": "Tensor", "value": "1 0; 0 1")", 3, "1 0; 0 1", 0.0, 0.0);
}

void tst_Project::EveryTypeOfParameterIsRead()
{
    QFETCH(QByteArray, entries);
    EnterTemporaryDirectory();
    const Project project =
        Project::Load(Write(WithParameter("{\"name\": \"a\", " + entries + "}")));
    const ParametersDef& record = project.Parameters().front();
    QTEST(record.m_nType, "type");
    QTEST(record.m_strValue, "text");
    QTEST(record.m_dValue, "value");
    QTEST(record.m_dZ, "z");
}

void tst_Project::LittleIsNeeded()
{
    EnterTemporaryDirectory();
    const Project project = Project::Load(Write("{\"version\": 1}", "small.part.json"));
    QCOMPARE(project.Title(), QString("small.part"));
    QCOMPARE(project.Density(), Project::SteelDensity);
    QVERIFY(project.Parameters().empty());
    QVERIFY(project.SampleLists().empty());
}

void tst_Project::TheStoresAreReplaced()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    GlobalParaMeterMgr::AddParameter("old", {});
    g_mapParaArrays["old"].bChecked = 1;
    Project::Load(Write(WithSamples(""))).FillStores();
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), std::vector<QString>({"a"}));
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("a").toDouble(), 1.0);
    QVERIFY(g_mapParaArrays.empty());
}

void tst_Project::ParametersKeepTheOrderOfTheFile()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    Project::Load(Write(WithParameter(R"({"name": "c", "value": 1}, {"name": "a", "value": 1},
                                         {"name": "b", "value": 1})")))
        .FillStores();
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), std::vector<QString>({"c", "a", "b"}));
}

void tst_Project::RangesGoThroughTheSamplingDialog_data()
{
    QTest::addColumn<QByteArray>("entries");
    QTest::addColumn<QVector<double>>("values");
    QTest::addColumn<int>("spacing");
    QTest::addColumn<int>("ticked");
    const auto row = [](const char* name, const char* entries, const QVector<double>& values,
                        int spacing, int ticked) {
        QTest::newRow(name) << QByteArray(entries) << values << spacing << ticked;
    };
    row("Linear", R"("min": 16, "max": 24, "delta": 4, "spacing": "Linear")", {16, 20, 24}, 0, 1);
    row("no spacing is Linear", R"("min": -1, "max": 0, "delta": 0.5)", {-1, -0.5, 0}, 0, 1);
    row("Log10", R"("min": 1, "max": 100, "delta": 99, "spacing": "Log10")", {0, 2}, 1, 1);
    row("Ln", R"("min": 1, "max": 2, "delta": 1, "spacing": "Ln")", {0, 0.693147}, 2, 1);
    row("ticked", R"("min": 0, "max": 1, "delta": 1, "ticked": true)", {0, 1}, 0, 1);
    row("not ticked", R"("min": 0, "max": 1, "delta": 1, "ticked": false)", {0, 1}, 0, 0);
    row("end not reached", R"("min": 0, "max": 1, "delta": 0.3)", {0, 0.3, 0.6, 0.9}, 0, 1);
}

void tst_Project::RangesGoThroughTheSamplingDialog()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, entries);
    QFETCH(QVector<double>, values);
    EnterTemporaryDirectory();
    ModalDriver user;
    Project::Load(Write(WithSamples("{\"parameter\": \"a\", " + entries + "}"))).FillStores();
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    const sParaArrayData& record = g_mapParaArrays.at("a");
    QCOMPARE(QVector<double>(record.vecValues.begin(), record.vecValues.end()), values);
    QCOMPARE(record.strName, QString("a"));
    QTEST(record.nSampleType, "spacing");
    QTEST(record.bChecked, "ticked");
    QVERIFY(record.dMin < record.dMax);
}

void tst_Project::SingleValuesAreTakenAsTheyAre()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    Project::Load(Write(WithSamples(R"({"parameter": "a", "values": [8, 4.123456789, 8]})")))
        .FillStores();
    const sParaArrayData& record = g_mapParaArrays.at("a");
    QCOMPARE(record.vecValues, std::vector<double>({8, 4.123456789, 8}));
    QCOMPARE(record.strName, QString("a"));
    QCOMPARE(record.bChecked, 1);
}

void tst_Project::ARangeThatTheDialogRefusesShowsItsNotice()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    ModalDriver user;
    Project::Load(Write(WithSamples(
                      R"({"parameter": "a", "min": 0, "max": 1, "delta": 1, "spacing": "Gauss"})")))
        .FillStores();
    QCOMPARE(user.Boxes(), QVector<ShownBox>({ShownBox::Notice("Error", "Not implement yet")}));
    QVERIFY(g_mapParaArrays.at("a").vecValues.empty());
}

void tst_Project::BadFilesAreToldInOneLine_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QByteArray& content, const char* reason) {
        QTest::newRow(name) << content << QString("p.json: %1").arg(reason);
    };
    row("empty", "", "is not valid JSON: illegal value at byte 0");
    row("broken", "{\"version\": 1,", "is not valid JSON: unterminated object at byte 14");
    row("trailing text", "{} x", "is not valid JSON: garbage at the end of the document at byte 3");
    row("a list", "[]", "the project is no object");
    row("no version", "{}", "the project has no \"version\"");
    row("version is a text", "{\"version\": \"1\"}",
        "the project has a \"version\" that is not a number");
    row("version 0", "{\"version\": 0}", "the project has a \"version\" that is not 1");
    row("newer version", "{\"version\": 2, \"shiny\": 1}",
        "the project is of version 2; this program reads version 1");
    row("unknown entry", "{\"version\": 1, \"parametres\": []}",
        "the project has the unknown entry \"parametres\"");
    row("title is a number", "{\"version\": 1, \"title\": 5}",
        "the project has a \"title\" that is not a text");
    row("density is a text", "{\"version\": 1, \"density\": \"7850\"}",
        "the project has a \"density\" that is not a number");
    row("density 0", "{\"version\": 1, \"density\": 0}",
        "the project has a \"density\" that is not above 0");
    row("parameters is an object", "{\"version\": 1, \"parameters\": {}}",
        "the project has a \"parameters\" that is not a list");
    row("samples is a number", "{\"version\": 1, \"samples\": 1}",
        "the project has a \"samples\" that is not a list");

    row("parameter is a number", WithParameter("5"), "parameter 1 is no object");
    row("parameter without name", WithParameter("{\"value\": 1}"), "parameter 1 has no \"name\"");
    row("empty name", WithParameter("{\"name\": \"\"}"), "parameter 1 has no \"name\"");
    row("name is a number", WithParameter("{\"name\": 1}"),
        "parameter 1 has a \"name\" that is not a text");
    row("name with a line end", WithParameter("{\"name\": \"a\\nb\", \"type\": \"x\\ny\"}"),
        "parameter 1, \"a b\", has the unknown type \"x y\"");
    row("name with a comma", WithParameter("{\"name\": \"a,b\", \"value\": 1}"),
        "parameter 1, \"a,b\", has a comma in its name");
    row("unknown type", WithParameter("{\"name\": \"a\", \"type\": \"scalar\", \"value\": 1}"),
        "parameter 1, \"a\", has the unknown type \"scalar\"");
    row("type is a number", WithParameter("{\"name\": \"a\", \"type\": 1, \"value\": 1}"),
        "parameter 1, \"a\", has a \"type\" that is not a text");
    row("no value", WithParameter("{\"name\": \"a\"}"),
        "parameter 1, \"a\", has neither \"value\" nor \"expression\"");
    row("value is a text", WithParameter("{\"name\": \"a\", \"value\": \"1\"}"),
        "parameter 1, \"a\", has a \"value\" that is not a number");
    row("Bool with a number", WithParameter("{\"name\": \"a\", \"type\": \"Bool\", \"value\": 1}"),
        "parameter 1, \"a\", has a \"value\" that is not true or false");
    row("Vector of two",
        WithParameter("{\"name\": \"a\", \"type\": \"Vector\", \"value\": [1, 2]}"),
        "parameter 1, \"a\", has a \"value\" that is not a list of three numbers");
    row("Vector of texts",
        WithParameter("{\"name\": \"a\", \"type\": \"Vector\", \"value\": [1, 2, \"3\"]}"),
        "parameter 1, \"a\", has a \"value\" that is not a list of numbers");
    row("Tensor with a number",
        WithParameter("{\"name\": \"a\", \"type\": \"Tensor\", \"value\": 1}"),
        "parameter 1, \"a\", has a \"value\" that is not a text");
    row("names as one text",
        WithParameter("{\"name\": \"a\", \"expression\": \"b\", \"expressionParameters\": \"b\"}"),
        "parameter 1, \"a\", has a \"expressionParameters\" that is not a list");
    row("names are numbers",
        WithParameter("{\"name\": \"a\", \"expression\": \"b\", \"expressionParameters\": [1]}"),
        "parameter 1, \"a\", has a \"expressionParameters\" that is not a list of texts");
    row("unknown entry in a parameter",
        WithParameter("{\"name\": \"a\", \"value\": 1, \"unit\": \"mm\"}"),
        "parameter 1 has the unknown entry \"unit\"");
    row("two of a name",
        WithParameter("{\"name\": \"a\", \"value\": 1}, {\"name\": \"a\", \"value\": 2}"),
        "the project has two parameters \"a\"");

    row("samples without parameter", WithSamples("{\"min\": 0}"),
        "sample list 1 has no \"parameter\"");
    row("samples for nobody", WithSamples("{\"parameter\": \"b\", \"values\": [1]}"),
        "the project has samples for \"b\", which is no parameter");
    row("two lists",
        WithSamples("{\"parameter\": \"a\", \"values\": [1]}, "
                    "{\"parameter\": \"a\", \"values\": [1]}"),
        "the project has two sample lists for \"a\"");
    row("no max", WithSamples("{\"parameter\": \"a\", \"min\": 0}"),
        "sample list 1, \"a\", has no \"max\"");
    row("min above max",
        WithSamples("{\"parameter\": \"a\", \"min\": 2, \"max\": 1, \"delta\": 1}"),
        "sample list 1, \"a\", has a \"max\" that is not above \"min\"");
    row("delta 0", WithSamples("{\"parameter\": \"a\", \"min\": 0, \"max\": 1, \"delta\": 0}"),
        "sample list 1, \"a\", has a \"delta\" that is not above 0");
    row("delta too great",
        WithSamples("{\"parameter\": \"a\", \"min\": 0, \"max\": 1, \"delta\": 2}"),
        "sample list 1, \"a\", has a \"delta\" that is greater than the range");
    row("too many samples",
        WithSamples("{\"parameter\": \"a\", \"min\": 0, \"max\": 1, \"delta\": 1e-9}"),
        "sample list 1, \"a\", has more than a million samples");
    row("unknown spacing",
        WithSamples("{\"parameter\": \"a\", \"min\": 0, \"max\": 1, \"delta\": 1, "
                    "\"spacing\": \"log\"}"),
        "sample list 1, \"a\", has the unknown spacing \"log\"");
    row("range and values", WithSamples("{\"parameter\": \"a\", \"min\": 0, \"values\": [1]}"),
        "sample list 1, \"a\", has both \"values\" and \"min\"");
    row("no values", WithSamples("{\"parameter\": \"a\", \"values\": []}"),
        "sample list 1, \"a\", has no values");
    row("values are texts", WithSamples("{\"parameter\": \"a\", \"values\": [\"1\"]}"),
        "sample list 1, \"a\", has a \"values\" that is not a list of numbers");
    row("ticked is a number", WithSamples("{\"parameter\": \"a\", \"values\": [1], \"ticked\": 1}"),
        "sample list 1, \"a\", has a \"ticked\" that is not true or false");
}

void tst_Project::BadFilesAreToldInOneLine()
{
    QFETCH(QByteArray, content);
    EnterTemporaryDirectory();
    QTEST(Reason(Write(content)), "reason");
}

void tst_Project::AMissingFileIsTold()
{
    EnterTemporaryDirectory();
    QCOMPARE(Reason("none.json"),
             QString("none.json: cannot be opened: No such file or directory"));
}

void tst_Project::AFolderIsTold()
{
    EnterTemporaryDirectory();
    QVERIFY(QDir().mkdir("d.json"));
    QCOMPARE(Reason("d.json"), QString("d.json: is a folder, not a file"));
}

void tst_Project::APipeIsNotWaitedFor()
{
    EnterTemporaryDirectory();
    QCOMPARE(mkfifo("pipe.json", 0600), 0);
    QCOMPARE(Reason("pipe.json"), QString("pipe.json: is not a regular file"));
}

void tst_Project::AHugeFileIsNotRead()
{
    EnterTemporaryDirectory();
    QFile file("huge.json");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(Project::MaximumFileSize + 1));
    file.close();
    QCOMPARE(Reason("huge.json"), QString("huge.json: exceeds the limit of 16 MB"));
}

void tst_Project::AnEndlessFileIsNotRead()
{
    QCOMPARE(Reason("/dev/zero"), QString("/dev/zero: is not a regular file"));
}

void tst_Project::FeaturesAndConditionsAreRead()
{
    EnterTemporaryDirectory();
    const Project project = Project::Load(Write(
        R"({"version": 1, "features": [{"name": "a", "kind": "box"}],
            "conditions": [{"expression": "1 < 2", "message": "No."}]})"));
    QCOMPARE(project.Features().Size(), 1);
    QCOMPARE(project.Conditions().size(), std::size_t(1));
    QCOMPARE(Reason(Write(R"({"version": 1, "features": [{"name": "a", "kind": "cube"}]})")),
             QString("p.json: feature 1, \"a\", has the unknown kind \"cube\""));
    QCOMPARE(Reason(Write(R"({"version": 1, "conditions": {}})")),
             QString("p.json: the project has a \"conditions\" that is not a list"));
}

// A project and the stores that it fills, as text.
static QString Everything(const Project& project)
{
    project.FillStores();
    EvaluateParameters();
    QStringList lines = {project.Title(), QString::number(project.Density(), 'g', 17)};
    for (const auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters)
        lines << name << QString::number(record.m_nType) << record.m_strValue
              << QString::number(record.m_dValue, 'g', 17)
              << QString("%1 %2 %3").arg(record.m_dX).arg(record.m_dY).arg(record.m_dZ)
              << QString::fromStdString(record.m_strExpression) << record.m_strExpressPara
              << record.m_strDescription;
    for (const auto& [name, samples] : g_mapParaArrays) {
        lines << name << QString::number(samples.bChecked) << QString::number(samples.nSampleType);
        for (const double value : {samples.dMin, samples.dMax, samples.dDelta})
            lines << QString::number(value, 'g', 17);
        for (const double value : samples.vecValues)
            lines << QString::number(value, 'g', 17);
    }
    return lines.join('\n');
}

void tst_Project::ASavedProjectIsLoadedTheSame_data()
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
           "expressionParameters": ["宽", "z"], "description": "a length"},
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
}

void tst_Project::ASavedProjectIsLoadedTheSame()
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

    QFile file("saved.json");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    again.Save("saved.json");
    QFile twice("saved.json");
    QVERIFY(twice.open(QIODevice::ReadOnly));
    QCOMPARE(twice.readAll(), bytes);
}

void tst_Project::TheStoresAreSavedAsTheyStand()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    Project project = Project::Load(Project::SamplePath());
    project.FillStores();
    GlobalParaMeterMgr::m_nameMapParameters["thickness"].m_varRawValue = 25.0;
    GlobalParaMeterMgr::m_nameMapParameters.erase("fillet_radius");
    g_mapParaArrays["bolt_count"].vecValues = {6};
    FeatureList features = project.Features();
    features.SetSuppressed(10, true);
    project.SetFeatures(features);
    project.Save("saved.json");

    Project::Load("saved.json").FillStores();
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("thickness").toDouble(), 25.0);
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.count("fillet_radius"), std::size_t(0));
    QCOMPARE(g_mapParaArrays["bolt_count"].vecValues, std::vector<double>({6}));
    QVERIFY(Project::Load("saved.json").Features() == features);
}

void tst_Project::ImportsAreFoundFromAnotherFolder()
{
    const EmptyDesignStores stores;
    const QString directory = EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("a/b"));
    const QByteArray content = R"({"version": 1, "features": [
        {"name": "a", "kind": "import", "file": "parts/a.step"},
        {"name": "b", "kind": "import", "file": "/parts/b.step"}]})";
    Project project = Project::Load(Write(content, "a/p.json"));
    QCOMPARE(project.Folder(), directory + "/a");
    project.FillStores();
    project.Save("a/q.json");
    QCOMPARE(project.Features().At(0).file, QString("parts/a.step"));
    project.Save("a/b/q.json");
    QCOMPARE(project.Features().At(0).file, QString("../parts/a.step"));
    QCOMPARE(project.Features().At(1).file, QString("/parts/b.step"));
    project.Save("q.json");
    QCOMPARE(Project::Load("q.json").Features().At(0).file, QString("a/parts/a.step"));
}

void tst_Project::WhatCouldNotBeLoadedIsNotSaved_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("features");
    QTest::addColumn<QString>("reason");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("comma in a name")
        << "b,c" << 1.0 << 1 << "parameter 2, \"b,c\", has a comma in its name";
    QTest::newRow("no number") << "b" << nan << 1
                               << "parameter 2, \"b\", has a \"value\" that is not a number";
    QTest::newRow("no name") << "" << 1.0 << 1 << "parameter 2 has no \"name\"";
    QTest::newRow("two features of a name")
        << "b" << 1.0 << 2 << "features: x: two features have this name.";
}

void tst_Project::WhatCouldNotBeLoadedIsNotSaved()
{
    const EmptyDesignStores stores;
    QFETCH(QString, name);
    QFETCH(double, value);
    QFETCH(int, features);
    QFETCH(QString, reason);
    EnterTemporaryDirectory();
    Project project = Project::Load(Write(WithParameter(R"({"name": "a", "value": 1})")));
    project.FillStores();
    ParametersDef record;
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = value;
    GlobalParaMeterMgr::AddParameter(name, record);
    FeatureList list;
    for (int i = 0; i < features; ++i) {
        Feature box = FeatureKinds::MakeFeature(FeatureKind::Box);
        box.name = "x";
        list.Append(box);
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

void tst_Project::AFileThatCannotBeWrittenIsTold()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    Project project = Project::Load(Write("{\"version\": 1}"));
    project.FillStores();
    try {
        project.Save("none/p.json");
        QFAIL("It was saved.");
    } catch (const ProjectError& error) {
        QCOMPARE(error.Reason(),
                 QString("none/p.json: cannot be written: No such file or directory"));
    }
    QCOMPARE(project.Path(), QString("p.json"));
}

void tst_Project::AFullDiskLeavesTheOldFile()
{
    const EmptyDesignStores stores;
    FullDisk disk;
    Project project =
        Project::Load(Write(R"({"version": 1, "title": ")" + QByteArray(7000, 'x') + R"("})"));
    project.FillStores();
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

void tst_Project::APartWithoutFeaturesIsTold()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    const Project project = Project::Load(Write("{\"version\": 1}"));
    try {
        project.Build();
        QFAIL("It was built.");
    } catch (const BuildError& error) {
        QCOMPARE(error.Reason(), QString("The project has no features, so there is no part."));
    }
}

TARN_TEST_MAIN(tst_Project)
#include "tst_Project.moc"
