#pragma once

#include "AnalysisDefinition.h"
#include "ElementShapes.h"
#include "MaterialLibrary.h"
#include "MeshScript.h"

#include <QString>

#include <array>
#include <vector>

// An analysis with its numbers. Faces and edges are indices in the shape, from 1.

/// Where a support or a load is.
struct ShapeTarget
{
    std::vector<int> faces;
    std::vector<int> edges;
};

/// Elements of one thickness and material.
struct PlannedProperty
{
    QString name; ///< Empty for the material of the part.
    Material material;
    double thickness = 0.0; ///< In mm; of shells.
    std::vector<int> faces; ///< Where shells are; none for solids in the whole part.
};

/// A support.
struct PlannedConstraint
{
    QString name;
    std::array<bool, ConstraintDefinition::Freedoms> held{};
    ShapeTarget target;
};

/// A force, spread over its faces by area or over its edges by length.
struct PlannedLoad
{
    QString name;
    Vector3 force{}; ///< The total, in N.
    ShapeTarget target;
};

/// All of it.
struct AnalysisPlan
{
    double meshSize = 0.0; ///< In mm.
    FrequencyRange frequencies;
    std::vector<PlannedProperty> properties;
    std::vector<PlannedConstraint> constraints;
    std::vector<PlannedLoad> loads;
    std::vector<LocalMesh> localMeshes;
    double shellArea = 0.0; ///< Of the faces of all shells, in mm2; estimated from above.
    /// The names of the bodies, in the order of the shape's solids; may be empty.
    std::vector<QString> bodies;

    /// The faces of all shells; none for a model of solids.
    std::vector<int> ShellFaces() const;
};
