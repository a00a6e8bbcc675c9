#include "ParameterUse.h"

#include "ExpressionNames.h"

#include <algorithm>

void VisitExpressions(FaceReference& face, const ExpressionVisitor& visit)
{
    std::for_each(face.at.begin(), face.at.end(), visit);
}

void VisitExpressions(EdgeReference& edge, const ExpressionVisitor& visit)
{
    for (FaceReference& face : edge.between)
        VisitExpressions(face, visit);
    std::for_each(edge.at.begin(), edge.at.end(), visit);
}

void VisitExpressions(Feature& feature, const ExpressionVisitor& visit)
{
    std::for_each(feature.fields.begin(), feature.fields.end(), visit);
    for (EdgeReference& edge : feature.edges)
        VisitExpressions(edge, visit);
    if (feature.face.has_value())
        VisitExpressions(*feature.face, visit);
    for (ProfileCorner& corner : feature.profile) {
        for (QString* const text : {&corner.x, &corner.y, &corner.viaX, &corner.viaY})
            visit(*text);
    }
}

bool UsesParameter(const QString& expression, const QSet<QString>& names)
{
    const QStringList used = tarn::NamesIn(expression);
    return std::any_of(used.begin(), used.end(),
                       [&names](const QString& name) { return names.contains(name); });
}

bool UsesParameter(const Feature& feature, const QSet<QString>& names)
{
    bool isUser = false;
    Feature visited = feature;
    VisitExpressions(visited, [&](const QString& expression) {
        isUser = isUser || UsesParameter(expression, names);
    });
    return isUser;
}

bool UsesParameter(const Condition& condition, const QSet<QString>& names)
{
    return UsesParameter(condition.expression, names);
}

FeatureList WithRenamedParameter(FeatureList features, const QString& before, const QString& after)
{
    for (int index = 0; index < features.Size(); ++index) {
        if (!UsesParameter(features.At(index), {before}))
            continue;
        Feature feature = features.At(index);
        VisitExpressions(feature, [&](QString& expression) {
            expression = tarn::WithRenamed(expression, before, after);
        });
        features.Replace(index, feature);
    }
    return features;
}

std::vector<Condition> WithRenamedParameter(std::vector<Condition> conditions,
                                            const QString& before, const QString& after)
{
    for (Condition& condition : conditions)
        condition.expression = tarn::WithRenamed(condition.expression, before, after);
    return conditions;
}
