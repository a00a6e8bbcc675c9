#pragma once

#include "MeshSkin.h"
#include "SolveResult.h"

#include <QByteArray>

#include <vector>

/// What is to be done with the part.
enum class SolveKind
{
    Mesh,      ///< Mesh it, and write the decks of an analysis of vibration.
    Vibration, ///< Compute its natural frequencies.
    Static     ///< Compute displacements and stresses under the loads.
};

/// All that the window shows of an analysis.
struct SolveReport
{
    /// The largest value of a field, and where it is.
    struct Peak
    {
        double value = 0.0;
        Vector3 place{}; ///< In mm.
    };

    SolveKind kind = SolveKind::Mesh; ///< Mesh if the solver has no results.

    int nodes = 0; ///< Of the mesh.
    int elements = 0;
    double worst = 1.0;   ///< Of the worst element; see MeshQuality.
    Vector3 worstPlace{}; ///< In mm.
    MeshSkin skin;

    std::vector<Mode> modes;
    Mode::Masses totalMass{};
    /// Displacements of the points of the skin: of each mode, at an arbitrary scale, or of the
    /// static analysis in mm. Those of the last modes are left out where they are too many.
    std::vector<std::vector<MeshSkin::Point>> moves;

    std::vector<float> stresses; ///< Of the points of the skin, in MPa; of a static analysis.
    Peak displacement;           ///< In mm.
    Peak stress;                 ///< In MPa.
    Vector3 reaction{};          ///< See SolveResult.
};

/// @p result has a mesh.
SolveReport ReportOf(const SolveResult& result, SolveKind kind);

QByteArray ToBytes(const SolveReport& report);
/// @throws HostError if the bytes are damaged
SolveReport ReportFromBytes(const QByteArray& bytes);
