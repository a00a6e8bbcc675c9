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
        if (auto* const box = qobject_cast<QMessageBox*>(watched)) {
            m_notices << box->text().simplified();
            // Later: the box is only about to start the loop that closing it is to end.
            QMetaObject::invokeMethod(box, "close", Qt::QueuedConnection);
        }
    }
    return QObject::eventFilter(watched, event);
}
