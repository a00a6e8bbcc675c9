#pragma once

#include "Mesh.h"

#include <array>
#include <cstdint>
#include <vector>

/// A material in the units of the decks.
struct SolverMaterial
{
    double elasticModulus = 0.0; ///< MPa
    double poisson = 0.0;
    double density = 0.0; ///< t/mm3
};

/// Elements of one material and thickness.
struct ModelSection
{
    std::size_t material = 0; ///< In the model's list.
    double thickness = 0.0;   ///< Of shells, in mm.
    /// In the mesh's list of tetrahedra, or of facets for shells.
    std::vector<std::size_t> elements;
};

/// What a solver solves. Lengths are in mm, forces in N, masses in t, times in s.
struct FiniteElementModel
{
    static constexpr std::uint8_t Displacements = 0b000111;
    static constexpr std::uint8_t Rotations = 0b111000;

    Mesh mesh;
    std::vector<SolverMaterial> materials;
    std::vector<ModelSection> sections;
    /// The degrees of freedom that are held, node by node: the lowest bits are the displacements
    /// along x, y, z, then come the rotations.
    std::vector<std::uint8_t> held;
    /// The forces of all loads, node by node.
    std::vector<Vector3> forces;

    /// The freedoms that an element of this mesh has.
    std::uint8_t Freedoms() const
    {
        return mesh.IsSolid() ? Displacements : Displacements | Rotations;
    }
};
