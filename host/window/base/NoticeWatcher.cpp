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
        // One that comes and goes at once would also be given the focus when it is no longer there.
        if (widget != nullptr && widget->isWindow())
            widget->setAttribute(Qt::WA_DontShowOnScreen);
        if (auto* const box = qobject_cast<QMessageBox*>(watched)) {
            m_notices << box->text().simplified();
            // Later: the box is only about to start the loop that closing it is to end.
            QMetaObject::invokeMethod(box, "close", Qt::QueuedConnection);
        }
    }
    return QObject::eventFilter(watched, event);
}
