#pragma once

#include <QApplication>

/// The host's application object.
///
/// No exception leaves an event handler or slot: it ends up as a line in the message channel, and
/// the application lives on - but for the kernel's construction errors while a KernelErrorPass
/// lives: those go on to whoever runs the event loop. Whatever the system's locale, numbers have a
/// full stop as decimal sign, 8-bit texts are UTF-8, and the font family that the dialogs ask for
/// has a substitute. The kernel writes nothing to the console.
class HostApplication : public QApplication
{
    Q_OBJECT

public:
    HostApplication(int& argc, char** argv);
    ~HostApplication() override;

    bool notify(QObject* receiver, QEvent* event) override;
};

/// Put round the exec() of a dialog that lets Standard_ConstructionError pass, where that error is
/// to arrive at exec().
class KernelErrorPass
{
public:
    KernelErrorPass() { ++s_passes; }
    ~KernelErrorPass() { --s_passes; }
    Q_DISABLE_COPY(KernelErrorPass)

    static bool IsGiven() { return s_passes > 0; }

private:
    static int s_passes;
};
