#pragma once

#include "FaceOrigins.h"

#include <TopoDS_Edge.hxx>
#include <TopoDS_Wire.hxx>

#include <vector>

class gp_Ax1;
class gp_Vec;

// Bodies that a flat outline sweeps. The edges of the outline, in their order, are given as well:
// the side that each of them makes is called after its number.

/// Sweeps the face within @p outline along @p sweep. The outline's own face is the bottom.
TracedShape Extruded(const TopoDS_Wire& outline, const std::vector<TopoDS_Edge>& edges,
                     const gp_Vec& sweep);

/// Turns the face within @p outline about @p axis by @p radians, at most a full turn. The outline
/// must not cross the axis.
TracedShape Revolved(const TopoDS_Wire& outline, const std::vector<TopoDS_Edge>& edges,
                     const gp_Ax1& axis, double radians);
