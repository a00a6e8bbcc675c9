#pragma once

#include <gp_Pnt2d.hxx>

#include <array>
#include <optional>
#include <vector>

/// A corner of a closed profile with numbers, in mm.
struct OutlineCorner
{
    gp_Pnt2d point;
    std::optional<gp_Pnt2d> via; ///< On the arc that leads here; none for a straight line.

    /// All of them; equal for equal corners only.
    std::array<double, 5> Numbers() const
    {
        const gp_Pnt2d middle = via.value_or(gp_Pnt2d());
        return {point.X(), point.Y(), via ? 1.0 : 0.0, middle.X(), middle.Y()};
    }
};

/// The corners in their order; the piece that leads to the first one closes the profile.
using Outline = std::vector<OutlineCorner>;
