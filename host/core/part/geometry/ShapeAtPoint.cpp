#include "ShapeAtPoint.h"

#include "BuildError.h"
#include "NumberTexts.h"

#include <BRepBndLib.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepExtrema_DistShapeShape.hxx>
#include <BRep_Tool.hxx>
#include <Bnd_Box.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

namespace {

// In mm. Far above the rounding errors of expressions, and below MinimumLength.
constexpr double Nearness = 1e-5;

bool IsNear(const TopoDS_Shape& shape, const gp_Pnt& point)
{
    // The bounding box first: it takes much less time.
    Bnd_Box box;
    BRepBndLib::Add(shape, box);
    box.Enlarge(Nearness);
    if (box.IsOut(point))
        return false;
    const TopoDS_Shape vertex = BRepBuilderAPI_MakeVertex(point).Shape();
    const BRepExtrema_DistShapeShape distance(vertex, shape);
    return distance.IsDone() && distance.Value() <= Nearness;
}

// The seams of closed faces and the edges without length: neither separates two faces.
TopTools_MapOfShape InnerEdges(const TopoDS_Shape& shape)
{
    TopTools_MapOfShape inner;
    for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next()) {
        const TopoDS_Face& face = TopoDS::Face(faces.Current());
        for (TopExp_Explorer edges(face, TopAbs_EDGE); edges.More(); edges.Next()) {
            const TopoDS_Edge& edge = TopoDS::Edge(edges.Current());
            if (BRep_Tool::Degenerated(edge) || BRep_Tool::IsClosed(edge, face))
                inner.Add(edge);
        }
    }
    return inner;
}

int OnlyOneAt(const TopTools_IndexedMapOfShape& shapes, const TopTools_MapOfShape& ignored,
              const gp_Pnt& point, const QString& several, const QString& none)
{
    const QString place =
        QStringLiteral("(%1, %2, %3)")
            .arg(ShortText(point.X()), ShortText(point.Y()), ShortText(point.Z()));
    int found = 0;
    for (int index = 1; index <= shapes.Extent(); ++index) {
        const TopoDS_Shape& shape = shapes(index);
        if (ignored.Contains(shape) || !IsNear(shape, point))
            continue;
        if (found > 0)
            throw BuildError(several.arg(place));
        found = index;
    }
    if (found == 0)
        throw BuildError(none.arg(place));
    return found;
}

} // namespace

int EdgeAt(const TopoDS_Shape& shape, const gp_Pnt& point)
{
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(shape, TopAbs_EDGE, edges);
    return OnlyOneAt(
        edges, InnerEdges(shape), point,
        BuildError::tr(
            "several edges meet at the point %1; choose a point that lies on one edge only."),
        BuildError::tr("no edge lies at the point %1."));
}

int FaceAt(const TopoDS_Shape& shape, const gp_Pnt& point)
{
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(shape, TopAbs_FACE, faces);
    return OnlyOneAt(
        faces, {}, point,
        BuildError::tr(
            "several faces meet at the point %1; choose a point that lies on one face only."),
        BuildError::tr("no face lies at the point %1."));
}
