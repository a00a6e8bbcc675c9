#include "PartPlan.h"

#include "BuildError.h"
#include "FeatureKind.h"
#include "FeatureList.h"
#include "FieldValues.h"

#include <QDir>

namespace {

// Where a kind at edges or at a face is: x, y and z are a reference as well.
void AddTargets(BuildStep& step, const Feature& feature, FieldValues& values)
{
    const FeatureKind& kind = *feature.kind;
    for (const EdgeReference& edge : feature.edges)
        step.edges.push_back(values.Of(edge));
    if (feature.face)
        step.faces.push_back(values.Of(*feature.face));
    if (feature.HasReferences() || (!kind.isAtEdges && !kind.isAtFace))
        return;
    const auto value = [&](const char* key) {
        return step.values[kind.IndexOf(key)];
    };
    const std::array<double, 3> point = {value("x"), value("y"), value("z")};
    if (kind.isAtEdges)
        step.edges.push_back({{}, point});
    else
        step.faces.push_back({{}, point});
}

void Evaluate(BuildStep& step, const Feature& feature, FieldValues& values)
{
    step.values = values.Of(feature);
    try {
        AddTargets(step, feature, values);
        step.outline = values.Of(feature.profile);
    } catch (const BuildError& error) {
        throw FeatureError(feature.name, error.Reason());
    }
}

} // namespace

PartPlan PlanPart(const FeatureList& list, const QString& folder)
{
    list.Check();
    FieldValues values;
    PartPlan plan;
    for (const Feature& feature : list.Features()) {
        BuildStep step;
        step.name = feature.name;
        step.kind = feature.kind;
        step.suppressed = feature.suppressed;
        for (const QString& input : feature.inputs)
            step.inputs.push_back(list.Find(input));
        if (!feature.suppressed)
            Evaluate(step, feature, values);
        if (feature.kind->readsFile)
            step.file = QDir(folder).absoluteFilePath(feature.file);
        plan.push_back(std::move(step));
    }
    return plan;
}
