#pragma once

#include "Journal.h"

#include <QHash>
#include <QString>

#include <vector>

/// What the journals of a folder say of each run.
class StudyRecords
{
public:
    explicit StudyRecords(QString folder);

    /// Reads what was written since the last call. @throws HostError
    void Refresh();

    /// Of a run, counted from 1.
    const RunRecord& Of(int run) const;

private:
    void Read(const QString& name);
    void Take(const JournalLine& line);

    QString m_folder;
    QHash<QString, qint64> m_read; // How many bytes of each journal.
    std::vector<RunRecord> m_records;
};
