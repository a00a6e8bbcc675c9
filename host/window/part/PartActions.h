#pragma once

#include "Feature.h"
#include "FeatureDialogs.h"

#include <QObject>
#include <gp_Pnt.hxx>

#include <functional>
#include <optional>

class FeatureFields;
class FeatureTree;
class PartView;
class PartModel;
class QAction;
class QMenu;

/// What the menu "Model" does: adds, changes and deletes features, takes changes back, and reads
/// and writes STEP files.
///
/// What cannot be done is told in the message channel, and nothing is changed then.
class PartActions : public QObject
{
    Q_OBJECT

public:
    /// Model, tree, fields and view must outlive the actions; @p view may be null. Dialogs belong
    /// to @p window, which also owns this object.
    PartActions(PartModel& model, FeatureTree& tree, FeatureFields& fields, PartView* view,
                QWidget* window);
    ~PartActions() override;

    void FillMenu(QMenu& menu);

    /// Where a mirror waits for its face: the face is the one through @p point.
    void TakePoint(const gp_Pnt& point);

private:
    QAction* NewAction(const QString& text, const char* name, const std::function<void()>& run);
    void FillAddMenu(QMenu& menu, const QList<FeatureKind>& kinds);
    void UpdateActions();

    /// Does @p change; tells why where it is refused.
    void Try(const std::function<void()>& change);

    void Add(FeatureKind kind);
    /// The selected bodies, or the last ones of the part. @throws ModellingError
    QStringList InputsFor(FeatureKind kind) const;
    void AddNamed(Feature feature);
    void Edit();
    void Apply(const Feature& feature);
    void PickFaceFor(const Feature& feature);
    void EndPicking();

    void MoveSelected(int steps);
    void SuppressSelected();
    void DeleteSelected();

    void ImportStep();
    void ChooseFileOf(const Feature& feature);
    QString AskForStepFile();
    void ExportStep();

    PartModel& m_model;
    FeatureTree& m_tree;
    FeatureFields& m_fields;
    PartView* m_view; // Null where there is none, or none any more.
    QWidget* m_window;
    FeatureDialogs m_dialogs;
    std::optional<Feature> m_waiting; // For a face; without a name while it is new.

    QAction* m_edit;
    QAction* m_up;
    QAction* m_down;
    QAction* m_suppress;
    QAction* m_delete;
    QAction* m_export;
};
