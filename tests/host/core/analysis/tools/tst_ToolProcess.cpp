#include "Script.h"
#include "TestCase.h"
#include "ToolProcess.h"

#include <QSignalSpy>

#include <csignal>

class tst_ToolProcess : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void BothOutputsAreInTheLog();
    void ArgumentsAreNotReadByAShell();
    void TheEnvironmentIsPlain();
    void StandardInputIsEmpty();
    void TheExitStatusIsReported();
    void AProgramThatCannotBeStartedIsReported();
    void AProgramThatIsKilledIsReported();
    void TheTimeLimitEndsAProgram();
    void AProgramWithoutMemoryIsReported_data();
    void AProgramWithoutMemoryIsReported();
    void MemoryIsLimited();
    void CancelEndsAProgram();
    void TheProgramEndsWithItsOwner();

private:
    ToolEnd Run(const QString& program, const QStringList& arguments = {}, int seconds = 60,
                int megabytes = 0);
};

namespace {

// Tells its process id, and does not end.
const QByteArray Endless = "echo $$ > id.new\nmv id.new id\nexec sleep 600\n";

ToolCall Call(const QString& program, int seconds)
{
    ToolCall call;
    call.program = program;
    call.folder = QDir::currentPath();
    call.logFile = QDir::current().absoluteFilePath("log");
    call.seconds = seconds;
    return call;
}

bool IsRunning(pid_t id)
{
    return ::kill(id, 0) == 0;
}

} // namespace

void tst_ToolProcess::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

ToolEnd tst_ToolProcess::Run(const QString& program, const QStringList& arguments, int seconds,
                             int megabytes)
{
    ToolProcess process;
    QSignalSpy ends(&process, &ToolProcess::Finished);
    ToolCall call = Call(program, seconds);
    call.arguments = arguments;
    call.megabytes = megabytes;
    process.Start(call);
    [&ends] {
        QTRY_COMPARE_WITH_TIMEOUT(ends.count(), 1, 60000);
    }();
    return ends.isEmpty() ? ToolEnd() : ends[0][0].value<ToolEnd>();
}

void tst_ToolProcess::BothOutputsAreInTheLog()
{
    const ToolEnd end = Run(PutScript("tool", "echo one\necho two >&2\n"));
    QCOMPARE(end.kind, ToolEnd::Exited);
    QCOMPARE(end.problem, QString());
    QCOMPARE(ContentOf("log"), QByteArray("one\ntwo\n"));
}

void tst_ToolProcess::ArgumentsAreNotReadByAShell()
{
    Run(PutScript("tool", "printf '%s\\n' \"$@\"\n"), {"a b", "$HOME; rm x", "网格"});
    QCOMPARE(ContentOf("log"), QByteArray("a b\n$HOME; rm x\n网格\n"));
}

void tst_ToolProcess::TheEnvironmentIsPlain()
{
    qputenv("LC_NUMERIC", "de_DE.UTF-8");
    qputenv("OMP_NUM_THREADS", "7");
    Run(PutScript("tool", "echo $LC_ALL $OMP_NUM_THREADS\n"));
    qunsetenv("LC_NUMERIC");
    qunsetenv("OMP_NUM_THREADS");
    QCOMPARE(ContentOf("log"), QByteArray("C 1\n"));
}

void tst_ToolProcess::StandardInputIsEmpty()
{
    Run(PutScript("tool", "cat\necho end\n"));
    QCOMPARE(ContentOf("log"), QByteArray("end\n"));
}

void tst_ToolProcess::TheExitStatusIsReported()
{
    const ToolEnd end = Run(PutScript("tool", "exit 201\n"));
    QCOMPARE(end.kind, ToolEnd::Exited);
    QCOMPARE(end.exitCode, 201);
    QCOMPARE(end.problem, QString("tool ended with exit status 201."));
}

void tst_ToolProcess::AProgramThatCannotBeStartedIsReported()
{
    Put("tool", "text");
    const ToolEnd end = Run(QDir::current().absoluteFilePath("tool"));
    QCOMPARE(end.kind, ToolEnd::NotStarted);
    QVERIFY2(end.problem.startsWith("tool cannot be started: "), qPrintable(end.problem));
}

void tst_ToolProcess::AProgramThatIsKilledIsReported()
{
    const ToolEnd end = Run(PutScript("tool", "kill -9 $$\n"));
    QCOMPARE(end.kind, ToolEnd::Crashed);
    QCOMPARE(end.problem, QString("tool crashed."));
}

void tst_ToolProcess::TheTimeLimitEndsAProgram()
{
    const ToolEnd end = Run(PutScript("tool", "exec sleep 600\n"), {}, 1);
    QCOMPARE(end.kind, ToolEnd::OutOfTime);
    QCOMPARE(end.problem, QString("tool did not finish within 1 s, the time limit."));
}

void tst_ToolProcess::AProgramWithoutMemoryIsReported_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("isReported");
    NewRow("mesher", QByteArray("echo \"what():  std::bad_alloc\"\nkill -6 $$\n"), true);
    NewRow("mesher that went on",
           QByteArray("echo 'Error   : Out of memory in boundary mesh recovery'\nexit 1\n"), true);
    NewRow("solver", QByteArray("echo '*ERROR in u_calloc: error allocating memory'\nexit 16\n"),
           true);
    NewRow("factorisation",
           QByteArray("echo 'ALLOCATE failure : bytes 374744, line 517, file DV.c'\nexit 255\n"),
           true);
    NewRow("loader",
           QByteArray("echo 'tool: error while loading shared libraries: libGL.so.1: failed to map "
                      "segment from shared object'\nexit 127\n"),
           true);
    NewRow("success", QByteArray("echo bad_alloc\n"), false);
}

void tst_ToolProcess::AProgramWithoutMemoryIsReported()
{
    QFETCH(QByteArray, script);
    const ToolEnd end = Run(PutScript("tool", script), {}, 60, 700);
    QTEST(end.kind == ToolEnd::OutOfMemory, "isReported");
    if (end.kind == ToolEnd::OutOfMemory)
        QCOMPARE(end.problem,
                 QString("tool ran out of memory; its limit is 700 MB. Choose a greater mesh size, "
                         "or a greater limit in \"Limits of building\"."));
}

void tst_ToolProcess::MemoryIsLimited()
{
    Run(PutScript("tool", "ulimit -v\n"), {}, 60, 700);
    QCOMPARE(ContentOf("log"), QByteArray::number(700 * 1024) + '\n');
    Run(PutScript("tool", "ulimit -v\n"));
    QVERIFY(ContentOf("log") != QByteArray::number(700 * 1024) + '\n');
}

void tst_ToolProcess::CancelEndsAProgram()
{
    ToolProcess process;
    QSignalSpy ends(&process, &ToolProcess::Finished);
    process.Cancel();
    process.Start(Call(PutScript("tool", Endless), 600));
    QVERIFY(process.IsBusy());
    QTRY_VERIFY(QFile::exists("id"));
    process.Cancel();
    QTRY_COMPARE(ends.count(), 1);
    QCOMPARE(ends[0][0].value<ToolEnd>().kind, ToolEnd::Cancelled);
    QVERIFY(!process.IsBusy());
    QVERIFY(!IsRunning(pid_t(ContentOf("id").toInt())));
}

void tst_ToolProcess::TheProgramEndsWithItsOwner()
{
    {
        ToolProcess process;
        process.Start(Call(PutScript("tool", Endless), 600));
        QTRY_VERIFY(QFile::exists("id"));
    }
    QVERIFY(!IsRunning(pid_t(ContentOf("id").toInt())));
}

TARN_TEST_MAIN(tst_ToolProcess)
#include "tst_ToolProcess.moc"
