#pragma once

#include <QByteArray>
#include <QtGlobal>

/// Lets the program show nothing and say nothing; to be called before there is an application.
///
/// The toolkit warns of what it cannot do without a screen, and of slots that a form's connections
/// do not find in a bare dialog.
inline void RunOffscreen()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}
