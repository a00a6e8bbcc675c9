#include "BodyFormulas.h"
#include "EmptyDesignStores.h"
#include "NewFeature.h"
#include "TestCase.h"

class tst_FeatureBuilderFailures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TooManyBodiesInOneCutAreRefused();
    void TooManyBodiesInAllAreRefused();
    void WhatCannotBeBuiltNamesFeatureAndCause_data();
    void WhatCannotBeBuiltNamesFeatureAndCause();
    void AFailureChangesNothing();
};

void tst_FeatureBuilderFailures::TooManyBodiesInOneCutAreRefused()
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

void tst_FeatureBuilderFailures::TooManyBodiesInAllAreRefused()
{
    const EmptyDesignStores stores;
    FeatureList list = List(A10);
    Feature array(KindOf("rectangularArray"));
    array.inputs = QStringList("a");
    array.fields = QStringList({"100", "100", "20", "20"});
    for (int i = 0; i < 10; ++i) {
        array.name = QString("array_%1").arg(i);
        list.Append(array);
    }
    QCOMPARE(Reason(list),
             QString("array_9: this feature would exceed the limit of 100000 bodies."));
}

void tst_FeatureBuilderFailures::WhatCannotBeBuiltNamesFeatureAndCause_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QByteArray& list, const char* reason) {
        QTest::newRow(name) << list << QString(reason);
    };
    const auto one = [&](const char* name, const char* kind, const char* fields,
                         const char* reason) {
        row(name,
            QByteArray(R"({"name": "a", "kind": ")") + kind + R"(", "fields": {)" + fields + "}}",
            reason);
    };
    const auto on = [&](const char* name, const char* kind, const char* fields,
                        const char* reason) {
        row(name,
            Brick + R"(, {"name": "b", "kind": ")" + kind + R"(", "inputs": ["a"], "fields": {)" +
                fields + "}}",
            reason);
    };
    one("length 0", "box", R"("y": 0)", "a: Size y is 0, but has to be from 0.0001 to 1000000 mm.");
    one("negative length", "cylinder", R"("radius": -5)",
        "a: Radius is -5, but has to be from 0.0001 to 1000000 mm.");
    one("too small", "sphere", R"("radius": 1e-300)",
        "a: Radius is 1e-300, but has to be from 0.0001 to 1000000 mm.");
    one("too great", "box", R"("x": 1e300)",
        "a: Size x is 1e+300, but has to be from 0.0001 to 1000000 mm.");
    one("infinite", "box", R"("x": "1/0")",
        "a: Size x (\"1/0\") has no value: Position 1: an operation has no finite result, "
        "such as 1/0 or ln(0).");
    one("empty text", "box", R"("x": "")",
        "a: Size x (\"\") has no value: Position 1: the expression is empty.");
    one("angle 0", "cylinder", R"("angle": 0)",
        "a: Angle is 0, but has to be above 0 and at most 360 degrees.");
    one("angle above 360", "cone", R"("angle": 360.1)",
        "a: Angle is 360.1, but has to be above 0 and at most 360 degrees.");
    one("sphere from the pole", "sphere", R"("angle1": 90)",
        "a: Angle 1 is 90, but has to be at least -90 and below 90 degrees.");
    one("sphere to the pole", "sphere", R"("angle2": -90)",
        "a: Angle 2 is -90, but has to be above -90 and at most 90 degrees.");
    one("sphere, angles crossed", "sphere", R"("angle1": 30, "angle2": 20)",
        "a: angle 1 (30) has to be below angle 2 (20).");
    one("sphere, angles equal", "sphere", R"("angle1": 30, "angle2": 30)",
        "a: angle 1 (30) has to be below angle 2 (30).");
    one("tube as wide as the ring", "torus", R"("radius": 3, "sweepRadius": 3)",
        "a: the sweep radius (3) has to be below the radius (3).");
    one("torus, angle 1 at 0", "torus", R"("angle1": 0)",
        "a: Angle 1 is 0, but has to be at least -180 and below 0 degrees.");
    one("torus, angle 2 at 0", "torus", R"("angle2": 0)",
        "a: Angle 2 is 0, but has to be above 0 and at most 180 degrees.");
    one("top radius below 0", "cone", R"("topRadius": -1)",
        "a: Top radius is -1, but has to be 0 or from 0.0001 to 1000000 mm.");
    one("base radius 0", "cone", R"("baseRadius": 0)",
        "a: Base radius is 0, but has to be from 0.0001 to 1000000 mm.");
    one("wedge, x crossed", "wedge", R"("xmin": 15, "xmax": 5)",
        "a: X min (15) has to be below X max (5).");
    one("wedge, z equal", "wedge", R"("zmin": 8, "zmax": 8)",
        "a: Z min (8) has to be below Z max (8).");
    one("two edges", "polygon", R"("edges": 2)",
        "a: Number of edges is 2, but has to be a whole number from 3 to 1000.");
    one("six and a half edges", "polygon", R"("edges": 6.5)",
        "a: Number of edges is 6.5, but has to be a whole number from 3 to 1000.");
    one("too many edges", "polygon", R"("edges": 1000, "radius": 0.001)",
        "a: 1000 edges are too many for a radius of 0.001 mm.");
    one("flat extrusion", "polygon", R"("dx": 1, "dz": 0)",
        "a: its direction lies in the plane of the polygon.");
    one("extrusion to nowhere", "polygon", R"("dz": 0)", "a: its direction is zero.");

    on("rotation about nothing", "rotate", R"("dz": 0)", "b: its direction is zero.");
    on("rotation of 400", "rotate", R"("angle": 400)",
       "b: Angle is 400, but has to be from -360 to 360 degrees.");
    on("too far away", "move", R"("dx": 1e7)",
       "b: Distance x is 1e+07, but has to be from -1000000 to 1000000 mm.");
    on("mirror at no axis", "mirrorAxis", R"("dz": 1e-200)", "b: its direction is zero.");
    on("array about nothing", "polarArray", R"("dz": 0)", "b: its direction is zero.");
    on("no face there", "mirrorFace", R"("x": 5, "y": 5, "z": 31)",
       "b: there is no face at the point (5, 5, 31).");
    on("a point beside the face, in its plane", "mirrorFace", R"("x": 50, "y": 5, "z": 30)",
       "b: there is no face at the point (50, 5, 30).");
    on("two faces there", "mirrorFace", R"("x": 5, "y": 0, "z": 0)",
       "b: several faces meet at the point (5, 0, 0); choose a point that lies on one face only.");
    row("a round face",
        R"({"name": "a", "kind": "cylinder"},
           {"name": "b", "kind": "mirrorFace", "inputs": ["a"], "fields": {"x": 10, "z": 5}})",
        "b: the face at the point is not flat.");
    on("no edge there", "fillet", R"("x": 5, "y": 5, "z": 30)",
       "b: there is no edge at the point (5, 5, 30).");
    on("several edges there", "fillet", "",
       "b: several edges meet at the point (0, 0, 0); choose a point that lies on one edge only.");
    row("only a seam there",
        R"({"name": "a", "kind": "cylinder"},
           {"name": "b", "kind": "fillet", "inputs": ["a"], "fields": {"x": 10, "z": 5}})",
        "b: there is no edge at the point (10, 0, 5).");
    on("negative fillet", "fillet", R"("radius": -1)",
       "b: Radius is -1, but has to be 0 or from 0.0001 to 1000000 mm.");
    on("fillet that does not fit", "fillet", R"("radius": 25, "z": 15)",
       "b: a fillet of 25 mm cannot be built there; it may be too large for the faces beside the "
       "edge.");
    row("nothing left",
        Brick + R"(, {"name": "b", "kind": "box", "fields": {"x": 50, "y": 50, "z": 50}},
                     {"name": "c", "kind": "cut", "inputs": ["a", "b"]})",
        "c: nothing is left of the body.");
}

void tst_FeatureBuilderFailures::WhatCannotBeBuiltNamesFeatureAndCause()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, list);
    QTEST(Reason(List(list)), "reason");
}

void tst_FeatureBuilderFailures::AFailureChangesNothing()
{
    const EmptyDesignStores stores;
    StoreScalar("size", 10.0);
    const FeatureList good = List(R"({"name": "a", "kind": "box", "fields": {"x": "size"}})");
    BuiltPart part = FeatureBuilder::Build(good);
    const std::string before = Text(part.shape);
    FeatureList bad = good;
    Feature sphere(KindOf("sphere"));
    sphere.name = "b";
    sphere.fields[0] = "-size";
    bad.Append(sphere);
    QVERIFY_EXCEPTION_THROWN(part = FeatureBuilder::Build(bad), FeatureError);
    QCOMPARE(Text(part.shape), before);
    QCOMPARE(part.shapes.size(), std::size_t(1));
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), std::vector<QString>({"size"}));
    QCOMPARE(Text(FeatureBuilder::Build(good).shape), before);
}

TARN_TEST_MAIN(tst_FeatureBuilderFailures)
#include "tst_FeatureBuilderFailures.moc"
