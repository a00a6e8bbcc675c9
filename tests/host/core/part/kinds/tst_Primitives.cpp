#include "KindRows.h"
#include "TestCase.h"

class tst_Primitives : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void BodiesMatchTheirFormulas_data();
    void BodiesMatchTheirFormulas() { CheckBody(); }
    void InvalidValuesAreReported_data();
    void InvalidValuesAreReported() { CheckFailure(); }
};

namespace {

void Primitive(const char* name, const char* kind, const char* fields, const Mass& expected)
{
    AddBody(name, Single(kind, fields), expected);
}

void Failure(const char* name, const char* kind, const char* fields, const char* reason)
{
    AddFailure(name, Single(kind, fields), reason);
}

void AddBoxBodies()
{
    Primitive("box", "box", R"("x": 1.5, "y": 20, "z": 0.3)", Box(1.5, 20, 0.3));
    Primitive("greatest box", "box", R"("x": 1e6, "y": 1e6, "z": 1e6)", Box(1e6, 1e6, 1e6));
    Primitive("least box", "box", R"("x": 1e-4, "y": 1e-4, "z": 1e-4)", Box(1e-4, 1e-4, 1e-4));
}

void AddCylinderBodies()
{
    Primitive("cylinder", "cylinder", R"("radius": 7, "height": 11)", Cone(7, 7, 11, 360));
    Primitive("cylinder, quarter", "cylinder", R"("radius": 7, "height": 11, "angle": 90)",
              Cone(7, 7, 11, 90));
    Primitive("cylinder, odd angle", "cylinder", R"("radius": 7, "height": 11, "angle": 287.3)",
              Cone(7, 7, 11, 287.3));
    Primitive("cylinder, thin slice", "cylinder", R"("radius": 7, "height": 11, "angle": 0.5)",
              Cone(7, 7, 11, 0.5));
}

void AddSphereBodies()
{
    Primitive("sphere", "sphere", R"("radius": 5)", Ring(0, 5, -90, 90, 360));
    Primitive("half sphere", "sphere", R"("radius": 5, "angle1": 0)", Ring(0, 5, 0, 90, 360));
    Primitive("sphere, zone", "sphere", R"("radius": 5, "angle1": -30, "angle2": 45)",
              Ring(0, 5, -30, 45, 360));
    Primitive("sphere, cap above", "sphere", R"("radius": 5, "angle1": 20, "angle2": 90)",
              Ring(0, 5, 20, 90, 360));
    Primitive("sphere, cap below", "sphere", R"("radius": 5, "angle2": -20)",
              Ring(0, 5, -90, -20, 360));
    Primitive("sphere, slice", "sphere", R"("radius": 5, "angle3": 60)", Ring(0, 5, -90, 90, 60));
    Primitive("sphere, slice of a zone", "sphere",
              R"("radius": 5, "angle1": -10, "angle2": 70, "angle3": 200)",
              Ring(0, 5, -10, 70, 200));
}

void AddTorusBodies()
{
    Primitive("torus", "torus", R"("radius": 10, "sweepRadius": 3)", Ring(10, 3, -180, 180, 360));
    Primitive("torus, half ring", "torus", R"("radius": 10, "sweepRadius": 3, "angle3": 180)",
              Ring(10, 3, -180, 180, 180));
    Primitive("torus, outer half", "torus",
              R"("radius": 10, "sweepRadius": 3, "angle1": -90, "angle2": 90)",
              Ring(10, 3, -90, 90, 360));
    Primitive("torus, part of tube and ring", "torus",
              R"("radius": 10, "sweepRadius": 3, "angle1": -60, "angle2": 135, "angle3": 250)",
              Ring(10, 3, -60, 135, 250));
}

void AddConeBodies()
{
    Primitive("cone", "cone", R"("baseRadius": 10, "topRadius": 5, "height": 12)",
              Cone(10, 5, 12, 360));
    Primitive("cone, wider above", "cone", R"("baseRadius": 3, "topRadius": 8, "height": 2)",
              Cone(3, 8, 2, 360));
    Primitive("cone with a tip", "cone", R"("baseRadius": 10, "topRadius": 0, "height": 12)",
              Cone(10, 0, 12, 360));
    Primitive("cone, slice", "cone",
              R"("baseRadius": 10, "topRadius": 5, "height": 12, "angle": 120)",
              Cone(10, 5, 12, 120));
    Primitive("cone with a tip, slice", "cone",
              R"("baseRadius": 10, "topRadius": 0, "height": 12, "angle": 300)",
              Cone(10, 0, 12, 300));
    Primitive("cone without slope", "cone",
              R"("baseRadius": 5, "topRadius": 5, "height": 12, "angle": 45)", Cone(5, 5, 12, 45));
}

void AddWedgeBodies()
{
    Primitive("wedge", "wedge", "", Wedge(20, 30, 30, 5, 15, 8, 20));
    Primitive("wedge, slanted", "wedge",
              R"("x": 7, "z": 3, "height": 5, "xmin": -2, "xmax": 11, "zmin": 1, "zmax": 9)",
              Wedge(7, 3, 5, -2, 11, 1, 9));
}

void AddPolygonBodies()
{
    Primitive("polygon", "polygon", R"("edges": 6, "radius": 10, "length": 4)",
              Polygon(6, 10, 4, 0, 0, 1));
    Primitive("triangle downwards", "polygon", R"("edges": 3, "radius": 2, "length": 4, "dz": -2)",
              Polygon(3, 2, 4, 0, 0, -1));
    Primitive("polygon, slanted", "polygon",
              R"("edges": 5, "radius": 2, "length": 4, "dx": 1, "dy": 2, "dz": 3)",
              Polygon(5, 2, 4, 1, 2, 3));
    Primitive("polygon of many edges", "polygon", R"("edges": 1000, "radius": 50, "length": 4)",
              Polygon(1000, 50, 4, 0, 0, 1));
}

void AddBoxFailures()
{
    Failure("length 0", "box", R"("y": 0)",
            "a: Size y is 0, but has to be from 0.0001 to 1000000 mm.");
    Failure("too great", "box", R"("x": 1e300)",
            "a: Size x is 1e+300, but has to be from 0.0001 to 1000000 mm.");
    Failure("infinite", "box", R"("x": "1/0")",
            "a: Size x (\"1/0\") has no value: Position 1: an operation has no finite result, "
            "such as 1/0 or ln(0).");
    Failure("empty text", "box", R"("x": "")",
            "a: Size x (\"\") has no value: Position 1: the expression is empty.");
}

void AddCylinderFailures()
{
    Failure("negative length", "cylinder", R"("radius": -5)",
            "a: Radius is -5, but has to be from 0.0001 to 1000000 mm.");
    Failure("angle 0", "cylinder", R"("angle": 0)",
            "a: Angle is 0, but has to be above 0 and at most 360 degrees.");
}

void AddSphereFailures()
{
    Failure("too small", "sphere", R"("radius": 1e-300)",
            "a: Radius is 1e-300, but has to be from 0.0001 to 1000000 mm.");
    Failure("sphere from the pole", "sphere", R"("angle1": 90)",
            "a: Angle 1 is 90, but has to be at least -90 and below 90 degrees.");
    Failure("sphere to the pole", "sphere", R"("angle2": -90)",
            "a: Angle 2 is -90, but has to be above -90 and at most 90 degrees.");
    Failure("sphere, angles crossed", "sphere", R"("angle1": 30, "angle2": 20)",
            "a: angle 1 (30) has to be below angle 2 (20).");
    Failure("sphere, angles equal", "sphere", R"("angle1": 30, "angle2": 30)",
            "a: angle 1 (30) has to be below angle 2 (30).");
}

void AddTorusFailures()
{
    Failure("tube as wide as the ring", "torus", R"("radius": 3, "sweepRadius": 3)",
            "a: the sweep radius (3) has to be below the radius (3).");
    Failure("torus, angle 1 at 0", "torus", R"("angle1": 0)",
            "a: Angle 1 is 0, but has to be at least -180 and below 0 degrees.");
    Failure("torus, angle 2 at 0", "torus", R"("angle2": 0)",
            "a: Angle 2 is 0, but has to be above 0 and at most 180 degrees.");
}

void AddConeFailures()
{
    Failure("angle above 360", "cone", R"("angle": 360.1)",
            "a: Angle is 360.1, but has to be above 0 and at most 360 degrees.");
    Failure("top radius below 0", "cone", R"("topRadius": -1)",
            "a: Top radius is -1, but has to be 0 or from 0.0001 to 1000000 mm.");
    Failure("base radius 0", "cone", R"("baseRadius": 0)",
            "a: Base radius is 0, but has to be from 0.0001 to 1000000 mm.");
}

void AddWedgeFailures()
{
    Failure("wedge, x crossed", "wedge", R"("xmin": 15, "xmax": 5)",
            "a: X min (15) has to be below X max (5).");
    Failure("wedge, z equal", "wedge", R"("zmin": 8, "zmax": 8)",
            "a: Z min (8) has to be below Z max (8).");
}

void AddPolygonFailures()
{
    Failure("two edges", "polygon", R"("edges": 2)",
            "a: Number of edges is 2, but has to be a whole number from 3 to 1000.");
    Failure("six and a half edges", "polygon", R"("edges": 6.5)",
            "a: Number of edges is 6.5, but has to be a whole number from 3 to 1000.");
    Failure("too many edges", "polygon", R"("edges": 1000, "radius": 0.001)",
            "a: 1000 edges are too many for a radius of 0.001 mm.");
    Failure("flat extrusion", "polygon", R"("dx": 1, "dz": 0)",
            "a: its direction lies in the plane of the polygon.");
    Failure("extrusion to nowhere", "polygon", R"("dz": 0)", "a: its direction is zero.");
}

} // namespace

void tst_Primitives::BodiesMatchTheirFormulas_data()
{
    AddBodyColumns();
    AddBoxBodies();
    AddCylinderBodies();
    AddSphereBodies();
    AddTorusBodies();
    AddConeBodies();
    AddWedgeBodies();
    AddPolygonBodies();
}

void tst_Primitives::InvalidValuesAreReported_data()
{
    AddFailureColumns();
    AddBoxFailures();
    AddCylinderFailures();
    AddSphereFailures();
    AddTorusFailures();
    AddConeFailures();
    AddWedgeFailures();
    AddPolygonFailures();
}

TARN_TEST_MAIN(tst_Primitives)
#include "tst_Primitives.moc"
