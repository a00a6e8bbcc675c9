#pragma once

#include "FileLock.h"
#include "Project.h"

#include <QDateTime>
#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>

class ProjectSession;

/// Saves the changes of the open project every minute to a file beside it, which a crash leaves.
///
/// The file is replaced atomically. It is removed when the project is saved, closed or back at what
/// was saved.
class Autosave : public QObject
{
    Q_OBJECT

public:
    /// What a crash has left.
    struct Rest
    {
        Project project;
        QDateTime time;
    };

    /// The session must outlive this.
    explicit Autosave(ProjectSession& session, QObject* parent = nullptr);
    /// Removes the file.
    ~Autosave() override;

    /// The project is closed: removes the file.
    void Release();
    /// The project is the one of the file @p path from now on.
    void Follow(const QString& path);
    /// What a crash of this program has left for the project; nothing if another program has the
    /// project open. @throws ProjectError if it cannot be read
    std::optional<Rest> LeftByCrash() const;
    /// Whether another program has the project open.
    bool IsOpenElsewhere() const { return m_lock != nullptr && m_lock->IsHeldElsewhere(); }
    void RemoveFile();

    /// The name of the file for the project at @p path.
    static QString FileFor(const QString& path);

private:
    void SaveNow();

    ProjectSession& m_session;
    QTimer m_timer;
    QString m_path;
    std::unique_ptr<FileLock> m_lock;
    bool m_isWritten = false;
    Project m_written;
    QString m_failure; // That was reported last.
};
