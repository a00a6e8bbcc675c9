#pragma once

#include "ParameterMap.h"
#include "Project.h"

#include <QMainWindow>

#include <optional>
#include <vector>

class AnalysisModel;
class MessageDock;
class ModelTree;
class ParameterOverview;
class QAction;
class ShapeSummary;

/// The host's window: menus that run the dialogs, the message channel, the stored parameters, and
/// the part that is built from them.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Puts @p project into the stores, in place of what they hold, and builds its part.
    void OpenProject(const Project& project);

    /// The analysis set-up, which menu and tree work on; the window owns it.
    AnalysisModel& Analysis() { return *m_analysis; }

private:
    void CreateDocks();
    void CreateMenus();

    void AskForProject();
    void EditParameters();
    void DesignExperiments();
    void RestoreParameters();

    /// Evaluates the expressions; tells in the message channel what cannot be evaluated.
    void SettleExpressions();
    /// Brings everything that is shown of the parameters into line with the store.
    void Rebuild();
    /// Before a run's values are accepted: keeps the records of the design that they replace.
    void KeepDesign(const ParameterMap& records);

    std::optional<Project> m_project;
    ParameterMap m_design;     // The records that "Restore parameters" brings back.
    bool m_storeIsRun = false; // The store holds a run in place of the design.

    AnalysisModel* m_analysis;
    MessageDock* m_messages = nullptr;
    ParameterOverview* m_overview = nullptr;
    ModelTree* m_tree = nullptr;
    ShapeSummary* m_summary = nullptr;
    QAction* m_restore = nullptr;
};
