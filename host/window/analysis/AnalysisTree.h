#pragma once

#include <QDockWidget>

class AnalysisRecords;
class QAction;
class QTreeWidget;
class QTreeWidgetItem;

/// Shows the stored analysis set-up.
///
/// The Delete key and the action delete boundary conditions and loads.
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
    /// Shows the current records. To be called after a change of the shared stores, which emit no
    /// signals.
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
