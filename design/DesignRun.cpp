#include "DesignRun.h"

#include "GlobalParaMeterMgr.h"
#include "sParaArrayData.h"

QSet<QString> DesignRun::Ticked()
{
    QSet<QString> names;
    for (const auto& [name, samples] : g_mapParaArrays) {
        if (samples.bChecked != 0)
            names.insert(name);
    }
    return names;
}

DesignRun::Completion DesignRun::Complete(const ParameterMap& design, const QSet<QString>& ticked)
{
    Completion run;
    for (auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters) {
        const auto designed = design.find(name);
        if (ticked.contains(name) || designed == design.end())
            continue;
        record = designed->second;
        ++run.restored;
    }
    run.faults = ParameterEvaluator::Evaluate(ticked);
    return run;
}
