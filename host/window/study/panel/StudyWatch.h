#pragma once

#include "StudyFollower.h"

#include <QObject>
#include <QThread>
#include <QTimer>

#include <memory>

/// Follows a study's folder without making the window wait: reads it in a thread of its own, again
/// and again.
class StudyWatch : public QObject
{
    Q_OBJECT

public:
    explicit StudyWatch(QObject* parent = nullptr);
    /// Waits for a read that is going on.
    ~StudyWatch() override;

    /// Follows the folder at @p path from its beginning on. If it @p isExpected, nothing is
    /// reported while it has no study yet.
    void Follow(const QString& path, bool isExpected);
    void Stop();
    /// Reads soon, and not only when the pause is over.
    void Hurry();

Q_SIGNALS:
    /// Also without new runs.
    void NewsCame(const StudyFollower::News& news);
    /// The folder cannot be read, and is not followed any more.
    void Failed(const QString& reason);

private:
    struct Reading;

    void Read();
    void Take(const Reading& reading);

    QThread m_thread;
    QObject* m_reader; // Lives in the thread.
    QTimer m_pause;
    QString m_path;
    std::shared_ptr<StudyFollower> m_follower; // Null while nothing is followed.
    bool m_isExpected = false;
    bool m_isReading = false;
    bool m_isHurried = false;
};
