#pragma once

#include <utility>
#include <vector>

class TopoDS_Shape;

/// The numbers of solids that touch each other without sharing a face, in pairs: from 1, in the
/// order of TopExp::MapShapes(). A mesh would not join them. The search is bounded: it ends after
/// 20 pairs or 2,000 comparisons.
std::vector<std::pair<int, int>> FindContacts(const TopoDS_Shape& shape);
