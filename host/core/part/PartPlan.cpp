#include "PartPlan.h"

#include "FeatureKind.h"
#include "FeatureList.h"
#include "FieldValues.h"

#include <QDir>

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
            step.values = values.Of(feature);
        if (feature.kind->readsFile)
            step.file = QDir(folder).absoluteFilePath(feature.file);
        plan.push_back(std::move(step));
    }
    return plan;
}
