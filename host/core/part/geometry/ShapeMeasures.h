#pragma once

#include "BodyOverlaps.h"

#include <array>

class BodyVolumes;
class TopoDS_Shape;

/// What the host shows of a part; a study records volume, area and bounding box.
struct ShapeMeasures
{
    double volume = 0.0;            ///< mm3
    double area = 0.0;              ///< mm2
    std::array<double, 3> centre{}; ///< Of mass: x, y, z in mm.
    /// The moments of inertia of the volume, for a density of 1, about the centre of mass and
    /// parallel to the axes: xx, yy, zz, then the products of inertia xy, xz, yz, which are
    /// integrals of x y, x z and y z. In mm5.
    std::array<double, 6> secondMoments{};
    std::array<double, 6> boundingBox{}; ///< Minimum x, y, z, maximum x, y, z, in mm; tight.
    BodyOverlaps overlaps;

    /// The mass in kg; @p density is in kg/m3.
    double Mass(double density) const;
    /// The second moments with @p density in kg/m3: moments and products of inertia in kg mm2.
    std::array<double, 6> Inertia(double density) const;
};

/// Measures @p shape. @p volumes may know its bodies already. @throws Standard_Failure if the
/// kernel fails
ShapeMeasures Measure(const TopoDS_Shape& shape, BodyVolumes& volumes);
/// Measures @p shape alone. @throws Standard_Failure
ShapeMeasures Measure(const TopoDS_Shape& shape);
