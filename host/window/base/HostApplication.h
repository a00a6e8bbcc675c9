#pragma once

#include <QApplication>
#include <QString>

/// The host's application object.
///
/// An exception from an event handler or slot becomes a line in the message channel, and the
/// application continues. Whatever the system's locale, numbers have a decimal point, 8-bit texts
/// are UTF-8, and the font family that the dialogs request has a substitute. The kernel writes
/// nothing to the console.
class HostApplication : public QApplication
{
    Q_OBJECT

public:
    HostApplication(int& argc, char** argv);
    ~HostApplication() override;

    bool notify(QObject* receiver, QEvent* event) override;
};

/// While one lives, the kernel's construction error is reported with this text, as a warning.
///
/// For a dialog that does not catch this error: notify() catches it inside the dialog's exec(), so
/// the dialog stays open and keeps the input.
class ConstructionErrorText
{
public:
    explicit ConstructionErrorText(const QString& text) { s_text = text; }
    ~ConstructionErrorText() { s_text.clear(); }
    Q_DISABLE_COPY(ConstructionErrorText)

private:
    friend class HostApplication;

    static QString s_text; // Empty if none lives.
};
