#include "PlacedBodies.h"

#include "Axes.h"
#include "Bodies.h"
#include "BuildError.h"
#include "FeatureBuilder.h"
#include "NumberTexts.h"
#include "ShapeAtPoint.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Ax2.hxx>
#include <gp_Trsf.hxx>
#include <gp_Vec.hxx>

#include <cmath>

namespace {

using Values = std::vector<double>;

constexpr double LeastDistance = 1e-4;
constexpr double LeastAngle = 1e-3; // degrees
constexpr double FarthestInstance = 1e6;

TopoDS_Shape Moved(const TopoDS_Shape& shape, const gp_Trsf& transformation)
{
    return shape.Moved(TopLoc_Location(transformation));
}

gp_Trsf Rotation(const gp_Ax1& axis, double degrees)
{
    gp_Trsf rotation;
    rotation.SetRotation(axis, degrees * RadiansPerDegree);
    return rotation;
}

gp_Trsf Translation(double x, double y, double z)
{
    gp_Trsf translation;
    translation.SetTranslation(gp_Vec(x, y, z));
    return translation;
}

// A location cannot turn a body inside out, so the body itself is made anew.
TopoDS_Shape Mirrored(const TopoDS_Shape& shape, const gp_Trsf& mirror)
{
    constexpr bool Copy = true;
    return BRepBuilderAPI_Transform(shape, mirror, Copy).Shape();
}

TopoDS_Shape MirroredAtPoint(const TopoDS_Shape& shape, const gp_Pnt& point)
{
    gp_Trsf mirror;
    mirror.SetMirror(point);
    return Mirrored(shape, mirror);
}

TopoDS_Shape MirroredAtFace(const TopoDS_Shape& shape, const gp_Pnt& point)
{
    gp_Trsf mirror;
    mirror.SetMirror(PlaneAt(shape, point));
    return Mirrored(shape, mirror);
}

void CheckNumber(double instances, const TopoDS_Shape& shape)
{
    const double bodies = instances * CountBodies(shape);
    if (bodies > FeatureBuilder::MaximumInstances)
        throw BuildError(BuildError::tr("the array would have %1 bodies; %2 are the most.")
                             .arg(bodies, 0, 'f', 0)
                             .arg(FeatureBuilder::MaximumInstances));
}

TopoDS_Shape PolarArray(const TopoDS_Shape& shape, const gp_Ax1& axis, double angle, int number)
{
    CheckNumber(number, shape);
    if (number == 1)
        return shape;
    // A full turn brings the last instance next to the first, not upon it.
    constexpr double Rounding = 1e-9;
    const bool isFullTurn = std::abs(std::abs(angle) - 360.0) < Rounding;
    const double step = angle / (isFullTurn ? number : number - 1);
    if (std::abs(step) < LeastAngle)
        throw BuildError(BuildError::tr("the instances would lie upon one another: their angle is "
                                        "%1 degrees.")
                             .arg(ShortText(step)));
    std::vector<TopoDS_Shape> instances = {shape};
    for (int instance = 1; instance < number; ++instance)
        instances.push_back(Moved(shape, Rotation(axis, step * instance)));
    return Compound(instances);
}

void CheckRow(const char* axis, int number, double distance)
{
    if (number == 1)
        return;
    if (std::abs(distance) < LeastDistance)
        throw BuildError(BuildError::tr("the instances would lie upon one another: their distance "
                                        "in %1 is %2 mm.")
                             .arg(QLatin1String(axis), ShortText(distance)));
    if (std::abs(distance) * (number - 1) > FarthestInstance)
        throw BuildError(BuildError::tr("the array would reach farther than %1 mm in %2.")
                             .arg(QString::number(FarthestInstance, 'f', 0), QLatin1String(axis)));
}

TopoDS_Shape RectangularArray(const TopoDS_Shape& shape, const Values& v)
{
    const int columns = int(v[0]);
    const int rows = int(v[1]);
    CheckNumber(v[0] * v[1], shape);
    CheckRow("x", columns, v[2]);
    CheckRow("y", rows, v[3]);
    if (columns * rows == 1)
        return shape;
    std::vector<TopoDS_Shape> instances;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            instances.push_back(Moved(shape, Translation(v[2] * column, v[3] * row, 0.0)));
    }
    return Compound(instances);
}

} // namespace

TopoDS_Shape PlaceBody(FeatureKind kind, const TopoDS_Shape& input, const Values& v)
{
    switch (kind) {
    case FeatureKind::Move:
        return Moved(input, Translation(v[0], v[1], v[2]));
    case FeatureKind::Rotate:
        return Moved(input, Rotation(AxisOf(v.data()), v[6]));
    case FeatureKind::MirrorPoint:
        return MirroredAtPoint(input, PointOf(v.data()));
    case FeatureKind::MirrorAxis:
        return Moved(input, Rotation(AxisOf(v.data()), 180.0));
    case FeatureKind::MirrorFace:
        return MirroredAtFace(input, PointOf(v.data()));
    case FeatureKind::PolarArray:
        return PolarArray(input, AxisOf(v.data()), v[6], int(v[7]));
    case FeatureKind::RectangularArray:
        return RectangularArray(input, v);
    default:
        throw BuildError(BuildError::tr("it places no body."));
    }
}
