#pragma once

#include "BuildLimits.h"
#include "WorkerMessages.h"

#include <QObject>
#include <QProcess>
#include <QTimer>

/// Builds parts in a child process: this program again, as a worker. Whatever the geometry kernel
/// does there, this process goes on.
///
/// The child is started by the first request, serves one request after the other, and is started
/// again if it has ended.
class KernelWorker : public QObject
{
    Q_OBJECT

public:
    explicit KernelWorker(QObject* parent = nullptr);
    /// Ends the child.
    ~KernelWorker() override;

    /// Starts to build. A request that is still being built is given up without a reply.
    ///
    /// Shapes that @p known has already are not built or sent again where that can be avoided.
    void Start(const PartRequest& request, const BuiltPart& known = {});

    /// Gives up the request at hand, within 0.2 s. Finished() follows with an abandoned reply.
    void Cancel();
    /// Gives up the request at hand without a reply.
    void Discard();

    bool IsBusy() const { return m_isBusy; }

    /// Starts to build, and waits for the reply while it processes events.
    PartReply Run(const PartRequest& request, const BuiltPart& known = {});

    /// For the next request.
    void SetLimits(const BuildLimits& limits);

Q_SIGNALS:
    /// A step of the plan is begun; after the last one the part is measured and written.
    void Progressed(int step);
    /// Not called for requests that were replaced by others.
    void Finished(const PartReply& reply);

private:
    /// Why the request at hand ends without a reply.
    enum End
    {
        Crash,
        TimeLimit,
        Cancelled,
        Discarded,
        Replaced
    };

    void Send();
    void StartProcess();
    void DropProcess();
    void Abandon(End end);
    void Read();
    void Receive(const QByteArray& bytes);
    void HandleProcessEnd();
    void FinishWithoutReply();
    PartReply FailedAtStep(const QString& cause) const;
    void BecomeIdle();
    void Finish(const PartReply& reply);

    BuildLimits m_limits = BuildLimits::Stored();
    QProcess* m_process = nullptr; // Null while there is none.
    QByteArray m_received;
    QTimer m_timeLimit;
    QTimer m_patience; // With a worker that is to give up its request.

    bool m_isBusy = false;
    End m_end = Crash;
    PartRequest m_request; // The one at hand, or the one that replaces it.
    BuiltPart m_known;
    int m_step = 0;
    bool m_hasBegun = false; // The worker has answered.
    int m_attempts = 0;
};
