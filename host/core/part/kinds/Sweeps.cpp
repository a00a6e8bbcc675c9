#include "Sweeps.h"

#include "FaceTrace.h"
#include "FaceWords.h"

#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <TopoDS_Face.hxx>
#include <gp_Ax1.hxx>
#include <gp_Vec.hxx>

namespace {

void AddSides(FaceTrace& trace, const std::vector<TopoDS_Edge>& edges,
              BRepBuilderAPI_MakeShape& sweep)
{
    int number = 0;
    for (const TopoDS_Edge& edge : edges) {
        ++number;
        for (const TopoDS_Shape& side : sweep.Generated(edge)) {
            trace.AddNew(side, FaceWords::Side);
            trace.AddNew(side, FaceWords::SideNumber(number));
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
    return trace.Of(turn.Shape());
}
