#pragma once

#include "TestCase.h"

#include <QAction>

/// The action named @p name below @p owner. If there is none, the test fails.
inline QAction& FindAction(const QObject& owner, const char* name)
{
    return Require(owner.findChild<QAction*>(name),
                   QString("There is no action named \"%1\"").arg(name));
}

/// Triggers the action named @p name below @p owner, which must be enabled.
inline void Trigger(const QObject& owner, const char* name)
{
    QAction& action = FindAction(owner, name);
    QVERIFY2(action.isEnabled(), name);
    action.trigger();
}
