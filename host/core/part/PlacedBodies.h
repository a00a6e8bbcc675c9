#pragma once

#include "Feature.h"

#include <vector>

class TopoDS_Shape;

/// @p input moved, rotated, mirrored or repeated, as @p kind says; @p values are those of the
/// kind's fields, each within its rule. @throws BuildError
TopoDS_Shape PlaceBody(FeatureKind kind, const TopoDS_Shape& input,
                       const std::vector<double>& values);
