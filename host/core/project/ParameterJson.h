#pragma once

#include "ParametersDef.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

/// @file
/// The entry "parameters" of a project file.

/// The record of the parameter with this @p number, counted from 1. @throws JsonError
ParametersDef ReadParameter(const QJsonValue& value, int number);

/// One parameter as ReadParameter() reads it.
QJsonObject ToJson(const ParametersDef& record);

/// The current records of GlobalParaMeterMgr.
QJsonArray StoredParameters();
