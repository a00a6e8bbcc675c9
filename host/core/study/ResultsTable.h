#pragma once

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
    QString error;          ///< Why a run failed, in one line.
};

/// The runs of a study as a table in a CSV file (comma, full stop, quotes where needed, UTF-8): run
/// number, every parameter, volume, area, mass, bounding box, status and error. Numbers have 17
/// significant digits, so that reading gives what was written.
class ResultsTable
{
public:
    explicit ResultsTable(const QStringList& parameters);

    /// Takes the runs of the file at @p path over. @throws HostError when it cannot be read or
    /// is not a table of these parameters; the runs are then as before.
    void Read(const QString& path);

    /// Writes the file; an existing one is replaced as a whole or left alone. @throws HostError
    void Write(const QString& path) const;

    /// The results by run number, counted from 1.
    const std::map<int, RunResult>& Runs() const { return m_runs; }
    void Set(int run, RunResult result);

private:
    QStringList Header() const;

    QStringList m_parameters;
    std::map<int, RunResult> m_runs;
};
