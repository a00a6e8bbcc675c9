#include "NoticeWatcher.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>

#include <utility>

NoticeWatcher::NoticeWatcher()
{
    qApp->installEventFilter(this);
}

NoticeWatcher::~NoticeWatcher() = default;

QStringList NoticeWatcher::TakeNotices()
{
    return std::exchange(m_notices, QStringList());
}

bool NoticeWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        auto* const widget = qobject_cast<QWidget*>(watched);
        // Otherwise a window that closes at once would receive the focus after it is gone.
        if (widget != nullptr && widget->isWindow())
            widget->setAttribute(Qt::WA_DontShowOnScreen);
        if (auto* const box = qobject_cast<QMessageBox*>(watched)) {
            m_notices << box->text().simplified();
            // Later: the loop that closing the box ends has not started yet.
            QMetaObject::invokeMethod(box, "close", Qt::QueuedConnection);
        }
    }
    return QObject::eventFilter(watched, event);
}
