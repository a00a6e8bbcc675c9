#include "HostTestMain.h"
#include "WatchedWorker.h"

class tst_KernelWorkerMemory : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheMemoryLimitFailsTheFeature();
};

void tst_KernelWorkerMemory::TheMemoryLimitFailsTheFeature()
{
    Watched watched;
    BuildLimits limits;
    limits.megabytes = BuildLimits::MinimumMegabytes;
    watched.worker.SetLimits(limits);
    const PartReply reply = watched.worker.Run(Request(Endless));
    QCOMPARE(reply.failedFeature, QString("knot"));
    QVERIFY2(reply.Reason().contains("the limit of 512 MB"), qPrintable(reply.Reason()));
    QCOMPARE(watched.worker.Run(Request(A10)).measures.volume, 1000.0);
}
TARN_HOST_TEST_MAIN(tst_KernelWorkerMemory)
#include "tst_KernelWorkerMemory.moc"
