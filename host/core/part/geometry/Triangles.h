#pragma once

class TopoDS_Shape;

/// Gives the faces of @p shape the triangles that the 3D view would give them, so that the view
/// has nothing to calculate. RemoveTriangles() takes them away again.
///
/// Shapes that are built further should have no triangles: the kernel takes them for a measure of
/// size here and there, so results would depend on what was displayed.
void AddTriangles(const TopoDS_Shape& shape);
void RemoveTriangles(const TopoDS_Shape& shape);
