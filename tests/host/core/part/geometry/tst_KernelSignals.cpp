#include "BodyFormulas.h"
#include "EmptyDesignStores.h"
#include "KernelSignals.h"
#include "StepFile.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <OSD_SIGSEGV.hxx>
#include <QProcess>
#include <QRegularExpression>

#include <cfenv>
#include <csignal>
#include <limits>

class tst_KernelSignals : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { InstallKernelSignalHandlers(); }
    void ACrashBecomesAnException();
    void AFilletThatCrashesTheKernelFailsByName();
    void ADamagedStepFileFailsByName();
    void AStudyContinuesAfterACrash();
    void InterruptsKeepTheirHandlers();
    void FloatingPointOperationsDoNotTrap();
};

namespace {

// The second fillet is too large for the face that the first one has left.
const QByteArray TwoFillets =
    R"({"name": "a", "kind": "box", "fields": {"x": 30, "y": 30, "z": 10}},
       {"name": "b", "kind": "fillet", "inputs": ["a"],
        "fields": {"radius": 3, "x": 15, "y": 0, "z": 10}},
       {"name": "c", "kind": "fillet", "inputs": ["b"],
        "fields": {"radius": 12, "x": 0, "y": 15, "z": 10}})";

void WriteDamagedFile(const QString& path)
{
    WriteStepFile(BRepPrimAPI_MakeBox(10.0, 10.0, 10.0).Shape(), path);
    QString content = ContentOf(path);
    // Vectors without directions, which the kernel dereferences all the same.
    static const QRegularExpression direction("VECTOR\\('',#\\d+");
    QVERIFY(content.contains(direction));
    Put(path, content.replace(direction, "VECTOR('',$").toUtf8());
}

} // namespace

void tst_KernelSignals::ACrashBecomesAnException()
{
    // More than once: the first crash does not leave its signal blocked.
    for (int i = 0; i < 3; ++i)
        QVERIFY_EXCEPTION_THROWN(GuardKernelCall([] { std::raise(SIGSEGV); }), OSD_SIGSEGV);
    QVERIFY(HasKernelCrashed());
    QCOMPARE(GuardKernelCall([] { return 5; }), 5);
}

void tst_KernelSignals::AFilletThatCrashesTheKernelFailsByName()
{
    const EmptyDesignStores stores;
    QCOMPARE(Reason(List(TwoFillets)),
             QString("c: a fillet of 12 mm cannot be built there; it may be too large for the "
                     "faces beside the edge."));
    const Mass built = Built(A10);
    QVERIFY2(AreClose(built, Box(10, 10, 10)), Shown(built));
}

void tst_KernelSignals::ADamagedStepFileFailsByName()
{
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    WriteDamagedFile("bad.step");
    QCOMPARE(Reason(List(R"({"name": "a", "kind": "import", "file": "bad.step"})")),
             QString("a: bad.step: its entity #28 cannot be read: Parameter n0.2 (orientation) not "
                     "an Entity"));
    WriteStepFile(BRepPrimAPI_MakeBox(1.0, 2.0, 3.0).Shape(), "good.step");
    const Mass built = Built(R"({"name": "a", "kind": "import", "file": "good.step"})");
    QVERIFY2(AreClose(built, Box(1, 2, 3)), Shown(built));
}

void tst_KernelSignals::AStudyContinuesAfterACrash()
{
    EnterTemporaryDirectory();
    QByteArray features = TwoFillets;
    features.replace("\"radius\": 12", "\"radius\": \"r\"");
    Put("project.json",
        R"({"version": 1, "parameters": [{"name": "r", "type": "Scalar", "value": 1}],
                     "samples": [{"parameter": "r", "values": [2, 12, 4], "ticked": true}],
                     "features": [)" +
            features + "]}");
    QProcess study;
    study.start(TARN_HOST_PROGRAM, {"--study", "project.json", "--out", "out"});
    QVERIFY(study.waitForFinished(60000));
    QCOMPARE(study.exitStatus(), QProcess::NormalExit);
    QCOMPARE(study.exitCode(), 1);
    const QString output = study.readAllStandardOutput();
    QVERIFY2(output.contains("run 2 of 3: failed: c: "), qPrintable(output));
    QVERIFY2(output.contains("\n2 ok, 1 failed, 0 done before"), qPrintable(output));
}

void tst_KernelSignals::InterruptsKeepTheirHandlers()
{
    for (const int signal : {SIGINT, SIGHUP, SIGQUIT}) {
        struct sigaction before = {};
        struct sigaction own = {};
        own.sa_handler = SIG_IGN;
        sigaction(signal, &own, &before);
        InstallKernelSignalHandlers();
        struct sigaction after = {};
        sigaction(signal, &before, &after);
        QVERIFY(after.sa_handler == SIG_IGN);
    }
}

void tst_KernelSignals::FloatingPointOperationsDoNotTrap()
{
    QCOMPARE(fegetexcept(), 0);
    volatile double zero = 0.0;
    QCOMPARE(1.0 / zero, std::numeric_limits<double>::infinity());
}

TARN_TEST_MAIN(tst_KernelSignals)
#include "tst_KernelSignals.moc"
