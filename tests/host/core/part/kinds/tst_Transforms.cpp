#include "KindRows.h"
#include "TestCase.h"

class tst_Transforms : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void BodiesMatchTheirFormulas_data();
    void BodiesMatchTheirFormulas() { CheckBody(); }
    void InvalidValuesAreReported_data();
    void InvalidValuesAreReported() { CheckFailure(); }
};

void tst_Transforms::BodiesMatchTheirFormulas_data()
{
    AddBodyColumns();
    const auto placed = [](const char* name, const char* kind, const char* fields,
                           const Mass& expected) {
        AddBody(name, OnBrick(kind, fields), expected);
    };
    const Mass brick = Box(10, 20, 30);
    const auto at = [&](double x, double y, double z) {
        return Mass{brick.volume, {x, y, z}};
    };
    placed("move", "move", R"("dx": 1, "dy": -2, "dz": 3)", at(6, 8, 18));
    placed("rotate", "rotate", R"("angle": 90)", at(-10, 5, 15));
    placed("rotate about x", "rotate", R"("dx": 2, "dz": 0, "angle": -90)", at(5, 15, -10));
    placed("rotate about a point", "rotate", R"("x": 5, "y": 10, "angle": 33)", at(5, 10, 15));
    placed("rotate by 30", "rotate", R"("angle": 30)",
           at(5 * std::sqrt(0.75) - 5, 2.5 + 10 * std::sqrt(0.75), 15));
    placed("mirror at a point", "mirrorPoint", R"("x": 1, "y": 2, "z": 3)", at(-3, -6, -9));
    placed("mirror at an axis", "mirrorAxis", R"("x": 1, "y": 2)", at(-3, -6, 15));
    placed("mirror at a face", "mirrorFace", R"("x": 10, "y": 10, "z": 15)", at(15, 10, 15));
    placed("mirror at the face below", "mirrorFace", R"("x": 3, "y": 4, "z": 0)", at(5, 10, -15));
    AddBody("twice mirrored is the original",
            Brick + R"(, {"name": "b", "kind": "mirrorPoint", "inputs": ["a"], "fields": {"x": 7}},
                     {"name": "c", "kind": "mirrorPoint", "inputs": ["b"], "fields": {"x": 7}})",
            brick);
}

void tst_Transforms::InvalidValuesAreReported_data()
{
    AddFailureColumns();
    const auto on = [](const char* name, const char* kind, const char* fields, const char* reason) {
        AddFailure(name, OnBrick(kind, fields), reason);
    };
    on("rotation about nothing", "rotate", R"("dz": 0)", "b: its direction is zero.");
    on("rotation of 400", "rotate", R"("angle": 400)",
       "b: Angle is 400, but has to be from -360 to 360 degrees.");
    on("too far away", "move", R"("dx": 1e7)",
       "b: Distance x is 1e+07, but has to be from -1000000 to 1000000 mm.");
    on("mirror at no axis", "mirrorAxis", R"("dz": 1e-200)", "b: its direction is zero.");
    on("no face there", "mirrorFace", R"("x": 5, "y": 5, "z": 31)",
       "b: no face lies at the point (5, 5, 31).");
    on("a point beside the face, in its plane", "mirrorFace", R"("x": 50, "y": 5, "z": 30)",
       "b: no face lies at the point (50, 5, 30).");
    on("two faces there", "mirrorFace", R"("x": 5, "y": 0, "z": 0)",
       "b: several faces meet at the point (5, 0, 0); choose a point that lies on one face only.");
    AddFailure("a round face",
               R"({"name": "a", "kind": "cylinder"},
           {"name": "b", "kind": "mirrorFace", "inputs": ["a"], "fields": {"x": 10, "z": 5}})",
               "b: the face to mirror at is not flat.");
}

TARN_TEST_MAIN(tst_Transforms)
#include "tst_Transforms.moc"
