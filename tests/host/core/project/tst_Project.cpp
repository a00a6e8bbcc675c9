#include "EmptyDesignStores.h"
#include "FeatureBuilder.h"
#include "GlobalParaMeterMgr.h"
#include "ProjectFiles.h"
#include "SampleSpacing.h"
#include "TestCase.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

// Reading. How a project is saved is checked in tst_ProjectSaving.

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
    void TheParameterStoreIsReplaced();
    void ParametersKeepTheOrderOfTheFile();
    void SamplesAreARangeOrSingleValues();
    void BadFilesAreReportedInOneLine_data();
    void BadFilesAreReportedInOneLine();
    void AMissingFileIsReported();
    void AFolderIsReported();
    void APipeIsNotWaitedFor();
    void AHugeFileIsNotRead();
    void AnEndlessFileIsNotRead();
    void FeaturesAndConditionsAreRead();
    void APartWithoutFeaturesIsReported();
};

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

void tst_Project::TheParameterStoreIsReplaced()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    GlobalParaMeterMgr::AddParameter("old", {});
    Project::Load(Write(WithSamples(""))).FillParameterStore();
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), std::vector<QString>({"a"}));
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("a").toDouble(), 1.0);
}

void tst_Project::ParametersKeepTheOrderOfTheFile()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    Project::Load(Write(WithParameter(R"({"name": "c", "value": 1}, {"name": "a", "value": 1},
                                         {"name": "b", "value": 1})")))
        .FillParameterStore();
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), std::vector<QString>({"c", "a", "b"}));
}

void tst_Project::SamplesAreARangeOrSingleValues()
{
    EnterTemporaryDirectory();
    const Project project = Project::Load(Write(R"({"version": 1,
        "parameters": [{"name": "a", "value": 1}, {"name": "b", "value": 1}],
        "samples": [{"parameter": "b", "min": -1, "max": 1, "delta": 0.7, "spacing": "Ln"},
                    {"parameter": "a", "values": [8, 4.123456789, 8], "ticked": false}]})"));
    const std::vector<SampleList>& lists = project.SampleLists();
    QCOMPARE(lists.size(), std::size_t(2));
    QCOMPARE(lists[0].parameter, QString("b"));
    QCOMPARE(lists[0].range.min, -1.0);
    QCOMPARE(lists[0].range.max, 1.0);
    QCOMPARE(lists[0].range.step, 0.7);
    QCOMPARE(lists[0].range.spacing, int(SampleSpacing::Ln));
    QVERIFY(lists[0].values.empty() && lists[0].ticked);
    QCOMPARE(lists[1].parameter, QString("a"));
    QCOMPARE(lists[1].values, std::vector<double>({8, 4.123456789, 8}));
    QVERIFY(!lists[1].ticked);
}

void tst_Project::BadFilesAreReportedInOneLine_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QByteArray& content, const char* reason) {
        QTest::newRow(name) << content << QString("p.json: %1").arg(reason);
    };
    row("empty", "", "is not valid JSON: illegal value at byte 0");
    row("broken", "{\"version\": 1,", "is not valid JSON: unterminated object at byte 14");
    row("trailing text", "{} x", "is not valid JSON: garbage at the end of the document at byte 3");
    row("a list", "[]", "the project must be an object");
    row("no version", "{}", "the project has no \"version\"");
    row("version is a text", "{\"version\": \"1\"}",
        "the project has a \"version\" that is not a number");
    row("version 0", "{\"version\": 0}", "the project has a \"version\" that is not 1 or 2");
    row("newer version", "{\"version\": 3, \"shiny\": 1}",
        "the project is of version 3; this program reads versions up to 2");
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

    row("parameter is a number", WithParameter("5"), "parameter 1 must be an object");
    row("parameter without name", WithParameter("{\"value\": 1}"), "parameter 1 has no \"name\"");
    row("name is a number", WithParameter("{\"name\": 1}"),
        "parameter 1 has a \"name\" that is not a text");
    row("name with a line end", WithParameter("{\"name\": \"a\\nb\", \"type\": \"x\\ny\"}"),
        "parameter 1, \"a b\", has the unknown type \"x y\"");
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
        WithParameter("{\"name\": \"a\", \"value\": 1, \"colour\": \"mm\"}"),
        "parameter 1 has the unknown entry \"colour\"");
    row("two of a name",
        WithParameter("{\"name\": \"a\", \"value\": 1}, {\"name\": \"a\", \"value\": 2}"),
        "the project has two parameters \"a\"");

    row("samples without parameter", WithSamples("{\"min\": 0}"),
        "sample list 1 has no \"parameter\"");
    row("samples for nobody", WithSamples("{\"parameter\": \"b\", \"values\": [1]}"),
        "the project has samples for \"b\", which is not a parameter");
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

void tst_Project::BadFilesAreReportedInOneLine()
{
    QFETCH(QByteArray, content);
    EnterTemporaryDirectory();
    QTEST(Reason(Write(content)), "reason");
}

void tst_Project::AMissingFileIsReported()
{
    EnterTemporaryDirectory();
    QCOMPARE(Reason("none.json"),
             QString("none.json: cannot be opened: No such file or directory"));
}

void tst_Project::AFolderIsReported()
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

void tst_Project::APartWithoutFeaturesIsReported()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    const Project project = Project::Load(Write("{\"version\": 1}"));
    try {
        project.Plan();
        QFAIL("It was planned.");
    } catch (const BuildError& error) {
        QCOMPARE(error.Reason(), QString("The project has no part. Add a body first."));
    }
}

TARN_TEST_MAIN(tst_Project)
#include "tst_Project.moc"
