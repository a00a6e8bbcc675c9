#pragma once

#include "SampledDesigns.h"

#include <QSet>
#include <QString>
#include <QStringList>

/// Runs that stand in a file one by one.
struct DesignList
{
    QStringList names; ///< Of the parameters, one for each column.
    DesignRuns runs;
};

/// Reads the CSV file at @p path: a header with names out of @p known, and a number for each of
/// them in every row. Empty lines do not count. @throws HostError which names file, row and column:
/// the file cannot be read, a name is unknown or there twice, a cell is missing or is not a finite
/// number, two rows are equal, or there are no or too many rows
DesignList ReadDesignList(const QString& path, const QSet<QString>& known);
