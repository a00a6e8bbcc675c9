#include "KindRows.h"
#include "TestCase.h"

#include <cmath>

class tst_Combinations : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void BodiesMatchTheirFormulas_data();
    void BodiesMatchTheirFormulas() { CheckBody(); }
    void AFuseHasNoSeams_data();
    void AFuseHasNoSeams();
    void InvalidValuesAreReported_data();
    void InvalidValuesAreReported() { CheckFailure(); }
    void TooManyBodiesAreRefused();
};

void tst_Combinations::BodiesMatchTheirFormulas_data()
{
    AddBodyColumns();
    const Mass brick = Box(10, 20, 30);
    AddBody("fuse of boxes",
            Brick + R"(, {"name": "b", "kind": "box", "fields": {"x": 10, "y": 20, "z": 30}},
            {"name": "c", "kind": "move", "inputs": ["b"], "fields": {"dx": 4, "dy": 5, "dz": 6}},
            {"name": "d", "kind": "fuse", "inputs": ["a", "c"]})",
            Less(Sum(brick, Moved(brick, 4, 5, 6)), Moved(Box(6, 15, 24), 4, 5, 6)));
    AddBody("cut of boxes",
            Brick + R"(, {"name": "b", "kind": "box", "fields": {"x": 10, "y": 20, "z": 30}},
            {"name": "c", "kind": "move", "inputs": ["b"], "fields": {"dx": 4, "dy": 5, "dz": 6}},
            {"name": "d", "kind": "cut", "inputs": ["a", "c"]})",
            Less(brick, Moved(Box(6, 15, 24), 4, 5, 6)));
    AddBody("cut of a cylinder",
            Brick + R"(, {"name": "b", "kind": "cylinder", "fields": {"radius": 3, "height": 50}},
            {"name": "c", "kind": "move", "inputs": ["b"], "fields": {"dx": 5, "dy": 8, "dz": -9}},
            {"name": "d", "kind": "cut", "inputs": ["a", "c"]})",
            Less(brick, Moved(Cone(3, 3, 30, 360), 5, 8, 0)));
    AddBody("fuse of a cone on a cylinder",
            R"({"name": "a", "kind": "cylinder", "fields": {"radius": 8, "height": 10}},
           {"name": "b", "kind": "cone", "fields": {"baseRadius": 8, "topRadius": 0, "height": 6}},
           {"name": "c", "kind": "move", "inputs": ["b"], "fields": {"dz": 10}},
           {"name": "d", "kind": "fuse", "inputs": ["a", "c"]})",
            Sum(Cone(8, 8, 10, 360), Moved(Cone(8, 0, 6, 360), 0, 0, 10)));
    // Each loses the cap beyond the plane half way between the centres.
    AddBody(
        "fuse of spheres",
        R"({"name": "a", "kind": "sphere", "fields": {"radius": 5}},
           {"name": "b", "kind": "sphere", "fields": {"radius": 5}},
           {"name": "c", "kind": "move", "inputs": ["b"], "fields": {"dx": 6}},
           {"name": "d", "kind": "fuse", "inputs": ["a", "c"]})",
        Mass{2 * Ring(0, 5, -90, Radians(0) + std::asin(0.6) * 180 / Pi, 360).volume, {3, 0, 0}});
    AddBody("cut by several tools",
            Brick + R"(, {"name": "b", "kind": "box", "fields": {"x": 2, "y": 2, "z": 2}},
            {"name": "c", "kind": "rectangularArray", "inputs": ["b"],
             "fields": {"xNumber": 2, "yNumber": 2, "xDistance": 8, "yDistance": 18}},
            {"name": "d", "kind": "cut", "inputs": ["a", "c"]})",
            Less(Less(Less(Less(brick, Box(2, 2, 2)), Moved(Box(2, 2, 2), 8, 0, 0)),
                      Moved(Box(2, 2, 2), 0, 18, 0)),
                 Moved(Box(2, 2, 2), 8, 18, 0)));
    AddBody("common of boxes",
            Brick + R"(, {"name": "b", "kind": "box", "fields": {"moveX": 4, "moveY": 5, "z": 50}},
            {"name": "c", "kind": "common", "inputs": ["a", "b"]})",
            Moved(Box(6, 10, 30), 4, 5, 0));
    AddBody("common of three",
            Brick + R"(, {"name": "b", "kind": "box", "fields": {"moveX": 4, "moveY": 5, "z": 50}},
            {"name": "c", "kind": "box", "fields": {"x": 50, "moveZ": -3, "y": 50}},
            {"name": "d", "kind": "common", "inputs": ["a", "b", "c"]})",
            Moved(Box(6, 10, 7), 4, 5, 0));
    AddBody("common with a pattern",
            Brick + R"(, {"name": "b", "kind": "box", "fields": {"x": 2, "y": 2, "z": 2}},
            {"name": "c", "kind": "rectangularArray", "inputs": ["b"],
             "fields": {"xNumber": 2, "yNumber": 2, "xDistance": 9, "yDistance": 19}},
            {"name": "d", "kind": "common", "inputs": ["a", "c"]})",
            Sum(Sum(Box(2, 2, 2), Moved(Box(1, 2, 2), 9, 0, 0)),
                Sum(Moved(Box(2, 1, 2), 0, 19, 0), Moved(Box(1, 1, 2), 9, 19, 0))));
}

void tst_Combinations::AFuseHasNoSeams_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("faces");
    QTest::addColumn<int>("edges");
    const QByteArray fuse = R"(, {"name": "f", "kind": "fuse", "inputs": ["a", "b"]})";
    QTest::newRow("boxes in a row")
        << A10 + R"(, {"name": "b", "kind": "box", "fields": {"moveX": 10}})" + fuse << 6 << 12;
    QTest::newRow("an L")
        << A10 + R"(, {"name": "b", "kind": "box",
                                         "fields": {"x": 30, "moveX": 10}})" +
               R"(, {"name": "c", "kind": "box", "fields": {"y": 30, "moveY": 10}},
                                      {"name": "f", "kind": "fuse", "inputs": ["a", "b", "c"]})"
        << 8 << 18;
    QTest::newRow("cylinders on each other") << QByteArray(R"({"name": "a", "kind": "cylinder"},
                         {"name": "b", "kind": "cylinder", "fields": {"moveZ": 10}})") +
                                                    fuse
                                             << 3 << 3;
    QTest::newRow("cylinders on each other, turned, which the kernel cannot merge")
        << QByteArray(R"({"name": "a", "kind": "cylinder"},
                         {"name": "b", "kind": "cylinder", "fields": {"moveZ": 10, "turnZ": 70}})") +
               fuse
        << 4 << 6;
    QTest::newRow("flat faces beside what the kernel cannot merge")
        << QByteArray(R"({"name": "a", "kind": "cylinder"},
                         {"name": "b", "kind": "cylinder", "fields": {"moveZ": 10, "turnZ": 70}},
                         {"name": "c", "kind": "box", "fields": {"x": 30, "y": 2}},
                         {"name": "d", "kind": "box", "fields": {"x": 30, "y": 2, "moveX": 30}},
                         {"name": "e", "kind": "fuse", "inputs": ["a", "b", "c", "d"]})")
        << 8 << 16;
    QTest::newRow("two halves of a cylinder")
        << QByteArray(R"({"name": "a", "kind": "cylinder", "fields": {"angle": 180}},
                         {"name": "b", "kind": "cylinder",
                          "fields": {"angle": 180, "turnZ": 180}})") +
               fuse
        << 3 << 3;
}

void tst_Combinations::AFuseHasNoSeams()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, list);
    const TopoDS_Shape shape = FeatureBuilder::Build(List(list)).shape;
    QTEST(Count(shape, TopAbs_FACE), "faces");
    QTEST(Count(shape, TopAbs_EDGE), "edges");
}

void tst_Combinations::InvalidValuesAreReported_data()
{
    AddFailureColumns();
    AddFailure("nothing in common",
               A10 + R"(, {"name": "b", "kind": "box", "fields": {"moveX": 10}},
                     {"name": "c", "kind": "common", "inputs": ["a", "b"]})",
               "c: the bodies have no volume in common.");
    AddFailure("nothing left",
               Brick + R"(, {"name": "b", "kind": "box", "fields": {"x": 50, "y": 50, "z": 50}},
                     {"name": "c", "kind": "cut", "inputs": ["a", "b"]})",
               "c: nothing is left of the body.");
}

void tst_Combinations::TooManyBodiesAreRefused()
{
    const EmptyDesignStores stores;
    const QByteArray tools = A10 + R"(, {"name": "b", "kind": "rectangularArray", "inputs": ["a"],
                    "fields": {"xNumber": 500, "yNumber": 1, "xDistance": 20}})";
    for (const char* const kind : {"cut", "fuse", "common"}) {
        const QByteArray combined = QByteArray(R"({"name": "d", "kind": ")") + kind + "\", ";
        QCOMPARE(Reason(List(tools + R"(, {"name": "c", "kind": "sphere"}, )" + combined +
                             R"("inputs": ["c", "b"]})")),
                 QString("d: too many bodies to combine: 501 (maximum 500)."));
    }
}

TARN_TEST_MAIN(tst_Combinations)
#include "tst_Combinations.moc"
