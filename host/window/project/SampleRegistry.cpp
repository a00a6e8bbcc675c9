#include "SampleRegistry.h"

#include "GlobalParaMeterMgr.h"
#include "MessageLevel.h"
#include "sParaArrayData.h"

void FillSampleRegistry(const std::vector<SampleList>& lists)
{
    g_mapParaArrays.clear();
    for (const SampleList& list : lists) {
        const QString problem = list.Problem();
        if (!problem.isEmpty())
            PostMessageToChannel(WarningLevel, problem);
        g_mapParaArrays[list.parameter] = {list.ticked ? 1 : 0, list.parameter, list.Samples(),
                                           list.range.min,      list.range.max, list.range.step,
                                           list.range.spacing};
    }
}

std::vector<SampleList> RegisteredSamples()
{
    const ParameterMap& parameters = GlobalParaMeterMgr::m_nameMapParameters;
    std::vector<SampleList> lists;
    for (const auto& [name, record] : g_mapParaArrays) {
        if (record.vecValues.empty() || parameters.count(name) == 0)
            continue;
        SampleList list = {name,
                           {record.dMin, record.dMax, record.dDelta, record.nSampleType},
                           {},
                           record.bChecked != 0};
        if (!MatchesRange(record.vecValues, list.range))
            list.values = record.vecValues;
        lists.push_back(list);
    }
    return lists;
}
