#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

/// Notices when a solver that others have started leaves its results in a folder.
class ResultWatch : public QObject
{
    Q_OBJECT

public:
    explicit ResultWatch(QObject* parent = nullptr);
    ~ResultWatch() override;

    /// Watches @p folder instead of the one before. What is there already is not news.
    void Follow(const QString& folder);

Q_SIGNALS:
    /// "Model_Active.frd" is new.
    void Appeared();

private:
    QDateTime FileTime() const;
    void Check();

    QString m_folder;
    QDateTime m_known; // Null while the file does not exist.
    QFileSystemWatcher m_watcher;
    QTimer m_delay;
};
