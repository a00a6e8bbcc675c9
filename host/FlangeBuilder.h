#pragma once

#include "BuildError.h"

class TopoDS_Shape;

/// The measures of a bolted flange: a round plate with a hub on top, a bore through both, and a
/// circle of bolt holes in the plate. Lengths are in millimetres.
struct FlangeDimensions
{
    double outerDiameter = 0.0;
    double boreDiameter = 0.0;
    double thickness = 0.0;  ///< Of the plate.
    double boltCircle = 0.0; ///< The diameter on which the bolt holes' centres lie.
    double boltCount = 0.0;  ///< A whole number, from 1.
    double boltHole = 0.0;   ///< The diameter of a hole.
    double hubDiameter = 0.0;
    double hubHeight = 0.0;    ///< Above the plate.
    double filletRadius = 0.0; ///< Between hub and plate; 0 leaves the corner sharp.
};

/// Builds the sample part from the parameter store. It stands for whatever a host regenerates.
class FlangeBuilder
{
public:
    /// The most bolt holes.
    static constexpr int MaximumBoltCount = 360;

    FlangeBuilder() = delete;

    /// Reads "outer_diameter", "bore_diameter", "thickness", "bolt_circle", "bolt_count",
    /// "bolt_hole", "hub_diameter", "hub_height" and, where it exists, "fillet_radius" from
    /// GlobalParaMeterMgr. @throws BuildError when one is missing.
    static FlangeDimensions ReadDimensions();

    /// Looks for whatever would make the part impossible. @throws BuildError
    static void Check(const FlangeDimensions& flange);

    /// Builds one valid closed solid: the axis is z, the plate stands on z = 0, the first hole is
    /// at positive x. Checks first. @throws BuildError, also for failures of the kernel.
    static TopoDS_Shape Build(const FlangeDimensions& dimensions);

    /// Builds from what the store holds now. @throws BuildError
    static TopoDS_Shape BuildFromStore();
};
