#pragma once

#include "FeatureDialogs.h"
#include "FeatureKind.h"

#include <QObject>
#include <gp_Pnt.hxx>

#include <functional>
#include <optional>

class FeatureFields;
class FeatureTree;
class FeaturePlacing;
class PartModel;
class QAction;
class QMenu;

/// The actions of the menu "Model": adding, changing and deleting features, undo, import and export
/// of STEP files.
///
/// The message channel reports an action that fails; it then changes nothing.
class PartActions : public QObject
{
    Q_OBJECT

public:
    /// Model, tree, fields, view and picker must outlive the actions; @p view may be null. Dialogs
    /// belong to @p window, which also owns this object.
    PartActions(PartModel& model, FeatureTree& tree, FeatureFields& fields, FeaturePlacing& placing,
                QWidget* window);
    ~PartActions() override;

    void FillMenu(QMenu& menu);

private:
    void OfferKinds(QMenu& menu, FeatureGroup group);
    void UpdateActions();

    /// Calls @p change, and reports why it was rejected.
    void Try(const std::function<void()>& change);

    void Add(const FeatureKind& kind);
    /// The selected bodies, or the last ones of the part. @throws ModellingError
    QStringList InputsFor(const FeatureKind& kind) const;
    /// What the dialogs of its kind make of @p feature; nothing if the user cancels.
    std::optional<Feature> Asked(const Feature& feature, bool isNew);
    void AddNamed(Feature feature);
    void Edit();
    void Apply(const Feature& feature);
    /// Adds the feature if it has no name yet.
    void AddOrChange(const Feature& feature);

    void MoveSelected(int steps);
    void SuppressSelected();
    void DeleteSelected();
    void CopySelected();
    void Paste();

    void ExportStep();
    void AskForLimits();

    PartModel& m_model;
    FeatureTree& m_tree;
    FeatureFields& m_fields;
    FeaturePlacing& m_placing;
    QWidget* m_window;
    FeatureDialogs m_dialogs;

    QAction* m_edit;
    QAction* m_up;
    QAction* m_down;
    QAction* m_suppress;
    QAction* m_delete;
    QAction* m_copy;
    QAction* m_paste;
    QAction* m_export;
};
