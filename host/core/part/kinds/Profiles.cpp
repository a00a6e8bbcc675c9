// The kinds that sweep a closed profile.

#include "BuildError.h"
#include "BuildInput.h"
#include "CommonFields.h"
#include "FeatureKinds.h"
#include "NumberTexts.h"
#include "Sweeps.h"

#include <BRepBndLib.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <Bnd_Box.hxx>
#include <gp.hxx>
#include <gp_Ax2.hxx>
#include <gp_Circ.hxx>
#include <gp_Vec.hxx>
#include <gp_Vec2d.hxx>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace FieldRules;

namespace {

constexpr std::size_t MaximumCorners = 1000;

struct Edges
{
    std::vector<TopoDS_Edge> pieces;
    TopoDS_Wire wire;
};

gp_Pnt InPlane(const gp_Ax2& plane, const gp_Pnt2d& point)
{
    return plane.Location().Translated(gp_Vec(plane.XDirection()) * point.X() +
                                       gp_Vec(plane.YDirection()) * point.Y());
}

// Through @p from, the corner's @p via and the corner; null if they lie on a line.
std::optional<gp_Circ> ArcTo(const OutlineCorner& corner, const gp_Pnt2d& from, const gp_Ax2& plane)
{
    const gp_Vec2d via(from, *corner.via);
    const gp_Vec2d to(from, corner.point);
    const double area = via.Crossed(to);
    if (std::abs(area) < MinimumLength * to.Magnitude())
        return std::nullopt;
    const gp_Vec2d toCentre =
        (to.GetNormal() * via.SquareMagnitude() - via.GetNormal() * to.SquareMagnitude()) /
        (2.0 * area);
    const gp_Pnt2d centre = from.Translated(toCentre);
    // In the plane itself, so that the kernel recognises what the arc sweeps. A positive area is
    // counterclockwise.
    const gp_Dir normal = area > 0.0 ? plane.Direction() : plane.Direction().Reversed();
    return gp_Circ(gp_Ax2(InPlane(plane, centre), normal, plane.XDirection()),
                   toCentre.Magnitude());
}

TopoDS_Edge PieceTo(const OutlineCorner& corner, const gp_Pnt2d& from, const TopoDS_Vertex& start,
                    const TopoDS_Vertex& end, const gp_Ax2& plane, int number)
{
    if (from.Distance(corner.point) < MinimumLength)
        throw BuildError(
            BuildError::tr("corner %1 of its profile is at the same place as the one before.")
                .arg(number));
    if (!corner.via)
        return BRepBuilderAPI_MakeEdge(start, end).Edge();
    const std::optional<gp_Circ> arc = ArcTo(corner, from, plane);
    if (!arc)
        throw BuildError(
            BuildError::tr("the arc to corner %1 of its profile goes through three points on a "
                           "line.")
                .arg(number));
    return BRepBuilderAPI_MakeEdge(*arc, start, end).Edge();
}

// Piece 1 leads from the first corner to the second, the last one back to the first.
Edges EdgesOf(const Outline& outline, const gp_Ax2& plane)
{
    if (outline.size() < 2 || outline.size() > MaximumCorners)
        throw BuildError(BuildError::tr("its profile has %1 corners, but has to have from 2 to %2.")
                             .arg(outline.size())
                             .arg(MaximumCorners));
    std::vector<TopoDS_Vertex> corners;
    for (const OutlineCorner& corner : outline)
        corners.push_back(BRepBuilderAPI_MakeVertex(InPlane(plane, corner.point)));
    Edges edges;
    BRepBuilderAPI_MakeWire wire;
    for (std::size_t from = 0; from < outline.size(); ++from) {
        const std::size_t to = (from + 1) % outline.size();
        edges.pieces.push_back(PieceTo(outline[to], outline[from].point, corners[from], corners[to],
                                       plane, int(to) + 1));
        wire.Add(edges.pieces.back());
    }
    if (!wire.IsDone())
        throw BuildError(BuildError::tr("its profile is not a closed line."));
    edges.wire = wire.Wire();
    const bool isFlat = std::none_of(outline.begin(), outline.end(),
                                     [](const OutlineCorner& corner) { return corner.via; });
    if (outline.size() == 2 && isFlat)
        throw BuildError(BuildError::tr("its profile does not enclose an area."));
    return edges;
}

FeatureKind Profiled(const char* word, const char* title)
{
    FeatureKind kind(word, title, FeatureGroup::Body);
    kind.hasProfile = true;
    return kind;
}

FeatureKind Extrude()
{
    FeatureKind kind = Profiled("extrude", QT_TRANSLATE_NOOP("FeatureKinds", "Extruded profile"));
    kind.fields = {{"length", QT_TRANSLATE_NOOP("FeatureKinds", "Extrude length"), "10", Length}};
    MakePlaced(kind);
    kind.build = [](const BuildInput& input) {
        const Edges edges = EdgesOf(input.Profile(), gp::XOY());
        return Extruded(edges.wire, edges.pieces, gp_Vec(0.0, 0.0, input.Value("length")));
    };
    return kind;
}

// Where the profile comes nearest to the axis, its x is 0 or above.
void CheckBesideAxis(const Edges& edges)
{
    constexpr bool UseTriangulation = false;
    constexpr bool UseTolerance = false;
    Bnd_Box box;
    BRepBndLib::AddOptimal(edges.wire, box, UseTriangulation, UseTolerance);
    if (box.CornerMin().X() < -MinimumLength)
        throw BuildError(
            BuildError::tr("its profile extends to x = %1, but has to lie at x = 0 or above: the "
                           "axis is at x = 0.")
                .arg(ShortText(box.CornerMin().X())));
}

FeatureKind Revolve()
{
    FeatureKind kind = Profiled("revolve", QT_TRANSLATE_NOOP("FeatureKinds", "Revolved profile"));
    kind.fields = {{"angle", QT_TRANSLATE_NOOP("FeatureKinds", "Angle"), "360", Sweep}};
    MakePlaced(kind);
    kind.build = [](const BuildInput& input) {
        // The profile's y is the height z.
        const gp_Ax2 plane(gp::Origin(), -gp::DY(), gp::DX());
        const Edges edges = EdgesOf(input.Profile(), plane);
        CheckBesideAxis(edges);
        return Revolved(edges.wire, edges.pieces, gp::OZ(), input.Radians("angle"));
    };
    return kind;
}

} // namespace

std::vector<FeatureKind> FeatureKinds::Profiles()
{
    return {Extrude(), Revolve()};
}
