#include "StudyProcess.h"

#include "ExitCode.h"
#include "HostError.h"
#include "Project.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <sys/prctl.h>

#include <csignal>

namespace {

QString program;

/// Ends with the window, however that ends.
class Child : public QProcess
{
public:
    using QProcess::QProcess;

protected:
    void setupChildProcess() override { prctl(PR_SET_PDEATHSIG, SIGTERM); }
};

} // namespace

StudyProcess::StudyProcess(QObject* parent)
    : QObject(parent)
{
}

StudyProcess::~StudyProcess()
{
    if (m_process == nullptr)
        return;
    m_process->disconnect(this);
    m_process->terminate();
    constexpr int Patience = 5000; // ms
    if (!m_process->waitForFinished(Patience)) {
        m_process->kill();
        m_process->waitForFinished(Patience);
    }
}

void StudyProcess::SetProgram(const QString& path)
{
    program = path;
}

void StudyProcess::Start(const Project& project, const Options& options)
{
    // Beside the project, so that it finds the same files.
    const QFileInfo file(project.Path());
    auto copy = std::make_unique<QTemporaryFile>(
        QDir(project.Folder()).filePath(file.completeBaseName() + QStringLiteral(".XXXXXX.study")));
    if (!copy->open())
        throw HostError(
            tr("The study cannot be started: %1: %2").arg(project.Folder(), copy->errorString()));
    copy->close();
    Project written = project;
    written.Save(copy->fileName());
    m_project = std::move(copy);
    m_options = options;
    Launch();
}

void StudyProcess::Continue()
{
    if (m_state == Paused)
        Launch();
}

void StudyProcess::Launch()
{
    m_process = std::make_unique<Child>();
    m_process->setStandardOutputFile(QProcess::nullDevice());
    m_process->setStandardInputFile(QProcess::nullDevice());
    connect(m_process.get(), QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &StudyProcess::HandleEnd);
    connect(m_process.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            HandleEnd();
    });
    m_process->start(program.isEmpty() ? QCoreApplication::applicationFilePath() : program,
                     {QStringLiteral("--study"), m_project->fileName(), QStringLiteral("--out"),
                      m_options.directory, QStringLiteral("--jobs"),
                      QString::number(m_options.jobs), QStringLiteral("--step"),
                      m_options.hasSteps ? QStringLiteral("all") : QStringLiteral("none")});
    SetState(Running);
}

void StudyProcess::End(State wanted)
{
    m_wanted = wanted;
    if (m_state == Running) {
        SetState(Ending);
        m_process->terminate();
    } else if (m_state == Paused && wanted == Idle) {
        m_project.reset();
        SetState(Idle);
    }
}

void StudyProcess::HandleEnd()
{
    // It is the sender.
    const std::unique_ptr<QProcess, void (*)(QProcess*)> process(
        m_process.release(), [](QProcess* ended) { ended->deleteLater(); });
    const bool wasAsked = m_state == Ending;
    constexpr int MaximumSize = 10000;
    QString problem = QString::fromLocal8Bit(process->readAllStandardError().left(MaximumSize));
    const QString prefix = QStringLiteral("tarnhost: ");
    problem = problem.startsWith(prefix) ? problem.mid(prefix.size()) : problem;
    if (process->error() == QProcess::FailedToStart)
        problem = process->errorString();
    else if (process->exitStatus() == QProcess::CrashExit && problem.isEmpty())
        problem = tr("the program that ran it crashed");
    else if (process->exitCode() == FailedCode)
        problem = tr("some runs failed; the table shows the reasons");
    else if (process->exitCode() == BadFolderCode)
        problem =
            tr("the disk is full, or the folder cannot be written (%1)").arg(problem.trimmed());
    const State next = wasAsked ? m_wanted : Idle;
    if (next == Idle)
        m_project.reset();
    SetState(next);
    if (!wasAsked)
        Q_EMIT Finished(problem.trimmed());
}

void StudyProcess::SetState(State state)
{
    m_state = state;
    Q_EMIT StateChanged();
}
