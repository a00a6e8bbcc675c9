#include "Bodies.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Vertex.hxx>

TopTools_ListOfShape BodiesOf(const TopoDS_Shape& shape)
{
    TopTools_ListOfShape bodies;
    VisitBodies(shape, [&](const TopoDS_Shape& body) { bodies.Append(body); });
    return bodies;
}

int CountBodies(const TopoDS_Shape& shape)
{
    int count = 0;
    VisitBodies(shape, [&](const TopoDS_Shape&) { ++count; });
    return count;
}

TopoDS_Shape Compound(const std::vector<TopoDS_Shape>& shapes)
{
    const BRep_Builder builder;
    TopoDS_Compound compound;
    builder.MakeCompound(compound);
    for (const TopoDS_Shape& shape : shapes)
        builder.Add(compound, shape);
    return compound;
}

TopoDS_Shape Unwrapped(const TopoDS_Shape& shape)
{
    return CountBodies(shape) == 1 ? BodiesOf(shape).First() : shape;
}

std::vector<gp_Pnt> PointsOf(const TopoDS_Shape& body)
{
    std::vector<gp_Pnt> points;
    TopTools_IndexedMapOfShape vertices;
    TopExp::MapShapes(body, TopAbs_VERTEX, vertices);
    for (int i = 1; i <= vertices.Extent(); ++i)
        points.push_back(BRep_Tool::Pnt(TopoDS::Vertex(vertices(i))));
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(body, TopAbs_EDGE, edges);
    for (int i = 1; i <= edges.Extent(); ++i) {
        const TopoDS_Edge& edge = TopoDS::Edge(edges(i));
        if (BRep_Tool::Degenerated(edge))
            continue;
        const BRepAdaptor_Curve curve(edge);
        points.push_back(curve.Value((curve.FirstParameter() + curve.LastParameter()) / 2.0));
    }
    return points;
}
