#include "KindRows.h"
#include "TestCase.h"

class tst_EdgeFeatures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void BodiesMatchTheirFormulas_data();
    void BodiesMatchTheirFormulas() { CheckBody(); }
    void InvalidValuesAreReported_data();
    void InvalidValuesAreReported() { CheckFailure(); }
};

void tst_EdgeFeatures::BodiesMatchTheirFormulas_data()
{
    AddBodyColumns();
    const auto placed = [](const char* name, const char* kind, const char* fields,
                           const Mass& expected) {
        AddBody(name, OnBrick(kind, fields), expected);
    };
    const Mass brick = Box(10, 20, 30);
    // A fillet of 2 removes from the edge at x = y = 0 a square less a quarter of a disc.
    const double disc = Pi * 4.0 / 4.0;
    const double middle = (4.0 * 1.0 - disc * (2.0 - 8.0 / (3.0 * Pi))) / (4.0 - disc);
    placed("fillet", "fillet", R"("radius": 2, "z": 15)",
           Less(brick, Mass{30 * (4.0 - disc), {middle, middle, 15}}));
    placed("fillet of radius 0", "fillet", R"("radius": 0, "z": 15)", brick);
    AddBody("fillet of two edges",
            Brick + R"(, {"name": "b", "kind": "fillet", "inputs": ["a"], "fields": {"radius": 2},
                          "edges": [{"between": ["a.xmin", "a.ymin"]}, {"at": [10, 20, 15]}]})",
            Mass{6000 - 2 * 30 * (4.0 - disc), {5, 10, 15}});
    placed("chamfer", "chamfer", R"("distance": 3, "z": 15)",
           Less(brick, Mass{30 * 4.5, {1, 1, 15}}));
    placed("chamfer of 0", "chamfer", R"("distance": 0, "z": 15)", brick);
    AddBody("chamfer of a rim",
            R"({"name": "a", "kind": "cylinder", "fields": {"radius": 10, "height": 20}},
               {"name": "b", "kind": "chamfer", "inputs": ["a"], "fields": {"distance": 2},
                "edges": [{"between": ["a.side", "a.top"]}]})",
            Sum(Cone(10, 10, 18, 360), Moved(Cone(10, 8, 2, 360), 0, 0, 18)));
    // The same cross-section carried round the rim; its moments are those of square and disc.
    const double area = 4.0 - disc;
    const double first = 4.0 - 8.0 / 3.0;
    const double mixed = 4.0 - 16.0 / 8.0;
    AddBody(
        "fillet of a rim, at its seam",
        R"({"name": "a", "kind": "cylinder", "fields": {"radius": 10, "height": 20}},
           {"name": "b", "kind": "fillet", "inputs": ["a"],
            "fields": {"radius": 2, "x": 10, "y": 0, "z": 20}})",
        Less(Cone(10, 10, 20, 360), Mass{2 * Pi * (8 * area + first),
                                         {0, 0, 18 + (8 * first + mixed) / (8 * area + first)}}));
}

void tst_EdgeFeatures::InvalidValuesAreReported_data()
{
    AddFailureColumns();
    const auto on = [](const char* name, const char* kind, const char* fields, const char* reason) {
        AddFailure(name, OnBrick(kind, fields), reason);
    };
    on("no edge there", "fillet", R"("x": 5, "y": 5, "z": 30)",
       "b: no edge lies at the point (5, 5, 30).");
    AddFailure("no face of this name", Brick + R"(, {"name": "b", "kind": "fillet", "inputs": ["a"],
                             "edges": [{"between": ["a.xmin", "c.side"]}]})",
               "b: the part has no face \"c.side\".");
    on("chamfer that does not fit", "chamfer", R"("distance": 25, "z": 15)",
       "b: a chamfer of 25 mm cannot be built there; it may be too large for the faces beside the "
       "edge.");
    on("several edges there", "fillet", "",
       "b: several edges meet at the point (0, 0, 0); choose a point that lies on one edge only.");
    AddFailure("only a seam there",
               R"({"name": "a", "kind": "cylinder"},
           {"name": "b", "kind": "fillet", "inputs": ["a"], "fields": {"x": 10, "z": 5}})",
               "b: no edge lies at the point (10, 0, 5).");
    on("negative fillet", "fillet", R"("radius": -1)",
       "b: Radius is -1, but has to be 0 or from 0.0001 to 1000000 mm.");
    on("fillet that does not fit", "fillet", R"("radius": 25, "z": 15)",
       "b: a fillet of 25 mm cannot be built there; it may be too large for the faces beside the "
       "edge.");
}

TARN_TEST_MAIN(tst_EdgeFeatures)
#include "tst_EdgeFeatures.moc"
