#pragma once

#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepExtrema_DistShapeShape.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

/// The index of the face or edge that passes through a point, as the mesher counts them; 0 if there
/// is none.
inline int IndexAt(const TopoDS_Shape& shape, TopAbs_ShapeEnum type, const gp_Pnt& point)
{
    TopTools_IndexedMapOfShape shapes;
    TopExp::MapShapes(shape, type, shapes);
    const TopoDS_Shape vertex = BRepBuilderAPI_MakeVertex(point).Shape();
    for (int index = 1; index <= shapes.Extent(); ++index) {
        if (BRepExtrema_DistShapeShape(shapes(index), vertex).Value() < 1e-6)
            return index;
    }
    return 0;
}

inline int FaceAt(const TopoDS_Shape& shape, double x, double y, double z)
{
    return IndexAt(shape, TopAbs_FACE, {x, y, z});
}

inline int EdgeAt(const TopoDS_Shape& shape, double x, double y, double z)
{
    return IndexAt(shape, TopAbs_EDGE, {x, y, z});
}
