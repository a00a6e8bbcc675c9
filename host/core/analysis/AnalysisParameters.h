#pragma once

#include "AnalysisDefinition.h"

#include <QSet>
#include <QStringList>

/// @file
/// The parameters that the expressions of an analysis set-up use.

/// @p definition with the parameter @p after in place of @p before in all expressions.
AnalysisDefinition WithRenamedParameter(AnalysisDefinition definition, const QString& before,
                                        const QString& after);

/// @p definition without what uses the parameters @p names; adds that to @p users, for the user.
AnalysisDefinition WithoutParameters(AnalysisDefinition definition, const QSet<QString>& names,
                                     QStringList& users);
