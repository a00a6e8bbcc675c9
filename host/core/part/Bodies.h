#pragma once

#include <TopTools_ListOfShape.hxx>
#include <TopoDS_Shape.hxx>

#include <vector>

/// The bodies in @p shape: itself, or what its compounds hold, in their order.
TopTools_ListOfShape BodiesOf(const TopoDS_Shape& shape);

int CountBodies(const TopoDS_Shape& shape);

TopoDS_Shape Compound(const std::vector<TopoDS_Shape>& shapes);

/// Without the compounds round a single body.
TopoDS_Shape Unwrapped(const TopoDS_Shape& shape);

/// Looks at each different body once, however often it stands in @p shape.
/// @throws BuildError when one is not closed or not valid
void CheckBodies(const TopoDS_Shape& shape);
