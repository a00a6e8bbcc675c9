#pragma once

#include <QJsonArray>

/// The entry "parameters" of a project: the records of GlobalParaMeterMgr as they stand now.
QJsonArray StoredParameters();

/// The entry "samples" of a project: what g_mapParaArrays holds for the stored parameters. Samples
/// that their range gives are written as this range, others one by one.
QJsonArray StoredSamples();
