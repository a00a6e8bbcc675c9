// The kinds that make a body at the origin.

#include "Angles.h"
#include "BuildError.h"
#include "BuildInput.h"
#include "CommonFields.h"
#include "FaceTrace.h"
#include "FaceWords.h"
#include "FeatureKinds.h"
#include "NumberTexts.h"
#include "Sweeps.h"

#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRepPrimAPI_MakeWedge.hxx>
#include <BRepPrim_Cone.hxx>
#include <BRepPrim_Cylinder.hxx>
#include <BRepPrim_Sphere.hxx>
#include <BRepPrim_Torus.hxx>
#include <BRepPrim_Wedge.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Vec.hxx>

#include <cmath>

using namespace FieldRules;

// Where a dialog has the field, the default is that of the dialog.
namespace {

const char* const RadiusLabel = QT_TRANSLATE_NOOP("FeatureKinds", "Radius");
const char* const HeightLabel = QT_TRANSLATE_NOOP("FeatureKinds", "Height");
const char* const AngleLabel = QT_TRANSLATE_NOOP("FeatureKinds", "Angle");
const char* const Angle1Label = QT_TRANSLATE_NOOP("FeatureKinds", "Angle 1");
const char* const Angle2Label = QT_TRANSLATE_NOOP("FeatureKinds", "Angle 2");
const char* const Angle3Label = QT_TRANSLATE_NOOP("FeatureKinds", "Angle 3");

constexpr FieldRule AngleFrom(double minimum, double maximum)
{
    return {minimum, maximum, FieldRule::Degrees, false, true};
}

constexpr FieldRule AngleTo(double minimum, double maximum)
{
    return {minimum, maximum, FieldRule::Degrees, true};
}

// Of the kernel's bodies with six sides. A face without area does not exist.
TracedShape WithSides(const TopoDS_Shape& shape, BRepPrim_Wedge& parts)
{
    FaceTrace trace;
    for (const auto& [side, word] :
         {std::pair(BRepPrim_XMin, "xmin"), std::pair(BRepPrim_XMax, "xmax"),
          std::pair(BRepPrim_YMin, "ymin"), std::pair(BRepPrim_YMax, "ymax"),
          std::pair(BRepPrim_ZMin, "zmin"), std::pair(BRepPrim_ZMax, "zmax")}) {
        if (parts.HasFace(side))
            trace.AddNew(parts.Face(side), QLatin1String(word));
    }
    return trace.Of(shape);
}

// Of the kernel's bodies that a curve sweeps about an axis.
TracedShape WithSides(const TopoDS_Shape& shape, BRepPrim_OneAxis& parts)
{
    FaceTrace trace;
    trace.AddNew(parts.LateralFace(), FaceWords::Side);
    if (parts.HasBottom())
        trace.AddNew(parts.BottomFace(), FaceWords::Bottom);
    if (parts.HasTop())
        trace.AddNew(parts.TopFace(), FaceWords::Top);
    if (parts.HasSides()) {
        trace.AddNew(parts.StartFace(), FaceWords::Start);
        trace.AddNew(parts.EndFace(), FaceWords::End);
    }
    return trace.Of(shape);
}

FeatureKind Box()
{
    FeatureKind kind("box", QT_TRANSLATE_NOOP("FeatureKinds", "Box"), FeatureGroup::Body);
    kind.fields = {{"x", QT_TRANSLATE_NOOP("FeatureKinds", "Size x"), "10", Length},
                   {"y", QT_TRANSLATE_NOOP("FeatureKinds", "Size y"), "10", Length},
                   {"z", QT_TRANSLATE_NOOP("FeatureKinds", "Size z"), "10", Length}};
    kind.build = [](const BuildInput& input) {
        BRepPrimAPI_MakeBox box(input.Value("x"), input.Value("y"), input.Value("z"));
        return WithSides(box.Shape(), box.Wedge());
    };
    return kind;
}

TracedShape CylinderBody(double radius, const BuildInput& input)
{
    BRepPrimAPI_MakeCylinder cylinder(radius, input.Value("height"), input.Radians("angle"));
    return WithSides(cylinder.Shape(), cylinder.Cylinder());
}

FeatureKind Cylinder()
{
    FeatureKind kind("cylinder", QT_TRANSLATE_NOOP("FeatureKinds", "Cylinder"), FeatureGroup::Body);
    kind.fields = {{"radius", RadiusLabel, "10", Length},
                   {"height", HeightLabel, "10", Length},
                   {"angle", AngleLabel, "360", Sweep}};
    kind.build = [](const BuildInput& input) {
        return CylinderBody(input.Value("radius"), input);
    };
    return kind;
}

FeatureKind Sphere()
{
    FeatureKind kind("sphere", QT_TRANSLATE_NOOP("FeatureKinds", "Sphere"), FeatureGroup::Body);
    kind.fields = {{"radius", RadiusLabel, "10", Length},
                   {"angle1", Angle1Label, "-90", AngleFrom(-90.0, 90.0)},
                   {"angle2", Angle2Label, "90", AngleTo(-90.0, 90.0)},
                   {"angle3", Angle3Label, "360", Sweep}};
    kind.build = [](const BuildInput& input) {
        const double from = input.Value("angle1");
        const double to = input.Value("angle2");
        if (to - from < MinimumAngle)
            throw BuildError(BuildError::tr("angle 1 (%1) has to be below angle 2 (%2).")
                                 .arg(ShortText(from), ShortText(to)));
        BRepPrimAPI_MakeSphere sphere(input.Value("radius"), input.Radians("angle1"),
                                      input.Radians("angle2"), input.Radians("angle3"));
        return WithSides(sphere.Shape(), sphere.Sphere());
    };
    return kind;
}

FeatureKind Torus()
{
    FeatureKind kind("torus", QT_TRANSLATE_NOOP("FeatureKinds", "Torus"), FeatureGroup::Body);
    kind.fields = {{"radius", RadiusLabel, "10", Length},
                   {"sweepRadius", QT_TRANSLATE_NOOP("FeatureKinds", "Sweep radius"), "3", Length},
                   {"angle1", Angle1Label, "-180", AngleFrom(-180.0, 0.0)},
                   {"angle2", Angle2Label, "180", AngleTo(0.0, 180.0)},
                   {"angle3", Angle3Label, "360", Sweep}};
    kind.build = [](const BuildInput& input) {
        const double radius = input.Value("radius");
        const double sweepRadius = input.Value("sweepRadius");
        if (radius - sweepRadius < MinimumLength)
            throw BuildError(
                BuildError::tr("the sweep radius (%1) has to be below the radius (%2).")
                    .arg(ShortText(sweepRadius), ShortText(radius)));
        BRepPrimAPI_MakeTorus torus(radius, sweepRadius, input.Radians("angle1"),
                                    input.Radians("angle2"), input.Radians("angle3"));
        return WithSides(torus.Shape(), torus.Torus());
    };
    return kind;
}

FeatureKind Cone()
{
    FeatureKind kind("cone", QT_TRANSLATE_NOOP("FeatureKinds", "Truncated cone"),
                     FeatureGroup::Body);
    kind.fields = {
        {"baseRadius", QT_TRANSLATE_NOOP("FeatureKinds", "Base radius"), "10", Length},
        {"topRadius", QT_TRANSLATE_NOOP("FeatureKinds", "Top radius"), "5", LengthOrZero},
        {"height", HeightLabel, "10", Length},
        {"angle", AngleLabel, "360", Sweep}};
    kind.build = [](const BuildInput& input) {
        const double base = input.Value("baseRadius");
        const double top = input.Value("topRadius");
        // The kernel refuses a cone without slope.
        if (std::abs(base - top) < MinimumLength)
            return CylinderBody(base, input);
        BRepPrimAPI_MakeCone cone(base, top, input.Value("height"), input.Radians("angle"));
        return WithSides(cone.Shape(), cone.Cone());
    };
    return kind;
}

void CheckOrder(const char* axis, double minimum, double maximum)
{
    if (maximum - minimum < MinimumLength)
        throw BuildError(BuildError::tr("%1 min (%2) has to be below %1 max (%3).")
                             .arg(QLatin1String(axis), ShortText(minimum), ShortText(maximum)));
}

FeatureKind Wedge()
{
    FeatureKind kind("wedge", QT_TRANSLATE_NOOP("FeatureKinds", "Wedge"), FeatureGroup::Body);
    kind.fields = {{"x", QT_TRANSLATE_NOOP("FeatureKinds", "Base x"), "20", Length},
                   {"z", QT_TRANSLATE_NOOP("FeatureKinds", "Base z"), "30", Length},
                   {"height", HeightLabel, "30", Length},
                   {"xmin", QT_TRANSLATE_NOOP("FeatureKinds", "X min"), "5", Coordinate},
                   {"xmax", QT_TRANSLATE_NOOP("FeatureKinds", "X max"), "15", Coordinate},
                   {"zmin", QT_TRANSLATE_NOOP("FeatureKinds", "Z min"), "8", Coordinate},
                   {"zmax", QT_TRANSLATE_NOOP("FeatureKinds", "Z max"), "20", Coordinate}};
    kind.build = [](const BuildInput& input) {
        CheckOrder("X", input.Value("xmin"), input.Value("xmax"));
        CheckOrder("Z", input.Value("zmin"), input.Value("zmax"));
        BRepPrimAPI_MakeWedge wedge(input.Value("x"), input.Value("height"), input.Value("z"),
                                    input.Value("xmin"), input.Value("zmin"), input.Value("xmax"),
                                    input.Value("zmax"));
        return WithSides(wedge.Shape(), wedge.Wedge());
    };
    return kind;
}

TracedShape PolygonBody(const BuildInput& input)
{
    const int edges = input.Count("edges");
    const double radius = input.Value("radius");
    const gp_Vec sweep = gp_Vec(input.Direction()) * input.Value("length");
    if (std::abs(sweep.Z()) < MinimumLength)
        throw BuildError(BuildError::tr("its direction lies in the plane of the polygon."));
    const double step = 360.0 * tarn::RadiansPerDegree / edges;
    if (radius * step < MinimumLength)
        throw BuildError(BuildError::tr("%1 edges are too many for a radius of %2 mm.")
                             .arg(edges)
                             .arg(ShortText(radius)));
    BRepBuilderAPI_MakePolygon outline;
    std::vector<TopoDS_Edge> sides;
    for (int corner = 0; corner < edges; ++corner) {
        const double angle = 360.0 * corner / edges * tarn::RadiansPerDegree;
        outline.Add(gp_Pnt(radius * std::cos(angle), radius * std::sin(angle), 0.0));
        if (corner > 0)
            sides.push_back(outline.Edge());
    }
    outline.Close();
    sides.push_back(outline.Edge());
    return Extruded(outline.Wire(), sides, sweep);
}

FeatureKind Polygon()
{
    FeatureKind kind("polygon", QT_TRANSLATE_NOOP("FeatureKinds", "Extruded polygon"),
                     FeatureGroup::Body);
    kind.fields = Joined(
        {{"edges", QT_TRANSLATE_NOOP("FeatureKinds", "Number of edges"), "6", Count(3, 1000)},
         {"radius", RadiusLabel, "10", Length},
         {"length", QT_TRANSLATE_NOOP("FeatureKinds", "Extrude length"), "10", Length}},
        DirectionFields());
    kind.build = PolygonBody;
    return kind;
}

} // namespace

std::vector<FeatureKind> FeatureKinds::Primitives()
{
    std::vector<FeatureKind> kinds = {Box(),  Cylinder(), Sphere(), Torus(),
                                      Cone(), Wedge(),    Polygon()};
    for (FeatureKind& kind : kinds)
        MakePlaced(kind);
    return kinds;
}
