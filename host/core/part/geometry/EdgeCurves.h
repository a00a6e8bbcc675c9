#pragma once

class TopoDS_Shape;

/// Makes the curves of edges in the parameters of their faces as exact as the curves in space.
///
/// The kernel's STEP reader draws them through a few points only, which costs parts in a million of
/// volume and area. @p shape is changed.
void RefineEdgeCurves(const TopoDS_Shape& shape);
