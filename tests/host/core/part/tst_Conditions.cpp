#include "BuildError.h"
#include "Conditions.h"
#include "EmptyDesignStores.h"
#include "GlobalParaMeterMgr.h"
#include "JsonSection.h"
#include "ParameterEvaluator.h"
#include "Project.h"
#include "TestCase.h"

#include <QJsonDocument>

#include <limits>

class tst_Conditions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFirstFailedConditionIsReported_data();
    void TheFirstFailedConditionIsReported();
    void TheMessageContainsTheValues();
    void WrittenContentReadsBackUnchanged();
    void BadJsonIsReportedInOneLine_data();
    void BadJsonIsReportedInOneLine();
    void TheSampleReportsImpossibleParameters_data();
    void TheSampleReportsImpossibleParameters();
};

static void Store(const QString& name, double value)
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = value;
    GlobalParaMeterMgr::AddParameter(name, record);
}

static QString Reason(const std::vector<Condition>& conditions)
{
    try {
        CheckConditions(conditions);
    } catch (const BuildError& error) {
        return error.Reason();
    }
    return "all hold";
}

void tst_Conditions::TheFirstFailedConditionIsReported_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* first, const char* second, const char* reason) {
        QTest::addRow("%s and %s", first, second)
            << QString(first) << QString(second) << QString(reason);
    };
    row("a < b", "a > 0", "all hold");
    row("0.5", "-1", "all hold");
    row("a > b", "a > 0", "First.");
    row("a < b", "a < 0", "Second.");
    row("a > b", "a < 0", "First.");
    row("0", "1", "First.");
    row("1", "c > 0", "Second. (\"c > 0\" has no value: Position 1: the name 'c' is unknown.)");
    row("a >", "1",
        "First. (\"a >\" has no value: Position 4: the expression ends where a value must "
        "follow.)");
}

void tst_Conditions::TheFirstFailedConditionIsReported()
{
    const EmptyDesignStores stores;
    Store("a", 1.0);
    Store("b", 2.0);
    QFETCH(QString, first);
    QFETCH(QString, second);
    QTEST(Reason({{first, "First."}, {second, "Second."}}), "reason");
}

void tst_Conditions::TheMessageContainsTheValues()
{
    const EmptyDesignStores stores;
    Store("a", 1.23456789);
    QCOMPARE(Reason({{"0", "{a} of {2 * a}, {b}, {}, {a."}}),
             QString("1.23457 of 2.46914, nan, nan, {a."));
    QCOMPARE(Reason({}), QString("all hold"));
}

void tst_Conditions::WrittenContentReadsBackUnchanged()
{
    const std::vector<Condition> conditions = {{"a < b", "短"}, {"宽 > 0", "No {宽}."}};
    QVERIFY(ReadConditions(ConditionsToJson(conditions)) == conditions);
    QVERIFY(ReadConditions({}).empty());
}

void tst_Conditions::BadJsonIsReportedInOneLine_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* json, const char* reason) {
        QTest::newRow(json) << QByteArray(json) << QString(reason);
    };
    row("[5]", "condition 1 must be an object");
    row(R"([{"expression": "1"}])", "condition 1 has no \"message\"");
    row(R"([{"message": "a"}])", "condition 1 has no \"expression\"");
    row(R"([{"expression": "1", "message": "a"}, {"expression": 1, "message": "a"}])",
        "condition 2 has a \"expression\" that is not a text");
    row(R"([{"expression": "1", "message": "a", "x": 1}])",
        "condition 1 has the unknown entry \"x\"");
}

void tst_Conditions::BadJsonIsReportedInOneLine()
{
    QFETCH(QByteArray, json);
    QString reason = "it was read";
    try {
        ReadConditions(QJsonDocument::fromJson(json).array());
    } catch (const JsonError& error) {
        reason = error.Reason();
    }
    QTEST(reason, "reason");
}

void tst_Conditions::TheSampleReportsImpossibleParameters_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, double value, const char* reason) {
        QTest::addRow("%s = %g", name, value) << QString(name) << value << QString(reason);
    };
    row("bolt_count", 4, "all hold");
    row("bolt_count", 361, "There are at most 360 bolt holes, not 361.");
    row("bore_diameter", 250, "The bore (250) is not smaller than the flange (200).");
    row("bore_diameter", 112, "The bore (112) is not smaller than the hub (112).");
    row("bore_diameter", 111.9, "all hold");
    row("hub_diameter", 200, "The hub (200) is not smaller than the flange (200).");
    row("hub_height", 5, "The fillet radius (5) is not smaller than the hub's height (5).");
    row("hub_height", 5.1, "all hold");
    row("hub_diameter", 190, "The fillet around the hub reaches outside the flange.");
    row("bolt_circle", 182,
        "The bolt holes (18 on a circle of 182) reach outside the flange (200).");
    row("bolt_circle", 181.9, "all hold");
    row("bolt_circle", 140,
        "The bolt holes (18 on a circle of 140) reach into the hub (112) or its fillet.");
    row("bolt_circle", 140.1, "all hold");
    row("bolt_count", 28, "The bolt holes overlap: 28 of 18 on a circle of 156.");
    row("bolt_count", 27, "all hold");
    row("bolt_count", 1, "all hold");
    row("bore_diameter", std::numeric_limits<double>::quiet_NaN(),
        "The bore (nan) is not smaller than the flange (200). (\"outer_diameter - bore_diameter >= "
        "0.002\" has no value: Position 18: the value of 'bore_diameter' is not finite.)");
}

void tst_Conditions::TheSampleReportsImpossibleParameters()
{
    const EmptyDesignStores stores;
    QFETCH(QString, name);
    QFETCH(double, value);
    const Project project = Project::Load(Project::SamplePath());
    project.FillParameterStore();
    ParameterEvaluator::Evaluate();
    Store(name, value);
    QTEST(Reason(project.Conditions()), "reason");
}

TARN_TEST_MAIN(tst_Conditions)
#include "tst_Conditions.moc"
