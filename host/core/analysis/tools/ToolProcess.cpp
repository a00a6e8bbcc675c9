#include "ToolProcess.h"

#include "EndWithParent.h"
#include "MemoryLimit.h"

#include <QFile>
#include <QFileInfo>
#include <QProcessEnvironment>

namespace {

constexpr int MillisecondsPerSecond = 1000;

/// A process that ends with this one, even if this one is killed, and whose memory may be limited.
class BoundProcess : public QProcess
{
public:
    BoundProcess(int megabytes, QObject* parent)
        : QProcess(parent)
        , m_megabytes(megabytes)
    {
    }

protected:
    void setupChildProcess() override
    {
        EndWithParent();
        if (m_megabytes > 0)
            LimitMemory(m_megabytes);
    }

private:
    int m_megabytes;
};

QProcessEnvironment PlainEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    environment.insert(QStringLiteral("LANG"), QStringLiteral("C"));
    environment.insert(QStringLiteral("OMP_NUM_THREADS"), QStringLiteral("1"));
    // Other names for the same, which the solver prefers.
    for (const char* const name : {"CCX_NPROC_EQUATION_SOLVER", "CCX_NPROC_STIFFNESS",
                                   "CCX_NPROC_RESULTS", "NUMBER_OF_CPUS"})
        environment.remove(QLatin1String(name));
    return environment;
}

} // namespace

ToolProcess::ToolProcess(QObject* parent)
    : QObject(parent)
{
    m_timeLimit.setSingleShot(true);
    connect(&m_timeLimit, &QTimer::timeout, this, [this] { Kill(ToolEnd::OutOfTime); });
}

ToolProcess::~ToolProcess()
{
    if (m_process == nullptr)
        return;
    m_process->disconnect(this);
    m_process->kill();
    m_process->waitForFinished();
}

void ToolProcess::Start(const ToolCall& call)
{
    m_call = call;
    m_kind = ToolEnd::Exited;
    m_process = new BoundProcess(call.megabytes, this);
    m_process->setProgram(call.program);
    m_process->setArguments(call.arguments);
    m_process->setWorkingDirectory(call.folder);
    m_process->setProcessEnvironment(PlainEnvironment());
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->setProcessChannelMode(QProcess::MergedChannels);
    m_process->setStandardOutputFile(call.logFile);
    connect(m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &ToolProcess::HandleEnd);
    // Queued: nobody expects an end before Start() returns.
    connect(
        m_process, &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart && m_process != nullptr)
                HandleEnd();
        },
        Qt::QueuedConnection);
    m_timeLimit.start(call.seconds * MillisecondsPerSecond);
    m_process->start();
}

void ToolProcess::Cancel()
{
    Kill(ToolEnd::Cancelled);
}

void ToolProcess::Kill(ToolEnd::Kind kind)
{
    if (m_process == nullptr)
        return;
    m_kind = kind;
    m_process->kill();
}

void ToolProcess::HandleEnd()
{
    const ToolEnd end = End();
    m_timeLimit.stop();
    m_process->disconnect(this);
    m_process->deleteLater();
    m_process = nullptr;
    Q_EMIT Finished(end);
}

// No program has an exit status for it, but all say it at the end: the mesher, the two parts of the
// solver, and the loader where there is not even room for the program.
bool ToolProcess::IsOutOfMemory() const
{
    constexpr qint64 Tail = 65536;
    QFile log(m_call.logFile);
    if (!log.open(QIODevice::ReadOnly))
        return false;
    log.seek(qMax(qint64(0), log.size() - Tail));
    const QByteArray text = log.read(Tail);
    const auto contains = [&text](const char* mark) {
        return text.contains(mark);
    };
    return contains("bad_alloc") || contains("Out of memory") || contains("ALLOCATE failure") ||
           contains("error allocating memory") ||
           contains("failed to map segment from shared object");
}

ToolEnd ToolProcess::End() const
{
    const QString name = QFileInfo(m_call.program).fileName();
    ToolEnd end;
    end.kind = m_kind;
    if (m_kind == ToolEnd::Cancelled) {
        end.problem = tr("%1 was cancelled.").arg(name);
    } else if (m_kind == ToolEnd::OutOfTime) {
        end.problem =
            tr("%1 did not finish within %2 s, the time limit.").arg(name).arg(m_call.seconds);
    } else if (m_process->error() == QProcess::FailedToStart) {
        end.kind = ToolEnd::NotStarted;
        end.problem = tr("%1 cannot be started: %2").arg(name, m_process->errorString());
    } else if (m_process->exitStatus() == QProcess::CrashExit) {
        end.kind = ToolEnd::Crashed;
        end.problem = tr("%1 crashed.").arg(name);
    } else {
        end.exitCode = m_process->exitCode();
        if (end.exitCode != 0)
            end.problem = tr("%1 ended with exit status %2.").arg(name).arg(end.exitCode);
    }
    const bool hasFailedByItself = end.kind == ToolEnd::Crashed || end.exitCode != 0;
    if (hasFailedByItself && m_call.megabytes > 0 && IsOutOfMemory()) {
        end.kind = ToolEnd::OutOfMemory;
        end.problem = tr("%1 ran out of memory; its limit is %2 MB. Choose a greater mesh size, or "
                         "a greater limit in \"Limits of building\".")
                          .arg(name)
                          .arg(m_call.megabytes);
    }
    return end;
}
