#include "ParameterUse.h"

#include "ExpressionNames.h"

#include <algorithm>

namespace {

bool UsesOneOf(const QString& expression, const QSet<QString>& names)
{
    const QStringList used = NamesIn(expression);
    return std::any_of(used.begin(), used.end(),
                       [&names](const QString& name) { return names.contains(name); });
}

} // namespace

bool UsesParameter(const Feature& feature, const QSet<QString>& names)
{
    return std::any_of(feature.fields.begin(), feature.fields.end(),
                       [&names](const QString& field) { return UsesOneOf(field, names); });
}

bool UsesParameter(const Condition& condition, const QSet<QString>& names)
{
    return UsesOneOf(condition.expression, names);
}

FeatureList WithRenamedParameter(FeatureList features, const QString& before, const QString& after)
{
    for (int index = 0; index < features.Size(); ++index) {
        if (!UsesParameter(features.At(index), {before}))
            continue;
        Feature feature = features.At(index);
        for (QString& field : feature.fields)
            field = WithRenamed(field, before, after);
        features.Replace(index, feature);
    }
    return features;
}

std::vector<Condition> WithRenamedParameter(std::vector<Condition> conditions,
                                            const QString& before, const QString& after)
{
    for (Condition& condition : conditions)
        condition.expression = WithRenamed(condition.expression, before, after);
    return conditions;
}
