#pragma once

#include "AnalysisDefinition.h"
#include "BodyOverlaps.h"

#include <QString>

#include <vector>

struct BuiltPart;

/// A place in the set-up of an analysis.
struct AnalysisEntry
{
    enum Kind
    {
        Part, ///< The part itself.
        SolverType,
        Property,
        Constraint,
        Load,
        Frequencies,
        MeshSize,
        LocalMesh
    };

    Kind kind = Part;
    int index = 0; ///< In the list of its kind, where there is a list.

    bool operator==(const AnalysisEntry& other) const
    {
        return kind == other.kind && index == other.index;
    }
};

/// Something about a set-up that the user should see.
struct SetupProblem
{
    QString text; ///< One line.
    AnalysisEntry entry;
    bool isWarning = false; ///< Solving is possible nevertheless.
};

/// What the check knows beside the set-up itself.
struct SetupContext
{
    QString partMaterial;
    BodyOverlaps overlaps;
    double longestSide = 0.0; ///< Of the part's box, in mm; 0 without a part.
    QString failure;          ///< Why the features build no part now; empty if they do.
    /// In which targets are looked for; without it they are taken as found.
    const BuiltPart* part = nullptr;
};

/// What would keep a solver from running, or from computing what the user means. Numbers have the
/// values of the parameter store, materials those of the material store.
std::vector<SetupProblem> CheckSetup(const AnalysisDefinition& analysis,
                                     const SetupContext& context);
