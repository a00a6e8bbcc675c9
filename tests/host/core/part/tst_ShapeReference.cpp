#include "JsonSection.h"
#include "ShapeReference.h"
#include "TestCase.h"

#include <QJsonDocument>

class tst_ShapeReference : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AFaceIsANameOrAPoint_data();
    void AFaceIsANameOrAPoint();
    void AnEdgeIsBetweenFacesOrAPoint_data();
    void AnEdgeIsBetweenFacesOrAPoint();
    void BadReferencesAreReported_data();
    void BadReferencesAreReported();
    void AListNamesItsEntry();
};

namespace {

QJsonValue Json(const QByteArray& text)
{
    return QJsonDocument::fromJson('[' + text + ']').array().at(0);
}

} // namespace

void tst_ShapeReference::AFaceIsANameOrAPoint_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("text");
    QTest::newRow("name") << QByteArray(R"("bore.side")") << "bore.side";
    QTest::newRow("through") << QByteArray(R"("right_arm/arm.xmax")") << "right_arm/arm.xmax";
    QTest::newRow("point") << QByteArray(R"({"at": [1.5, "a / 2", -3]})") << "(1.5, a / 2, -3)";
}

void tst_ShapeReference::AFaceIsANameOrAPoint()
{
    QFETCH(QByteArray, json);
    const FaceReference face = ReadFaceReference("x", Json(json));
    QTEST(face.Text(), "text");
    QCOMPARE(ToJson(face), Json(json));
    QVERIFY(ReadFaceReference("x", ToJson(face)) == face);
}

void tst_ShapeReference::AnEdgeIsBetweenFacesOrAPoint_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("text");
    QTest::newRow("names") << QByteArray(R"({"between": ["a.zmax", "b/a.xmin"]})")
                           << "a.zmax | b/a.xmin";
    QTest::newRow("name and point")
        << QByteArray(R"({"between": ["a.zmax", {"at": [0, 0, 1]}]})") << "a.zmax | (0, 0, 1)";
    QTest::newRow("point") << QByteArray(R"({"at": ["r", 0, 1e-7]})") << "(r, 0, 1e-07)";
}

void tst_ShapeReference::AnEdgeIsBetweenFacesOrAPoint()
{
    QFETCH(QByteArray, json);
    const EdgeReference edge = ReadEdgeReference("x", Json(json));
    QTEST(edge.Text(), "text");
    QCOMPARE(ToJson(edge), Json(json));
    QVERIFY(ReadEdgeReference("x", ToJson(edge)) == edge);
}

void tst_ShapeReference::BadReferencesAreReported_data()
{
    QTest::addColumn<bool>("isEdge");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("reason");
    const auto face = [](const char* name, const char* json, const char* reason) {
        QTest::newRow(name) << false << QByteArray(json) << reason;
    };
    const auto edge = [](const char* name, const char* json, const char* reason) {
        QTest::newRow(name) << true << QByteArray(json) << reason;
    };
    face("empty name", R"(" ")", "x is an empty name of a face");
    face("number", "3", "x must be an object");
    face("two coordinates", R"({"at": [1, 2]})",
         R"(x has a "at" that is not a list of three numbers or expressions)");
    face("a coordinate that is no text", R"({"at": [1, 2, true]})",
         R"(x has a "at" that is not a list of three numbers or expressions)");
    face("no point", "{}", R"(x has a "at" that is not a list of three numbers or expressions)");
    face("unknown entry", R"({"at": [1, 2, 3], "by": 1})", R"(x has the unknown entry "by")");
    edge("text", R"("a.xmin")", "x must be an object");
    edge("nothing", "{}", R"(x needs either "between" or "at")");
    edge("both", R"({"between": ["a", "b"], "at": [1, 2, 3]})",
         R"(x needs either "between" or "at")");
    edge("one face", R"({"between": ["a"]})",
         R"(x has a "between" that is not a list of two faces)");
    edge("three faces", R"({"between": ["a", "b", "c"]})",
         R"(x has a "between" that is not a list of two faces)");
    edge("empty face", R"({"between": ["a", ""]})", "x is an empty name of a face");
}

void tst_ShapeReference::BadReferencesAreReported()
{
    QFETCH(bool, isEdge);
    QFETCH(QByteArray, json);
    try {
        if (isEdge)
            ReadEdgeReference("x", Json(json));
        else
            ReadFaceReference("x", Json(json));
        QFAIL("The reference was taken.");
    } catch (const JsonError& error) {
        QTEST(error.Reason(), "reason");
    }
}

void tst_ShapeReference::AListNamesItsEntry()
{
    const JsonSection section("x", Json(R"({"faces": ["a.b", 3]})"), {QLatin1String("faces")});
    try {
        ReadFaceReferences("x", section, QLatin1String("faces"));
        QFAIL("The list was taken.");
    } catch (const JsonError& error) {
        QCOMPARE(error.Reason(), QString(R"(x entry 2 of "faces" must be an object)"));
    }
}

TARN_TEST_MAIN(tst_ShapeReference)
#include "tst_ShapeReference.moc"
