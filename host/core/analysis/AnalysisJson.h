#pragma once

#include "AnalysisDefinition.h"

class QJsonObject;
class QJsonValue;

/// Reads the entry "analysis" of a project. @throws JsonError, also for names that occur twice, a
/// load on faces and edges, or a local mesh that has both a size and a number
AnalysisDefinition ReadAnalysis(const QJsonValue& json);

/// Leaves out what has its default.
QJsonObject ToJson(const AnalysisDefinition& analysis);
