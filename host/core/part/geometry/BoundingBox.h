#pragma once

#include <Bnd_Box.hxx>

class TopoDS_Shape;

/// The box around the exact geometry of @p shape, without tolerances; void if there is no geometry.
///
/// The kernel searches free-form and toroidal faces for their extremes, which takes most of the
/// time of measuring a part. This asks it only for the faces that can reach the sides of the box.
Bnd_Box TightBox(const TopoDS_Shape& shape);
