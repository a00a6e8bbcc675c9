#pragma once

#include "AnalysisPlanner.h"
#include "AnalysisTools.h"
#include "KernelWorker.h"
#include "ModeSearch.h"
#include "SolveFolder.h"
#include "SolveResult.h"
#include "ToolProcess.h"

#include <QObject>

#include <functional>
#include <memory>

/// What to solve.
struct SolveInput
{
    PartRequest part;         ///< Without targets and BREP file, which the job adds.
    AnalysisPlanner analysis; ///< Evaluated with the parameters of this part.
    QString folder;           ///< For all files of the analysis; exists, and is for this job alone.
    bool isStatic = false;    ///< Otherwise it is an analysis of vibration.
    bool isWithoutRun = false; ///< The job ends when the decks are written.
    AnalysisTools tools = AnalysisTools::Stored();
    /// Where the solver has already left results of this deck, which are taken then; or empty.
    QString resultsFolder = {};
};

/// What a job is doing.
enum class SolveStage
{
    Building,
    Meshing,
    Modelling,
    Solving,
    Reading
};

/// Solves one analysis after the other: builds the part in a worker process, meshes it, writes
/// "Model_Active.inp" and "Model_Active.bdf", runs the solver and reads its results.
///
/// While its programs run, the event loop goes on; reading their files blocks it.
class SolveJob : public QObject
{
    Q_OBJECT

public:
    /// @p worker builds the parts and outlives the job.
    explicit SolveJob(KernelWorker& worker, QObject* parent = nullptr);
    /// Ends all processes.
    ~SolveJob() override;

    /// Starts an analysis. The one before must have ended.
    void Start(const SolveInput& input);
    /// Gives up; Finished() follows with a cancelled result.
    void Cancel();
    bool IsBusy() const { return m_result != nullptr; }

    /// Starts an analysis and waits for its end while it processes events.
    SolveResultPointer Run(const SolveInput& input);

Q_SIGNALS:
    void StageChanged(SolveStage stage);
    /// One line about what was done or is being done.
    void Progressed(const QString& line);
    /// Exactly once for each Start().
    void Finished(const SolveResultPointer& result);

private:
    void Enter(SolveStage stage, const QString& line);
    void Build();
    void MakeMesh();
    void MakeModel();
    void Solve();
    void TakeResults();
    void Read();
    void ReadModes(const ModesTable& table);
    void ReadStatic();
    void WriteDecks();
    void WriteSolverDeck() const;
    void CheckSize() const;
    void RunTool(const AnalysisTool& tool, const QStringList& arguments, const QString& log,
                 std::function<void(const ToolEnd&)> then);
    /// Lets the event loop show the stage, or cancel it, before it blocks.
    void RunLater(std::function<void()> work);
    void Try(const std::function<void()>& step);
    void FailUnlessFolder(const QString& problem);
    void Fail(SolveResult::Outcome outcome, const QString& problem);
    void Finish();

    KernelWorker& m_worker;
    ToolProcess m_tool;
    std::function<void(const ToolEnd&)> m_afterTool;
    bool m_isBuilding = false;
    bool m_isCancelled = false;

    std::unique_ptr<SolveInput> m_input;
    SolveFolder m_folder;
    std::shared_ptr<SolveResult> m_result; // Null while idle.
    AnalysisPlan m_plan;
    std::unique_ptr<ModeSearch> m_search;
};
