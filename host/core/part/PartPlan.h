#pragma once

#include "Outline.h"
#include "ShapeTargets.h"

#include <QString>

#include <vector>

class FeatureList;
struct FeatureKind;

/// One feature that is ready to be built: its fields are numbers, its inputs are places.
struct BuildStep
{
    QString name;
    const FeatureKind* kind; ///< Never null.
    bool suppressed = false;
    std::vector<int> inputs;    ///< Places of earlier steps.
    std::vector<double> values; ///< Of the kind's fields, each within its rule. None if suppressed.
    QString file;               ///< A path; empty unless the kind reads a file.
    std::vector<EdgeTarget> edges; ///< Of the first input, of a kind at edges.
    std::vector<FaceTarget> faces; ///< Of the first input, of a kind at a face.
    Outline outline;               ///< Of a kind with a profile.
};

/// The features of a part in the order in which they are built. Building needs nothing else, so a
/// process without a project can do it.
using PartPlan = std::vector<BuildStep>;

/// Evaluates the fields of @p list with the values that the parameter store holds now. Paths of
/// imports are relative to @p folder. @throws BuildError if the list is wrong or a field has no
/// valid value
PartPlan PlanPart(const FeatureList& list, const QString& folder = QString());
