#pragma once

#include "SampleList.h"

#include <QJsonArray>
#include <QJsonValue>

#include <vector>

/// @file
/// The entry "samples" of a project file.

/// The sample list with this @p number, counted from 1. @throws JsonError
SampleList ReadSampleList(const QJsonValue& value, int number);

/// The lists as ReadSampleList() reads them.
QJsonArray ToJson(const std::vector<SampleList>& lists);
