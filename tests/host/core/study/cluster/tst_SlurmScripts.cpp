#include "SlurmScripts.h"
#include "TestCase.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

class tst_SlurmScripts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheTasksShareTheRuns_data();
    void TheTasksShareTheRuns();
    void TheLimitsArePassedThrough();
    void WithoutLimitsTheQueueHasItsOwn();
    void AnyFolderIsOneWord();
    void TheTableIsWrittenBehindTheArray_data();
    void TheTableIsWrittenBehindTheArray();
    void ARefusalIsPassedOn();
};

static void WriteProgram(const QString& path, const QByteArray& text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + text);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

static QByteArray OutputOf(const QString& script, const QProcessEnvironment& environment,
                           int expectedCode = 0)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start("sh", {script});
    process.waitForFinished();
    [&] {
        QCOMPARE(process.exitCode(), expectedCode);
    }();
    return process.readAllStandardOutput();
}

static SlurmTasks Tasks(const QString& folder)
{
    SlurmTasks tasks;
    tasks.program = folder + "/program";
    tasks.project = folder + "/p.json";
    tasks.folder = folder;
    return tasks;
}

// What the task @p number of the array runs: a stand-in prints its arguments, one a line.
static QStringList CallOf(const SlurmTasks& tasks, int number)
{
    QFile script(tasks.folder + "/array.sh");
    [&] {
        QVERIFY(script.open(QIODevice::WriteOnly));
    }();
    script.write(SlurmArrayScript(tasks));
    script.close();
    WriteProgram(tasks.program, "printf '%s\\n' \"$@\"\n");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("SLURM_ARRAY_TASK_ID", QString::number(number));
    const QByteArray output = OutputOf(script.fileName(), environment);
    return QString::fromUtf8(output).split('\n', Qt::SkipEmptyParts);
}

static QString RunsOf(const SlurmTasks& tasks, int number)
{
    const QStringList call = CallOf(tasks, number);
    return call.value(call.indexOf("--runs") + 1);
}

void tst_SlurmScripts::TheTasksShareTheRuns_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<int>("tasks");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("one for all") << 1 << 10 << 1 << QStringList{"1-10"};
    QTest::newRow("one each") << 1 << 3 << 3 << QStringList{"1-1", "2-2", "3-3"};
    QTest::newRow("not even") << 1 << 10 << 3 << QStringList{"1-3", "4-6", "7-10"};
    QTest::newRow("some of the runs")
        << 11 << 20 << 4 << QStringList{"11-12", "13-15", "16-17", "18-20"};
    QTest::newRow("very many") << 1 << 1000000 << 1 << QStringList{"1-1000000"};
}

void tst_SlurmScripts::TheTasksShareTheRuns()
{
    QFETCH(int, first);
    QFETCH(int, last);
    QFETCH(int, tasks);
    QFETCH(QStringList, expected);
    const QTemporaryDir folder;
    SlurmTasks array = Tasks(folder.path());
    array.firstRun = first;
    array.lastRun = last;
    array.tasks = tasks;
    QVERIFY(SlurmArrayScript(array).contains("#SBATCH --array=1-" + QByteArray::number(tasks)));
    for (int number = 1; number <= tasks; ++number)
        QCOMPARE(RunsOf(array, number), expected[number - 1]);
}

void tst_SlurmScripts::TheLimitsArePassedThrough()
{
    const QTemporaryDir folder;
    SlurmTasks tasks = Tasks(folder.path());
    tasks.jobs = 4;
    tasks.seconds = 90;
    tasks.hasSteps = false;
    tasks.partition = "long";
    tasks.time = "2:00:00";
    tasks.memory = "4G";
    for (const QByteArray& script : {SlurmArrayScript(tasks), SlurmMergeScript(tasks)}) {
        QVERIFY(script.contains("\n#SBATCH --partition=long\n"));
        QVERIFY(script.contains("\n#SBATCH --time=2:00:00\n"));
        QVERIFY(script.contains("\n#SBATCH --mem=4G\n"));
        QVERIFY(script.contains("\n#SBATCH --requeue\n"));
        QVERIFY(script.contains("\n#SBATCH --open-mode=append\n"));
    }
    QVERIFY(SlurmArrayScript(tasks).contains("\n#SBATCH --cpus-per-task=4\n"));
    const QStringList expected = {"--study", tasks.project, "--out", tasks.folder, "--runs",
                                  "1-1",     "--jobs",      "4",     "--no-table", "--timeout",
                                  "90",      "--step",      "none"};
    QCOMPARE(CallOf(tasks, 1), expected);
}

void tst_SlurmScripts::WithoutLimitsTheQueueHasItsOwn()
{
    const QByteArray script = SlurmArrayScript(Tasks("/tmp"));
    for (const char* option : {"--partition", "--time", "--mem", "--timeout", "--step"})
        QVERIFY2(!script.contains(option), option);
}

void tst_SlurmScripts::AnyFolderIsOneWord()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("it's 100% \"mine\" $HOME `x` 零件");
    QVERIFY(QDir().mkpath(name));
    const SlurmTasks tasks = Tasks(name);
    const QStringList call = CallOf(tasks, 1);
    QCOMPARE(call.value(1), tasks.project);
    QCOMPARE(call.value(3), tasks.folder);
}

void tst_SlurmScripts::TheTableIsWrittenBehindTheArray_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("a number") << QByteArray("41");
    QTest::newRow("a number and a cluster") << QByteArray("41;alps");
    QTest::newRow("a sentence") << QByteArray("Submitted batch job 41");
}

void tst_SlurmScripts::TheTableIsWrittenBehindTheArray()
{
    QFETCH(QByteArray, answer);
    const QTemporaryDir folder;
    const SlurmTasks tasks = Tasks(folder.filePath("a study"));
    QVERIFY(QDir().mkpath(tasks.folder));
    WriteProgram(folder.filePath("sbatch"), "printf '%s|' \"$@\" >>\"" +
                                                folder.filePath("calls").toUtf8() + "\"\necho \"" +
                                                answer + "\"\n");
    WriteProgram(folder.filePath("submit.sh"), SlurmSubmitScript(tasks));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", folder.path() + ':' + environment.value("PATH"));
    QCOMPARE(OutputOf(folder.filePath("submit.sh"), environment), QByteArray("41\n41\n"));
    QFile calls(folder.filePath("calls"));
    QVERIFY(calls.open(QIODevice::ReadOnly));
    const QString expected =
        QString("--parsable|--chdir=%1|--output=slurm_array_%a.log|%1/slurm_array.sh|"
                "--parsable|--chdir=%1|--output=slurm_merge.log|--dependency=afterany:41|"
                "%1/slurm_merge.sh|")
            .replace("%1", tasks.folder);
    QCOMPARE(QString::fromUtf8(calls.readAll()), expected);
}

void tst_SlurmScripts::ARefusalIsPassedOn()
{
    const QTemporaryDir folder;
    WriteProgram(folder.filePath("sbatch"), "exit 5\n");
    WriteProgram(folder.filePath("submit.sh"), SlurmSubmitScript(Tasks(folder.path())));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", folder.path() + ':' + environment.value("PATH"));
    QCOMPARE(OutputOf(folder.filePath("submit.sh"), environment, 5), QByteArray());
}

QTEST_GUILESS_MAIN(tst_SlurmScripts)
#include "tst_SlurmScripts.moc"
