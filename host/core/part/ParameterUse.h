#pragma once

#include "Conditions.h"
#include "FeatureList.h"

#include <QSet>

/// @file
/// Which features and conditions use parameters in their expressions.

bool UsesParameter(const Feature& feature, const QSet<QString>& names);
bool UsesParameter(const Condition& condition, const QSet<QString>& names);

/// @p features with the parameter @p after in place of @p before in all expressions.
FeatureList WithRenamedParameter(FeatureList features, const QString& before, const QString& after);
/// @copydoc WithRenamedParameter
std::vector<Condition> WithRenamedParameter(std::vector<Condition> conditions,
                                            const QString& before, const QString& after);
