#include "SlurmSubmission.h"

#include "Project.h"
#include "SolveFolder.h"
#include "StudyFolder.h"
#include "WholeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

namespace {

constexpr int LookPause = 100;        // ms, between two looks at the runs on trial.
constexpr int TrialTime = 3000;       // ms, enough for several quick runs.
constexpr int SubmitPatience = 60000; // ms
constexpr qint64 MillisecondsPerSecond = 1000;

// How many runs of the study in a folder have ended, however.
int EndedRuns(const QString& folder)
{
    try {
        const std::unique_ptr<StudyFolder> study = StudyFolder::Open(folder);
        study->Records().Refresh();
        const StudyFolder::Counts counts = study->Count();
        return counts.done + counts.failed;
    } catch (const HostError&) {
        return 0; // Not yet that of a study.
    }
}

QString AbsolutePath(const QString& path)
{
    return QFileInfo(path).absoluteFilePath();
}

} // namespace

SlurmSubmission::SlurmSubmission(const Project& project, Options options,
                                 std::function<void(const QString&)> tell)
    : m_project(project)
    , m_options(std::move(options))
    , m_tell(std::move(tell))
{
}

QString SlurmSubmission::Run()
{
    if (!m_options.isWithoutRun &&
        QStandardPaths::findExecutable(QStringLiteral("sbatch")).isEmpty())
        throw HostError(QStringLiteral("the program sbatch of Slurm was not found; submit where it "
                                       "is installed, or write the scripts alone with --no-run"));
    StudyRunner::Options& study = m_options.study;
    const int runs = StudyRunner(m_project, study, m_tell).CreateFolder();
    SlurmTasks tasks;
    tasks.program = QCoreApplication::applicationFilePath();
    tasks.project = AbsolutePath(m_project.Path());
    tasks.folder = AbsolutePath(study.directory);
    tasks.firstRun = study.firstRun > 0 ? study.firstRun : 1;
    tasks.lastRun = study.lastRun > 0 ? study.lastRun : runs;
    const int count = tasks.lastRun - tasks.firstRun + 1;
    tasks.tasks = m_options.tasks > 0 ? std::min(m_options.tasks, count)
                                      : FittingTasks(tasks.firstRun, tasks.lastRun);
    tasks.jobs = std::max(1, study.jobs);
    tasks.seconds = study.seconds;
    tasks.hasSteps = study.hasSteps;
    tasks.partition = m_options.partition;
    tasks.time = m_options.time;
    tasks.memory = m_options.memory;
    WriteScripts(tasks);
    m_tell(QStringLiteral("runs: %1, tasks: %2").arg(count).arg(tasks.tasks));
    if (!m_options.isWithoutRun)
        return Submit();
    m_tell(QStringLiteral("submit them with: sh %1")
               .arg(QDir::toNativeSeparators(ScriptPath(QStringLiteral("slurm_submit.sh")))));
    return {};
}

// Tries some of the runs, away from the study's folder, to know how long they take.
int SlurmSubmission::FittingTasks(int first, int last) const
{
    const int runs = last - first + 1;
    const QTemporaryDir folder;
    m_tell(QStringLiteral("measuring the time of a run"));
    QProcess trial;
    trial.setStandardInputFile(QProcess::nullDevice());
    trial.setStandardOutputFile(QProcess::nullDevice());
    trial.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer time;
    time.start();
    trial.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--study"), m_project.Path(), QStringLiteral("--out"),
                 folder.path(), QStringLiteral("--runs"),
                 QStringLiteral("%1-%2").arg(first).arg(last), QStringLiteral("--jobs"),
                 QStringLiteral("1"), QStringLiteral("--no-table"), QStringLiteral("--step"),
                 m_options.study.hasSteps ? QStringLiteral("all") : QStringLiteral("none")});
    int ended = 0;
    qint64 spent = 0;
    bool isOver = false;
    while (!isOver) {
        isOver = trial.waitForFinished(LookPause);
        spent = time.elapsed();
        ended = EndedRuns(folder.path());
        isOver |= ended > 0 && spent >= TrialTime;
        isOver |= spent >= LeastTaskSeconds * MillisecondsPerSecond;
    }
    trial.terminate();
    if (!trial.waitForFinished(TrialTime))
        trial.kill();
    trial.waitForFinished();
    const double work = double(spent) / std::max(1, ended) * runs / double(MillisecondsPerSecond);
    const double wanted = std::floor(work / LeastTaskSeconds / std::max(1, m_options.study.jobs));
    return int(std::clamp(wanted, 1.0, double(std::min(runs, MostTasks))));
}

void SlurmSubmission::WriteScripts(const SlurmTasks& tasks) const
{
    const std::pair<QString, QByteArray> scripts[] = {
        {QStringLiteral("slurm_array.sh"), SlurmArrayScript(tasks)},
        {QStringLiteral("slurm_merge.sh"), SlurmMergeScript(tasks)},
        {QStringLiteral("slurm_submit.sh"), SlurmSubmitScript(tasks)},
    };
    for (const auto& [name, text] : scripts) {
        tarn::WholeFile file(ScriptPath(name));
        if (!file.Write(text))
            throw FolderError(QStringLiteral("%1 %2").arg(ScriptPath(name), file.Error()));
    }
}

QString SlurmSubmission::Submit() const
{
    QProcess submit;
    submit.setStandardInputFile(QProcess::nullDevice());
    submit.start(QStringLiteral("sh"), {ScriptPath(QStringLiteral("slurm_submit.sh"))});
    if (!submit.waitForFinished(SubmitPatience)) {
        submit.kill();
        submit.waitForFinished();
        return QStringLiteral("sbatch does not answer; look with squeue whether the study was "
                              "submitted");
    }
    const QString numbers = QString::fromLocal8Bit(submit.readAllStandardOutput()).simplified();
    if (submit.exitStatus() != QProcess::NormalExit || submit.exitCode() != 0)
        return QStringLiteral("the study was not submitted: %1")
            .arg(QString::fromLocal8Bit(submit.readAllStandardError()).simplified());
    m_tell(
        QStringLiteral("submitted as job %1; job %2 writes results.csv behind it")
            .arg(numbers.section(QLatin1Char(' '), 0, 0), numbers.section(QLatin1Char(' '), 1, 1)));
    return {};
}

QString SlurmSubmission::ScriptPath(const QString& name) const
{
    return QDir(m_options.study.directory).absoluteFilePath(name);
}
