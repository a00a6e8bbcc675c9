#pragma once

#include <QMenu>

/// Adds an action with the object name @p name to @p menu; triggered, it calls @p slot of
/// @p receiver.
template<class Receiver, class Slot>
QAction* AddAction(QMenu& menu, const QString& text, const char* name, Receiver* receiver,
                   Slot slot)
{
    QAction* const action = menu.addAction(text);
    action->setObjectName(QString::fromLatin1(name));
    QObject::connect(action, &QAction::triggered, receiver, slot);
    return action;
}
