#include "BuildInput.h"

#include "Angles.h"
#include "BuildError.h"
#include "FaceTrace.h"
#include "FeatureKind.h"
#include "JsonSection.h"
#include "Limits.h"

#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <gp.hxx>
#include <gp_Trsf.hxx>
#include <gp_Vec.hxx>

BuildInput::BuildInput(const FeatureKind& kind, std::vector<double> values,
                       std::vector<Body> bodies, Extras extras)
    : m_kind(kind)
    , m_values(std::move(values))
    , m_bodies(std::move(bodies))
    , m_extras(std::move(extras))
{
}

double BuildInput::Value(const char* key) const
{
    return m_values.at(m_kind.IndexOf(key));
}

double BuildInput::Radians(const char* key) const
{
    return Value(key) * tarn::RadiansPerDegree;
}

gp_Pnt BuildInput::Point() const
{
    return gp_Pnt(Value("x"), Value("y"), Value("z"));
}

gp_Dir BuildInput::Direction() const
{
    const gp_Vec direction(Value("dx"), Value("dy"), Value("dz"));
    // The kernel's own limit, above which it normalises a direction.
    if (direction.Magnitude() <= gp::Resolution())
        throw BuildError(BuildError::tr("its direction is zero."));
    return gp_Dir(direction);
}

TopLoc_Location BuildInput::Placement() const
{
    gp_Trsf placement;
    const auto turn = [&](const gp_Ax1& axis, const char* key) {
        gp_Trsf rotation;
        rotation.SetRotation(axis, Radians(key));
        if (Value(key) != 0.0)
            placement.PreMultiply(rotation);
    };
    turn(gp::OX(), "turnX");
    turn(gp::OY(), "turnY");
    turn(gp::OZ(), "turnZ");
    const gp_Vec distance(Value("moveX"), Value("moveY"), Value("moveZ"));
    gp_Trsf translation;
    translation.SetTranslation(distance);
    if (distance.SquareMagnitude() > 0.0)
        placement.PreMultiply(translation);
    return placement.Form() == gp_Identity ? TopLoc_Location() : TopLoc_Location(placement);
}

const TopoDS_Shape& BuildInput::FirstBody() const
{
    const Body& first = m_bodies.at(0);
    if (first.shape.IsNull())
        throw BuildError(BuildError::tr("its input %1 is suppressed.").arg(Quoted(first.name)));
    return first.shape;
}

TracedShape BuildInput::Placed(const TopLoc_Location& place) const
{
    const TopoDS_Shape& shape = FirstBody();
    FaceTrace trace;
    trace.AddInput(0, shape, place);
    return trace.Of(shape.Moved(place));
}

std::vector<TopoDS_Face> BuildInput::Faces() const
{
    TopTools_IndexedMapOfShape all;
    TopExp::MapShapes(FirstBody(), TopAbs_FACE, all);
    std::vector<TopoDS_Face> faces;
    for (const int number : m_extras.findFaces())
        faces.push_back(TopoDS::Face(all(number)));
    return faces;
}

std::vector<TopoDS_Edge> BuildInput::Edges() const
{
    TopTools_IndexedMapOfShape all;
    TopExp::MapShapes(FirstBody(), TopAbs_EDGE, all);
    std::vector<TopoDS_Edge> edges;
    for (const int number : m_extras.findEdges())
        edges.push_back(TopoDS::Edge(all(number)));
    return edges;
}

std::vector<TopoDS_Shape> BuildInput::OtherBodies() const
{
    return BodiesFrom(1);
}

std::vector<TopoDS_Shape> BuildInput::Bodies() const
{
    return BodiesFrom(0);
}

std::vector<TopoDS_Shape> BuildInput::BodiesFrom(std::size_t first) const
{
    std::vector<TopoDS_Shape> shapes;
    for (std::size_t i = first; i < m_bodies.size(); ++i) {
        if (!m_bodies[i].shape.IsNull())
            shapes.push_back(m_bodies[i].shape);
    }
    return shapes;
}
