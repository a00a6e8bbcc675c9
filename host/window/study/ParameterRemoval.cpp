#include "ParameterRemoval.h"

#include "AnalysisParameters.h"
#include "ExpressionNames.h"
#include "JsonSection.h"
#include "ParameterUse.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

class Text
{
    Q_DECLARE_TR_FUNCTIONS(ParameterRemoval)
};

bool UsesOneOf(const ParameterEntry& entry, const QSet<QString>& names)
{
    const QStringList used = tarn::NamesIn(entry.Expression());
    return std::any_of(used.begin(), used.end(),
                       [&names](const QString& name) { return names.contains(name); });
}

void TakeParameters(const ParameterEntries& parameters, ParameterRemoval& removal)
{
    // Until no parameter uses one that goes: those that go may stand in any order.
    for (int before = -1; before != removal.parameters.size();) {
        before = removal.parameters.size();
        for (const ParameterEntry& entry : parameters) {
            if (removal.parameters.contains(entry.Name()) || !UsesOneOf(entry, removal.parameters))
                continue;
            removal.parameters.insert(entry.Name());
            removal.users << Text::tr("parameter %1").arg(Quoted(entry.Name()));
        }
    }
    for (const ParameterEntry& entry : parameters) {
        if (!removal.parameters.contains(entry.Name()))
            removal.leftParameters.push_back(entry);
    }
}

void TakeFeatures(const FeatureList& features, ParameterRemoval& removal)
{
    QSet<QString> removed;
    for (const Feature& feature : features.Features()) {
        const bool lacksInput =
            std::any_of(feature.inputs.begin(), feature.inputs.end(),
                        [&removed](const QString& input) { return removed.contains(input); });
        if (!lacksInput && !UsesParameter(feature, removal.parameters)) {
            removal.leftFeatures.Append(feature);
            continue;
        }
        removed.insert(feature.name);
        removal.users << Text::tr("feature %1").arg(Quoted(feature.name));
    }
}

} // namespace

ParameterRemoval FindRemoval(const QStringList& names, const ParameterEntries& parameters,
                             const FeatureList& features, const std::vector<Condition>& conditions,
                             const AnalysisDefinition& analysis)
{
    ParameterRemoval removal;
    removal.parameters = QSet<QString>(names.begin(), names.end());
    TakeParameters(parameters, removal);
    TakeFeatures(features, removal);
    for (const Condition& condition : conditions) {
        if (UsesParameter(condition, removal.parameters))
            removal.users << Text::tr("condition %1").arg(Quoted(condition.expression));
        else
            removal.leftConditions.push_back(condition);
    }
    removal.leftAnalysis = WithoutParameters(analysis, removal.parameters, removal.users);
    return removal;
}
