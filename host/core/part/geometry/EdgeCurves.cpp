#include "EdgeCurves.h"

#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Geom2d_Curve.hxx>
#include <GeomAdaptor_Surface.hxx>
#include <GeomProjLib.hxx>
#include <Geom_Curve.hxx>
#include <Geom_Surface.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>

#include <algorithm>
#include <cmath>

namespace {

constexpr double SmallDeviation = 1e-6; // In mm.

// An edge's curve in space, and the surface of a face beside it, both in the coordinates of the
// face.
struct EdgeOnSurface
{
    Handle(Geom_Curve) curve;
    Handle(Geom_Surface) surface;
    double first = 0.0;
    double last = 0.0;

    gp_Pnt2d At(const Handle(Geom2d_Curve) & flat, double share) const
    {
        return flat->Value(first + share * (last - first));
    }

    // How far @p flat is from the curve, at equal parameters.
    double Deviation(const Handle(Geom2d_Curve) & flat) const
    {
        constexpr int Steps = 20;
        double greatest = 0.0;
        for (int step = 0; step <= Steps; ++step) {
            const double parameter = first + (last - first) * step / Steps;
            const gp_Pnt2d point = flat->Value(parameter);
            greatest = std::max(
                greatest, surface->Value(point.X(), point.Y()).Distance(curve->Value(parameter)));
        }
        return greatest;
    }
};

bool IsElementary(const Handle(Geom_Surface) & surface)
{
    const GeomAbs_SurfaceType type = GeomAdaptor_Surface(surface).GetType();
    return type == GeomAbs_Cylinder || type == GeomAbs_Cone || type == GeomAbs_Sphere ||
           type == GeomAbs_Torus;
}

// The projected curve, by whole periods where @p old is. Null if there is none.
Handle(Geom2d_Curve) Projected(const EdgeOnSurface& edge, const Handle(Geom2d_Curve) & old)
{
    double tolerance = SmallDeviation / 10.0;
    Handle(Geom2d_Curve) curve =
        GeomProjLib::Curve2d(edge.curve, edge.first, edge.last, edge.surface, tolerance);
    if (curve.IsNull() || curve->FirstParameter() > edge.first + tolerance ||
        curve->LastParameter() < edge.last - tolerance)
        return {};
    gp_Vec2d shift(edge.At(curve, 0.5), edge.At(old, 0.5));
    const double uPeriod = edge.surface->IsUPeriodic() ? edge.surface->UPeriod() : 0.0;
    const double vPeriod = edge.surface->IsVPeriodic() ? edge.surface->VPeriod() : 0.0;
    shift.SetX(uPeriod > 0.0 ? std::round(shift.X() / uPeriod) * uPeriod : 0.0);
    shift.SetY(vPeriod > 0.0 ? std::round(shift.Y() / vPeriod) * vPeriod : 0.0);
    curve->Translate(shift);
    return curve;
}

void Refine(const TopoDS_Edge& edge, const TopoDS_Face& face)
{
    // A seam has two such curves, and both are straight lines.
    if (BRep_Tool::Degenerated(edge) || BRep_Tool::IsClosed(edge, face))
        return;
    EdgeOnSurface place;
    place.curve = BRep_Tool::Curve(edge, place.first, place.last);
    TopLoc_Location location;
    place.surface = BRep_Tool::Surface(face, location);
    double first = 0.0;
    double last = 0.0;
    const Handle(Geom2d_Curve) old = BRep_Tool::CurveOnSurface(edge, face, first, last);
    if (place.curve.IsNull() || old.IsNull())
        return;
    place.curve = Handle(Geom_Curve)::DownCast(
        place.curve->Transformed(location.Transformation().Inverted()));
    const double deviation = place.Deviation(old);
    if (deviation <= SmallDeviation)
        return;
    const Handle(Geom2d_Curve) projected = Projected(place, old);
    if (!projected.IsNull() && place.Deviation(projected) < deviation)
        BRep_Builder().UpdateEdge(edge, projected, face, BRep_Tool::Tolerance(edge));
}

} // namespace

void RefineEdgeCurves(const TopoDS_Shape& shape)
{
    for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next()) {
        const TopoDS_Face face = TopoDS::Face(faces.Current().Oriented(TopAbs_FORWARD));
        TopLoc_Location location;
        if (!IsElementary(BRep_Tool::Surface(face, location)))
            continue;
        for (TopExp_Explorer edges(face, TopAbs_EDGE); edges.More(); edges.Next())
            Refine(TopoDS::Edge(edges.Current()), face);
    }
}
