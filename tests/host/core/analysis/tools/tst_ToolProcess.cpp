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
    void CancelEndsAProgram();
    void TheProgramEndsWithItsOwner();

private:
    ToolEnd Run(const QString& program, const QStringList& arguments = {}, int seconds = 60);
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

ToolEnd tst_ToolProcess::Run(const QString& program, const QStringList& arguments, int seconds)
{
    ToolProcess process;
    QSignalSpy ends(&process, &ToolProcess::Finished);
    ToolCall call = Call(program, seconds);
    call.arguments = arguments;
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
