#pragma once

#include "BodyFormulas.h"
#include "EmptyDesignStores.h"
#include "KernelWorker.h"
#include "TestCase.h"

#include <QProcess>
#include <QSignalSpy>

// Two hundred crossing tori take the kernel far longer than any test waits.
const QByteArray Endless =
    R"({"name": "ring", "kind": "torus"},
       {"name": "rings", "kind": "polarArray", "inputs": ["ring"],
        "fields": {"number": 200, "angle": 1.7, "dx": 1, "dz": 0, "y": 3}},
       {"name": "knot", "kind": "fuse", "inputs": ["rings", "ring"]})";

inline PartRequest Request(const QByteArray& list)
{
    PartRequest request;
    request.plan = PlanPart(List(list));
    return request;
}

/// A worker whose requests are watched.
struct Watched
{
    Watched()
    {
        QObject::connect(&worker, &KernelWorker::Progressed, [this](int s) { steps << s; });
    }

    /// Starts to build Endless, and waits until its last feature is begun.
    void StartEndless()
    {
        steps.clear();
        worker.Start(Request(Endless));
        QTRY_VERIFY_WITH_TIMEOUT(steps.contains(2), 30000);
    }

    qint64 ProcessId() const
    {
        const auto* const process = worker.findChild<QProcess*>();
        return process == nullptr ? 0 : process->processId();
    }

    PartReply Last() const { return replies.last()[0].value<PartReply>(); }

    EmptyDesignStores stores;
    KernelWorker worker;
    QSignalSpy replies{&worker, &KernelWorker::Finished};
    QList<int> steps;
};
