#include "BuildInput.h"

#include "Angles.h"
#include "BuildError.h"
#include "FaceTrace.h"
#include "FeatureKind.h"
#include "JsonSection.h"
#include "Limits.h"

#include <gp.hxx>
#include <gp_Vec.hxx>

BuildInput::BuildInput(const FeatureKind& kind, std::vector<double> values,
                       std::vector<Body> bodies, QString file)
    : m_kind(kind)
    , m_values(std::move(values))
    , m_bodies(std::move(bodies))
    , m_file(std::move(file))
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
