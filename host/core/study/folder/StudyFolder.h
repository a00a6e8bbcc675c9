#pragma once

#include "ResultsTable.h"
#include "RunList.h"
#include "RunLocks.h"
#include "StudyRecords.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>

#include <memory>

/// The folder of a study: what its runs have in common ("study.json"), which runs there are
/// ("runs.csv"), what became of them (a journal for each program that worked on it), a STEP file
/// for each run, and the table "results.csv", which is derived from the rest.
///
/// Several programs may work on one folder at once, on several machines.
class StudyFolder
{
    Q_DECLARE_TR_FUNCTIONS(StudyFolder)

public:
    /// How many runs there are of each kind.
    struct Counts
    {
        int done = 0;
        int failed = 0;
        int running = 0;
        int open = 0;
    };

    /// Whether the folder at @p path is that of a study.
    static bool Exists(const QString& path);
    /// Why the folder at @p path cannot take a study with the @p fingerprint: what differs from the
    /// one that it holds. Empty if it can. @throws HostError if it cannot be read
    static QString Difference(const QString& path, const QJsonObject& fingerprint);
    /// Opens a folder that exists, to read it. @throws HostError if it is not that of a study
    static std::unique_ptr<StudyFolder> Open(const QString& path);
    /// Opens or creates a folder for a study with the @p fingerprint, and adds those of @p runs
    /// that are not there. @throws HostError, also if the folder is that of another study;
    /// FolderError if it cannot be written
    static std::unique_ptr<StudyFolder> Prepare(const QString& path, const QJsonObject& fingerprint,
                                                const RunList& runs);

    const RunList& Runs() const { return m_runs; }
    /// Whether another program has added runs since.
    bool HasMoreRuns() const;
    StudyRecords& Records() { return *m_records; }
    const ResultsTable& Table() const { return m_table; }

    QString StepPath(int run) const;
    QString ResultsPath() const;
    QString LocksPath() const;

    /// Whether a run is ok; with its STEP file as it was written, if that counts.
    bool IsDone(int run, bool withStep) const;

    /// Replaces results.csv by what the journals say. Programs that do so at once wait for each
    /// other. @throws HostError
    void Merge();
    /// After Records() has been refreshed.
    Counts Count() const;

private:
    explicit StudyFolder(const QString& path);
    QString PathOf(const QString& name) const;
    QJsonObject ReadFingerprint() const;
    void ReadRuns(const QJsonObject& fingerprint);

    QString m_path;
    RunList m_runs;
    qint64 m_runsSize = 0; // In bytes, as it was read.
    ResultsTable m_table{{}};
    std::unique_ptr<StudyRecords> m_records;
};
