#pragma once

#include "ShapeReference.h"

#include <array>

struct BuiltPart;

// References to one face or edge of a part that was picked in the view. Faces and edges are counted
// from 1 in the order of TopExp::MapShapes(); @p step is one of the part's plan, or
// PartFaces::WholePart.

/// A coordinate in mm, rounded far below the tolerance of finding a face.
QString CoordinateText(double coordinate);

/// By a name that only this face bears, if there is one; otherwise by @p point, which is on it.
FaceReference ReferenceToFace(const BuiltPart& part, int step, int face,
                              const std::array<double, 3>& point);

/// By two faces that share only this edge, if there are such names; otherwise by @p point, which is
/// on it.
EdgeReference ReferenceToEdge(const BuiltPart& part, int step, int edge,
                              const std::array<double, 3>& point);
