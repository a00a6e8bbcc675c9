#pragma once

class TopoDS_Edge;
class TopoDS_Shape;
class gp_Ax2;
class gp_Pnt;

/// The only edge of @p shape through @p point. Edges inside a face, such as the seam of a cylinder,
/// do not count. @throws BuildError if there is none or more than one
TopoDS_Edge EdgeAt(const TopoDS_Shape& shape, const gp_Pnt& point);

/// The plane of the only face of @p shape that @p point lies on.
/// @throws BuildError if there is none or more than one, or if the face is not flat
gp_Ax2 PlaneAt(const TopoDS_Shape& shape, const gp_Pnt& point);
