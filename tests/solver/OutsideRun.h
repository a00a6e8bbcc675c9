#pragma once

#include "ModalDriver.h"

#include <QByteArray>
#include <QDialog>
#include <QString>

/// Sets the action of OutsideProgram for its lifetime.
class OutsideAction
{
public:
    explicit OutsideAction(const QByteArray& action) { qputenv(Name, action); }
    ~OutsideAction() { qunsetenv(Name); }
    Q_DISABLE_COPY(OutsideAction)

private:
    static constexpr const char* Name = "OUTSIDE_PROGRAM_ACTION";
};

/// While this lives, OutsideProgram runs until the test program itself waits for its end.
class WaitForTheWait
{
public:
    WaitForTheWait();
    ~WaitForTheWait();
    Q_DISABLE_COPY(WaitForTheWait)

    /// The test program waited, and OutsideProgram may end.
    bool IsOver() const { return m_isOver; }

    /// The test program would have given up after some time.
    bool HasTimeLimit() const { return m_hasTimeLimit; }

    /// The test program waits for events of its child processes.
    void Note(bool hasTimeLimit);

private:
    const OutsideAction m_action{"wait"};
    int m_pipe = -1;
    bool m_isOver = false;
    bool m_hasTimeLimit = false;
};

/// Presses Browse and picks the path in the file dialog; cancels if the path is empty.
void Browse(QDialog& dialog, const QString& path);

/// Presses Run and returns the boxes that came up.
ShownBoxes PressRun(QDialog& dialog);

/// The file that OutsideProgram wrote to the working directory.
QString RunRecord();
