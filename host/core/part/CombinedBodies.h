#pragma once

#include <TopoDS_Shape.hxx>

#include <vector>

class gp_Pnt;

/// @p first with all @p tools in one body, where they meet. @throws BuildError
TopoDS_Shape FuseBodies(const TopoDS_Shape& first, const std::vector<TopoDS_Shape>& tools);

/// @p first without what @p tools take up. @throws BuildError, also when nothing is left
TopoDS_Shape CutBodies(const TopoDS_Shape& first, const std::vector<TopoDS_Shape>& tools);

/// @p input with the edge through @p point, and those that go on from it smoothly, rounded; a
/// @p radius of 0 leaves it as it is. @throws BuildError
TopoDS_Shape FilletBody(const TopoDS_Shape& input, double radius, const gp_Pnt& point);
