#pragma once

#include <QApplication>

/// The host's application object.
///
/// No exception leaves an event handler or slot: it ends up as a line in the message channel, and
/// the application lives on. Whatever the system's locale, numbers have a full stop as decimal
/// sign, 8-bit texts are UTF-8, and the font family that the dialogs ask for has a substitute. The
/// kernel writes nothing to the console.
class HostApplication : public QApplication
{
    Q_OBJECT

public:
    HostApplication(int& argc, char** argv);
    ~HostApplication() override;

    bool notify(QObject* receiver, QEvent* event) override;
};
