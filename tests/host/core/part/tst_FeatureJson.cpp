#include "BodyFormulas.h"
#include "FeatureJson.h"
#include "JsonSection.h"
#include "TestCase.h"

class tst_FeatureJson : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WhatIsReadIsWrittenUnchanged_data();
    void WhatIsReadIsWrittenUnchanged();
    void ReferencesAndProfilesAreRead();
    void WrongEntriesAreReported_data();
    void WrongEntriesAreReported();
    void ReferencesFollowTheNameOfAFeature();
};

namespace {

QJsonObject Json(const QByteArray& text)
{
    return QJsonDocument::fromJson(text).object();
}

} // namespace

void tst_FeatureJson::WhatIsReadIsWrittenUnchanged_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("edges") << QByteArray(
        R"({"name": "a", "kind": "fillet", "inputs": ["b"], "fields": {"radius": "r"},
            "edges": [{"between": ["b.xmin", {"at": [1, "y", 3]}]}, {"at": [1, 2, "z"]}]})");
    QTest::newRow("face") << QByteArray(
        R"({"name": "a", "kind": "mirrorFace", "inputs": ["b"], "face": "c/b.xmax"})");
    QTest::newRow("point") << QByteArray(
        R"({"name": "a", "kind": "mirrorFace", "inputs": ["b"], "fields": {"x": 1, "y": 2, "z": "t"}})");
    QTest::newRow("profile") << QByteArray(
        R"({"name": "a", "kind": "revolve", "fields": {"angle": 90, "moveX": "dx"},
            "profile": [{"x": 1, "y": 0, "viaX": "w / 2", "viaY": 5}, {"x": 2, "y": "h"}]})");
    QTest::newRow("no placement") << QByteArray(
        R"({"name": "a", "kind": "box", "fields": {"x": 1, "y": 2, "z": 3}})");
}

void tst_FeatureJson::WhatIsReadIsWrittenUnchanged()
{
    QFETCH(QByteArray, text);
    const Feature feature = ReadFeature(Json(text), 1);
    QCOMPARE(ToJson(feature), Json(text));
    QVERIFY(ReadFeature(ToJson(feature), 1) == feature);
    Feature other = feature;
    other.edges.clear();
    other.face.reset();
    other.profile.clear();
    QCOMPARE(other == feature, !feature.HasReferences() && feature.profile.empty());
}

void tst_FeatureJson::ReferencesAndProfilesAreRead()
{
    const Feature fillet = ReadFeature(
        Json(R"({"name": "a", "kind": "fillet", "edges": [{"between": ["b.xmin", "b.xmax"]}]})"),
        1);
    QCOMPARE(fillet.edges.size(), std::size_t(1));
    QCOMPARE(fillet.edges[0].between[1].name, QString("b.xmax"));
    const Feature turned = ReadFeature(
        Json(
            R"({"name": "a", "kind": "revolve", "profile": [{"x": 1, "y": 2, "viaX": 3, "viaY": "v"}]})"),
        1);
    QVERIFY(turned.profile == Profile({{"1", "2", "3", "v"}}));
    QVERIFY(ReadFeature(Json(R"({"name": "a", "kind": "extrude"})"), 1).profile == SquareProfile());
}

void tst_FeatureJson::WrongEntriesAreReported_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* entries, const char* reason) {
        QTest::newRow(name) << R"({"name": "a", )" + QByteArray(entries) + "}"
                            << "feature 1, \"a\", " + QString(reason);
    };
    row("no edges", R"("kind": "fillet", "edges": [])",
        "has a \"edges\" that is not a list of at least one edge");
    row("edges and a point",
        R"("kind": "fillet", "fields": {"x": 1}, "edges": [{"at": [1, 2, 3]}])",
        "in its \"fields\" has \"x\", but the feature names its place already");
    row("edge with one face", R"("kind": "fillet", "edges": [{"between": ["b.xmin"]}])",
        "entry 1 of \"edges\" has a \"between\" that is not a list of two faces");
    row("face without a name", R"("kind": "mirrorFace", "face": "")",
        "its \"face\" is an empty name of a face");
    row("corner without y", R"("kind": "extrude", "profile": [{"x": 1}])",
        "corner 1 of \"profile\" needs \"x\" and \"y\"");
    row("half a point of an arc", R"("kind": "extrude", "profile": [{"x": 1, "y": 2, "viaX": 3}])",
        "corner 1 of \"profile\" needs both \"viaX\" and \"viaY\", or none of them");
    row("empty point of an arc",
        R"("kind": "extrude", "profile": [{"x": 1, "y": 2, "viaX": "", "viaY": 3}])",
        "corner 1 of \"profile\" has a \"viaX\" that is not a number or an expression");
}

void tst_FeatureJson::WrongEntriesAreReported()
{
    QFETCH(QByteArray, text);
    QString reason = "it was read";
    try {
        ReadFeature(Json(text), 1);
    } catch (const JsonError& error) {
        reason = error.Reason();
    }
    QTEST(reason, "reason");
}

void tst_FeatureJson::ReferencesFollowTheNameOfAFeature()
{
    FeatureList list = List(A10 + R"(,
        {"name": "b", "kind": "fillet", "inputs": ["a"],
         "edges": [{"between": ["a.xmin", "a.ymin"]}]},
        {"name": "c", "kind": "mirrorFace", "inputs": ["b"], "face": "b/a.xmax"})");
    Feature box = list.At(0);
    box.name = "plate";
    list.Replace(0, box);
    QCOMPARE(list.At(1).edges[0].between[0].name, QString("plate.xmin"));
    QCOMPARE(list.At(2).face->name, QString("b/plate.xmax"));
    Feature fillet = list.At(1);
    fillet.name = "round edge";
    list.Replace(1, fillet);
    QCOMPARE(list.At(2).face->name, QString("round edge/plate.xmax"));
    QCOMPARE(Reason(list), QString("it was built"));
}

TARN_TEST_MAIN(tst_FeatureJson)
#include "tst_FeatureJson.moc"
