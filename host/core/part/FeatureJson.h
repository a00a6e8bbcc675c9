#pragma once

#include "Feature.h"

#include <QJsonObject>

/// Reads one entry of the list of features of a project; @p number is its place, from 1.
/// @throws JsonError
Feature ReadFeature(const QJsonValue& json, int number);
QJsonObject ToJson(const Feature& feature);
