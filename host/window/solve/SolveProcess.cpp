#include "SolveProcess.h"

#include "KVMaterialData.h"
#include "Language.h"
#include "Project.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

namespace {

const QLatin1String FolderName("tarnhost-solve");
const QLatin1String ProjectName("project.json");
const QLatin1String MaterialsName("UserMaterial.xml");

} // namespace

SolveProcess::SolveProcess(QObject* parent)
    : QObject(parent)
{
    OwnedFolder::RemoveAbandoned(FolderName);
}

SolveProcess::~SolveProcess()
{
    if (m_process == nullptr)
        return;
    m_process->disconnect(this);
    m_process->kill();
    m_process->waitForFinished();
}

QString SolveProcess::PathOf(const QString& name) const
{
    return m_folder->PathOf(name);
}

void SolveProcess::Start(Project project, SolveKind kind, const QString& target, bool hasResults)
{
    m_report.reset();
    m_problem.clear();
    m_isCancelled = false;
    m_folder = std::make_unique<OwnedFolder>(FolderName);
    project.Save(PathOf(ProjectName));
    const QString materials = PathOf(MaterialsName);
    if (KVMaterialData::GetInstance()->WriteXML(QFile::encodeName(materials).toStdString()) != 0)
        throw HostError(tr("%1 cannot be written.").arg(materials));

    SolveOrder order;
    order.kind = kind;
    order.projectFile = PathOf(ProjectName);
    order.folder = m_folder->Path();
    order.target = target;
    order.hasResults = hasResults;
    order.language = Language::Current();
    m_process = new QProcess(this);
    m_process->setProgram(QCoreApplication::applicationFilePath());
    m_process->setArguments(order.Arguments());
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->setStandardErrorFile(QProcess::nullDevice());
    connect(m_process, &QProcess::readyReadStandardOutput, this, &SolveProcess::Read);
    connect(m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &SolveProcess::HandleEnd);
    // Queued: nobody expects an end before Start() returns.
    connect(
        m_process, &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                HandleEnd();
        },
        Qt::QueuedConnection);
    m_process->start();
}

void SolveProcess::Cancel()
{
    if (m_process == nullptr)
        return;
    m_isCancelled = true;
    m_process->kill();
    m_process->waitForFinished();
    HandleEnd();
}

void SolveProcess::Read()
{
    while (m_process->canReadLine()) {
        const std::optional<SolveMessage> message = SolveMessage::FromLine(m_process->readLine());
        if (!message)
            continue;
        if (message->kind == SolveMessage::Problem)
            m_problem = message->text;
        Q_EMIT Told(*message);
    }
}

void SolveProcess::HandleEnd()
{
    if (m_process == nullptr)
        return;
    Read();
    Outcome outcome = m_problem.isEmpty() ? Done : Failed;
    if (m_process->exitStatus() != QProcess::NormalExit || m_process->exitCode() != 0 ||
        m_process->error() == QProcess::FailedToStart)
        outcome = Failed;
    if (outcome == Failed && m_problem.isEmpty())
        m_problem = tr("The process that solves has ended unexpectedly.");
    m_process->disconnect(this);
    m_process->deleteLater();
    m_process = nullptr;
    if (m_isCancelled) {
        outcome = Cancelled;
        m_problem = tr("The analysis was cancelled.");
    } else {
        try {
            ReadReport();
        } catch (const HostError& error) {
            outcome = Failed;
            m_problem = error.Reason();
        }
    }
    Q_EMIT Finished(outcome, m_problem);
}

void SolveProcess::ReadReport()
{
    if (QFile::exists(PathOf(SolveOrder::ReportName)))
        m_report = std::make_shared<SolveReport>(
            ReportFromBytes(SolveFolder(m_folder->Path()).ContentOf(SolveOrder::ReportName)));
}
