#pragma once

#include "StudyDefinition.h"
#include "StudyProcess.h"

#include <QDockWidget>
#include <QElapsedTimer>
#include <QTimer>

#include <memory>

class DesignModel;
class PartModel;
class ProjectSession;

namespace Ui {
class StudyPanel;
}

/// The study of the project, to set up and to run: its parameters, design, analyses and responses,
/// how many runs it has and how long they take, and its progress.
class StudyPanel : public QDockWidget
{
    Q_OBJECT

public:
    /// The models must outlive the panel.
    StudyPanel(ProjectSession& session, DesignModel& design, PartModel& part, QWidget* parent);
    ~StudyPanel() override;

    /// What is to be started. The folder is absolute; empty if the user has not chosen one.
    StudyProcess::Options Options() const;

    void ShowState(StudyProcess::State state);
    /// Of @p runs, @p failed ones among the @p ended.
    void ShowProgress(int runs, int ended, int failed, int running);
    void ShowProgressText(const QString& text);

    /// Lets the user choose the folder for the results. Returns whether one was chosen.
    bool ChooseFolder();
    /// Lets the user take a new folder because the chosen one holds another study, from which this
    /// one @p differs. Returns whether one was taken.
    bool OfferNewFolder(const QString& differs);

Q_SIGNALS:
    void StartWanted();
    void PauseWanted();
    void StopWanted();

private:
    void ConnectForm();
    void ConnectModels();
    void Refresh();
    void ShowDefinition(const StudyDefinition& study);
    void ShowExpected();
    /// Stores the @p study as one step.
    void Change(const StudyDefinition& study, const QString& text);
    void TakeDesign();
    void TakeSeed();
    void TakeAnalyses();
    void ChooseList();
    QString ProjectFolder() const;

    ProjectSession& m_session;
    DesignModel& m_design;
    PartModel& m_part;
    std::unique_ptr<Ui::StudyPanel> m_form;
    QTimer m_refresh; // Once for all changes of an operation.
    StudyProcess::State m_state = StudyProcess::Idle;

    QElapsedTimer m_building;
    double m_buildSeconds = 0.0; // The longest build of the project: later ones reuse features.
    QElapsedTimer m_sinceStart;
    int m_endedAtStart = -1; // Below 0 until it is known.
};
