#pragma once

#include <QApplication>
#include <QString>

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

/// While one lives, the kernel's construction error is told in these words, as a warning.
///
/// For a dialog that lets this error pass: it is caught in notify(), before it leaves the dialog's
/// exec(), so the dialog stays open with what the user typed.
class ConstructionErrorText
{
public:
    explicit ConstructionErrorText(const QString& text) { s_text = text; }
    ~ConstructionErrorText() { s_text.clear(); }
    Q_DISABLE_COPY(ConstructionErrorText)

private:
    friend class HostApplication;

    static QString s_text; // Empty where there is none.
};
