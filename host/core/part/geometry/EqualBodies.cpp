#include "EqualBodies.h"

#include "Bodies.h"

#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepExtrema_DistShapeShape.hxx>
#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <TopExp_Explorer.hxx>
#include <gp_Mat.hxx>
#include <gp_Pnt.hxx>
#include <gp_Trsf.hxx>

#include <algorithm>
#include <cmath>

namespace {

constexpr double Tolerance = 1e-6; // Relative, and of points in mm.

struct Moments
{
    TopoDS_Shape body;
    double volume = 0.0;
    gp_Pnt centre;
    gp_Mat inertia; // About the centre, along the axes of the part.
};

std::vector<Moments> MomentsOf(const TopoDS_Shape& shape)
{
    std::vector<Moments> all;
    VisitBodies(shape, [&](const TopoDS_Shape& body) {
        GProp_GProps properties;
        BRepGProp::VolumeProperties(body, properties);
        all.push_back(
            {body, properties.Mass(), properties.CentreOfMass(), properties.MatrixOfInertia()});
    });
    return all;
}

bool HaveSameMoments(const Moments& body, const Moments& other, const gp_Trsf& place)
{
    const double size = std::cbrt(body.volume);
    if (std::abs(body.volume - other.volume) > Tolerance * body.volume ||
        other.centre.Transformed(place).Distance(body.centre) > Tolerance * (1.0 + size))
        return false;
    const gp_Mat turn = place.HVectorialPart();
    const gp_Mat turned = turn * other.inertia * turn.Transposed();
    const double greatest =
        body.inertia.Value(1, 1) + body.inertia.Value(2, 2) + body.inertia.Value(3, 3);
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 3; ++column) {
            if (std::abs(turned.Value(row, column) - body.inertia.Value(row, column)) >
                Tolerance * greatest)
                return false;
        }
    }
    return true;
}

// Bodies of the same moments that differ have a corner or an edge elsewhere.
bool IsOnBoundary(const std::vector<gp_Pnt>& points, const TopoDS_Shape& body)
{
    std::vector<TopoDS_Shape> shells;
    for (TopExp_Explorer shell(body, TopAbs_SHELL); shell.More(); shell.Next())
        shells.push_back(shell.Current());
    const TopoDS_Shape boundary = Compound(shells);
    return std::all_of(points.begin(), points.end(), [&](const gp_Pnt& point) {
        const BRepExtrema_DistShapeShape distance(BRepBuilderAPI_MakeVertex(point).Shape(),
                                                  boundary);
        return distance.IsDone() && distance.Value() <= Tolerance;
    });
}

} // namespace

int PlaceOfEqualBodies(const TopoDS_Shape& shape, const std::vector<gp_Trsf>& places)
{
    const std::vector<Moments> bodies = MomentsOf(shape);
    for (std::size_t place = 0; place < places.size(); ++place) {
        for (const Moments& body : bodies) {
            for (const Moments& other : bodies) {
                if (HaveSameMoments(body, other, places[place]) &&
                    IsOnBoundary(PointsOf(other.body.Moved(places[place])), body.body))
                    return int(place);
            }
        }
    }
    return -1;
}
