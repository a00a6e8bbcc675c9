#include "KernelWorker.h"

#include "Language.h"
#include "WorkerProcess.h"

#include <QCoreApplication>
#include <QEventLoop>

namespace {

// Cancelling takes at most 200 ms in all.
constexpr int Patience = 150; // ms
// Nothing is lost by a second attempt where the worker had not begun.
constexpr int MaximumAttempts = 2;
// For an idle worker, which only has to notice that its input has ended.
constexpr int EndPatience = 3000; // ms

constexpr int MillisecondsPerSecond = 1000;
constexpr int SecondsPerMinute = 60;

PartReply Failed(const QString& cause, PartReply::Outcome outcome = PartReply::Failed)
{
    PartReply reply;
    reply.outcome = outcome;
    reply.cause = cause;
    return reply;
}

QString DurationText(int seconds)
{
    return seconds % SecondsPerMinute == 0
               ? KernelWorker::tr("%1 min").arg(seconds / SecondsPerMinute)
               : KernelWorker::tr("%1 s").arg(seconds);
}

} // namespace

KernelWorker::KernelWorker(QObject* parent)
    : QObject(parent)
{
    m_timeLimit.setSingleShot(true);
    m_patience.setSingleShot(true);
    m_patience.setInterval(Patience);
    connect(&m_timeLimit, &QTimer::timeout, this, [this] {
        m_end = TimeLimit;
        DropProcess();
        FinishWithoutReply();
    });
    connect(&m_patience, &QTimer::timeout, this, [this] {
        // A worker that has not begun yet does not have to be started twice.
        if (!m_hasBegun && m_end != Cancelled)
            return m_patience.start();
        DropProcess();
        FinishWithoutReply();
    });
}

KernelWorker::~KernelWorker()
{
    if (m_process != nullptr) {
        m_process->disconnect(this);
        m_process->closeWriteChannel();
        if (m_isBusy || !m_process->waitForFinished(EndPatience))
            m_process->kill();
    }
    const QList<QProcess*> processes = findChildren<QProcess*>();
    for (QProcess* const process : processes)
        process->waitForFinished();
}

void KernelWorker::SetLimits(const BuildLimits& limits)
{
    m_limits = limits;
    // The limit of the memory is set once in the life of a worker.
    if (!m_isBusy)
        DropProcess();
}

void KernelWorker::Start(const PartRequest& request, const BuiltPart& known)
{
    m_request = request;
    m_known = known;
    m_request.known = QSet<QByteArray>(known.keys.begin(), known.keys.end());
    m_attempts = 0;
    if (m_isBusy)
        Abandon(Replaced);
    else
        Send();
}

void KernelWorker::Cancel()
{
    if (m_isBusy)
        Abandon(Cancelled);
}

void KernelWorker::Discard()
{
    if (m_isBusy)
        Abandon(Discarded);
}

PartReply KernelWorker::Run(const PartRequest& request, const BuiltPart& known)
{
    PartReply result;
    QEventLoop loop;
    connect(this, &KernelWorker::Finished, &loop,
            [target = &result, waiting = &loop](const PartReply& reply) {
                *target = reply;
                waiting->quit();
            });
    Start(request, known);
    if (m_isBusy)
        loop.exec();
    return result;
}

void KernelWorker::Send()
{
    m_isBusy = true;
    m_end = Crash;
    m_patience.stop();
    m_step = 0;
    m_hasBegun = false;
    ++m_attempts;
    m_timeLimit.start(m_limits.seconds * MillisecondsPerSecond);
    if (m_process == nullptr)
        StartProcess();
    m_process->write(Frame(ToBytes(m_request)));
}

void KernelWorker::StartProcess()
{
    m_received.clear();
    m_process = new QProcess(this);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &KernelWorker::Read);
    connect(m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &KernelWorker::HandleProcessEnd);
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            HandleProcessEnd();
    });
    // A crash may print, and the console belongs to the user.
#ifdef __SANITIZE_ADDRESS__
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // The search for leaks takes longer than the owner waits for the end.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString options = QStringLiteral("ASAN_OPTIONS");
    environment.insert(options, environment.value(options) + QStringLiteral(":detect_leaks=0"));
    m_process->setProcessEnvironment(environment);
#else
    m_process->setStandardErrorFile(QProcess::nullDevice());
#endif
    m_process->start(
        QCoreApplication::applicationFilePath(),
        {QLatin1String(WorkerOption), Language::Current(), QString::number(m_limits.megabytes)});
}

void KernelWorker::DropProcess()
{
    if (m_process == nullptr)
        return;
    m_process->disconnect(this);
    connect(m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), m_process,
            &QObject::deleteLater);
    if (m_process->state() == QProcess::NotRunning)
        m_process->deleteLater();
    m_process->kill();
    m_process = nullptr;
}

void KernelWorker::Abandon(End end)
{
    if (m_end == Crash) {
        m_process->write(Frame({}));
        m_patience.start();
    }
    m_end = end;
}

void KernelWorker::Read()
{
    m_received += m_process->readAllStandardOutput();
    while (std::optional<QByteArray> message = TakeFrame(m_received))
        Receive(*message);
}

void KernelWorker::Receive(const QByteArray& bytes)
{
    m_hasBegun = true;
    if (m_end != Crash) {
        if (IsReply(bytes))
            FinishWithoutReply();
        return;
    }
    const WorkerMessage message = MessageFromBytes(bytes, m_request, m_known);
    if (message.reply) {
        if (message.reply->isLast)
            DropProcess();
        Finish(*message.reply);
        return;
    }
    m_step = message.step;
    Q_EMIT Progressed(m_step);
}

void KernelWorker::HandleProcessEnd()
{
    const bool hasStarted = m_process->error() != QProcess::FailedToStart;
    const QString error = m_process->errorString();
    DropProcess();
    if (!m_isBusy)
        return;
    if (!hasStarted)
        Finish(Failed(tr("The process of the geometry kernel cannot be started: %1").arg(error)));
    else if (m_end == Crash && !m_hasBegun && m_attempts < MaximumAttempts)
        Send();
    else
        FinishWithoutReply();
}

void KernelWorker::FinishWithoutReply()
{
    switch (m_end) {
    case Replaced:
        Send();
        break;
    case Discarded:
        BecomeIdle();
        break;
    case Cancelled:
        Finish(Failed(tr("The build was cancelled."), PartReply::Abandoned));
        break;
    case TimeLimit:
        Finish(FailedAtStep(tr("the geometry kernel did not finish within %1, the time limit.")
                                .arg(DurationText(m_limits.seconds))));
        break;
    case Crash:
        Finish(FailedAtStep(BuildError::tr("the geometry kernel crashed.")));
        break;
    }
}

PartReply KernelWorker::FailedAtStep(const QString& cause) const
{
    PartReply reply = Failed(cause);
    reply.isLast = true;
    const auto step = std::size_t(m_step);
    reply.failedFeature = step < m_request.plan.size() ? m_request.plan[step].name : QString();
    if (reply.failedFeature.isEmpty())
        reply.cause = tr("The finished part: %1").arg(cause);
    return reply;
}

void KernelWorker::BecomeIdle()
{
    m_isBusy = false;
    m_timeLimit.stop();
    m_patience.stop();
    m_request = PartRequest();
    m_known = BuiltPart();
}

void KernelWorker::Finish(const PartReply& reply)
{
    BecomeIdle();
    Q_EMIT Finished(reply);
}
