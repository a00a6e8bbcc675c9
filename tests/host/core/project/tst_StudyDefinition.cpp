#include "JsonSection.h"
#include "StudyDefinition.h"
#include "TestCase.h"

#include <QJsonDocument>

class tst_StudyDefinition : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutEntriesItIsFullFactorial();
    void EveryEntryIsRead();
    void WhatIsWrittenReadsTheSame_data();
    void WhatIsWrittenReadsTheSame();
    void BadEntriesAreReported_data();
    void BadEntriesAreReported();
};

namespace {

QJsonValue Json(const QByteArray& text)
{
    return QJsonDocument::fromJson('[' + text + ']').array().at(0);
}

} // namespace

void tst_StudyDefinition::WithoutEntriesItIsFullFactorial()
{
    const StudyDefinition study = ReadStudy(Json("{}"));
    QVERIFY(study == StudyDefinition());
    QCOMPARE(study.design, StudyDefinition::FullFactorial);
    QVERIFY(!study.seed && !study.hasVibration && !study.hasStatic);
    QCOMPARE(ToJson(study), QJsonObject());
}

void tst_StudyDefinition::EveryEntryIsRead()
{
    const StudyDefinition study = ReadStudy(Json(R"({"design": "latinHypercube", "runs": 100,
        "seed": 4294967295, "file": "runs.csv", "analyses": ["static", "vibration"],
        "responses": [{"name": "ratio", "expression": "f1_hz / mass_kg"}]})"));
    QCOMPARE(study.design, StudyDefinition::LatinHypercube);
    QCOMPARE(study.runs, 100);
    QCOMPARE(*study.seed, 4294967295u);
    QCOMPARE(study.file, QString("runs.csv"));
    QVERIFY(study.hasVibration && study.hasStatic);
    QCOMPARE(study.responses.front().name, QString("ratio"));
    QCOMPARE(study.responses.front().expression, QString("f1_hz / mass_kg"));
}

void tst_StudyDefinition::WhatIsWrittenReadsTheSame_data()
{
    QTest::addColumn<QByteArray>("json");
    const auto row = [](const char* json) {
        QTest::newRow(json) << QByteArray(json);
    };
    row(R"({"design": "latinHypercube", "runs": 7, "seed": 0})");
    row(R"({"design": "sobol", "runs": 1000000, "analyses": ["vibration"]})");
    row(R"({"design": "boxBehnken"})");
    row(R"({"design": "centralComposite"})");
    row(R"({"design": "oneAtATime", "analyses": ["vibration", "static"]})");
    row(R"({"design": "list", "file": "runs.csv"})");
    row(R"({"responses": [{"name": "比", "expression": "a"}, {"name": "b", "expression": "1"}]})");
}

void tst_StudyDefinition::WhatIsWrittenReadsTheSame()
{
    QFETCH(QByteArray, json);
    const StudyDefinition study = ReadStudy(Json(json));
    QCOMPARE(ToJson(study), Json(json).toObject());
    QVERIFY(ReadStudy(ToJson(study)) == study);
}

void tst_StudyDefinition::BadEntriesAreReported_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* json, const char* reason) {
        QTest::newRow(name) << QByteArray(json) << reason;
    };
    row("not an object", "3", "the study must be an object");
    row("unknown entry", R"({"run": 3})", R"(the study has the unknown entry "run")");
    row("unknown design", R"({"design": "Sobol"})", R"(the study has the unknown design "Sobol")");
    row("hypercube without runs", R"({"design": "latinHypercube"})",
        R"(the study needs "runs", the number of runs of its design)");
    row("sequence without runs", R"({"design": "sobol"})",
        R"(the study needs "runs", the number of runs of its design)");
    row("list without file", R"({"design": "list"})",
        R"(the study needs "file", the CSV file with its list of runs)");
    for (const char* runs : {"0", "1.5", "-1", "1000001"})
        row(qPrintable(QString("%1 runs").arg(runs)),
            qPrintable(QString(R"({"runs": %1})").arg(runs)),
            R"(the study has a "runs" that is not a whole number from 1 to 1000000)");
    for (const char* seed : {"-1", "0.5", "4294967296"})
        row(qPrintable(QString("seed %1").arg(seed)),
            qPrintable(QString(R"({"seed": %1})").arg(seed)),
            R"(the study has a "seed" that is not a whole number from 0 to 4294967295)");
    row("unknown analysis", R"({"analyses": ["modal"]})",
        R"(the study has the unknown analysis "modal")");
    row("response without name", R"({"responses": [{"expression": "a"}]})",
        R"(response 1 has no "name")");
    row("response without expression", R"({"responses": [{"name": "a"}]})",
        R"(response 1 has no "expression")");
    row("response twice",
        R"({"responses": [{"name": "a", "expression": "1"}, {"name": "a", "expression": "2"}]})",
        R"(the study has two responses "a")");
}

void tst_StudyDefinition::BadEntriesAreReported()
{
    QFETCH(QByteArray, json);
    try {
        ReadStudy(Json(json));
        QFAIL("The entry was taken.");
    } catch (const JsonError& error) {
        QTEST(error.Reason(), "reason");
    }
}

TARN_TEST_MAIN(tst_StudyDefinition)
#include "tst_StudyDefinition.moc"
