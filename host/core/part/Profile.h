#pragma once

#include <QString>

#include <vector>

/// A corner of a closed profile, and how the profile gets there. Texts are coordinates in mm:
/// numbers or expressions over the parameters.
struct ProfileCorner
{
    QString x;
    QString y;
    QString viaX; ///< Of a point on the arc that leads to the corner; empty for a straight line.
    QString viaY;

    bool IsArc() const { return !viaX.isEmpty(); }

    bool operator==(const ProfileCorner& other) const
    {
        return x == other.x && y == other.y && viaX == other.viaX && viaY == other.viaY;
    }
};

/// The corners in their order. The piece that leads to the first corner closes the profile.
using Profile = std::vector<ProfileCorner>;

/// A square of 10 mm with one corner at the origin.
Profile SquareProfile();
