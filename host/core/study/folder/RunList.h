#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

/// The runs of a folder, as they stand in "runs.csv": the number of each, and the values of the
/// parameters that are not calculated, with 17 digits. Runs are only ever added, so that each keeps
/// its number.
class RunList
{
public:
    explicit RunList(QStringList inputs = {});

    /// Reads the file at @p path, with the parameters that its header names. @throws HostError
    void Read(const QString& path);
    /// Replaces the file at @p path. @throws FolderError
    void Write(const QString& path) const;

    /// Adds a run with these values of the inputs, unless it is there.
    void Add(const std::vector<double>& values);
    /// Adds those of @p other, of the same inputs, that are not there.
    void AddAll(const RunList& other);

    const QStringList& Inputs() const { return m_inputs; }
    int Count() const { return int(m_runs.size()); }
    /// Of a run, counted from 1.
    std::vector<double> Values(int run) const;

private:
    void AddText(const QByteArray& text);
    QByteArray TextOf(const std::vector<double>& values);
    QByteArray HeaderLine() const;

    QStringList m_inputs;
    std::vector<QByteArray> m_runs; // Their values as text.
    QHash<QByteArray, int> m_numbers;
    // Most values are those of the run before, and writing numbers takes the most time.
    std::vector<double> m_lastValues;
    std::vector<QByteArray> m_lastTexts;
};
