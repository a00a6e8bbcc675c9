#pragma once

#include "ElementShapes.h"
#include "Mesh.h"
#include "ResultFile.h"

#include <vector>

/// What a static analysis found at the nodes of the mesh.
struct StaticResult
{
    std::vector<Vector3> displacements; ///< In mm.
    /// Equivalent stress in MPa; of shells the greater one of both sides.
    std::vector<double> stresses;

    double maximumDisplacement = 0.0; ///< In mm.
    int displacedNode = 0;            ///< Where it is.
    double maximumStress = 0.0;       ///< In MPa.
    int stressedNode = 0;
};

/// The shapes of all modes in the file: displacements by node. Their scale is arbitrary.
/// @throws ResultError if the file does not fit the mesh
std::vector<std::vector<Vector3>> ModeShapes(const ResultFile& file, const Mesh& mesh);

/// The last static step of the file. @throws ResultError if the file does not fit the mesh
StaticResult StaticResults(const ResultFile& file, const Mesh& mesh);
