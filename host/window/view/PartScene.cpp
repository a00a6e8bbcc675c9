#include "PartScene.h"

#include "SceneStyle.h"

#include <AIS_AnimationCamera.hxx>
#include <AIS_InteractiveContext.hxx>
#include <AIS_Shape.hxx>
#include <AIS_ViewCube.hxx>
#include <Aspect_DisplayConnection.hxx>
#include <Aspect_NeutralWindow.hxx>
#include <BRep_Tool.hxx>
#include <Bnd_Box.hxx>
#include <GeomAPI_ProjectPointOnCurve.hxx>
#include <Graphic3d_ClipPlane.hxx>
#include <Graphic3d_SequenceOfHClipPlane.hxx>
#include <OpenGl_FrameBuffer.hxx>
#include <QOpenGLContext>
#include <Standard_ProgramError.hxx>
#include <TopoDS.hxx>
#include <V3d_View.hxx>
#include <V3d_Viewer.hxx>
#include <gp_Lin.hxx>

#include <IntCurvesFace_Intersector.hxx>
#include <StdSelect_BRepOwner.hxx>

namespace {

constexpr int EdgeSelection = 2; // As AIS_Shape::SelectionMode() has it.
constexpr int FaceSelection = 4;
constexpr int NoSelection = -1;
constexpr unsigned int DotsPerInch = 96;
constexpr double FitMargin = 0.05;
constexpr int Samples = 4;

// The limits of zooming: the height of the view in millimetres.
constexpr double LeastHeight = 1e-4;
constexpr double GreatestHeight = 1e8;

// The point of the edge next to one on the lines that are drawn for it.
gp_Pnt NearestPoint(const TopoDS_Edge& edge, const gp_Pnt& drawn)
{
    double first = 0.0;
    double last = 0.0;
    const Handle(Geom_Curve) curve = BRep_Tool::Curve(edge, first, last);
    if (curve.IsNull())
        return drawn;
    const GeomAPI_ProjectPointOnCurve projection(drawn, curve, first, last);
    return projection.NbPoints() > 0 ? projection.NearestPoint() : drawn;
}

} // namespace

PartScene::PartScene(QOpenGLContext& context)
{
    // The kernel needs a window for the context, and Qt's own is only a buffer.
    m_surface.setSurfaceType(QSurface::OpenGLSurface);
    m_surface.setFormat(context.format());
    m_surface.create();
    const Handle(OpenGl_Context) wrapped = new OpenGl_Context;
    if (!context.makeCurrent(&m_surface) || !wrapped->Init() || !wrapped->IsGlGreaterEqual(2, 1))
        throw Standard_ProgramError("the geometry kernel cannot use the system's OpenGL");

    m_driver = new OpenGl_GraphicDriver(
        new Aspect_DisplayConnection(static_cast<Aspect_XDisplay*>(wrapped->GetDisplay())), false);
    m_driver->ChangeOptions().buffersNoSwap = true;
    m_driver->ChangeOptions().buffersOpaqueAlpha = true;
    // Qt's buffer takes the colours of the screen.
    m_driver->ChangeOptions().sRGBDisable = true;
    m_driver->ChangeOptions().useSystemBuffer = false;

    const Handle(V3d_Viewer) viewer = new V3d_Viewer(m_driver);
    SceneStyle::SetLights(*viewer);
    m_window = new Aspect_NeutralWindow;
    m_window->SetNativeHandle(wrapped->Window());
    m_window->SetSize(1, 1);
    m_view = viewer->CreateView();
    m_view->SetImmediateUpdate(false);
    m_view->SetWindow(m_window, wrapped->RenderingContext());
    m_view->SetProj(V3d_TypeOfOrientation_Zup_AxoRight);
    m_view->ChangeRenderingParams().NbMsaaSamples = Samples;

    m_context = new AIS_InteractiveContext(viewer);
    SceneStyle::SetDrawing(*m_context);

    ChangeMouseGestureMap().Clear();
    ChangeMouseGestureMap().Bind(Aspect_VKeyMouse_LeftButton, AIS_MouseGesture_RotateOrbit);
    ChangeMouseGestureMap().Bind(Aspect_VKeyMouse_MiddleButton, AIS_MouseGesture_RotateOrbit);
    ChangeMouseGestureMap().Bind(Aspect_VKeyMouse_RightButton, AIS_MouseGesture_Pan);
    ChangeMouseGestureMap().Bind(static_cast<unsigned int>(Aspect_VKeyMouse_LeftButton) |
                                     Aspect_VKeyFlags_SHIFT,
                                 AIS_MouseGesture_Pan);
    // One face at a time.
    ChangeMouseSelectionSchemes().Clear();
    ChangeMouseSelectionSchemes().Bind(Aspect_VKeyMouse_LeftButton, AIS_SelectionScheme_Replace);
    SetAllowDragging(false);
    SetShowRotateCenter(false);

    m_cube = SceneStyle::NewCube(ViewAnimation());
    m_context->Display(m_cube, false);
}

PartScene::~PartScene()
{
    m_context->RemoveAll(false);
    m_view->Remove();
}

void PartScene::SetPalette(const QPalette& palette)
{
    SceneStyle::SetBackground(*m_view, palette);
    Q_EMIT PictureChanged();
}

void PartScene::Resize(int width, int height, double pixelRatio)
{
    m_window->SetSize(std::max(width, 1), std::max(height, 1));
    m_view->MustBeResized();
    m_view->ChangeRenderingParams().Resolution =
        static_cast<unsigned int>(qRound(DotsPerInch * pixelRatio));
    SceneStyle::PlaceCube(*m_cube, pixelRatio);
    m_context->Redisplay(m_cube, false);
}

void PartScene::Draw()
{
    const Handle(OpenGl_Context)& gl = m_driver->GetSharedContext();
    Handle(OpenGl_FrameBuffer) target = gl->DefaultFrameBuffer();
    if (target.IsNull()) {
        target = new OpenGl_FrameBuffer;
        gl->SetDefaultFrameBuffer(target);
    }
    if (!target->InitWrapper(gl))
        throw Standard_ProgramError("the OpenGL driver gives no frame buffer to draw into");
    m_view->Redraw();
}

void PartScene::Replace(Handle(AIS_InteractiveObject) & shown,
                        const Handle(AIS_InteractiveObject) & next, int selection)
{
    if (!shown.IsNull())
        m_context->Remove(shown, false);
    shown = next;
    ResetPreviousMoveTo();
    Q_EMIT PictureChanged();
    if (!next.IsNull())
        m_context->Display(next, std::max(0, next->DisplayMode()), selection, false);
}

void PartScene::ShowPart(const TopoDS_Shape& shape, bool isShaded)
{
    const Handle(AIS_InteractiveObject) part = SceneStyle::NewPart(shape);
    if (!part.IsNull())
        part->SetDisplayMode(isShaded ? AIS_Shaded : AIS_WireFrame);
    Replace(m_part, part, FaceSelection);
    UpdatePart();
}

void PartScene::SetPickable(bool hasFaces, bool hasEdges)
{
    m_hasFaces = hasFaces;
    m_hasEdges = hasEdges;
    m_context->ClearSelected(false); // what was clicked for something else
    UpdatePart();
}

void PartScene::UpdatePart()
{
    // A result takes the place of the part and of what is highlighted in it.
    const bool isSeen = LayerIn(m_layers, SceneLayer::Result).IsNull();
    for (const auto& object : {m_part, LayerIn(m_layers, SceneLayer::Highlight)}) {
        if (!object.IsNull() && !isSeen)
            m_context->Erase(object, false);
        else if (!object.IsNull() && !m_context->IsDisplayed(object))
            m_context->Display(object, object->DisplayMode(), NoSelection, false);
    }
    if (m_part.IsNull() || !isSeen)
        return;
    const auto set = [this](int selection, bool isActive) {
        m_context->SetSelectionModeActive(m_part, selection, isActive,
                                          AIS_SelectionModesConcurrency_Multiple, true);
    };
    set(FaceSelection, m_hasFaces);
    set(EdgeSelection, m_hasEdges);
    ResetPreviousMoveTo();
}

void PartScene::SetSection(const gp_XYZ& normal, double place)
{
    if (m_part.IsNull())
        return;
    Handle(Graphic3d_SequenceOfHClipPlane) planes = new Graphic3d_SequenceOfHClipPlane;
    Bnd_Box box;
    m_part->BoundingBox(box);
    if (normal.SquareModulus() > 0.0 && !box.IsVoid()) {
        const gp_XYZ least = box.CornerMin().XYZ();
        const gp_XYZ cut = least + (box.CornerMax().XYZ() - least) * place;
        const Handle(Graphic3d_ClipPlane) plane =
            new Graphic3d_ClipPlane(gp_Pln(gp_Pnt(cut), gp_Dir(normal.Reversed())));
        plane->SetCapping(true);
        plane->SetCappingColor(SceneStyle::CutColour());
        planes->Append(plane);
    }
    m_part->SetClipPlanes(planes);
    ResetPreviousMoveTo();
    Q_EMIT PictureChanged();
}

bool PartScene::SeesPart() const
{
    Bnd_Box box;
    if (!m_part.IsNull())
        m_part->BoundingBox(box);
    if (box.IsVoid())
        return true;
    // The corners of the box on the screen, from -1 to 1.
    Bnd_Box screen;
    const gp_Pnt corners[] = {box.CornerMin(), box.CornerMax()};
    for (int corner = 0; corner < 8; ++corner)
        screen.Add(m_view->Camera()->Project(gp_Pnt(
            corners[corner & 1].X(), corners[corner >> 1 & 1].Y(), corners[corner >> 2 & 1].Z())));
    const gp_Pnt least = screen.CornerMin();
    const gp_Pnt greatest = screen.CornerMax();
    return least.X() < 1.0 && greatest.X() > -1.0 && least.Y() < 1.0 && greatest.Y() > -1.0;
}

void PartScene::SetShaded(bool isShaded)
{
    if (!m_part.IsNull())
        m_context->SetDisplayMode(m_part, isShaded ? AIS_Shaded : AIS_WireFrame, false);
    Q_EMIT PictureChanged();
}

void PartScene::ShowLayer(SceneLayer layer, const Handle(AIS_InteractiveObject) & object)
{
    Replace(LayerIn(m_layers, layer), object, NoSelection);
    if (layer == SceneLayer::Result || layer == SceneLayer::Highlight)
        UpdatePart();
}

void PartScene::UpdateLayer(SceneLayer layer)
{
    m_context->Redisplay(LayerIn(m_layers, layer), false);
    Q_EMIT PictureChanged();
}

void PartScene::FitAll()
{
    AbortViewAnimation();
    m_view->FitAll(FitMargin, false);
    ResetPreviousMoveTo();
    Q_EMIT PictureChanged();
}

void PartScene::Turn(V3d_TypeOfOrientation orientation)
{
    AbortViewAnimation();
    m_view->SetProj(orientation);
    FitAll();
}

Handle(Graphic3d_Camera) PartScene::Camera() const
{
    return new Graphic3d_Camera(m_view->Camera());
}

void PartScene::SetCamera(const Handle(Graphic3d_Camera) & camera)
{
    m_view->Camera()->Copy(camera);
}

bool PartScene::HandleMouse()
{
    m_wasClicked = false;
    FlushViewEvents(m_context, m_view, true);
    return m_wasClicked;
}

bool PartScene::CanZoom(bool isCloser) const
{
    const double height = m_view->Camera()->Scale();
    return isCloser ? height > LeastHeight : height < GreatestHeight;
}

bool PartScene::IsTurning() const
{
    return !ViewAnimation()->IsStopped();
}

void PartScene::Leave()
{
    m_context->ClearDetected(false);
    ResetPreviousMoveTo();
    Q_EMIT PictureChanged();
}

std::optional<PartScene::Hit> PartScene::Detected(int x, int y) const
{
    if (!m_context->HasDetected() || m_context->MainSelector()->NbPicked() == 0)
        return {};
    const Handle(StdSelect_BRepOwner) owner =
        Handle(StdSelect_BRepOwner)::DownCast(m_context->DetectedOwner());
    if (owner.IsNull())
        return {};
    Hit hit{owner->Shape(), m_context->MainSelector()->PickedPoint(1)};
    if (hit.shape.ShapeType() == TopAbs_EDGE) {
        hit.point = NearestPoint(TopoDS::Edge(hit.shape), hit.point);
        return hit;
    }
    if (hit.shape.ShapeType() != TopAbs_FACE)
        return {};
    // The viewer's own point is on the facets that are drawn.
    gp_XYZ from;
    gp_XYZ along;
    m_view->ConvertWithProj(x, y, from.ChangeCoord(1), from.ChangeCoord(2), from.ChangeCoord(3),
                            along.ChangeCoord(1), along.ChangeCoord(2), along.ChangeCoord(3));
    IntCurvesFace_Intersector ray(TopoDS::Face(hit.shape), Precision::Confusion());
    ray.Perform(gp_Lin(from, along), -Precision::Infinite(), Precision::Infinite());
    double nearest = std::numeric_limits<double>::infinity();
    const gp_Pnt drawn = hit.point;
    for (int i = 1; ray.IsDone() && i <= ray.NbPnt(); ++i) {
        const double distance = ray.Pnt(i).Distance(drawn);
        if (distance < nearest) {
            nearest = distance;
            hit.point = ray.Pnt(i);
        }
    }
    return hit;
}

void PartScene::OnSelectionChanged(const Handle(AIS_InteractiveContext) & context,
                                   const Handle(V3d_View) & view)
{
    Q_UNUSED(context)
    Q_UNUSED(view)
    m_wasClicked = true;
}

void PartScene::handleViewRedraw(const Handle(AIS_InteractiveContext) & context,
                                 const Handle(V3d_View) & view)
{
    // Qt decides when to draw.
    Q_UNUSED(context)
    Q_UNUSED(view)
    if (IsTurning()) {
        ViewAnimation()->UpdateTimer();
        ResetPreviousMoveTo();
    }
    Q_EMIT PictureChanged();
}
