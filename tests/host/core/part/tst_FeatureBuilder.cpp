#include "BodyFormulas.h"
#include "EmptyDesignStores.h"
#include "FeatureBuilder.h"
#include "FeatureList.h"
#include "GlobalParaMeterMgr.h"
#include "JsonSection.h"
#include "NewFeature.h"
#include "ParameterEvaluator.h"
#include "Project.h"
#include "StepFile.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <QDir>
#include <TopoDS_Iterator.hxx>
#include <TopoDS_Shape.hxx>

#include <array>
#include <random>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

class tst_FeatureBuilder : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void VolumeAndCentreAreThoseOfTheFormula_data();
    void VolumeAndCentreAreThoseOfTheFormula();
    void TheSampleFlangeHasTheVolumeOfItsFormula_data();
    void TheSampleFlangeHasTheVolumeOfItsFormula();
    void ArraysFollowTheirRules_data();
    void ArraysFollowTheirRules();
    void ALargeArraySharesItsBody();
    void OverlappingInstancesAreFusedAndCutRight();
    void ThePartIsWhatNoFeatureUses();
    void SuppressedFeaturesStandAside_data();
    void SuppressedFeaturesStandAside();
    void EveryNumericFieldTakesAnExpression_data();
    void EveryNumericFieldTakesAnExpression();
    void ImportedBodiesAreUsedLikeOthers();
    void RandomListsAreBuiltTheSameTwice();
};

Q_DECLARE_METATYPE(Mass)

void tst_FeatureBuilder::VolumeAndCentreAreThoseOfTheFormula_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<Mass>("expected");
    const auto row = [](const char* name, const QByteArray& list, const Mass& expected) {
        QTest::newRow(name) << list << expected;
    };
    const auto primitive = [&](const char* name, const char* kind, const char* fields,
                               const Mass& expected) {
        row(name,
            QByteArray(R"({"name": "a", "kind": ")") + kind + R"(", "fields": {)" + fields + "}}",
            expected);
    };
    primitive("box", "box", R"("x": 1.5, "y": 20, "z": 0.3)", Box(1.5, 20, 0.3));
    primitive("greatest box", "box", R"("x": 1e6, "y": 1e6, "z": 1e6)", Box(1e6, 1e6, 1e6));
    primitive("least box", "box", R"("x": 1e-4, "y": 1e-4, "z": 1e-4)", Box(1e-4, 1e-4, 1e-4));
    primitive("cylinder", "cylinder", R"("radius": 7, "height": 11)", Cone(7, 7, 11, 360));
    primitive("cylinder, quarter", "cylinder", R"("radius": 7, "height": 11, "angle": 90)",
              Cone(7, 7, 11, 90));
    primitive("cylinder, odd angle", "cylinder", R"("radius": 7, "height": 11, "angle": 287.3)",
              Cone(7, 7, 11, 287.3));
    primitive("cylinder, thin slice", "cylinder", R"("radius": 7, "height": 11, "angle": 0.5)",
              Cone(7, 7, 11, 0.5));
    primitive("sphere", "sphere", R"("radius": 5)", Ring(0, 5, -90, 90, 360));
    primitive("half sphere", "sphere", R"("radius": 5, "angle1": 0)", Ring(0, 5, 0, 90, 360));
    primitive("sphere, zone", "sphere", R"("radius": 5, "angle1": -30, "angle2": 45)",
              Ring(0, 5, -30, 45, 360));
    primitive("sphere, cap above", "sphere", R"("radius": 5, "angle1": 20, "angle2": 90)",
              Ring(0, 5, 20, 90, 360));
    primitive("sphere, cap below", "sphere", R"("radius": 5, "angle2": -20)",
              Ring(0, 5, -90, -20, 360));
    primitive("sphere, slice", "sphere", R"("radius": 5, "angle3": 60)", Ring(0, 5, -90, 90, 60));
    primitive("sphere, slice of a zone", "sphere",
              R"("radius": 5, "angle1": -10, "angle2": 70, "angle3": 200)",
              Ring(0, 5, -10, 70, 200));
    primitive("torus", "torus", R"("radius": 10, "sweepRadius": 3)", Ring(10, 3, -180, 180, 360));
    primitive("torus, half ring", "torus", R"("radius": 10, "sweepRadius": 3, "angle3": 180)",
              Ring(10, 3, -180, 180, 180));
    primitive("torus, outer half", "torus",
              R"("radius": 10, "sweepRadius": 3, "angle1": -90, "angle2": 90)",
              Ring(10, 3, -90, 90, 360));
    primitive("torus, part of tube and ring", "torus",
              R"("radius": 10, "sweepRadius": 3, "angle1": -60, "angle2": 135, "angle3": 250)",
              Ring(10, 3, -60, 135, 250));
    primitive("cone", "cone", R"("baseRadius": 10, "topRadius": 5, "height": 12)",
              Cone(10, 5, 12, 360));
    primitive("cone, wider above", "cone", R"("baseRadius": 3, "topRadius": 8, "height": 2)",
              Cone(3, 8, 2, 360));
    primitive("cone with a tip", "cone", R"("baseRadius": 10, "topRadius": 0, "height": 12)",
              Cone(10, 0, 12, 360));
    primitive("cone, slice", "cone",
              R"("baseRadius": 10, "topRadius": 5, "height": 12, "angle": 120)",
              Cone(10, 5, 12, 120));
    primitive("cone with a tip, slice", "cone",
              R"("baseRadius": 10, "topRadius": 0, "height": 12, "angle": 300)",
              Cone(10, 0, 12, 300));
    primitive("cone without slope", "cone",
              R"("baseRadius": 5, "topRadius": 5, "height": 12, "angle": 45)", Cone(5, 5, 12, 45));
    primitive("wedge", "wedge", "", Wedge(20, 30, 30, 5, 15, 8, 20));
    primitive("wedge, slanted", "wedge",
              R"("x": 7, "z": 3, "height": 5, "xmin": -2, "xmax": 11, "zmin": 1, "zmax": 9)",
              Wedge(7, 3, 5, -2, 11, 1, 9));
    primitive("polygon", "polygon", R"("edges": 6, "radius": 10, "length": 4)",
              Polygon(6, 10, 4, 0, 0, 1));
    primitive("triangle downwards", "polygon", R"("edges": 3, "radius": 2, "length": 4, "dz": -2)",
              Polygon(3, 2, 4, 0, 0, -1));
    primitive("polygon, slanted", "polygon",
              R"("edges": 5, "radius": 2, "length": 4, "dx": 1, "dy": 2, "dz": 3)",
              Polygon(5, 2, 4, 1, 2, 3));
    primitive("polygon of many edges", "polygon", R"("edges": 1000, "radius": 50, "length": 4)",
              Polygon(1000, 50, 4, 0, 0, 1));

    const auto placed = [&](const char* name, const char* kind, const char* fields,
                            const Mass& expected) {
        row(name,
            Brick + R"(, {"name": "b", "kind": ")" + kind + R"(", "inputs": ["a"], "fields": {)" +
                fields + "}}",
            expected);
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
    placed("array along a row", "rectangularArray",
           R"("xNumber": 3, "yNumber": 1, "xDistance": 100, "yDistance": 0)",
           Mass{3 * brick.volume, {105, 10, 15}});
    placed("array in rows", "rectangularArray",
           R"("xNumber": 3, "yNumber": 2, "xDistance": -100, "yDistance": 50)",
           Mass{6 * brick.volume, {-95, 35, 15}});
    placed("array round a circle", "polarArray", R"("x": 200, "angle": 360, "number": 5)",
           Mass{5 * brick.volume, {200, 0, 15}});
    row("twice mirrored is the original",
        Brick + R"(, {"name": "b", "kind": "mirrorPoint", "inputs": ["a"], "fields": {"x": 7}},
                     {"name": "c", "kind": "mirrorPoint", "inputs": ["b"], "fields": {"x": 7}})",
        brick);

    row("fuse of boxes",
        Brick + R"(, {"name": "b", "kind": "box", "fields": {"x": 10, "y": 20, "z": 30}},
            {"name": "c", "kind": "move", "inputs": ["b"], "fields": {"dx": 4, "dy": 5, "dz": 6}},
            {"name": "d", "kind": "fuse", "inputs": ["a", "c"]})",
        Less(Sum(brick, Moved(brick, 4, 5, 6)), Moved(Box(6, 15, 24), 4, 5, 6)));
    row("cut of boxes",
        Brick + R"(, {"name": "b", "kind": "box", "fields": {"x": 10, "y": 20, "z": 30}},
            {"name": "c", "kind": "move", "inputs": ["b"], "fields": {"dx": 4, "dy": 5, "dz": 6}},
            {"name": "d", "kind": "cut", "inputs": ["a", "c"]})",
        Less(brick, Moved(Box(6, 15, 24), 4, 5, 6)));
    row("cut of a cylinder",
        Brick + R"(, {"name": "b", "kind": "cylinder", "fields": {"radius": 3, "height": 50}},
            {"name": "c", "kind": "move", "inputs": ["b"], "fields": {"dx": 5, "dy": 8, "dz": -9}},
            {"name": "d", "kind": "cut", "inputs": ["a", "c"]})",
        Less(brick, Moved(Cone(3, 3, 30, 360), 5, 8, 0)));
    row("fuse of a cone on a cylinder",
        R"({"name": "a", "kind": "cylinder", "fields": {"radius": 8, "height": 10}},
           {"name": "b", "kind": "cone", "fields": {"baseRadius": 8, "topRadius": 0, "height": 6}},
           {"name": "c", "kind": "move", "inputs": ["b"], "fields": {"dz": 10}},
           {"name": "d", "kind": "fuse", "inputs": ["a", "c"]})",
        Sum(Cone(8, 8, 10, 360), Moved(Cone(8, 0, 6, 360), 0, 0, 10)));
    // Each loses the cap beyond the plane half way between the centres.
    row("fuse of spheres",
        R"({"name": "a", "kind": "sphere", "fields": {"radius": 5}},
           {"name": "b", "kind": "sphere", "fields": {"radius": 5}},
           {"name": "c", "kind": "move", "inputs": ["b"], "fields": {"dx": 6}},
           {"name": "d", "kind": "fuse", "inputs": ["a", "c"]})",
        Mass{2 * Ring(0, 5, -90, Radians(0) + std::asin(0.6) * 180 / Pi, 360).volume, {3, 0, 0}});
    row("cut by several tools",
        Brick + R"(, {"name": "b", "kind": "box", "fields": {"x": 2, "y": 2, "z": 2}},
            {"name": "c", "kind": "rectangularArray", "inputs": ["b"],
             "fields": {"xNumber": 2, "yNumber": 2, "xDistance": 8, "yDistance": 18}},
            {"name": "d", "kind": "cut", "inputs": ["a", "c"]})",
        Less(Less(Less(Less(brick, Box(2, 2, 2)), Moved(Box(2, 2, 2), 8, 0, 0)),
                  Moved(Box(2, 2, 2), 0, 18, 0)),
             Moved(Box(2, 2, 2), 8, 18, 0)));

    // What a fillet of 2 takes from the edge at x = y = 0: a square less a quarter of a disc.
    const double disc = Pi * 4.0 / 4.0;
    const double middle = (4.0 * 1.0 - disc * (2.0 - 8.0 / (3.0 * Pi))) / (4.0 - disc);
    placed("fillet", "fillet", R"("radius": 2, "z": 15)",
           Less(brick, Mass{30 * (4.0 - disc), {middle, middle, 15}}));
    placed("fillet of radius 0", "fillet", R"("radius": 0, "z": 15)", brick);
    // The same cross-section carried round the rim; its moments are those of square and disc.
    const double area = 4.0 - disc;
    const double first = 4.0 - 8.0 / 3.0;
    const double mixed = 4.0 - 16.0 / 8.0;
    row("fillet of a rim, at its seam",
        R"({"name": "a", "kind": "cylinder", "fields": {"radius": 10, "height": 20}},
           {"name": "b", "kind": "fillet", "inputs": ["a"],
            "fields": {"radius": 2, "x": 10, "y": 0, "z": 20}})",
        Less(Cone(10, 10, 20, 360), Mass{2 * Pi * (8 * area + first),
                                         {0, 0, 18 + (8 * first + mixed) / (8 * area + first)}}));
}

void tst_FeatureBuilder::VolumeAndCentreAreThoseOfTheFormula()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, list);
    QFETCH(Mass, expected);
    const Mass built = Built(list);
    QVERIFY2(AreClose(built, expected), "built " + Shown(built) + ", formula " + Shown(expected));
}

// Plate and hub less bore and holes, and the ring that the fillet fills between hub and plate.
static double FlangeVolume(double bore, double count, double fillet)
{
    const double outer = 200.0 * 200.0;
    const double hub = 112.0 * 112.0;
    const double ring =
        2.0 * Pi *
        ((56.0 + fillet) * fillet * fillet * (1.0 - Pi / 4.0) - fillet * fillet * fillet / 6.0);
    return Pi / 4.0 *
               ((outer - bore * bore - count * 18.0 * 18.0) * 20.0 + (hub - bore * bore) * 30.0) +
           ring;
}

void tst_FeatureBuilder::TheSampleFlangeHasTheVolumeOfItsFormula_data()
{
    QTest::addColumn<double>("count");
    QTest::addColumn<double>("fillet");
    QTest::addColumn<int>("faces");
    QTest::newRow("one hole") << 1.0 << 0.0 << 7;
    QTest::newRow("seven holes") << 7.0 << 0.0 << 13;
    QTest::newRow("four holes, fillet") << 4.0 << 5.0 << 11;
    QTest::newRow("two holes, large fillet") << 2.0 << 12.0 << 9;
    QTest::newRow("holes side by side") << 27.0 << 5.0 << 34;
}

void tst_FeatureBuilder::TheSampleFlangeHasTheVolumeOfItsFormula()
{
    const EmptyDesignStores stores;
    QFETCH(double, count);
    QFETCH(double, fillet);
    const Project project = Project::Load(Project::SamplePath());
    project.FillParameterStore();
    StoreScalar("bolt_count", count);
    StoreScalar("fillet_radius", fillet);
    QVERIFY(EvaluateParameters().empty());
    const TopoDS_Shape flange = project.Build().shape;
    const double expected = FlangeVolume(70.0, count, fillet);
    const double built = MassOf(flange).volume;
    QVERIFY2(std::abs(built - expected) <= 1e-9 * expected,
             qPrintable(QString::number(built, 'g', 17)));
    QCOMPARE(flange.ShapeType(), TopAbs_SOLID);
    QTEST(Count(flange, TopAbs_FACE), "faces");
}

void tst_FeatureBuilder::ArraysFollowTheirRules_data()
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

void tst_FeatureBuilder::ArraysFollowTheirRules()
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

void tst_FeatureBuilder::ALargeArraySharesItsBody()
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

void tst_FeatureBuilder::OverlappingInstancesAreFusedAndCutRight()
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

void tst_FeatureBuilder::ThePartIsWhatNoFeatureUses()
{
    const EmptyDesignStores stores;
    QVERIFY(FeatureBuilder::Build(FeatureList()).shape.IsNull());

    const BuiltPart one = FeatureBuilder::Build(List(A10));
    QVERIFY(one.shape.IsEqual(one.shapes[0]));
    QCOMPARE(one.shape.ShapeType(), TopAbs_SOLID);

    const BuiltPart two = FeatureBuilder::Build(List(A10 + R"(, {"name": "b", "kind": "sphere"},
                        {"name": "c", "kind": "move", "inputs": ["a"], "fields": {"dx": 50}})"));
    QCOMPARE(two.shapes.size(), std::size_t(3));
    QCOMPARE(two.shape.ShapeType(), TopAbs_COMPOUND);
    TopoDS_Iterator it(two.shape);
    QVERIFY(it.Value().IsEqual(two.shapes[1]));
    it.Next();
    QVERIFY(it.Value().IsEqual(two.shapes[2]));
    it.Next();
    QVERIFY(!it.More());
}

void tst_FeatureBuilder::SuppressedFeaturesStandAside_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<double>("volume"); // 0 where there is no part.
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QByteArray& list, double volume,
                        const char* reason = "it was built") {
        QTest::newRow(name) << list << volume << QString(reason);
    };
    const QByteArray off = "\"suppressed\": true, ";
    const auto list = [](const QByteArray& a, const QByteArray& b, const QByteArray& c,
                         const QByteArray& d) {
        return "{" + a + R"("name": "a", "kind": "box"}, {)" + b +
               R"("name": "b", "kind": "box", "fields": {"x": 5}}, {)" + c +
               R"("name": "c", "kind": "move", "inputs": ["b"], "fields": {"dz": 5}}, {)" + d +
               R"("name": "d", "kind": "cut", "inputs": ["a", "c"]})";
    };
    row("nothing", list("", "", "", ""), 750.0);
    row("the cut", list("", "", "", off), 1000.0);
    row("the move of the tool", list("", "", off, ""), 500.0);
    row("the tool", list("", off, "", ""), 0.0, "c: its input \"b\" is suppressed.");
    row("the tool and its move", list("", off, off, ""), 1000.0);
    row("the first input", list(off, "", "", ""), 0.0, "d: its input \"a\" is suppressed.");
    row("the first input and the cut", list(off, "", "", off), 0.0);
    row("everything", list(off, off, off, off), 0.0);
    row("what could not be built",
        A10 + R"(, {"name": "b", "kind": "fillet", "inputs": ["a"], "suppressed": true,
                    "fields": {"radius": -1, "x": "no such name"}})",
        1000.0);
}

void tst_FeatureBuilder::SuppressedFeaturesStandAside()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, list);
    QFETCH(double, volume);
    QFETCH(QString, reason);
    QCOMPARE(Reason(List(list)), reason);
    if (reason != "it was built")
        return;
    const TopoDS_Shape shape = FeatureBuilder::Build(List(list)).shape;
    QCOMPARE(shape.IsNull(), volume == 0.0);
    if (volume > 0.0)
        QVERIFY(std::abs(MassOf(shape).volume - volume) <= 1e-9 * volume);
}

void tst_FeatureBuilder::EveryNumericFieldTakesAnExpression_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<int>("field");
    for (const FeatureKind& kind : FeatureKinds::All()) {
        for (std::size_t field = 0; field < kind.fields.size(); ++field)
            QTest::addRow("%s, %s", kind.word.data(), kind.fields[field].key.data())
                << QByteArray(kind.word.data()) << int(field);
    }
}

// A list that ends with a feature of this kind, which can be built.
static FeatureList ListWith(const FeatureKind& kind)
{
    FeatureList list;
    Feature feature(kind);
    feature.name = "feature";
    for (int input = 0; input < kind.minInputs; ++input) {
        const Feature box = NewFeature(QString("box %1").arg(input), "box");
        list.Append(box);
        feature.inputs << box.name;
    }
    if (kind.isAtFace)
        feature.fields = QStringList({"4", "3", "10"});
    if (kind.word == QLatin1String("fillet"))
        feature.fields = QStringList({"2", "0", "10", "5"});
    list.Append(feature);
    return list;
}

void tst_FeatureBuilder::EveryNumericFieldTakesAnExpression()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, kind);
    QFETCH(int, field);
    const FeatureList plain = ListWith(KindOf(kind));
    const int last = plain.Size() - 1;
    Feature feature = plain.At(last);
    StoreScalar("p", feature.fields[field].toDouble() - 1.0);
    // The raw value is what expressions see.
    StoreScalar("raw", 1e9);
    GlobalParaMeterMgr::m_nameMapParameters["raw"].m_varRawValue = 2.0;
    feature.fields[field] = "p + raw - 1";
    FeatureList list = plain;
    list.Replace(last, feature);
    QVERIFY(AreClose(MassOf(FeatureBuilder::Build(list).shape),
                     MassOf(FeatureBuilder::Build(plain).shape)));

    // And it is this field that the expression is for.
    feature.fields[field] = "p + nothing";
    list.Replace(last, feature);
    const FieldDefinition& entry = KindOf(kind).fields[std::size_t(field)];
    QCOMPARE(Reason(list), QString("feature: %1 (\"p + nothing\") has no value: Position 5: the "
                                   "name 'nothing' is unknown.")
                               .arg(entry.label));
}

void tst_FeatureBuilder::ImportedBodiesAreUsedLikeOthers()
{
#ifdef __SANITIZE_ADDRESS__
    // What the kernel's STEP reader and writer keep until the process ends. The suppressions would
    // need the slow unwinder, which takes too long for the other rows.
    const __lsan::ScopedDisabler kernelKeeps;
#endif
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    QVERIFY(QDir().mkdir("parts"));
    WriteStepFile(BRepPrimAPI_MakeBox(10.0, 20.0, 30.0).Shape(), "parts/brick.step");
    const FeatureList list = List(R"({"name": "a", "kind": "import", "file": "brick.step"},
                {"name": "b", "kind": "box", "fields": {"x": 5, "y": 20, "z": 30}},
                {"name": "c", "kind": "cut", "inputs": ["a", "b"]})");
    const Mass built = MassOf(FeatureBuilder::Build(list, "parts").shape);
    QVERIFY2(AreClose(built, Moved(Box(5, 20, 30), 5, 0, 0)), Shown(built));

    FeatureList absolute = list;
    Feature import = list.At(0);
    import.file = QDir("parts").absoluteFilePath("brick.step");
    absolute.Replace(0, import);
    QVERIFY(AreClose(MassOf(FeatureBuilder::Build(absolute, "elsewhere").shape), built));

    try {
        FeatureBuilder::Build(list, "elsewhere");
        QFAIL("It was built.");
    } catch (const FeatureError& error) {
        QCOMPARE(error.Reason(), QString("a: brick.step: cannot be opened: No such file or "
                                         "directory"));
        QCOMPARE(error.FeatureName(), QString("a"));
    }
}

const std::array<const char*, 7> Primitives = {"box",  "cylinder", "sphere", "torus",
                                               "cone", "wedge",    "polygon"};

// A list of primitives, placed at random and then combined.
static FeatureList RandomList(unsigned seed)
{
    std::mt19937 random(seed);
    const auto number = [&](double least, double greatest) {
        return least + (greatest - least) * (double(random()) / 4294967296.0);
    };
    const auto text = [&](double least, double greatest) {
        return QString::number(number(least, greatest), 'f', 3);
    };
    FeatureList list;
    QStringList loose;
    const auto add = [&](const char* kind, const QStringList& inputs) -> Feature {
        Feature feature(KindOf(kind));
        feature.name = QString("f%1").arg(list.Size());
        feature.inputs = inputs;
        for (const QString& input : inputs)
            loose.removeOne(input);
        loose << feature.name;
        return feature;
    };
    const int primitives = 2 + int(random() % 2);
    for (int i = 0; i < primitives; ++i) {
        Feature feature = add(Primitives[random() % Primitives.size()], {});
        const bool isTorus = feature.kind == &KindOf("torus");
        if (feature.kind == &KindOf("box"))
            feature.fields = QStringList({text(5, 20), text(5, 20), text(5, 20)});
        else
            feature.fields[1] = feature.kind == &KindOf("sphere") ? text(-90, 0) : text(1, 9);
        list.Append(feature);
        feature = add("move", {feature.name});
        feature.fields = QStringList({text(-8, 8), text(-8, 8), text(-8, 8)});
        list.Append(feature);
        if (random() % 2 == 0) {
            const bool turn = random() % 2 == 0;
            feature = add(turn ? "rotate" : "mirrorPoint", {feature.name});
            if (turn)
                feature.fields[6] = text(-180, 180);
            list.Append(feature);
        }
        if (random() % 4 == 0) {
            feature = add("polarArray", {feature.name});
            feature.fields[7] = QString::number(2 + random() % 3);
            list.Append(feature);
        }
        // Where a torus meets other bodies the kernel takes many seconds.
        if (isTorus)
            loose.removeLast();
    }
    while (loose.size() > 1 && random() % 5 != 0) {
        Feature feature = add(random() % 2 == 0 ? "fuse" : "cut", {loose[0], loose[1]});
        feature.suppressed = random() % 6 == 0;
        list.Append(feature);
    }
    return list;
}

void tst_FeatureBuilder::RandomListsAreBuiltTheSameTwice()
{
    const EmptyDesignStores stores;
    int built = 0;
    for (unsigned seed = 0; seed < 200; ++seed) {
        const FeatureList list = RandomList(seed);
        const QByteArray where = "seed " + QByteArray::number(seed);
        std::array<TopoDS_Shape, 2> shapes;
        std::array<QString, 2> reasons;
        for (std::size_t time = 0; time < shapes.size(); ++time) {
            try {
                shapes[time] = FeatureBuilder::Build(list).shape;
            } catch (const FeatureError& error) {
                reasons[time] = error.Reason();
            }
        }
        QCOMPARE(reasons[0], reasons[1]);
        if (!reasons[0].isEmpty())
            continue;
        ++built;
        const Mass first = MassOf(shapes[0]);
        const Mass second = MassOf(shapes[1]);
        QVERIFY2(first.volume == second.volume && first.centre == second.centre, where);
        QVERIFY2(Count(shapes[0], TopAbs_FACE) == Count(shapes[1], TopAbs_FACE), where);
        QVERIFY2(Text(shapes[0]) == Text(shapes[1]), where);
    }
    // Some of them cut everything away.
    QVERIFY2(built >= 180, QByteArray::number(built));
}

TARN_TEST_MAIN(tst_FeatureBuilder)
#include "tst_FeatureBuilder.moc"
