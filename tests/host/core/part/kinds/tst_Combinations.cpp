#include "KindRows.h"
#include "TestCase.h"

#include <cmath>

class tst_Combinations : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void BodiesMatchTheirFormulas_data();
    void BodiesMatchTheirFormulas() { CheckBody(); }
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
}

void tst_Combinations::InvalidValuesAreReported_data()
{
    AddFailureColumns();
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
    for (const char* const kind : {"cut", "fuse"}) {
        const QByteArray combined = QByteArray(R"({"name": "d", "kind": ")") + kind + "\", ";
        QCOMPARE(Reason(List(tools + R"(, {"name": "c", "kind": "sphere"}, )" + combined +
                             R"("inputs": ["c", "b"]})")),
                 QString("d: too many bodies to combine: 501 (maximum 500)."));
    }
}

TARN_TEST_MAIN(tst_Combinations)
#include "tst_Combinations.moc"
