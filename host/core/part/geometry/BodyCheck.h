#pragma once

#include <TopoDS_Shape.hxx>

#include <vector>

class BodyVolumes;

// Checks of what the kernel has built: it may return a wrong body without an error.

/// Checks the bodies of @p result, except those that are also in @p inputs, which were checked when
/// they were built. Each has to be a closed and valid solid whose volume is above zero.
/// @throws BuildError
void CheckNewBodies(const TopoDS_Shape& result, const std::vector<TopoDS_Shape>& inputs,
                    BodyVolumes& volumes);

/// Checks that the @p volume of a result is within @p least and @p greatest, with a small
/// tolerance. All are in mm3. @throws BuildError
void CheckVolume(double volume, double least, double greatest);

/// Checks that @p result does not reach beyond the bounding box of @p input, with a small
/// tolerance. @throws BuildError
void CheckWithinBox(const TopoDS_Shape& result, const TopoDS_Shape& input);
