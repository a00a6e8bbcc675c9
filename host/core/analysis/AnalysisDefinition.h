#pragma once

#include "AnalysisType.h"
#include "ShapeReference.h"

#include <QString>

#include <array>
#include <optional>
#include <vector>

// The analysis set-up as it stands in a project: plain values. Numbers that a parameter may change
// are texts: numbers or expressions over the parameters.

/// Elements of one thickness and material.
struct PropertyDefinition
{
    QString name;
    QString material;  ///< Of the system's or the user's library.
    QString thickness; ///< Of shells, in mm; empty for solids.
    /// Where shells are; none for a property of solids, which holds for the whole part.
    std::vector<FaceReference> faces;

    bool operator==(const PropertyDefinition& other) const
    {
        return name == other.name && material == other.material && thickness == other.thickness &&
               faces == other.faces;
    }
};

/// A support: degrees of freedom that are held on faces and edges.
struct ConstraintDefinition
{
    static constexpr int Freedoms = 6;

    QString name;
    /// Displacements along x, y, z, then rotations about x, y, z.
    std::array<bool, Freedoms> held{};
    std::vector<FaceReference> faces;
    std::vector<EdgeReference> edges;

    bool operator==(const ConstraintDefinition& other) const
    {
        return name == other.name && held == other.held && faces == other.faces &&
               edges == other.edges;
    }
};

/// A force on faces, spread by area, or on edges, spread by length.
struct LoadDefinition
{
    QString name;
    std::array<QString, 3> force; ///< The total along x, y, z in N.
    std::vector<FaceReference> faces;
    std::vector<EdgeReference> edges; ///< Not together with faces.

    bool operator==(const LoadDefinition& other) const
    {
        return name == other.name && force == other.force && faces == other.faces &&
               edges == other.edges;
    }
};

/// The mesh near some faces and edges: the size of elements, or their number along each edge.
struct LocalMeshDefinition
{
    QString size;   ///< In mm; empty if there is a number.
    QString number; ///< Along each of the edges; empty if there is a size.
    std::vector<FaceReference> faces;
    std::vector<EdgeReference> edges;

    bool operator==(const LocalMeshDefinition& other) const
    {
        return size == other.size && number == other.number && faces == other.faces &&
               edges == other.edges;
    }
};

/// Which modes of vibration are wanted.
struct FrequencyRange
{
    static constexpr int MaximumNumber = 10000;

    double min = 1.0;       ///< In Hz. Rigid-body modes count only if it is 0.
    double max = 1000000.0; ///< In Hz.
    int number = 10;        ///< Of modes between min and max.

    bool operator==(const FrequencyRange& other) const
    {
        return min == other.min && max == other.max && number == other.number;
    }
};

/// The pair of codes that CAnalysisTypeGUI asks for.
struct SolverType
{
    int family = AnalysisType::MechanicsFamily;
    int kind = AnalysisType::VibrationKind;

    bool operator==(const SolverType& other) const
    {
        return family == other.family && kind == other.kind;
    }
};

/// The entry "analysis" of a project.
struct AnalysisDefinition
{
    SolverType type; ///< That the user has in mind: it is checked, but results do not depend on it.
    QString meshSize; ///< In mm; empty for a tenth of the longest side of the part's box.
    FrequencyRange frequencies;
    std::vector<PropertyDefinition> properties;
    std::vector<ConstraintDefinition> constraints;
    std::vector<LoadDefinition> loads;
    std::vector<LocalMeshDefinition> localMeshes;

    bool operator==(const AnalysisDefinition& other) const
    {
        return type == other.type && meshSize == other.meshSize &&
               frequencies == other.frequencies && properties == other.properties &&
               constraints == other.constraints && loads == other.loads &&
               localMeshes == other.localMeshes;
    }
    bool operator!=(const AnalysisDefinition& other) const { return !(*this == other); }
};
