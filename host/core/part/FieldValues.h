#pragma once

#include "Feature.h"

#include <map>
#include <string>
#include <vector>

/// The numbers behind the fields of features: the texts evaluated with the parameters.
class FieldValues
{
public:
    /// Takes the values of all Bool and Scalar parameters as GlobalParaMeterMgr holds them now.
    FieldValues();

    /// One number per field of the feature's kind, each within its rule. @throws FeatureError
    std::vector<double> Of(const Feature& feature);

    /// The value of a text, or NaN; ExpressionEngine::LastError() then says why.
    double Evaluate(const QString& text);

private:
    std::map<std::string, double> m_variables;
};
