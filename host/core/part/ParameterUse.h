#pragma once

#include "Conditions.h"
#include "FeatureList.h"

#include <QSet>

#include <functional>

/// @file
/// Which features and conditions use parameters in their expressions.

using ExpressionVisitor = std::function<void(QString& expression)>;

/// Calls @p visit with each expression, which it may change.
void VisitExpressions(FaceReference& face, const ExpressionVisitor& visit);
/// @copydoc VisitExpressions
void VisitExpressions(EdgeReference& edge, const ExpressionVisitor& visit);
/// @copydoc VisitExpressions
void VisitExpressions(Feature& feature, const ExpressionVisitor& visit);

/// Whether @p expression uses one of the parameters @p names.
bool UsesParameter(const QString& expression, const QSet<QString>& names);
bool UsesParameter(const Feature& feature, const QSet<QString>& names);
bool UsesParameter(const Condition& condition, const QSet<QString>& names);

/// @p features with the parameter @p after in place of @p before in all expressions.
FeatureList WithRenamedParameter(FeatureList features, const QString& before, const QString& after);
/// @copydoc WithRenamedParameter
std::vector<Condition> WithRenamedParameter(std::vector<Condition> conditions,
                                            const QString& before, const QString& after);
