#pragma once

#include <QMainWindow>

class AnalysisRecords;
class DesignActions;
class DesignModel;
class FeatureFields;
class FeatureTree;
class MessageDock;
class AnalysisTree;
class PartActions;
class ParameterPanel;
class PartModel;
class PositionDock;
class ShapePicker;
class AnalysisMarks;
class Project;
class ProjectActions;
class ProjectSession;
class PartPanel;
class SetupCheckDock;
class SolveActions;
class StudyActions;

/// The host's window: menus that run the dialogs, and views of the messages, the parameters, the
/// features and the part that they build.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Replaces the content of the stores with @p project and builds its part.
    void OpenProject(const Project& project);
    /// Offers a project that was never saved and that a crash has left; true if it was opened.
    bool OfferAbandonedProject();

    /// The analysis set-up, which menu and tree share; the window owns it.
    AnalysisRecords& Analysis() { return *m_analysis; }
    /// The part; the window owns it.
    PartModel& Part() { return *m_part; }
    FeatureTree& Features() { return *m_features; }
    /// The open project; the window owns it.
    ProjectSession& Session() { return *m_session; }
    /// The study in the window; the window owns it.
    StudyActions& Study() { return *m_study; }
    /// The parameters; the window owns them.
    DesignModel& Design() { return *m_design; }

protected:
    /// Asks before discarding changes.
    void closeEvent(QCloseEvent* event) override;

private:
    void CreateDocks();
    /// All in one place, for a low screen.
    void StackDocks();
    void CreateMenus();
    void ConnectPart();

    void CreateToolBars();
    void CreateViewMenu();
    void ShowBuiltPart();
    void ShowFailure(const QString& reason);
    void PastFailure();
    void ShowSelectedFeature();
    void HighlightSelectedFeature();

    AnalysisRecords* m_analysis;
    DesignModel* m_design;
    PartModel* m_part;
    ProjectSession* m_session;
    PartPanel* m_summary;

    MessageDock* m_messages = nullptr;
    QString m_failure; // The message about it, while it holds.
    ParameterPanel* m_parameters = nullptr;
    AnalysisTree* m_tree = nullptr;
    SetupCheckDock* m_check = nullptr;
    FeatureTree* m_features = nullptr;
    FeatureFields* m_fields = nullptr;
    PositionDock* m_position = nullptr;
    ShapePicker* m_picker = nullptr;
    AnalysisMarks* m_marks = nullptr;

    ProjectActions* m_projectActions = nullptr;
    DesignActions* m_designActions = nullptr;
    PartActions* m_partActions = nullptr;
    SolveActions* m_solve = nullptr;
    StudyActions* m_study = nullptr;
};
