#pragma once

#include "FeatureList.h"

#include <QString>
#include <QStringList>

/// @file
/// Features on the clipboard: JSON with an entry "features" like that of a project.

/// @p names are features of @p features. The text has them in the order of the list.
QString CopiedFeatures(const FeatureList& features, const QStringList& names);

/// @p features with those of @p text behind them. A copy whose name is taken gets the next free
/// number; copies that use it follow. Puts the names of the copies into @p names. @throws JsonError
/// if the text has no features
FeatureList WithPastedFeatures(FeatureList features, const QString& text, QStringList& names);
