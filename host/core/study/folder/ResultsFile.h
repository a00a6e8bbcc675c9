#pragma once

#include "ResultColumns.h"

/// The table in the file at @p path: results.csv, also one that another program has written again.
/// @throws HostError that names the row and the column if it is
/// not a table of results
ResultColumns ReadResults(const QString& path);
