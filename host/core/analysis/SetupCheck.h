#pragma once

#include "CQLTElemPropDef.h"
#include "KVMaterialInfo.h"
#include "sConstrainData.h"
#include "sLoadForceData.h"

#include <QStringList>

#include <map>
#include <optional>
#include <vector>

class AnalysisRecords;

/// Everything that a solver would be given.
struct AnalysisSetup
{
    std::vector<sConstrainData> constraints;
    std::vector<sLoadForceData> loads;
    std::map<QString, CQLTElemPropDef> properties; ///< By the name in the store.
    std::map<QString, KVMaterialInfo> materials;   ///< By the name in the store.
    double minFrequency = 0.0;
    double maxFrequency = 0.0;
    std::optional<double> meshSize;
};

/// What @p model and the stores hold now.
AnalysisSetup CurrentSetup(const AnalysisRecords& model);

/// What a solver would stumble over, one text for each problem. Of the materials only those are
/// looked at that a property uses.
QStringList CheckSetup(const AnalysisSetup& setup);
