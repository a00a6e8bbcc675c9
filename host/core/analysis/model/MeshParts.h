#pragma once

#include "Mesh.h"

#include <vector>

/// Elements that hang together.
struct MeshPart
{
    std::vector<int> nodes; ///< Ascending.
    int body = 0;           ///< The solid of one of its elements; 0 for shells.
};

/// The parts of a mesh: elements that share a node are in one part. In the order of their first
/// nodes.
std::vector<MeshPart> PartsOf(const Mesh& mesh);
