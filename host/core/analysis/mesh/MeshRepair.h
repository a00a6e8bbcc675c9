#pragma once

#include "Mesh.h"

/// What a repair did, and how good the mesh is.
struct MeshQuality
{
    /// The mesh has an element that no solver accepts.
    bool isUsable = true;
    int movedNodes = 0;
    /// The least Jacobian determinant of an element as a part of its greatest one: 1 for straight
    /// tetrahedra, 0 or less for an element that cannot be used.
    double worst = 1.0;
    Vector3 worstPlace{}; ///< The middle of that element, in mm.
};

/// Straightens elements that are too distorted: moves their mid-nodes to the middles of their
/// edges. Second-order meshes of curved faces have such elements.
MeshQuality RepairMesh(Mesh& mesh);
