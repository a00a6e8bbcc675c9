#pragma once

#include <TopTools_ListOfShape.hxx>
#include <TopoDS_Iterator.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

#include <vector>

/// The bodies in @p shape: itself, or the contents of its compounds, in order.
TopTools_ListOfShape BodiesOf(const TopoDS_Shape& shape);

/// Calls @p visit with each of BodiesOf(), without making the list.
template<class Visitor>
void VisitBodies(const TopoDS_Shape& shape, const Visitor& visit)
{
    if (shape.IsNull())
        return;
    if (shape.ShapeType() != TopAbs_COMPOUND) {
        visit(shape);
        return;
    }
    for (TopoDS_Iterator parts(shape); parts.More(); parts.Next())
        VisitBodies(parts.Value(), visit);
}

/// @p body without its location: the same for all copies of a body.
inline TopoDS_Shape AtOrigin(const TopoDS_Shape& body)
{
    return body.Located(TopLoc_Location());
}

int CountBodies(const TopoDS_Shape& shape);

TopoDS_Shape Compound(const std::vector<TopoDS_Shape>& shapes);

/// Removes the compounds around a single body.
TopoDS_Shape Unwrapped(const TopoDS_Shape& shape);

/// The corners of @p body, and the middles of its edges.
std::vector<gp_Pnt> PointsOf(const TopoDS_Shape& body);
