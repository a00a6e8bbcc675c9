#include "Seams.h"

#include "BodyVolumes.h"
#include "FaceTrace.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepBuilderAPI_Copy.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <GeomAbs_SurfaceType.hxx>
#include <OSD_Signal.hxx>
#include <Standard_Failure.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>

#include <ShapeUpgrade_UnifySameDomain.hxx>

#include <cmath>

namespace {

TopTools_MapOfShape EdgesOfCurvedFaces(const TopoDS_Shape& shape)
{
    TopTools_MapOfShape edges;
    for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next()) {
        if (BRepAdaptor_Surface(TopoDS::Face(faces.Current())).GetType() == GeomAbs_Plane)
            continue;
        for (TopExp_Explorer edge(faces.Current(), TopAbs_EDGE); edge.More(); edge.Next())
            edges.Add(edge.Current());
    }
    return edges;
}

bool IsSameBody(const TopoDS_Shape& merged, const TopoDS_Shape& shape)
{
    constexpr double Tolerance = 1e-6; // Of the volume; free-form faces are integrated so well.
    if (merged.IsNull() || !BRepCheck_Analyzer(merged).IsValid())
        return false;
    const double volume = BodyVolumes().Of(shape);
    return std::abs(BodyVolumes().Of(merged) - volume) <= Tolerance * volume;
}

} // namespace

TopoDS_Shape WithoutSeams(const TopoDS_Shape& shape, FaceTrace& trace)
{
    for (const bool isOnlyFlat : {false, true}) {
        try {
            // Where it fails it may leave what it was given damaged.
            constexpr bool CopyGeometry = false;
            BRepBuilderAPI_Copy copy(shape, CopyGeometry);
            ShapeUpgrade_UnifySameDomain unifier(copy.Shape());
            if (isOnlyFlat)
                unifier.KeepShapes(EdgesOfCurvedFaces(copy.Shape()));
            unifier.Build();
            if (IsSameBody(unifier.Shape(), shape)) {
                trace.KeepOnly(shape);
                trace.Follow(copy);
                trace.Follow(*unifier.History());
                return unifier.Shape();
            }
        } catch (const OSD_Signal&) {
            throw;
        } catch (const Standard_Failure&) {
            // The next attempt, or the shape as it is.
            continue;
        }
    }
    return shape;
}
