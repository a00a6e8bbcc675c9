#pragma once

#include <QObject>

#include <functional>

class AnalysisRecords;
class AnalysisTree;
class PartModel;
class QMenu;
class QWidget;
class SetupCheckDock;
struct AnalysisDefinition;
struct AnalysisEntry;

/// Runs the dialogs of the analysis set-up and stores their results.
class AnalysisActions : public QObject
{
    Q_OBJECT

public:
    /// @p window is the parent of the dialogs and owns this object; the others must outlive it.
    AnalysisActions(AnalysisRecords& model, AnalysisTree& tree, SetupCheckDock& check,
                    const PartModel& part, QWidget* window);
    ~AnalysisActions() override;

    /// Adds an action for each dialog, for editing in the tree, and for the check.
    void FillMenu(QMenu& menu);

    /// The material of the part; the check needs it.
    void SetPartMaterial(const std::function<QString()>& material) { m_material = material; }

Q_SIGNALS:
    /// The user has made @p entry, which applies nowhere yet.
    void EntryAdded(const AnalysisEntry& entry);

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
    void AddLocalMesh();
    void Edit(const AnalysisEntry& entry);
    void CheckSetupNow();

    /// Lets @p edit change a copy of the set-up, and stores it if that returns true. Returns
    /// whether the set-up has changed.
    bool Change(const std::function<bool(AnalysisDefinition&)>& edit);

    AnalysisRecords& m_model;
    AnalysisTree& m_tree;
    SetupCheckDock& m_check;
    const PartModel& m_part;
    QWidget* m_window;
    std::function<QString()> m_material = [] {
        return QString();
    };
};
