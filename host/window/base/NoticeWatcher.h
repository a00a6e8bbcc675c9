#pragma once

#include <QObject>
#include <QStringList>

/// Keeps windows from disturbing a run that nobody watches: while it lives, none comes on the
/// screen, and every message box is closed as soon as it shows; its text is kept.
class NoticeWatcher : public QObject
{
    Q_OBJECT

public:
    NoticeWatcher();
    ~NoticeWatcher() override;

    /// The texts of the boxes shown since the last call.
    QStringList TakeNotices();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QStringList m_notices;
};
