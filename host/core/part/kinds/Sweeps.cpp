#include "Sweeps.h"

#include "FaceTrace.h"
#include "FaceWords.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedDataMapOfShapeListOfShape.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Vertex.hxx>
#include <gp_Ax1.hxx>
#include <gp_Vec.hxx>

#include <algorithm>

namespace {

void AddSide(FaceTrace& trace, const TopoDS_Shape& side, int number)
{
    trace.AddNew(side, FaceWords::Side);
    trace.AddNew(side, FaceWords::SideNumber(number));
}

void AddSides(FaceTrace& trace, const std::vector<TopoDS_Edge>& edges,
              BRepBuilderAPI_MakeShape& sweep)
{
    int number = 0;
    for (const TopoDS_Edge& edge : edges) {
        ++number;
        for (const TopoDS_Shape& side : sweep.Generated(edge))
            AddSide(trace, side, number);
    }
}

// Whether these are the edges of the face.
bool HasOnly(const TopoDS_Shape& face, const TopTools_IndexedMapOfShape& edges)
{
    TopTools_IndexedMapOfShape own;
    TopExp::MapShapes(face, TopAbs_EDGE, own);
    return own.Extent() == edges.Extent() &&
           std::all_of(own.cbegin(), own.cend(),
                       [&edges](const TopoDS_Shape& edge) { return edges.Contains(edge); });
}

// The kernel removes the seams of the flat discs and rings that a full turn makes, and forgets
// which piece made them. Their edges are the circles that the ends of the piece make.
void AddFlatSides(FaceTrace& trace, const std::vector<TopoDS_Edge>& edges,
                  BRepPrimAPI_MakeRevol& turn)
{
    TopTools_IndexedDataMapOfShapeListOfShape facesAt;
    TopExp::MapShapesAndAncestors(turn.Shape(), TopAbs_EDGE, TopAbs_FACE, facesAt);
    int number = 0;
    for (const TopoDS_Edge& edge : edges) {
        ++number;
        if (!turn.Generated(edge).IsEmpty())
            continue;
        TopTools_IndexedMapOfShape circles;
        for (const TopoDS_Vertex& end : {TopExp::FirstVertex(edge), TopExp::LastVertex(edge)})
            for (const TopoDS_Shape& circle : turn.Generated(end))
                circles.Add(circle);
        if (circles.IsEmpty() || !facesAt.Contains(circles(1)))
            continue; // It lies on the axis.
        for (const TopoDS_Shape& face : facesAt.FindFromKey(circles(1))) {
            if (HasOnly(face, circles))
                AddSide(trace, face, number);
        }
    }
}

} // namespace

TracedShape Extruded(const TopoDS_Wire& outline, const std::vector<TopoDS_Edge>& edges,
                     const gp_Vec& sweep)
{
    constexpr bool OnlyPlane = true;
    BRepPrimAPI_MakePrism prism(BRepBuilderAPI_MakeFace(outline, OnlyPlane).Face(), sweep);
    FaceTrace trace;
    trace.AddNew(prism.FirstShape(), FaceWords::Bottom);
    trace.AddNew(prism.LastShape(), FaceWords::Top);
    AddSides(trace, edges, prism);
    return trace.Of(prism.Shape());
}

TracedShape Revolved(const TopoDS_Wire& outline, const std::vector<TopoDS_Edge>& edges,
                     const gp_Ax1& axis, double radians)
{
    constexpr bool OnlyPlane = true;
    BRepPrimAPI_MakeRevol turn(BRepBuilderAPI_MakeFace(outline, OnlyPlane).Face(), axis, radians);
    FaceTrace trace;
    // A full turn has neither.
    trace.AddNew(turn.FirstShape(), FaceWords::Start);
    trace.AddNew(turn.LastShape(), FaceWords::End);
    AddSides(trace, edges, turn);
    AddFlatSides(trace, edges, turn);
    return trace.Of(turn.Shape());
}
