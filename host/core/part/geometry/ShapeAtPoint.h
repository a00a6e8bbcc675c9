#pragma once

class TopoDS_Shape;
class gp_Pnt;

// Faces and edges within 0.00001 mm of a point, as numbers in TopExp::MapShapes(), from 1.

/// The only edge of @p shape through @p point. Edges inside a face, such as the seam of a cylinder,
/// do not count. @throws BuildError if there is none or more than one
int EdgeAt(const TopoDS_Shape& shape, const gp_Pnt& point);

/// The only face of @p shape that @p point lies on. @throws BuildError if there is none or more
/// than one
int FaceAt(const TopoDS_Shape& shape, const gp_Pnt& point);
