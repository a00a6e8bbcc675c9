#pragma once

#include "SetupCheck.h"

#include <QDockWidget>

#include <optional>

class AnalysisRecords;
class QAction;
class QTreeWidget;
class QTreeWidgetItem;

/// Shows the analysis set-up.
///
/// A double click or Return asks to edit an entry, the Delete key asks to delete it.
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

    /// The selected entry. One of a list is an entry of it; the list itself is none.
    std::optional<AnalysisEntry> Selected() const;
    /// Selects @p entry, or the list if its index is -1.
    void Select(const AnalysisEntry& entry);

    QAction* EditAction() const { return m_edit; }
    QAction* PickAction() const { return m_pick; }
    /// Deletes the selected entry.
    QAction* DeleteAction() const { return m_delete; }

Q_SIGNALS:
    /// Also after a change of the set-up.
    void SelectionChanged();
    void EditWanted(const AnalysisEntry& entry);
    /// The user wants to pick where the entry applies.
    void PickWanted(const AnalysisEntry& entry);

private:
    void Refresh();
    QTreeWidgetItem* AddGroup(const QString& title, AnalysisEntry::Kind kind);
    template<class Entry>
    void ShowEntries(const QString& title, AnalysisEntry::Kind kind,
                     const std::vector<Entry>& entries);
    QTreeWidgetItem* Item(const AnalysisEntry& entry) const;
    void Announce();
    void EditSelected();
    void PickSelected();
    void DeleteSelected();

    AnalysisRecords& m_model;
    QTreeWidget* m_tree;
    QAction* m_edit;
    QAction* m_pick;
    QAction* m_delete;
};
