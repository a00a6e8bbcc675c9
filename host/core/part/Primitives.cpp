#include "Primitives.h"

#include "Axes.h"
#include "BuildError.h"
#include "NumberTexts.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRepPrimAPI_MakeWedge.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Vec.hxx>

#include <cmath>

namespace {

using Values = std::vector<double>;

// Differences below this are none: it is the least length of any field.
constexpr double LeastDifference = 1e-4;
constexpr double LeastAngle = 1e-3; // degrees

double Radians(double degrees)
{
    return degrees * RadiansPerDegree;
}

TopoDS_Shape Cylinder(double radius, double height, double angle)
{
    return BRepPrimAPI_MakeCylinder(radius, height, Radians(angle)).Shape();
}

TopoDS_Shape Sphere(const Values& v)
{
    if (v[2] - v[1] < LeastAngle)
        throw BuildError(BuildError::tr("angle 1 (%1) has to be below angle 2 (%2).")
                             .arg(ShortText(v[1]), ShortText(v[2])));
    return BRepPrimAPI_MakeSphere(v[0], Radians(v[1]), Radians(v[2]), Radians(v[3])).Shape();
}

TopoDS_Shape Torus(const Values& v)
{
    if (v[0] - v[1] < LeastDifference)
        throw BuildError(BuildError::tr("the sweep radius (%1) has to be below the radius (%2).")
                             .arg(ShortText(v[1]), ShortText(v[0])));
    return BRepPrimAPI_MakeTorus(v[0], v[1], Radians(v[2]), Radians(v[3]), Radians(v[4])).Shape();
}

TopoDS_Shape Cone(const Values& v)
{
    // The kernel knows no cone without slope.
    if (std::abs(v[0] - v[1]) < LeastDifference)
        return Cylinder(v[0], v[2], v[3]);
    return BRepPrimAPI_MakeCone(v[0], v[1], v[2], Radians(v[3])).Shape();
}

TopoDS_Shape Wedge(const Values& v)
{
    const auto checkOrder = [](const char* axis, double least, double greatest) {
        if (greatest - least < LeastDifference)
            throw BuildError(BuildError::tr("%1 min (%2) has to be below %1 max (%3).")
                                 .arg(QLatin1String(axis), ShortText(least), ShortText(greatest)));
    };
    checkOrder("X", v[3], v[4]);
    checkOrder("Z", v[5], v[6]);
    return BRepPrimAPI_MakeWedge(v[0], v[2], v[1], v[3], v[5], v[4], v[6]).Shape();
}

TopoDS_Shape Polygon(const Values& v)
{
    const int edges = int(v[0]);
    const double radius = v[1];
    const gp_Vec sweep = gp_Vec(DirectionOf(&v[3])) * v[2];
    if (std::abs(sweep.Z()) < LeastDifference)
        throw BuildError(BuildError::tr("its direction lies in the plane of the polygon."));
    if (radius * Radians(360.0) / edges < LeastDifference)
        throw BuildError(BuildError::tr("%1 edges are too many for a radius of %2 mm.")
                             .arg(edges)
                             .arg(ShortText(radius)));
    BRepBuilderAPI_MakePolygon outline;
    for (int corner = 0; corner < edges; ++corner) {
        const double angle = Radians(360.0 * corner / edges);
        outline.Add(gp_Pnt(radius * std::cos(angle), radius * std::sin(angle), 0.0));
    }
    outline.Close();
    return BRepPrimAPI_MakePrism(BRepBuilderAPI_MakeFace(outline.Wire(), true).Face(), sweep)
        .Shape();
}

} // namespace

TopoDS_Shape MakePrimitive(FeatureKind kind, const Values& v)
{
    switch (kind) {
    case FeatureKind::Box:
        return BRepPrimAPI_MakeBox(v[0], v[1], v[2]).Shape();
    case FeatureKind::Cylinder:
        return Cylinder(v[0], v[1], v[2]);
    case FeatureKind::Sphere:
        return Sphere(v);
    case FeatureKind::Torus:
        return Torus(v);
    case FeatureKind::Cone:
        return Cone(v);
    case FeatureKind::Wedge:
        return Wedge(v);
    case FeatureKind::Polygon:
        return Polygon(v);
    default:
        throw BuildError(BuildError::tr("it is no primitive."));
    }
}
