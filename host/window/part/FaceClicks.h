#pragma once

#include <QObject>

class FeatureTree;
class PartModel;
class PartView;
class TopoDS_Shape;

/// A click on a face in the view selects the feature that made it; a double click edits it.
class FaceClicks : public QObject
{
    Q_OBJECT

public:
    /// @p view may be null. The others must outlive this object.
    FaceClicks(const PartModel& model, FeatureTree& tree, PartView* view, QObject* parent);
    ~FaceClicks() override;

private:
    /// Returns whether a feature was found.
    bool Select(const TopoDS_Shape& face);

    const PartModel& m_model;
    FeatureTree& m_tree;
};
