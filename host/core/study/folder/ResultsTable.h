#pragma once

#include "ResultColumns.h"
#include "ShapeMeasures.h"

#include <QString>
#include <QStringList>

#include <map>
#include <vector>

/// One run of a study.
struct RunResult
{
    std::vector<double> values; ///< Of all parameters, in the table's order.
    bool ok = false;
    ShapeMeasures measures; ///< Only of a run that is ok.
    double mass = 0.0;      ///< In kg; only of a run that is ok.
    /// Of the table's other columns; one that is not finite has no value. Of a run that is ok.
    std::vector<double> more;
    QString error; ///< Why a run failed, in one line.
};

/// @p text as a cell that a spreadsheet does not take for a formula: with an apostrophe in front if
/// it begins like one.
QString TextCell(const QString& text);
/// The text that TextCell() has made @p cell of.
QString PlainText(const QString& cell);

/// The runs of a study as a table in a CSV file (comma, full stop, quotes where needed, UTF-8): run
/// number, every parameter, volume, area, mass, bounding box, results of analyses and responses,
/// status and error. Numbers have 17 significant digits, so that reading gives what was written.
class ResultsTable
{
public:
    /// In bytes; enough for a million runs.
    static constexpr int MaximumFileSize = 1024 * 1024 * 1024;

    /// @p more are the columns of the results of analyses and the responses, @p units those of
    /// parameters, by name.
    explicit ResultsTable(const QStringList& parameters, const QStringList& more = {},
                          const QHash<QString, QString>& units = {});

    /// The names of volume, area, mass and bounding box.
    static const QStringList& MeasureNames();
    /// The unit of a measure whose name lacks it; otherwise empty.
    static QString MeasureUnit(const QString& name);
    /// The values of these columns.
    static std::vector<double> MeasuresOf(const RunResult& result);

    /// Takes the runs of the file at @p path over. @throws HostError when it cannot be read or
    /// is not a table of these parameters; the runs are then as before.
    void Read(const QString& path);

    /// Writes the file; an existing one is replaced as a whole or left alone. @throws HostError
    void Write(const QString& path) const;

    /// A run as it stands in the file, with the line end.
    QByteArray Row(int run, const RunResult& result) const;
    /// Writes the file with rows of Row(), like Write().
    void WriteRows(const QString& path, const QByteArray& rows) const;

    /// Columns without runs, for what Row() writes.
    ResultColumns EmptyColumns() const { return {m_parameters, MeasureNames() + m_more, m_units}; }

    /// The results by run number, counted from 1.
    const std::map<int, RunResult>& Runs() const { return m_runs; }
    void Set(int run, RunResult result);

private:
    QStringList Header() const;

    QStringList m_parameters;
    QStringList m_more;
    QHash<QString, QString> m_units;
    std::map<int, RunResult> m_runs;
};
