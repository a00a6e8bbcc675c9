#pragma once

#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTimer>

/// Which program to run, and how.
struct ToolCall
{
    QString program; ///< The path of the executable file.
    QStringList arguments;
    QString folder;    ///< The working directory; it exists.
    QString logFile;   ///< Both outputs of the program; replaced.
    int seconds = 0;   ///< The time limit.
    int megabytes = 0; ///< The limit of the address space; 0 for none.
};

/// How a program ended.
struct ToolEnd
{
    enum Kind
    {
        Exited,
        NotStarted,
        Crashed, ///< It was ended by a signal.
        OutOfTime,
        OutOfMemory,
        Cancelled
    };

    Kind kind = Exited;
    int exitCode = 0; ///< If it exited.
    QString problem;  ///< One line; empty if it exited with code 0.
};

Q_DECLARE_METATYPE(ToolEnd)

/// Runs one outside program after the other, each with an argument list and without a shell.
///
/// A program has the null device as standard input, one thread and the C locale. It ends with this
/// process at the latest.
class ToolProcess : public QObject
{
    Q_OBJECT

public:
    explicit ToolProcess(QObject* parent = nullptr);
    /// Ends the program.
    ~ToolProcess() override;

    /// Starts a program. The one before must have ended.
    void Start(const ToolCall& call);
    /// Ends the program; Finished() follows.
    void Cancel();
    bool IsBusy() const { return m_process != nullptr; }

Q_SIGNALS:
    void Finished(const ToolEnd& end);

private:
    void Kill(ToolEnd::Kind kind);
    void HandleEnd();
    ToolEnd End() const;
    bool IsOutOfMemory() const;

    QProcess* m_process = nullptr; // Null while there is none.
    ToolCall m_call;
    ToolEnd::Kind m_kind = ToolEnd::Exited;
    QTimer m_timeLimit;
};
