#pragma once

#include <QObject>

class AnalysisRecords;
class AnalysisTree;
class PartModel;
class QMenu;
class QWidget;

/// Runs the dialogs of the analysis set-up and stores their results.
class AnalysisActions : public QObject
{
    Q_OBJECT

public:
    /// @p window is the parent of the dialogs and owns this object; model, tree and part must
    /// outlive it.
    AnalysisActions(AnalysisRecords& model, AnalysisTree& tree, const PartModel& part,
                    QWidget* window);
    ~AnalysisActions() override;

    /// Adds an action for each dialog, for deleting in the tree, and for the check.
    void FillMenu(QMenu& menu);

private:
    void ChooseType();
    void AddBoundaryCondition();
    void AddLoad();
    void ReadFiles();
    void AddProperty();
    void ManageProperties();
    void BrowseMaterials();
    void SetFrequencies();
    void SetMeshSize();
    void SetSubShapeMesh();
    void CheckSetupNow();

    AnalysisRecords& m_model;
    AnalysisTree& m_tree;
    const PartModel& m_part;
    QWidget* m_window;
};
