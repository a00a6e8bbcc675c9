#pragma once

#include <QString>

#include <array>
#include <vector>

// Faces and edges of a part as references name them, with numbers in the place of expressions.

/// Faces: all that bear a name, or the only one through a point.
struct FaceTarget
{
    QString name;                  ///< As in FaceReference; empty for a point.
    std::array<double, 3> at = {}; ///< In mm; only if there is no name.

    bool IsPoint() const { return name.isEmpty(); }

    bool operator==(const FaceTarget& other) const { return name == other.name && at == other.at; }
};

/// Edges: all that two faces share, or the only one through a point.
struct EdgeTarget
{
    std::vector<FaceTarget> between; ///< Two faces, or none for a point.
    std::array<double, 3> at = {};   ///< In mm; only if there are no faces.

    bool IsPoint() const { return between.empty(); }

    bool operator==(const EdgeTarget& other) const
    {
        return between == other.between && at == other.at;
    }
};
