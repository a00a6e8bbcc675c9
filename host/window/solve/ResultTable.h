#pragma once

#include <QString>
#include <QStringList>

#include <vector>

struct SolveReport;

/// The numbers of an analysis as a table: a row for each mode; otherwise one for each quantity,
/// with its unit and its place.
struct ResultTable
{
    QStringList headings; ///< For the user, with units.
    std::vector<QStringList> rows;
    QString csv; ///< The same with all digits; the same in every language.

    explicit ResultTable(const SolveReport& report);

private:
    void AddModes(const SolveReport& report);
    void AddQuantities(const SolveReport& report);
};

/// What the mesh is like: one line.
QString MeshText(const SolveReport& report);
