#pragma once

#include "ParameterEntry.h"

#include <QJsonObject>
#include <QJsonValue>

/// @file
/// The entry "parameters" of a project file.

/// The parameter with this @p number, counted from 1. @throws JsonError
ParameterEntry ReadParameter(const QJsonValue& value, int number);

/// One parameter as ReadParameter() reads it.
QJsonObject ToJson(const ParameterEntry& entry);
