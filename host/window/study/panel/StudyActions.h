#pragma once

#include "ParameterEntry.h"
#include "StudyFollower.h"
#include "StudyProcess.h"

#include <QObject>
#include <QStringList>

#include <vector>

class DesignModel;
class PartModel;
class ProjectSession;
class QAction;
class QMenu;
class QWidget;
class StudyExport;
class StudyPanel;
class StudyResults;
class StudySelection;
class StudyTable;
class StudyWatch;

/// Runs the study of the project, and opens studies that were run elsewhere: connects the panel,
/// the child process, the folder and the results.
class StudyActions : public QObject
{
    Q_OBJECT

public:
    /// The docks belong to @p window, which also owns this object; the models must outlive it.
    StudyActions(ProjectSession& session, DesignModel& design, PartModel& part, QWidget* window);
    /// Ends a study that is running.
    ~StudyActions() override;

    StudyPanel* Panel() const { return m_panel; }
    StudyResults* Results() const { return m_results; }
    /// The runs that are shown.
    StudyTable& Table() { return *m_table; }

    void FillMenu(QMenu& menu);

    /// Shows the study in the folder at @p path, and follows it while it runs.
    void OpenFolder(const QString& path);

private:
    void CreateActions();
    void Connect();
    void Start();
    void StartProcess(const Project& project, const StudyProcess::Options& options);
    void PauseOrContinue();
    void ChooseFolder();
    void Follow(const QString& path, bool isExpected);
    void ShowResults();
    void TakeNews(const StudyFollower::News& news);
    void ShowEnd(const QString& problem);
    void ShowProcessState();
    void UpdateActions();
    QStringList PlainParameters() const;
    std::vector<double> ValuesOf(int row) const;
    ParameterEntries DesignAt(const std::vector<double>& point) const;
    void ShowRun();
    void MakeRunDesign();
    void MakeOptimumDesign();
    void VerifyOptimum();

    ProjectSession& m_session;
    DesignModel& m_design;
    QWidget* m_window;
    StudySelection* m_selection;
    StudyTable* m_table;
    StudyProcess* m_process;
    StudyWatch* m_watch;
    StudyPanel* m_panel;
    StudyResults* m_results;
    StudyExport* m_export;
    QString m_folder; // That is followed.

    QAction* m_start = nullptr;
    QAction* m_pause = nullptr;
    QAction* m_stop = nullptr;
    QAction* m_showRun = nullptr;
    QAction* m_makeDesign = nullptr;
};
