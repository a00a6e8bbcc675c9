#include "BodyVolumes.h"

#include "Bodies.h"

#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <gp_Trsf.hxx>

#include <vector>

namespace {

VolumeMoments Moved(const VolumeMoments& moments, const gp_Trsf& placement)
{
    VolumeMoments moved = moments;
    placement.Transforms(moved.centre);
    const gp_Mat rotation = placement.HVectorialPart();
    moved.inertia = rotation * moments.inertia * rotation.Transposed();
    return moved;
}

// What a volume adds to the tensor about a point at @p offset from its centre.
gp_Mat Steiner(double volume, const gp_XYZ& offset)
{
    gp_Mat square;
    square.SetDiagonal(1.0, 1.0, 1.0);
    square.Multiply(offset.SquareModulus());
    const gp_Mat product(offset * offset.X(), offset * offset.Y(), offset * offset.Z());
    return (square - product) * volume;
}

} // namespace

const VolumeMoments& BodyVolumes::AtOrigin(const TopoDS_Shape& body)
{
    const TopoDS_Shape key = ::AtOrigin(body);
    if (!m_measured.IsBound(key)) {
        GProp_GProps properties;
        BRepGProp::VolumeProperties(key, properties);
        m_measured.Bind(key, {properties.Mass(), properties.CentreOfMass().XYZ(),
                              properties.MatrixOfInertia()});
    }
    return m_measured(key);
}

double BodyVolumes::Of(const TopoDS_Shape& shape)
{
    double sum = 0.0;
    VisitBodies(shape, [&](const TopoDS_Shape& body) { sum += AtOrigin(body).volume; });
    return sum;
}

VolumeMoments BodyVolumes::MomentsOf(const TopoDS_Shape& shape)
{
    std::vector<VolumeMoments> bodies;
    VolumeMoments sum;
    VisitBodies(shape, [&](const TopoDS_Shape& body) {
        bodies.push_back(Moved(AtOrigin(body), body.Location().Transformation()));
        sum.volume += bodies.back().volume;
        sum.centre += bodies.back().centre * bodies.back().volume;
    });
    if (sum.volume <= 0.0)
        return {sum.volume, {}, {}};
    sum.centre /= sum.volume;
    for (const VolumeMoments& body : bodies)
        sum.inertia += body.inertia + Steiner(body.volume, body.centre - sum.centre);
    return sum;
}
