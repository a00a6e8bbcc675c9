#pragma once

#include "KernelWorker.h"
#include "SolveJob.h"

#include <QObject>
#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <vector>

/// What is to be done for one run of a study.
struct StudyTask
{
    PartRequest part;
    std::optional<AnalysisPlanner> analysis; ///< Needed with vibration or static.
    bool hasVibration = false;
    bool hasStatic = false;
    QString folder; ///< Where the analyses get a folder of their own, for a while.
};

/// What became of it.
struct StudyOutcome
{
    bool ok = false;
    bool isFolderBad = false; ///< The disk is full, or the folder cannot be written.
    QString error;            ///< Unless it is ok: one line.
    ShapeMeasures measures;
    SolveResultPointer vibration; ///< Null if there was no such analysis.
    SolveResultPointer statics;
};

/// Does one run of a study after the other: builds the part in a process of its own, and analyses
/// it. A run in which that process crashes or does not end in time is tried once more.
class StudyWorker : public QObject
{
    Q_OBJECT

public:
    StudyWorker();

    void SetLimits(const BuildLimits& limits);

    /// Starts a run. The one before must have ended.
    void Start(const StudyTask& task);
    bool IsBusy() const { return m_isBusy; }

Q_SIGNALS:
    void Finished(const StudyOutcome& outcome);

private:
    void Begin();
    void Analyse();
    void HandlePart(const PartReply& reply);
    void HandleAnalysis(const SolveResultPointer& result);
    bool TriesAgain(const PartReply& reply);
    void Fail(const QString& error, bool isFolderBad = false);
    void Finish();

    KernelWorker m_worker;
    SolveJob m_job{m_worker};
    AnalysisTools m_tools = AnalysisTools::Stored();
    std::unique_ptr<QTemporaryDir> m_folder; // Null while nothing is analysed.
    StudyTask m_task;
    std::vector<bool> m_analyses; // Those to come, last one first: whether it is static.
    StudyOutcome m_outcome;
    bool m_isBusy = false;
    bool m_isSecondTry = false;
};
