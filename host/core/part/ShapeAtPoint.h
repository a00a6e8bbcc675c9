#pragma once

class TopoDS_Edge;
class TopoDS_Shape;
class gp_Ax2;
class gp_Pnt;

/// The only edge of @p shape that goes through @p point. Edges that no two faces share, such as the
/// seam of a cylinder, do not count. @throws BuildError when there is none or several
TopoDS_Edge EdgeAt(const TopoDS_Shape& shape, const gp_Pnt& point);

/// The plane of the only face of @p shape that @p point lies in; the face has to be flat.
/// @throws BuildError when there is none or several, or one that is not flat
gp_Ax2 PlaneAt(const TopoDS_Shape& shape, const gp_Pnt& point);
