#pragma once

#include "Feature.h"

#include <map>
#include <string>
#include <vector>

/// Evaluates the fields of features with the parameters.
class FieldValues
{
public:
    /// Copies the current values of all Bool and Scalar parameters from GlobalParaMeterMgr.
    FieldValues();

    /// The value of each field; each is within its rule. @throws FeatureError
    std::vector<double> Of(const Feature& feature);

    /// The value of @p text, or NaN; ExpressionEngine::LastError() then has the reason.
    double Evaluate(const QString& text);

private:
    std::map<std::string, double> m_variables;
};
