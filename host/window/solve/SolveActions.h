#pragma once

#include "AnalysisStores.h"
#include "Project.h"
#include "ResultWatch.h"
#include "SolveProcess.h"

#include <QObject>

#include <optional>

class DesignModel;
class PartModel;
class PartView;
class ProjectSession;
class QMenu;
class QWidget;
class ResultsDock;
class SolveDock;

/// The actions that mesh and solve the part; shows progress and results in their docks.
class SolveActions : public QObject
{
    Q_OBJECT

public:
    /// @p view may be null. @p window is the parent of boxes and docks, and owns this object; the
    /// others must outlive it.
    SolveActions(ProjectSession& session, const DesignModel& design, const PartModel& part,
                 PartView* view, QWidget* window);
    ~SolveActions() override;

    void FillMenu(QMenu& menu);

    /// Belong to the window.
    SolveDock& Progress() { return *m_progress; }
    ResultsDock& Results() { return *m_results; }

    /// Ends an analysis that is running, and drops the one that waits for it.
    void Stop();

private:
    struct Job
    {
        SolveKind kind;
        bool hasResults; ///< They are only read.
    };
    /// What the results of an analysis depend on.
    struct Input
    {
        Project project;
        AnalysisStores stores;

        bool operator==(const Input& other) const;
    };

    void Mesh() { Start(SolveKind::Mesh); }
    void SolveVibration() { Start(SolveKind::Vibration); }
    void SolveStatic() { Start(SolveKind::Static); }
    void ReadResults();
    void Start(SolveKind kind, bool hasResults = false);
    void Begin();
    void OfferResults();
    void TakeEnd(SolveProcess::Outcome outcome, const QString& problem);
    Input CurrentInput() const;
    void CompareWithResults();
    void Forget();

    ProjectSession& m_session;
    SolveProcess m_process;
    ResultWatch m_watch; // Of the project's folder.
    SolveDock* m_progress;
    ResultsDock* m_results;
    std::optional<Job> m_next; // Waits for the running one to end.
    Input m_running;
    std::optional<Input> m_shown; // Of the results that are shown.
};
