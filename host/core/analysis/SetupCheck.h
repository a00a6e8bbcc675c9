#pragma once

#include "BodyOverlaps.h"
#include "CQLTElemPropDef.h"
#include "KVMaterialInfo.h"
#include "sConstrainData.h"
#include "sLoadForceData.h"

#include <QStringList>

#include <map>
#include <optional>
#include <vector>

class AnalysisRecords;

/// The complete input of a solver.
struct AnalysisSetup
{
    std::vector<sConstrainData> constraints;
    std::vector<sLoadForceData> loads;
    std::map<QString, CQLTElemPropDef> properties; ///< By the name in the store.
    std::map<QString, KVMaterialInfo> materials;   ///< By the name in the store.
    double minFrequency = 0.0;
    double maxFrequency = 0.0;
    std::optional<double> meshSize;
    BodyOverlaps overlaps; ///< Of the part.
};

/// The current content of @p model and of the stores. Leaves out the part.
AnalysisSetup CurrentSetup(const AnalysisRecords& model);

/// The problems that would prevent a solver from running, one text each. Ignores materials that no
/// property uses.
QStringList CheckSetup(const AnalysisSetup& setup);
