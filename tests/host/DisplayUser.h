#pragma once

#include <QObject>
#include <QPoint>
#include <QString>

#include <memory>

/// A user in front of the X display: presses keys and mouse buttons through the server, whichever
/// program owns the windows.
///
/// Like a window manager, it gives a window the focus before it types. Events reach a program in
/// the order in which they were sent, so only new windows have to be awaited.
class DisplayUser
{
public:
    using WindowId = unsigned long;

    DisplayUser();
    ~DisplayUser();
    Q_DISABLE_COPY(DisplayUser)

    /// The visible window of the process with this @p title, or 0.
    WindowId FindWindow(qint64 process, const QString& title);

    void Focus(WindowId window);

    /// Presses a key while the other keys are held: Press({"Control_L", "o"}). The names are those
    /// of X.
    void Press(std::initializer_list<const char*> keys);

    /// Types @p text, which must consist of Latin-1 characters that are on the keyboard.
    void Type(const QString& text);

    /// Moves the pointer to @p place in @p window and clicks once or twice.
    void Click(WindowId window, const QPoint& place, int times = 1);

private:
    struct Connection;
    std::unique_ptr<Connection> m_connection;
};
