#pragma once

#include "Mesh.h"

#include <QString>
#include <QStringList>

#include <vector>

struct SolveReport;

/// The numbers of an analysis as a table: a row for each mode; otherwise one for each quantity,
/// with its unit and its place.
struct ResultTable
{
    QStringList headings; ///< For the user, with units.
    QStringList hints;    ///< Longer texts for some of them; may be empty.
    std::vector<QStringList> rows;
    QString csv; ///< The same with all digits; the same in every language.

    explicit ResultTable(const SolveReport& report);

private:
    void AddModes(const SolveReport& report);
    void AddQuantities(const SolveReport& report);
};

/// A place in mm, such as "(52.7, 25.7, 20)".
QString PlaceText(const Vector3& place);

/// What the mesh is like: one line.
QString MeshText(const SolveReport& report);
