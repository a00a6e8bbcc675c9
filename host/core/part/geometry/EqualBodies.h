#pragma once

class TopoDS_Shape;
class gp_Trsf;

#include <vector>

/// The first of @p places at which a body of @p shape would take up the space of one that @p shape
/// has where it is; -1 if there is none. The places keep lengths and angles.
int PlaceOfEqualBodies(const TopoDS_Shape& shape, const std::vector<gp_Trsf>& places);
