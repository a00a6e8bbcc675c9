#include "PartView.h"

#include "MessageLevel.h"
#include "OpenGlSupport.h"
#include "PartScene.h"
#include "SceneStyle.h"
#include "ViewConversions.h"

#include <QMouseEvent>
#include <QOpenGLContext>
#include <QShortcut>
#include <QTimer>
#include <Standard_Failure.hxx>
#include <TopoDS.hxx>

QString PartView::UnavailableReason()
{
    static const QString reason = OpenGlProblem();
    return reason;
}

PartView::PartView(QWidget* parent)
    : QOpenGLWidget(parent)
    , m_escape(new QShortcut(Qt::Key_Escape, this))
{
    setObjectName(QStringLiteral("modelView"));
    setMinimumSize(160, 120);
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    m_escape->setEnabled(false);
    connect(m_escape, &QShortcut::activated, this, &PartView::CancelPicking);
}

PartView::~PartView()
{
    DropScene();
    if (context() != nullptr)
        disconnect(context(), nullptr, this, nullptr);
}

bool PartView::WithScene(const std::function<void(PartScene&)>& act)
{
    if (!m_scene)
        return false;
    makeCurrent();
    try {
        act(*m_scene);
        return true;
    } catch (const Standard_Failure& failure) {
        PostMessageToChannel(ErrorLevel,
                             tr("The 3D view cannot show this: %1")
                                 .arg(QString::fromLocal8Bit(failure.GetMessageString())));
    }
    return false;
}

void PartView::ShowShape(const TopoDS_Shape& shape, bool fitFirstTime)
{
    const bool isFirst = m_shape.IsNull();
    m_shape = shape;
    TellPoint({});
    bool isSeen = true;
    WithScene([&](PartScene& scene) {
        scene.ShowPart(m_shape, m_mode == ShadedWithEdges);
        isSeen = scene.SeesPart();
    });
    ShowSection();
    // A change may have moved the part out of the picture.
    if (!isFirst && !isSeen)
        FitAll();
    if (isFirst && fitFirstTime && !shape.IsNull())
        FitAll();
}

void PartView::ShowLayer(SceneLayer layer, const Handle(AIS_InteractiveObject) & object)
{
    LayerIn(m_layers, layer) = object;
    WithScene([&](PartScene& scene) { scene.ShowLayer(layer, object); });
}

void PartView::HighlightShape(const TopoDS_Shape& shape)
{
    ShowLayer(SceneLayer::Highlight, SceneStyle::NewHighlight(shape));
}

void PartView::ShowPoint(const gp_Pnt& point)
{
    ShowLayer(SceneLayer::Mark, SceneStyle::NewMark(point));
}

void PartView::UpdateResult()
{
    WithScene([](PartScene& scene) { scene.UpdateLayer(SceneLayer::Result); });
}

void PartView::HideResult()
{
    if (LayerIn(m_layers, SceneLayer::Result).IsNull())
        return;
    ShowLayer(SceneLayer::Result, {});
    Q_EMIT ResultHidden();
}

void PartView::FitAll()
{
    if (!WithScene([](PartScene& scene) { scene.FitAll(); }))
        m_isFitAwaited = true;
}

void PartView::SetStandardView(StandardView view)
{
    m_firstView = view;
    if (!WithScene([view](PartScene& scene) { scene.Turn(Orientation(view)); }))
        m_isFitAwaited = true;
}

void PartView::SetDisplayMode(DisplayMode mode)
{
    m_mode = mode;
    WithScene([mode](PartScene& scene) { scene.SetShaded(mode == ShadedWithEdges); });
}

void PartView::SetSection(Section section, double place)
{
    m_section = section;
    m_sectionPlace = place;
    ShowSection();
}

void PartView::ShowSection()
{
    WithScene(
        [this](PartScene& scene) { scene.SetSection(SectionNormal(m_section), m_sectionPlace); });
}

void PartView::PickShapes(bool hasFaces, bool hasEdges)
{
    WithScene([=](PartScene& scene) { scene.SetPickable(hasFaces, hasEdges); });
    PickFace();
    m_isPickingMany = true;
}

void PartView::PickFace()
{
    HideResult();
    m_isPicking = true;
    m_escape->setEnabled(true);
    setCursor(Qt::CrossCursor);
}

void PartView::EndPicking()
{
    if (m_isPickingMany)
        WithScene([](PartScene& scene) { scene.SetPickable(true, false); });
    m_isPicking = false;
    m_isPickingMany = false;
    m_escape->setEnabled(false);
    unsetCursor();
}

void PartView::CancelPicking()
{
    if (!m_isPicking)
        return;
    EndPicking();
    Q_EMIT PickingCancelled();
}

void PartView::initializeGL()
{
    // Moving the view into another window destroys the context and creates a new one.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &PartView::DropScene);
    MakeScene();
}

void PartView::MakeScene()
{
    try {
        m_scene = std::make_unique<PartScene>(*context());
    } catch (const Standard_Failure& failure) {
        Fail(failure);
        return;
    }
    connect(m_scene.get(), &PartScene::PictureChanged, this, qOverload<>(&PartView::update));
    makeCurrent();
    WithScene([this](PartScene& scene) {
        Resize(scene);
        scene.SetPalette(palette());
        scene.Turn(Orientation(m_firstView));
        if (!m_camera.IsNull())
            scene.SetCamera(m_camera);
        scene.ShowPart(m_shape, m_mode == ShadedWithEdges);
        for (std::size_t layer = 0; layer < m_layers.size(); ++layer)
            scene.ShowLayer(SceneLayer(layer), m_layers[layer]);
    });
    ShowSection();
}

void PartView::DropScene()
{
    if (!m_scene)
        return;
    makeCurrent();
    m_camera = m_scene->Camera();
    m_scene.reset();
    doneCurrent();
}

void PartView::resizeGL(int width, int height)
{
    Q_UNUSED(width)
    Q_UNUSED(height)
    WithScene([this](PartScene& scene) {
        Resize(scene);
        if (m_isFitAwaited)
            scene.FitAll();
        m_isFitAwaited = false;
    });
}

void PartView::Resize(PartScene& scene) const
{
    const double ratio = devicePixelRatioF();
    scene.Resize(qRound(width() * ratio), qRound(height() * ratio), ratio);
}

void PartView::paintGL()
{
    if (!m_scene)
        return;
    try {
        m_scene->Draw();
    } catch (const Standard_Failure& failure) {
        DropScene();
        Fail(failure);
        return;
    }
    if (m_scene->IsTurning())
        QTimer::singleShot(0, this, [this] { HandleMouse(m_cursor); });
}

void PartView::Fail(const Standard_Failure& failure)
{
    // Queued, because a receiver may delete the view, which must not happen while it is drawn.
    const QString reason = QString::fromLocal8Bit(failure.GetMessageString());
    QMetaObject::invokeMethod(
        this, [this, reason] { Q_EMIT Failed(reason); }, Qt::QueuedConnection);
}

void PartView::changeEvent(QEvent* event)
{
    QOpenGLWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        WithScene([this](PartScene& scene) { scene.SetPalette(palette()); });
}

void PartView::mousePressEvent(QMouseEvent* event)
{
    WithScene([&](PartScene& scene) {
        scene.UpdateMouseButtons(Vector(DevicePosition(event->localPos())),
                                 MouseButtons(event->buttons()), KeyFlags(event->modifiers()),
                                 false);
    });
    HandleMouse(event->localPos());
}

void PartView::mouseReleaseEvent(QMouseEvent* event)
{
    mousePressEvent(event);
    m_isDoubleClick = false;
}

void PartView::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
    // Its release is the second click.
    m_isDoubleClick = true;
}

void PartView::mouseMoveEvent(QMouseEvent* event)
{
    WithScene([&](PartScene& scene) {
        scene.UpdateMousePosition(Vector(DevicePosition(event->localPos())),
                                  MouseButtons(event->buttons()), KeyFlags(event->modifiers()),
                                  false);
    });
    HandleMouse(event->localPos());
}

void PartView::wheelEvent(QWheelEvent* event)
{
    const double notches = event->angleDelta().y() / double(QWheelEvent::DefaultDeltasPerStep);
    WithScene([&](PartScene& scene) {
        if (scene.CanZoom(notches > 0.0))
            scene.UpdateMouseScroll(
                Aspect_ScrollDelta(Vector(DevicePosition(event->position())), notches));
    });
    HandleMouse(event->position());
    event->accept();
}

void PartView::leaveEvent(QEvent* event)
{
    QOpenGLWidget::leaveEvent(event);
    WithScene([](PartScene& scene) { scene.Leave(); });
    TellPoint({});
}

void PartView::HandleMouse(const QPointF& position)
{
    m_cursor = position;
    bool wasClicked = false;
    std::optional<PartScene::Hit> hit;
    WithScene([&](PartScene& scene) {
        wasClicked = scene.HandleMouse();
        const QPoint pixel = DevicePosition(position);
        hit = scene.Detected(pixel.x(), pixel.y());
    });
    // From here on, receivers of the signals may show other shapes.
    TellPoint(hit.has_value() ? std::optional<gp_Pnt>(hit->point) : std::nullopt);
    if ((wasClicked || m_isDoubleClick) && hit.has_value())
        TakeClick(hit->shape, hit->point);
}

void PartView::TakeClick(const TopoDS_Shape& shape, const gp_Pnt& point)
{
    if (m_isPickingMany) {
        Q_EMIT ShapePicked(shape, point);
    } else if (m_isPicking) {
        EndPicking();
        Q_EMIT FacePicked(TopoDS::Face(shape), point);
    } else if (m_isDoubleClick) {
        Q_EMIT FaceDoubleClicked(shape);
    } else {
        Q_EMIT FaceClicked(shape);
    }
}

void PartView::TellPoint(const std::optional<gp_Pnt>& point)
{
    const bool wasKnown = m_isPointKnown;
    m_isPointKnown = point.has_value();
    if (point.has_value())
        Q_EMIT PointMoved(*point);
    else if (wasKnown)
        Q_EMIT PointLost();
}
