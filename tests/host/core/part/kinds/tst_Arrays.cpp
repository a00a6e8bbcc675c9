#include "KindRows.h"
#include "TestCase.h"

#include <TopoDS_Iterator.hxx>
#include <TopoDS_Shape.hxx>

#include <cmath>

class tst_Arrays : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void InstancesAreAtTheirPlaces_data();
    void InstancesAreAtTheirPlaces();
    void BodiesMatchTheirFormulas_data();
    void BodiesMatchTheirFormulas() { CheckBody(); }
    void InvalidValuesAreReported_data();
    void InvalidValuesAreReported() { CheckFailure(); }
    void ALargeArraySharesItsBody();
    void OverlappingInstancesAreFusedAndCutRight();
};

void tst_Arrays::InstancesAreAtTheirPlaces_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QByteArray>("fields");
    QTest::addColumn<QVector<double>>("places"); // The x and y of the bodies' centres, in pairs.
    QTest::addColumn<QString>("reason");
    const auto polar = [](const char* name, const char* angle, const char* number,
                          const QVector<double>& places, const char* reason = "it was built") {
        QTest::newRow(name) << QByteArray("polarArray")
                            << QByteArray("\"angle\": ") + angle + ", \"number\": " + number
                            << places << QString(reason);
    };
    const double h = std::sqrt(0.5);
    const double s = std::sqrt(0.75);
    polar("polar, 90 degrees", "90", "3", {1, 0, h, h, 0, 1});
    polar("polar, 180 degrees", "180", "3", {1, 0, 0, 1, -1, 0});
    polar("polar, 360 degrees", "360", "4", {1, 0, 0, 1, -1, 0, 0, -1});
    polar("polar, 360 degrees and 3", "360", "3", {1, 0, -0.5, s, -0.5, -s});
    polar("polar, 360 degrees but for rounding", "\"360 * (1 - 1e-13)\"", "2", {1, 0, -1, 0});
    polar("polar, just less than 360 degrees", "\"360 - 60\"", "2", {1, 0, 0.5, -s});
    polar("polar, negative", "-90", "2", {1, 0, 0, -1});
    polar("polar, -360 degrees", "-360", "4", {1, 0, 0, -1, -1, 0, 0, 1});
    polar("polar, one", "90", "1", {1, 0});
    polar("polar, one of a full turn", "360", "1", {1, 0});
    polar("polar, one at angle 0", "0", "1", {1, 0});
    polar("polar, none", "90", "0", {},
          "b: Number is 0, but has to be a whole number from 1 to 10000.");
    polar("polar, less than none", "90", "-3", {},
          "b: Number is -3, but has to be a whole number from 1 to 10000.");
    polar("polar, too many", "90", "10001", {},
          "b: Number is 10001, but has to be a whole number from 1 to 10000.");
    polar("polar, two and a half", "90", "2.5", {},
          "b: Number is 2.5, but has to be a whole number from 1 to 10000.");
    polar("polar, expression", "90", "\"5 / 2\"", {},
          "b: Number (\"5 / 2\") is 2.5, but has to be a whole number from 1 to 10000.");
    polar("polar, more than a turn", "361", "4", {},
          "b: Angle is 361, but has to be from -360 to 360 degrees.");
    polar("polar, no angle", "0", "2", {},
          "b: the instances would coincide: the angle between them is 0 degrees.");

    const auto rectangular = [](const char* name, const char* numbers, const char* distances,
                                const QVector<double>& places,
                                const char* reason = "it was built") {
        const QStringList n = QString(numbers).split(' ');
        const QStringList d = QString(distances).split(' ');
        QTest::newRow(name) << QByteArray("rectangularArray")
                            << QString(R"("xNumber": %1, "yNumber": %2,
                                          "xDistance": %3, "yDistance": %4)")
                                   .arg(n[0], n[1], d[0], d[1])
                                   .toUtf8()
                            << places << QString(reason);
    };
    rectangular("rectangular", "3 2", "10 20", {1, 0, 11, 0, 21, 0, 1, 20, 11, 20, 21, 20});
    rectangular("rectangular, backwards", "2 2", "-10 -20", {1, 0, -9, 0, 1, -20, -9, -20});
    rectangular("rectangular, one", "1 1", "0 0", {1, 0});
    rectangular("rectangular, a column", "1 2", "0 5", {1, 0, 1, 5});
    rectangular("rectangular, none in x", "0 2", "1 1", {},
                "b: Number in x is 0, but has to be a whole number from 1 to 10000.");
    rectangular("rectangular, none in y", "2 0", "1 1", {},
                "b: Number in y is 0, but has to be a whole number from 1 to 10000.");
    rectangular("rectangular, too many in y", "1 10001", "1 1", {},
                "b: Number in y is 10001, but has to be a whole number from 1 to 10000.");
    rectangular("rectangular, too many together", "100 101", "1 1", {},
                "b: the array would have 10100 bodies (maximum 10000).");
    rectangular("rectangular, no distance in x", "2 2", "0 1", {},
                "b: the instances would coincide: their distance in x is 0 mm.");
    rectangular("rectangular, no distance in y", "2 2", "1 0", {},
                "b: the instances would coincide: their distance in y is 0 mm.");
    rectangular("rectangular, too far", "101 1", "10001 1", {},
                "b: the array would extend more than 1000000 mm in x.");
}

void tst_Arrays::InstancesAreAtTheirPlaces()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, fields);
    QFETCH(QVector<double>, places);
    const FeatureList list = List(R"({"name": "0", "kind": "sphere", "fields": {"radius": 0.25}},
                {"name": "a", "kind": "move", "inputs": ["0"], "fields": {"dx": 1}},
                {"name": "b", "inputs": ["a"], "kind": ")" +
                                  kind + R"(", "fields": {)" + fields + "}}");
    QTEST(Reason(list), "reason");
    if (places.isEmpty())
        return;
    const BuiltPart part = FeatureBuilder::Build(list);
    QVector<TopoDS_Shape> bodies;
    if (part.shape.ShapeType() == TopAbs_SOLID) {
        // One instance is the original itself.
        QVERIFY(part.shape.IsEqual(part.shapes[1]));
        bodies << part.shape;
    } else {
        for (TopoDS_Iterator it(part.shape); it.More(); it.Next())
            bodies << it.Value();
    }
    QCOMPARE(bodies.size(), places.size() / 2);
    for (int body = 0; body < bodies.size(); ++body) {
        const Mass mass = MassOf(bodies[body]);
        QVERIFY2(
            AreClose(mass, {4.0 / 3.0 * Pi / 64.0, {places[2 * body], places[2 * body + 1], 0}}),
            Shown(mass));
    }
}

void tst_Arrays::ALargeArraySharesItsBody()
{
    const EmptyDesignStores stores;
    const FeatureList list =
        List(A10 + R"(, {"name": "b", "kind": "rectangularArray", "inputs": ["a"],
                         "fields": {"xNumber": 100, "yNumber": 100, "xDistance": 20,
                                    "yDistance": 20}})");
    const BuiltPart part = FeatureBuilder::Build(list);
    int bodies = 0;
    for (TopoDS_Iterator it(part.shape); it.More(); it.Next()) {
        QVERIFY(it.Value().IsPartner(part.shapes[0]));
        ++bodies;
    }
    QCOMPARE(bodies, 10000);

    // An array of arrays would have a hundred million.
    FeatureList more = list;
    Feature again = list.At(1);
    again.name = "c";
    again.inputs = QStringList("b");
    more.Append(again);
    QCOMPARE(Reason(more), QString("c: the array would have 100000000 bodies (maximum 10000)."));
}

void tst_Arrays::OverlappingInstancesAreFusedAndCutRight()
{
    const EmptyDesignStores stores;
    // Three bricks 10 wide at a distance of 5 take up a width of 20.
    const QByteArray row = Brick + R"(, {"name": "b", "kind": "rectangularArray", "inputs": ["a"],
        "fields": {"xNumber": 3, "yNumber": 1, "xDistance": 5}},)";
    const QByteArray slab =
        R"({"name": "c", "kind": "box", "fields": {"x": 100, "y": 20, "z": 30}},)";
    const Mass fused =
        Built(row + R"({"name": "c", "kind": "box", "fields": {"x": 1, "y": 1, "z": 1}},
                       {"name": "d", "kind": "fuse", "inputs": ["b", "c"]})");
    QVERIFY2(AreClose(fused, Box(20, 20, 30)), Shown(fused));
    const Mass cut = Built(row + slab + R"({"name": "d", "kind": "cut", "inputs": ["c", "b"]})");
    QVERIFY2(AreClose(cut, Moved(Box(80, 20, 30), 20, 0, 0)), Shown(cut));
}

void tst_Arrays::BodiesMatchTheirFormulas_data()
{
    AddBodyColumns();
    const auto placed = [](const char* name, const char* kind, const char* fields,
                           const Mass& expected) {
        AddBody(name, OnBrick(kind, fields), expected);
    };
    const Mass brick = Box(10, 20, 30);
    placed("array along a row", "rectangularArray",
           R"("xNumber": 3, "yNumber": 1, "xDistance": 100, "yDistance": 0)",
           Mass{3 * brick.volume, {105, 10, 15}});
    placed("array in rows", "rectangularArray",
           R"("xNumber": 3, "yNumber": 2, "xDistance": -100, "yDistance": 50)",
           Mass{6 * brick.volume, {-95, 35, 15}});
    placed("box about its middle, which looks different after a quarter", "polarArray",
           R"("x": 5, "y": 10, "angle": 90, "number": 2)", Mass{2 * brick.volume, {5, 10, 15}});
    placed("array round a circle", "polarArray", R"("x": 200, "angle": 360, "number": 5)",
           Mass{5 * brick.volume, {200, 0, 15}});
}

void tst_Arrays::InvalidValuesAreReported_data()
{
    AddFailureColumns();
    const auto on = [](const char* name, const char* kind, const char* fields, const char* reason) {
        AddFailure(name, OnBrick(kind, fields), reason);
    };
    on("array about nothing", "polarArray", R"("dz": 0)", "b: its direction is zero.");
    const auto coincident = [](double degrees) {
        return QString("b: the instances would coincide: a turn of %1 degrees puts a body in the "
                       "place of another.")
            .arg(degrees)
            .toUtf8();
    };
    const auto array = [](const QByteArray& body, const char* fields) {
        return body + R"(, {"name": "b", "kind": "polarArray", "inputs": ["a"], "fields": {)" +
               fields + "}}";
    };
    AddFailure("cylinder about its axis", array(Single("cylinder", ""), R"("angle": 90)"),
               coincident(30));
    AddFailure("ball about any axis through it", array(Single("sphere", ""), R"("dx": 1, "dy": 2)"),
               coincident(30));
    on("box about its middle", "polarArray", R"("x": 5, "y": 10, "angle": 360, "number": 4)",
       coincident(180));
    AddFailure("pattern upon itself",
               OnBrick("rectangularArray", R"("xNumber": 2, "yNumber": 1)") +
                   R"(, {"name": "c", "kind": "polarArray", "inputs": ["b"],
                         "fields": {"x": 30, "y": 10, "angle": 180, "number": 2}})",
               coincident(180).replace("b: ", "c: "));
}

TARN_TEST_MAIN(tst_Arrays)
#include "tst_Arrays.moc"
