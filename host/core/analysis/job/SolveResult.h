#pragma once

#include "AnalysisPlan.h"
#include "FiniteElementModel.h"
#include "MeshRepair.h"
#include "ModesTable.h"
#include "NodeResults.h"
#include "WorkerMessages.h"

#include <QMetaType>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

/// What became of an analysis.
struct SolveResult
{
    enum Outcome
    {
        Done,
        Failed,       ///< Something could not be built, meshed or solved.
        FolderFailed, ///< The disk is full, or the folder cannot be written.
        Cancelled
    };

    Outcome outcome = Done;
    QString problem;      ///< Unless it is done: one line.
    QStringList warnings; ///< One line each.

    PartReply part;           ///< As far as it was built.
    FiniteElementModel model; ///< As far as it was made.
    MeshQuality quality;      ///< Of its mesh.

    std::vector<Mode> modes;  ///< In the range, ascending; of an analysis of vibration.
    Mode::Masses totalMass{}; ///< What the effective masses of all modes add up to.
    std::vector<std::vector<Vector3>> shapes; ///< Displacements by node for each of the modes.

    StaticResult statics; ///< Of a static analysis.
    Vector3 reaction{};   ///< The force of the supports on the part, in N.
};

using SolveResultPointer = std::shared_ptr<const SolveResult>;
Q_DECLARE_METATYPE(SolveResultPointer)
