#pragma once

#include <QByteArray>
#include <QtGlobal>

/// Makes the program run without a display and without Qt's warnings. Call this before constructing
/// the application.
///
/// Qt would warn about what it cannot do without a screen, and about slots that a form's
/// connections do not find in a bare dialog.
inline void RunOffscreen()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}
