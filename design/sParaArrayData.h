#pragma once

/// @file
/// The samples of the parameters and their registry.

#include "SampleSpacing.h"
#include "tarnguicommon_export.h"

#include <QString>

#include <map>
#include <vector>

/// The samples of one parameter for a design-of-experiments study.
struct sParaArrayData
{
    int bChecked = 0;                        ///< 1 if the parameter takes part in the study.
    QString strName;                         ///< The parameter's name.
    std::vector<double> vecValues;           ///< The sample values, in table order.
    double dMin = 0.0;                       ///< Range minimum.
    double dMax = 1.0;                       ///< Range maximum.
    double dDelta = 1.0;                     ///< Step.
    int nSampleType = SampleSpacing::Linear; ///< A SampleSpacing::Code.
};

/// The process-wide registry of samples, by parameter name. It outlives every dialog, so the next
/// dialog shows the same ticks and samples. GUI thread only.
extern TARNGUICOMMON_EXPORT std::map<QString, sParaArrayData> g_mapParaArrays;
