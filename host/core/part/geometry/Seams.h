#pragma once

class FaceTrace;
class TopoDS_Shape;

/// @p shape, a body that was fused, with one face and one edge in the place of those that continue
/// each other. Where the kernel fails to merge them, they stay; flat faces are tried alone then.
/// @p trace follows.
TopoDS_Shape WithoutSeams(const TopoDS_Shape& shape, FaceTrace& trace);
