#pragma once

#include <QAction>
#include <QKeySequence>

/// Creates an action with the object name @p name that calls @p slot of @p receiver, which owns it.
template<class Receiver, class Slot>
QAction* NewAction(const QString& text, const char* name, Receiver* receiver, Slot slot,
                   const QKeySequence& shortcut = {})
{
    auto* const action = new QAction(text, receiver);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcut(shortcut);
    QObject::connect(action, &QAction::triggered, receiver, slot);
    return action;
}
