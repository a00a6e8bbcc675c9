#pragma once

#include <QObject>
#include <QStringList>

/// Keeps windows from disturbing an unattended run: while it lives, no window appears on the
/// screen, and every message box is closed at once; its text is recorded.
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
