#include "PickedMeasures.h"

#include "Angles.h"
#include "NumberTexts.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRepExtrema_DistShapeShape.hxx>
#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <QCoreApplication>
#include <TopoDS.hxx>
#include <TopoDS_Iterator.hxx>
#include <gp_Circ.hxx>
#include <gp_Cylinder.hxx>
#include <gp_Lin.hxx>
#include <gp_Pln.hxx>
#include <gp_Sphere.hxx>

#include <algorithm>
#include <optional>
#include <vector>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(PickedMeasures)
};

std::optional<double> RadiusOf(const TopoDS_Shape& shape)
{
    if (shape.ShapeType() == TopAbs_EDGE) {
        const BRepAdaptor_Curve curve(TopoDS::Edge(shape));
        return curve.GetType() == GeomAbs_Circle ? std::make_optional(curve.Circle().Radius())
                                                 : std::nullopt;
    }
    const BRepAdaptor_Surface surface(TopoDS::Face(shape));
    if (surface.GetType() == GeomAbs_Cylinder)
        return surface.Cylinder().Radius();
    if (surface.GetType() == GeomAbs_Sphere)
        return surface.Sphere().Radius();
    return std::nullopt;
}

/// The direction of a straight edge, or the normal of a flat face.
struct Straight
{
    gp_Dir direction;
    bool isNormal = false;
};

std::optional<Straight> StraightOf(const TopoDS_Shape& shape)
{
    if (shape.ShapeType() == TopAbs_EDGE) {
        const BRepAdaptor_Curve curve(TopoDS::Edge(shape));
        if (curve.GetType() == GeomAbs_Line)
            return Straight{curve.Line().Direction(), false};
        return std::nullopt;
    }
    const BRepAdaptor_Surface surface(TopoDS::Face(shape));
    if (surface.GetType() == GeomAbs_Plane)
        return Straight{surface.Plane().Axis().Direction(), true};
    return std::nullopt;
}

// From 0 to 90 degrees.
double AngleBetween(const Straight& a, const Straight& b)
{
    const double angle = a.direction.Angle(b.direction) / tarn::RadiansPerDegree;
    const double acute = std::min(angle, 180.0 - angle);
    return a.isNormal == b.isNormal ? acute : 90.0 - acute;
}

void MeasureOne(const TopoDS_Shape& shape, QStringList& lines)
{
    if (const std::optional<double> radius = RadiusOf(shape))
        lines << Texts::tr("Radius: %1 mm, diameter: %2 mm")
                     .arg(ShortText(*radius), ShortText(2.0 * *radius));
    GProp_GProps properties;
    if (shape.ShapeType() == TopAbs_EDGE) {
        BRepGProp::LinearProperties(shape, properties);
        lines << Texts::tr("Length: %1 mm").arg(ShortText(properties.Mass()));
    } else {
        BRepGProp::SurfaceProperties(shape, properties);
        lines << Texts::tr("Area: %1 mm²").arg(ShortText(properties.Mass()));
    }
}

void MeasureTwo(const TopoDS_Shape& a, const TopoDS_Shape& b, QStringList& lines)
{
    const BRepExtrema_DistShapeShape distance(a, b);
    if (distance.IsDone())
        lines << Texts::tr("Distance: %1 mm").arg(ShortText(distance.Value()));
    const std::optional<Straight> first = StraightOf(a);
    const std::optional<Straight> second = StraightOf(b);
    if (first && second)
        lines << Texts::tr("Angle: %1°").arg(ShortText(AngleBetween(*first, *second)));
}

} // namespace

QStringList MeasurePicked(const TopoDS_Shape& shapes)
{
    std::vector<TopoDS_Shape> picked;
    if (!shapes.IsNull()) {
        for (TopoDS_Iterator each(shapes); each.More(); each.Next())
            picked.push_back(each.Value());
    }
    QStringList lines;
    if (picked.size() == 1)
        MeasureOne(picked[0], lines);
    else if (picked.size() == 2)
        MeasureTwo(picked[0], picked[1], lines);
    return lines;
}
