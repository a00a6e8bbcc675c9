#pragma once

#include <QDockWidget>

class AnalysisRecords;
class QAction;
class QTreeWidget;
class QTreeWidgetItem;

/// Shows the analysis set-up as it is stored, whatever the dialogs show of it.
///
/// Boundary conditions and loads can be deleted here, with the Delete key or the action.
class AnalysisTree : public QDockWidget
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn,
        ValueColumn
    };

    /// The model must outlive the tree.
    AnalysisTree(AnalysisRecords& model, QWidget* parent);
    ~AnalysisTree() override;

    /// Deletes the selected boundary condition or load; enabled while one is selected.
    QAction* DeleteAction() const { return m_delete; }

public Q_SLOTS:
    /// Shows the records as they are now. The model tells of its changes, the shared stores do not:
    /// whoever changed one calls this.
    void Refresh();

private:
    QTreeWidgetItem* AddGroup(const QString& title);
    void ShowSolverType();
    void ShowConstraints();
    void ShowLoads();
    void ShowProperties();
    void ShowFrequencies();
    void ShowMeshSizes();

    QTreeWidgetItem* SelectedAttribute() const;
    void DeleteSelected();

    AnalysisRecords& m_model;
    QTreeWidget* m_tree;
    QAction* m_delete;
};
