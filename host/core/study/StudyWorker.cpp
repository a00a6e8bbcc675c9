#include "StudyWorker.h"

#include "WholeFile.h"

#include <QDir>
#include <QFileInfo>

namespace {

// The text begins like that of a STEP file that could not be written.
bool IsWriteError(const PartReply& reply, const QString& stepPath)
{
    const QString start = QFileInfo(stepPath).fileName() + QStringLiteral(": ") +
                          tarn::WholeFile::WriteError(QString());
    return !stepPath.isEmpty() && reply.failedFeature.isEmpty() && reply.cause.startsWith(start);
}

} // namespace

StudyWorker::StudyWorker()
{
    connect(&m_worker, &KernelWorker::Finished, this, [this](const PartReply& reply) {
        const bool isOfAnalysis = m_task.hasVibration || m_task.hasStatic;
        if (!isOfAnalysis)
            HandlePart(reply);
    });
    connect(&m_job, &SolveJob::Finished, this, &StudyWorker::HandleAnalysis);
}

void StudyWorker::SetLimits(const BuildLimits& limits)
{
    m_worker.SetLimits(limits);
    m_tools.seconds = limits.seconds;
}

void StudyWorker::Start(const StudyTask& task)
{
    m_task = task;
    m_isBusy = true;
    m_isSecondTry = false;
    Begin();
}

void StudyWorker::Begin()
{
    m_outcome = StudyOutcome();
    m_analyses.clear();
    if (m_task.hasStatic)
        m_analyses.push_back(true);
    if (m_task.hasVibration)
        m_analyses.push_back(false);
    if (m_analyses.empty())
        m_worker.Start(m_task.part);
    else
        Analyse();
}

void StudyWorker::Analyse()
{
    m_folder = std::make_unique<QTemporaryDir>(
        QDir(m_task.folder).filePath(QStringLiteral("analysis_XXXXXX")));
    if (!m_folder->isValid()) {
        const QString error = m_folder->errorString();
        return Fail(QStringLiteral("%1: cannot be written: %2").arg(m_task.folder, error), true);
    }
    SolveInput input{m_task.part, *m_task.analysis, m_folder->path(), m_analyses.back(),
                     false,       m_tools};
    // One STEP file is enough.
    if (m_outcome.vibration != nullptr)
        input.part.stepPath.clear();
    m_job.Start(input);
}

void StudyWorker::HandlePart(const PartReply& reply)
{
    if (reply.outcome == PartReply::Done) {
        m_outcome.measures = reply.measures;
        Finish();
    } else if (!TriesAgain(reply)) {
        Fail(reply.Reason(), IsWriteError(reply, m_task.part.stepPath));
    }
}

void StudyWorker::HandleAnalysis(const SolveResultPointer& result)
{
    const PartReply& part = result->part;
    const bool isBuilt = part.outcome == PartReply::Done;
    if (result->outcome == SolveResult::Done) {
        m_outcome.measures = part.measures;
        (m_analyses.back() ? m_outcome.statics : m_outcome.vibration) = result;
        m_analyses.pop_back();
        if (m_analyses.empty())
            Finish();
        else
            Analyse();
    } else if (isBuilt || !TriesAgain(part)) {
        const bool isFolderBad = result->outcome == SolveResult::FolderFailed ||
                                 (!isBuilt && IsWriteError(part, m_task.part.stepPath));
        Fail(result->problem, isFolderBad);
    }
}

bool StudyWorker::TriesAgain(const PartReply& reply)
{
    const bool triesAgain = reply.isLast && !m_isSecondTry;
    if (triesAgain) {
        m_isSecondTry = true;
        Begin();
    }
    return triesAgain;
}

void StudyWorker::Fail(const QString& error, bool isFolderBad)
{
    m_outcome.error = error.simplified();
    m_outcome.isFolderBad = isFolderBad;
    Finish();
}

void StudyWorker::Finish()
{
    m_outcome.ok = m_outcome.error.isEmpty();
    m_folder.reset();
    m_isBusy = false;
    const StudyOutcome outcome = m_outcome;
    Q_EMIT Finished(outcome);
}
