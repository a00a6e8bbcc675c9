#pragma once

#include "Feature.h"
#include "Outline.h"
#include "ShapeReference.h"
#include "ShapeTargets.h"

#include <map>
#include <string>
#include <vector>

/// Evaluates the fields of features, and references to faces and edges, with the parameters.
class FieldValues
{
public:
    /// Copies the current values of all Bool and Scalar parameters from GlobalParaMeterMgr.
    FieldValues();

    /// The value of each field; each is within its rule. Fields in whose place the feature has
    /// edges or a face count 0. @throws FeatureError
    std::vector<double> Of(const Feature& feature);

    /// @throws BuildError as for a reference
    Outline Of(const Profile& profile);

    /// What the reference means now. @throws BuildError if a coordinate has no value, or one that
    /// is too large
    FaceTarget Of(const FaceReference& reference);
    /// As for a face. @throws BuildError
    EdgeTarget Of(const EdgeReference& reference);

    /// The value of @p text, or NaN; ExpressionEngine::LastError() then has the reason.
    double Evaluate(const QString& text);

private:
    double Coordinate(const QString& text);
    std::array<double, 3> Point(const PointTexts& texts);

    std::map<std::string, double> m_variables;
};
