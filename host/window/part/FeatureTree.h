#pragma once

#include <QDockWidget>

class PartModel;
struct Feature;
class QTreeWidget;
class QTreeWidgetItem;

/// Lists the features of the part in the order in which they are built.
///
/// A suppressed feature is struck out; the one that failed has a warning sign and says why. Several
/// can be selected.
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
    /// Selects the feature called @p name alone.
    void Select(const QString& name);

    /// Puts @p actions into the list's context menu and their shortcuts where they act on the list.
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
