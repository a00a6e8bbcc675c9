#include "ShapePicker.h"

#include "ui_ShapePicker.h"

#include "Bodies.h"
#include "FieldValues.h"
#include "HostError.h"
#include "MessageLevel.h"
#include "PartModel.h"
#include "PartView.h"
#include "PickedReference.h"

#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

#include <algorithm>

namespace {

const TopoDS_Shape& ShownShape(const PartModel& model, int step)
{
    const BuiltPart& part = model.Built();
    return step == PartFaces::WholePart ? part.shape : part.shapes.at(std::size_t(step));
}

// Removes @p reference if it is there, otherwise adds it.
template<class Reference>
void ToggleIn(std::vector<Reference>& references, const Reference& reference)
{
    const auto found = std::find(references.begin(), references.end(), reference);
    if (found == references.end())
        references.push_back(reference);
    else
        references.erase(found);
}

int NumberOf(const TopoDS_Shape& in, const TopoDS_Shape& shape)
{
    TopTools_IndexedMapOfShape numbers;
    TopExp::MapShapes(in, shape.ShapeType(), numbers);
    return numbers.FindIndex(shape);
}

template<class Find>
void AddFound(const TopoDS_Shape& in, TopAbs_ShapeEnum type, const Find& find,
              std::vector<TopoDS_Shape>& found)
{
    try {
        TopTools_IndexedMapOfShape shapes;
        TopExp::MapShapes(in, type, shapes);
        for (const int number : find())
            found.push_back(shapes.FindKey(number));
    } catch (const HostError&) {
        // The check of the set-up reports it.
    }
}

} // namespace

ShapePicker::ShapePicker(PartModel& model, PartView* view, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_view(view)
    , m_ui(std::make_unique<Ui::ShapePicker>())
{
    m_ui->setupUi(this);
    hide();
    connect(m_ui->doneButton, &QPushButton::clicked, this, &ShapePicker::Finish);
    connect(m_ui->clearButton, &QPushButton::clicked, this, &ShapePicker::Clear);
    connect(m_ui->cancelButton, &QPushButton::clicked, this, &ShapePicker::Cancel);
    connect(&m_model, &PartModel::Changed, this, &ShapePicker::Cancel);
    connect(&m_model, &PartModel::PartBuilt, this, &ShapePicker::Cancel);
    if (m_view == nullptr)
        return;
    connect(m_view, &PartView::ShapePicked, this, &ShapePicker::Toggle);
    connect(m_view, &PartView::PickingCancelled, this, &ShapePicker::Cancel);
    connect(m_view, &PartView::Failed, this, [this] {
        m_view = nullptr;
        Cancel();
    });
}

ShapePicker::~ShapePicker() = default;

void ShapePicker::Start(const Request& request)
{
    Cancel();
    if (m_view == nullptr) {
        PostMessageToChannel(WarningLevel, tr("Picking needs the 3D view, which is not available"));
        return;
    }
    if (ShownShape(m_model, request.step).IsNull()) {
        PostMessageToChannel(
            WarningLevel, tr("The part has no shape to pick from. Add or correct a body first."));
        return;
    }
    m_request = request;
    m_isActive = true;
    m_ui->titleLabel->setText(request.title);
    if (request.step != PartFaces::WholePart)
        m_view->ShowShape(ShownShape(m_model, request.step));
    m_view->PickShapes(request.hasFaces, request.hasEdges);
    ShowChoice();
    show();
}

void ShapePicker::Cancel()
{
    if (m_isActive)
        End();
}

void ShapePicker::End()
{
    m_isActive = false;
    hide();
    if (m_view != nullptr) {
        m_view->StopPicking();
        m_view->HighlightShape({});
        if (m_request.step != PartFaces::WholePart)
            m_view->ShowShape(m_model.Shape());
    }
    Q_EMIT Ended();
}

void ShapePicker::Finish()
{
    const Request request = m_request;
    End();
    request.done(request.choice);
}

void ShapePicker::Clear()
{
    m_request.choice = {};
    ShowChoice();
}

void ShapePicker::Toggle(const TopoDS_Shape& shape, const gp_Pnt& point)
{
    if (!m_isActive)
        return;
    const int number = NumberOf(ShownShape(m_model, m_request.step), shape);
    if (number == 0)
        return;
    const std::array<double, 3> at = {point.X(), point.Y(), point.Z()};
    if (shape.ShapeType() == TopAbs_FACE) {
        ToggleIn(m_request.choice.faces,
                 ReferenceToFace(m_model.Built(), m_request.step, number, at));
    } else {
        const EdgeReference edge = ReferenceToEdge(m_model.Built(), m_request.step, number, at);
        // A reference to a seam finds nothing.
        if (ShapeOf(m_model, {{}, {edge}}, m_request.step).IsNull()) {
            PostMessageToChannel(InfoLevel, tr("This line is the seam of a face, not an edge; "
                                               "click beside it to pick the face"));
            return;
        }
        ToggleIn(m_request.choice.edges, edge);
    }
    ShowChoice();
}

void ShapePicker::ShowChoice()
{
    QStringList texts;
    for (const FaceReference& face : m_request.choice.faces)
        texts << face.Text();
    for (const EdgeReference& edge : m_request.choice.edges)
        texts << edge.Text();
    m_ui->choiceLabel->setText(texts.isEmpty() ? tr("Click in the view; click again to take back.")
                                               : texts.join(QStringLiteral(", ")));
    // One line, so that the view keeps its height.
    m_ui->choiceLabel->setToolTip(texts.join(QLatin1Char('\n')).toHtmlEscaped());
    m_ui->clearButton->setEnabled(!texts.isEmpty());
    if (m_view != nullptr)
        m_view->HighlightShape(ShapeOf(m_model, m_request.choice, m_request.step));
}

TopoDS_Shape ShapePicker::ShapeOf(const PartModel& model, const Choice& choice, int step)
{
    const TopoDS_Shape& in = ShownShape(model, step);
    if (in.IsNull())
        return {};
    const PartFaces names(model.Built());
    FieldValues values;
    std::vector<TopoDS_Shape> found;
    for (const FaceReference& face : choice.faces)
        AddFound(
            in, TopAbs_FACE, [&] { return names.Faces(step, values.Of(face)); }, found);
    for (const EdgeReference& edge : choice.edges)
        AddFound(
            in, TopAbs_EDGE, [&] { return names.Edges(step, values.Of(edge)); }, found);
    return found.empty() ? TopoDS_Shape() : Compound(found);
}
