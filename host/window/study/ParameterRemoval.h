#pragma once

#include "AnalysisDefinition.h"
#include "Conditions.h"
#include "FeatureList.h"
#include "ParameterEntry.h"

#include <QSet>
#include <QStringList>

/// Parameters that are to be removed, and everything that cannot stay without them.
struct ParameterRemoval
{
    QSet<QString> parameters; ///< Those that are to go and those that use them.
    QStringList users;        ///< For the user: what uses the parameters that are to go.

    ParameterEntries leftParameters;
    FeatureList leftFeatures; ///< Without features that use a parameter, and without their users.
    std::vector<Condition> leftConditions;
    AnalysisDefinition leftAnalysis;
};

/// What it takes to remove the parameters @p names.
ParameterRemoval FindRemoval(const QStringList& names, const ParameterEntries& parameters,
                             const FeatureList& features, const std::vector<Condition>& conditions,
                             const AnalysisDefinition& analysis);
