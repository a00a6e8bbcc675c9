#pragma once

#include "Feature.h"

#include <QObject>

#include <optional>

class PartModel;
class PartView;
class ShapePicker;
class TopoDS_Face;
class gp_Pnt;

/// Lets the user pick the face or the edges that a feature is at.
class FeaturePlacing : public QObject
{
    Q_OBJECT

public:
    /// @p view may be null. The others must outlive this object.
    FeaturePlacing(PartModel& model, PartView* view, ShapePicker& picker, QObject* parent);
    ~FeaturePlacing() override;

    /// Whether there is a view to pick in.
    bool HasView() const { return m_view != nullptr; }
    /// Whether features of @p kind are placed by picking here.
    bool CanPlace(const FeatureKind& kind) const;

    /// Begins to pick for @p feature; one without a name is new. Placed() follows, unless the user
    /// cancels or the part changes.
    void Place(const Feature& feature);
    /// Takes the face through @p point, if a feature waits for its face.
    void TakePoint(const gp_Pnt& point);
    void Cancel();

Q_SIGNALS:
    void Placed(const Feature& feature);

private:
    void PickFaceFor(const Feature& feature);
    void PickEdgesFor(const Feature& feature);
    void TakeFace(const TopoDS_Face& face, const gp_Pnt& point);

    PartModel& m_model;
    PartView* m_view; // Null if there is none, or if it has failed.
    ShapePicker& m_picker;
    std::optional<Feature> m_waiting; // For its face.
};
