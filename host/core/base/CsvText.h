#pragma once

#include <QChar>
#include <QStringList>

#include <vector>

/// @file
/// Tables as text: cells that hold a separator, a quote or a line end are quoted, and quotes in
/// them are doubled.

/// One line, with its line end.
QString CsvLine(const QStringList& cells, QChar separator = QLatin1Char(','));

/// The rows of @p text; the last line end may be missing. Rows may differ in length.
std::vector<QStringList> CsvRows(const QString& text, QChar separator = QLatin1Char(','));
