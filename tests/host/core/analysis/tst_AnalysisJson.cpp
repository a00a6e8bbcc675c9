#include "AnalysisJson.h"
#include "JsonSection.h"
#include "TestCase.h"

#include <QJsonDocument>

class tst_AnalysisJson : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EveryEntryIsRead();
    void DefaultsAreLeftOut();
    void WhatIsWrittenReadsTheSame();
    void EveryTypeIsKept_data();
    void EveryTypeIsKept();
    void BadEntriesAreReported_data();
    void BadEntriesAreReported();
};

namespace {

const char* const Everything = R"({
    "type": "static",
    "meshSize": "t * 4",
    "frequencies": {"min": 0, "max": 5000, "number": 3},
    "properties": [{"name": "web", "material": "Steel S355", "thickness": "t",
                    "faces": ["plate.zmax"]},
                   {"name": "solid", "material": "钢"}],
    "constraints": [{"name": "clamp", "held": ["X_D", "Z_D", "Y_R"], "faces": ["bore.side"],
                     "edges": [{"between": ["a.xmin", "a.ymin"]}]},
                    {"name": "nothing yet", "held": []}],
    "loads": [{"name": "pull", "force": [0, "-f", 2.5], "faces": ["hole.side", {"at": [1, 2, 3]}]},
              {"name": "edge", "force": [1, 0, 0], "edges": [{"at": [0, 0, "t"]}]}],
    "localMeshes": [{"size": 2, "faces": ["bore.side"]},
                    {"number": 12, "edges": [{"between": ["plate.zmax", "plate.xmin"]}]}]})";

QJsonValue Json(const QByteArray& text)
{
    return QJsonDocument::fromJson('[' + text + ']').array().at(0);
}

} // namespace

void tst_AnalysisJson::EveryEntryIsRead()
{
    const AnalysisDefinition analysis = ReadAnalysis(Json(Everything));
    QVERIFY(analysis.type == (SolverType{AnalysisType::MechanicsFamily, AnalysisType::StaticKind}));
    QCOMPARE(analysis.meshSize, QString("t * 4"));
    QVERIFY(analysis.frequencies == (FrequencyRange{0.0, 5000.0, 3}));

    QCOMPARE(analysis.properties.size(), std::size_t(2));
    QCOMPARE(analysis.properties[0].name, QString("web"));
    QCOMPARE(analysis.properties[0].material, QString("Steel S355"));
    QCOMPARE(analysis.properties[0].thickness, QString("t"));
    QCOMPARE(analysis.properties[0].faces.front().name, QString("plate.zmax"));
    QVERIFY(analysis.properties[1].faces.empty() && analysis.properties[1].thickness.isEmpty());

    QCOMPARE(analysis.constraints.size(), std::size_t(2));
    const std::array<bool, 6> held = {true, false, true, false, true, false};
    QVERIFY(analysis.constraints[0].held == held);
    QCOMPARE(analysis.constraints[0].edges.front().between[1].name, QString("a.ymin"));

    QCOMPARE(analysis.loads[0].force[1], QString("-f"));
    QCOMPARE(analysis.loads[0].faces[1].at[2], QString("3"));
    QCOMPARE(analysis.loads[1].edges.front().at[2], QString("t"));

    QCOMPARE(analysis.localMeshes[0].size, QString("2"));
    QCOMPARE(analysis.localMeshes[1].number, QString("12"));
}

void tst_AnalysisJson::DefaultsAreLeftOut()
{
    const AnalysisDefinition analysis = ReadAnalysis(Json("{}"));
    QVERIFY(analysis == AnalysisDefinition());
    QVERIFY(analysis.frequencies == (FrequencyRange{1.0, 1000000.0, 10}));
    QCOMPARE(ToJson(analysis), QJsonObject());
}

void tst_AnalysisJson::WhatIsWrittenReadsTheSame()
{
    const AnalysisDefinition analysis = ReadAnalysis(Json(Everything));
    const QJsonObject written = ToJson(analysis);
    QCOMPARE(written, Json(Everything).toObject());
    QVERIFY(ReadAnalysis(written) == analysis);
}

void tst_AnalysisJson::EveryTypeIsKept_data()
{
    NewNameRows("type",
                {"static", "buckling", "transient", "frequencyResponse", "complexEigenvalue"});
}

void tst_AnalysisJson::EveryTypeIsKept()
{
    QFETCH(QByteArray, type);
    const QJsonObject json{{"type", QString(type)}};
    QCOMPARE(ToJson(ReadAnalysis(json)), json);
}

void tst_AnalysisJson::BadEntriesAreReported_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* json, const char* reason) {
        QTest::newRow(name) << QByteArray(json) << reason;
    };
    row("not an object", "[]", "the analysis must be an object");
    row("unknown entry", R"({"mesh": 1})", R"(the analysis has the unknown entry "mesh")");
    row("type", R"({"type": "statics"})", R"(the analysis is of the unknown type "statics")");
    row("mesh size", R"({"meshSize": true})",
        R"(the analysis has a "meshSize" that is not a number or an expression)");
    row("unknown frequency entry", R"({"frequencies": {"least": 1}})",
        R"("frequencies" of the analysis has the unknown entry "least")");
    for (const char* number : {"0.5", "2.5", "1e300"})
        row(qPrintable(QString("%1 modes").arg(number)),
            qPrintable(QString(R"({"frequencies": {"number": %1}})").arg(number)),
            R"("frequencies" of the analysis has a "number" that is not a whole number)");
    row("nameless property", R"({"properties": [{"material": "a"}]})",
        R"(property 1, "", has no "name")");
    row("shell without thickness", R"({"properties": [{"name": "p", "faces": ["a.b"]}]})",
        R"(property 1, "p", has faces, but no "thickness")");
    row("unknown degree of freedom", R"({"constraints": [{"name": "c", "held": ["X"]}]})",
        R"(constraint 1, "c", holds the unknown degree of freedom "X")");
    row("vector of two numbers", R"({"loads": [{"name": "l", "force": [1, 2]}]})",
        R"(load 1, "l", has a "force" that is not a list of three numbers or expressions)");
    row("no force", R"({"loads": [{"name": "l"}]})",
        R"(load 1, "l", has a "force" that is not a list of three numbers or expressions)");
    row("faces and edges",
        R"({"loads": [{"name": "l", "force": [1, 2, 3], "faces": ["a.b"],
                       "edges": [{"at": [1, 2, 3]}]}]})",
        R"(load 1, "l", has both "faces" and "edges"; a load acts on either)");
    row("bad face", R"({"loads": [{"name": "l", "force": [1, 2, 3], "faces": [3]}]})",
        R"(load 1, "l", entry 1 of "faces" must be an object)");
    row("size and number", R"({"localMeshes": [{"size": 1, "number": 2}]})",
        R"(local mesh 1 needs either a "size" or a "number")");
    row("number on a face", R"({"localMeshes": [{"number": 2, "faces": ["a.b"]}]})",
        R"(local mesh 1 has a "number", which is for edges only, and "faces")");
    row("property twice", R"({"properties": [{"name": "p"}, {"name": "p"}]})",
        R"(the analysis has the name "p" twice in properties)");
    row("load named as a constraint",
        R"({"constraints": [{"name": "c"}], "loads": [{"name": "c", "force": [1, 2, 3]}]})",
        R"(the analysis has the name "c" twice in loads)");
}

void tst_AnalysisJson::BadEntriesAreReported()
{
    QFETCH(QByteArray, json);
    try {
        ReadAnalysis(Json(json));
        QFAIL("The entry was taken.");
    } catch (const JsonError& error) {
        QTEST(error.Reason(), "reason");
    }
}

TARN_TEST_MAIN(tst_AnalysisJson)
#include "tst_AnalysisJson.moc"
