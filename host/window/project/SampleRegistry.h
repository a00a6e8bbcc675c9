#pragma once

#include "SampleList.h"

#include <vector>

/// @file
/// g_mapParaArrays, which the sampling and the DOE dialog share, as sample lists of a project.

/// Replaces the registry by the @p lists. A list with a problem leaves a record without samples;
/// each problem is reported in the message channel.
void FillSampleRegistry(const std::vector<SampleList>& lists);

/// The samples that the registry holds for the parameters of GlobalParaMeterMgr, as a range where
/// they match it. Records without samples are left out.
std::vector<SampleList> RegisteredSamples();
