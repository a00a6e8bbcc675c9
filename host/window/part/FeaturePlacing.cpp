#include "FeaturePlacing.h"

#include "FeatureKind.h"
#include "MessageLevel.h"
#include "PartModel.h"
#include "PartView.h"
#include "PickedReference.h"
#include "ShapePicker.h"

#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

#include <algorithm>

namespace {

// The place of a feature in the part that is shown, or -1.
int StepOf(const PartModel& model, const QString& feature)
{
    const PartPlan& plan = model.Built().plan;
    const auto found = std::find_if(plan.begin(), plan.end(),
                                    [&](const BuildStep& step) { return step.name == feature; });
    return found == plan.end() ? -1 : int(found - plan.begin());
}

} // namespace

FeaturePlacing::FeaturePlacing(PartModel& model, PartView* view, ShapePicker& picker,
                               QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_view(view)
    , m_picker(picker)
{
    // A waiting feature was made for the former features.
    connect(&model, &PartModel::Changed, this, &FeaturePlacing::Cancel);
    connect(&model, &PartModel::PartBuilt, this, &FeaturePlacing::Cancel);
    if (m_view == nullptr)
        return;
    connect(m_view, &PartView::FacePicked, this, &FeaturePlacing::TakeFace);
    connect(m_view, &PartView::PickingCancelled, this, &FeaturePlacing::Cancel);
    connect(m_view, &PartView::Failed, this, [this] {
        Cancel();
        m_view = nullptr;
    });
}

FeaturePlacing::~FeaturePlacing() = default;

bool FeaturePlacing::CanPlace(const FeatureKind& kind) const
{
    return m_view != nullptr && (kind.isAtFace || kind.isAtEdges);
}

void FeaturePlacing::Place(const Feature& feature)
{
    if (feature.kind->isAtFace)
        PickFaceFor(feature);
    else
        PickEdgesFor(feature);
}

void FeaturePlacing::PickFaceFor(const Feature& feature)
{
    PostMessageToChannel(InfoLevel, tr("Click the face to mirror at, or press Escape to cancel"));
    m_waiting = feature;
    // The face is one of the input, which the part may hide: an edited mirror shows its image
    // there.
    const TopoDS_Shape input = m_model.ShapeOf(feature.inputs.first());
    if (!input.IsNull())
        m_view->ShowShape(input);
    m_view->PickFace();
}

void FeaturePlacing::PickEdgesFor(const Feature& feature)
{
    const int step = StepOf(m_model, feature.inputs.first());
    if (step < 0 || m_model.Built().shapes[std::size_t(step)].IsNull()) {
        Q_EMIT Placed(feature);
        return;
    }
    ShapePicker::Request request;
    request.title = tr("Pick edges for %1:").arg(feature.kind->Title());
    request.hasFaces = false;
    request.choice.edges = feature.edges;
    request.step = step;
    request.done = [this, feature](const ShapePicker::Choice& choice) {
        Feature placed = feature;
        placed.edges = choice.edges;
        Q_EMIT Placed(placed);
    };
    m_picker.Start(request);
}

void FeaturePlacing::TakeFace(const TopoDS_Face& face, const gp_Pnt& point)
{
    if (!m_waiting.has_value())
        return;
    const int step = StepOf(m_model, m_waiting->inputs.first());
    TopTools_IndexedMapOfShape faces;
    if (step >= 0)
        TopExp::MapShapes(m_model.Built().shapes[std::size_t(step)], TopAbs_FACE, faces);
    const int number = faces.FindIndex(face);
    if (number == 0) {
        TakePoint(point);
        return;
    }
    const FaceReference reference =
        ReferenceToFace(m_model.Built(), step, number, {point.X(), point.Y(), point.Z()});
    if (reference.IsPoint()) {
        TakePoint(point);
        return;
    }
    Feature feature = *m_waiting;
    Cancel();
    // A name follows the part; the point would stay where it is.
    feature.fields = Feature(*feature.kind).fields;
    feature.face = reference;
    Q_EMIT Placed(feature);
}

void FeaturePlacing::TakePoint(const gp_Pnt& point)
{
    if (!m_waiting.has_value())
        return;
    Feature feature = *m_waiting;
    Cancel();
    feature.fields = QStringList(
        {CoordinateText(point.X()), CoordinateText(point.Y()), CoordinateText(point.Z())});
    feature.face.reset();
    Q_EMIT Placed(feature);
}

void FeaturePlacing::Cancel()
{
    if (!m_waiting.has_value())
        return;
    m_waiting.reset();
    if (m_view == nullptr)
        return;
    m_view->CancelPicking();
    m_view->ShowShape(m_model.Shape());
}
