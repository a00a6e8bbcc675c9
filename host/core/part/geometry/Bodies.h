#pragma once

#include <TopTools_ListOfShape.hxx>
#include <TopoDS_Shape.hxx>

#include <vector>

/// The bodies in @p shape: itself, or the contents of its compounds, in order.
TopTools_ListOfShape BodiesOf(const TopoDS_Shape& shape);

int CountBodies(const TopoDS_Shape& shape);

TopoDS_Shape Compound(const std::vector<TopoDS_Shape>& shapes);

/// Removes the compounds around a single body.
TopoDS_Shape Unwrapped(const TopoDS_Shape& shape);

/// Checks each different body of @p shape once.
/// @throws BuildError if one is not closed or not valid
void CheckBodies(const TopoDS_Shape& shape);
