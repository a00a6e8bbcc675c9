#pragma once

#include "ResultColumns.h"

#include <QDateTime>
#include <QString>

#include <memory>
#include <vector>

class StudyFolder;

/// Reads a study's folder while programs work on it, wherever they run. A results.csv without the
/// rest of the folder is enough.
class StudyFollower
{
public:
    /// What has changed.
    struct News
    {
        ResultColumns columns; ///< Runs that have ended since the last call.
        int runs = 0;          ///< How many there are; 0 where only results.csv exists.
        int running = 0;       ///< How many are being done by programs that hold their locks.
        QStringList inputs;    ///< The parameters that are not calculated; empty where unknown.
    };

    explicit StudyFollower(QString path);
    ~StudyFollower();

    /// Reads what was written since the last call. @throws HostError if the folder has no study or
    /// cannot be read
    News Next();

private:
    News NextOfFolder();
    News NextOfTable(const QString& path);

    QString m_path;
    std::unique_ptr<StudyFolder> m_folder;
    std::vector<int> m_ends; // How often each run had ended when it was read.
    QDateTime m_tableTime;   // Of results.csv when it was read.
};
