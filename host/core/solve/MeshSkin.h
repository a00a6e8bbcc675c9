#pragma once

#include "Mesh.h"

#include <array>
#include <vector>

/// The surface of a mesh, as it is drawn. Faces do not share points, so that edges of the part stay
/// sharp.
struct MeshSkin
{
    using Point = std::array<float, 3>;

    std::vector<Point> points; ///< In mm.
    std::vector<int> nodes;    ///< Of the mesh, for each point.
    std::vector<std::array<int, 3>> triangles;
    std::vector<std::array<int, 2>> lines; ///< The edges of the elements.
};

/// Second-order elements become four triangles or six.
MeshSkin SkinOf(const Mesh& mesh);
