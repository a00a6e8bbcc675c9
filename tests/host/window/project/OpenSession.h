#pragma once

#include "AnalysisRecords.h"
#include "DesignModel.h"
#include "EmptyAnalysisStores.h"
#include "EmptyDesignStores.h"
#include "PartModel.h"
#include "Project.h"
#include "ProjectSession.h"

/// The models of a project and a session of them, without a window.
struct OpenSession
{
    EmptyDesignStores designStores;
    EmptyAnalysisStores analysisStores;
    AnalysisRecords analysis;
    DesignModel design;
    PartModel part;
    ProjectSession session{design, part, analysis};
};

/// One edit of a parameter's value.
inline void SetValue(DesignModel& design, const QString& name, double value)
{
    ParameterEntries entries = design.Design();
    entries.at(std::size_t(FindParameter(entries, name))).SetNumber(value);
    design.Edit(entries, "Change " + name);
}

inline double Stored(const QString& name)
{
    return GlobalParaMeterMgr::GetParameterRawValue(name).toDouble();
}
