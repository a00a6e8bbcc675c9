#pragma once

#include <QDockWidget>

class PartModel;
struct Feature;
class QTreeWidget;
class QTreeWidgetItem;

/// Lists the features of the part in the order in which they are built.
///
/// A suppressed feature is struck out. A failed one has a warning icon, and a tool tip with the
/// reason. Several features can be selected.
class FeatureTree : public QDockWidget
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn,
        KindColumn,
        FieldsColumn
    };

    /// The model must outlive the tree.
    FeatureTree(PartModel& model, QWidget* parent);
    ~FeatureTree() override;

    /// The names of the selected features, in the order in which they were selected.
    const QStringList& Selected() const { return m_selected; }
    /// Selects only the feature called @p name.
    void Select(const QString& name);

    /// Adds @p actions to the context menu; their shortcuts work while the list has the focus.
    void OfferActions(const QList<QAction*>& actions);

Q_SIGNALS:
    void SelectionChanged();
    /// The user double-clicked a feature.
    void EditWanted();

private:
    void Refresh();
    void ShowFeature(QTreeWidgetItem& item, const Feature& feature) const;
    void NoteSelection();

    PartModel& m_model;
    QTreeWidget* m_tree;
    QStringList m_selected;
};
