#pragma once

#include "BodyOverlaps.h"

#include <array>

class BodyVolumes;
class TopoDS_Shape;

/// What a study records of a part.
struct ShapeMeasures
{
    double volume = 0.0;                 ///< mm3
    double area = 0.0;                   ///< mm2
    std::array<double, 6> boundingBox{}; ///< Minimum x, y, z, maximum x, y, z, in mm; tight.
    BodyOverlaps overlaps;

    /// The mass in kg; @p density is in kg/m3.
    double Mass(double density) const;
};

/// Measures @p shape. @p volumes may know its bodies already. @throws Standard_Failure if the
/// kernel fails
ShapeMeasures Measure(const TopoDS_Shape& shape, BodyVolumes& volumes);
/// Measures @p shape alone. @throws Standard_Failure
ShapeMeasures Measure(const TopoDS_Shape& shape);
