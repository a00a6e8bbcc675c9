#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <vector>

/// The results of a study by columns: of each run its number, the numbers of the table, and why it
/// failed. Holds hundreds of thousands of runs.
class ResultColumns
{
public:
    ResultColumns() = default;
    /// Of a table whose columns between "run" and "status" are @p parameters and then @p results.
    /// @p units are those of parameters, by name.
    ResultColumns(QStringList parameters, QStringList results, QHash<QString, QString> units = {});
    /// The same columns.
    ResultColumns WithoutRuns() const;

    /// The number columns, parameters first.
    const QStringList& Names() const { return m_names; }
    /// The name of a number column with its unit, as in "thickness (mm)"; just the name if the unit
    /// is unknown or the name ends with it.
    QString Title(int column) const;
    /// How many of Names() are parameters.
    int ParameterCount() const { return m_parameterCount; }
    /// The number columns that are not parameters.
    QStringList ResultNames() const { return m_names.mid(m_parameterCount); }

    int Count() const { return int(m_runs.size()); }
    int Run(int row) const { return m_runs[std::size_t(row)]; }
    bool IsOk(int row) const { return m_isOk[std::size_t(row)] != 0; }
    /// Why a run failed; empty for one that is ok.
    const QString& Error(int row) const { return m_errors[std::size_t(row)]; }
    /// The numbers of a column; NaN where a cell is empty.
    const std::vector<double>& Column(int column) const { return m_columns[std::size_t(column)]; }
    double Value(int column, int row) const { return Column(column)[std::size_t(row)]; }

    /// Adds a run, or replaces it. @p cells are those of a row of results.csv: run, numbers, status
    /// and error. Returns what is wrong with them; empty if they were taken.
    QString Take(const std::vector<QByteArray>& cells);
    /// Takes the runs of @p other, which has the same columns.
    void Take(const ResultColumns& other);

private:
    int RowFor(int run);

    QStringList m_names;
    int m_parameterCount = 0;
    QHash<QString, QString> m_units;
    std::vector<int> m_runs;
    std::vector<char> m_isOk;
    std::vector<QString> m_errors;
    std::vector<std::vector<double>> m_columns;
    QHash<int, int> m_rows; // By the number of the run.
};
