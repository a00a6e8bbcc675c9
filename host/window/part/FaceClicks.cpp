#include "FaceClicks.h"

#include "FeatureTree.h"
#include "PartFaces.h"
#include "PartModel.h"
#include "PartView.h"

#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

FaceClicks::FaceClicks(const PartModel& model, FeatureTree& tree, PartView* view, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_tree(tree)
{
    if (view == nullptr)
        return;
    connect(view, &PartView::FaceClicked, this, &FaceClicks::Select);
    connect(view, &PartView::FaceDoubleClicked, this, [this](const TopoDS_Shape& face) {
        if (Select(face))
            Q_EMIT m_tree.EditWanted();
    });
}

FaceClicks::~FaceClicks() = default;

bool FaceClicks::Select(const TopoDS_Shape& face)
{
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(m_model.Shape(), TopAbs_FACE, faces);
    const int number = faces.FindIndex(face);
    if (number == 0)
        return false;
    const QStringList features =
        PartFaces(m_model.Built()).FeaturesOf(PartFaces::WholePart, number);
    // The part that is shown may be older than the list of features.
    if (features.isEmpty() || m_model.Features().Find(features.first()) < 0)
        return false;
    m_tree.Select(features.first());
    return true;
}
