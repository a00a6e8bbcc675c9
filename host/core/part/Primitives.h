#pragma once

#include "Feature.h"

#include <vector>

class TopoDS_Shape;

/// The body of a primitive kind at the origin; @p values are those of its fields, each within its
/// rule. @throws BuildError where the values do not go together
TopoDS_Shape MakePrimitive(FeatureKind kind, const std::vector<double>& values);
