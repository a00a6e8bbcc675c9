#pragma once

#include <array>
#include <cstddef>
#include <vector>

/// A point or a vector, in mm.
using Vector3 = std::array<double, 3>;

/// The mesh of a part: second-order elements. Nodes are counted from 0.
///
/// Mid-nodes follow the corners. Those of a tetrahedron are on its edges 12, 23, 31, 14, 24, 34,
/// those of a face on 12, 23 and so on, that of a line between its ends.
struct Mesh
{
    struct Tetrahedron
    {
        std::array<int, 10> nodes{};
        int body = 0; ///< The index of the solid in the shape, from 1.
    };

    /// A triangle or a quadrilateral on a face of the part.
    struct Facet
    {
        std::array<int, 8> nodes{}; ///< The first NodeCount() count.
        int corners = 3;
        int face = 0; ///< The index of the face in the shape, from 1.

        std::size_t NodeCount() const { return 2 * std::size_t(corners); }
    };

    /// A piece of an edge of the part.
    struct Line
    {
        std::array<int, 3> nodes{};
        int edge = 0; ///< The index of the edge in the shape, from 1.
    };

    std::vector<Vector3> nodes;
    std::vector<Tetrahedron> tetrahedra; ///< Empty for a mesh of shells.
    std::vector<Facet> facets; ///< Elements of a mesh of shells, otherwise the skin of the solids.
    std::vector<Line> lines;

    bool IsSolid() const { return !tetrahedra.empty(); }
    std::size_t ElementCount() const { return IsSolid() ? tetrahedra.size() : facets.size(); }
    /// Displacements of solids; displacements and rotations of shells.
    std::size_t FreedomCount() const { return nodes.size() * (IsSolid() ? 3 : 6); }
};
