#include "PartScene.h"

#include "Angles.h"

#include <AIS_AnimationCamera.hxx>
#include <AIS_InteractiveContext.hxx>
#include <AIS_Point.hxx>
#include <AIS_Shape.hxx>
#include <AIS_ViewCube.hxx>
#include <Aspect_DisplayConnection.hxx>
#include <Aspect_NeutralWindow.hxx>
#include <Geom_CartesianPoint.hxx>
#include <OpenGl_FrameBuffer.hxx>
#include <Prs3d_DatumAspect.hxx>
#include <Prs3d_IsoAspect.hxx>
#include <Prs3d_LineAspect.hxx>
#include <Prs3d_PointAspect.hxx>
#include <QFontInfo>
#include <QGuiApplication>
#include <QOpenGLContext>
#include <QPalette>
#include <Standard_ProgramError.hxx>
#include <TopoDS.hxx>
#include <V3d_View.hxx>
#include <V3d_Viewer.hxx>
#include <gp_Lin.hxx>

#include <IntCurvesFace_Intersector.hxx>
#include <StdSelect_BRepOwner.hxx>

namespace {

constexpr int FaceSelection = 4;
constexpr int NoSelection = -1;

// In pixels of a screen with a ratio of 1.
constexpr double CubeSize = 34.0;
constexpr int CubeMargin = 66; // From both sides of the corner to the cube's middle.
constexpr double CubeFontHeight = 7.0;
constexpr double AxisLetterHeight = 14.0;
constexpr unsigned int DotsPerInch = 96;

constexpr double TurnSeconds = 0.25;
constexpr double FitMargin = 0.05;
constexpr int Samples = 4;
constexpr double MarkScale = 3.0;
constexpr double Chord = 0.0005; // The largest distance of a facet, as a share of the part's size.
constexpr double FacetAngle = 8.0 * tarn::RadiansPerDegree;

// How high the view may be, in millimetres: the wheel goes no further.
constexpr double LeastHeight = 1e-4;
constexpr double GreatestHeight = 1e8;

Quantity_Color Colour(const QColor& colour)
{
    return {colour.redF(), colour.greenF(), colour.blueF(), Quantity_TOC_sRGB};
}

const QColor PartColour(0x9d, 0xb0, 0xc4);
const QColor EdgeColour(0x00, 0x00, 0x00);
const QColor WireColour(0x3f, 0x6e, 0xa5); // To be seen on a light and on a dark background.
const QColor CursorColour(0x96, 0xd2, 0xf8);
const QColor SelectionColour(0xff, 0x9a, 0x2e);
const QColor MarkColour(0xd0, 0x20, 0x20);
const QColor CubeColour(0xb4, 0xbe, 0xca);
const QColor AxisColour(0x74, 0x86, 0x9a);
const QColor CubeTextColour(0x1c, 0x22, 0x2a);

void SetStyle(const Handle(AIS_InteractiveContext) & context, Prs3d_TypeOfHighlight type,
              const QColor& colour)
{
    const Handle(Prs3d_Drawer)& style = context->HighlightStyle(type);
    style->SetColor(Colour(colour));
    style->SetTransparency(0.0F);
    style->SetDisplayMode(AIS_Shaded);
    style->SetZLayer(Graphic3d_ZLayerId_Default); // Below the cube.
}

// From above the viewer's left shoulder: straight from the eye, the three sides of a box that is
// seen from its corner would look alike.
void SetLights(V3d_Viewer& viewer)
{
    const Handle(Graphic3d_CLight) sun = new Graphic3d_CLight(Graphic3d_TOLS_DIRECTIONAL);
    sun->SetHeadlight(true);
    sun->SetDirection(0.2, -0.35, -1.0);
    sun->SetIntensity(0.85F);
    const Handle(Graphic3d_CLight) sky = new Graphic3d_CLight(Graphic3d_TOLS_AMBIENT);
    for (const Handle(Graphic3d_CLight) & light : {sun, sky}) {
        viewer.AddLight(light);
        viewer.SetLightOn(light);
    }
}

Handle(Prs3d_LineAspect) NewLineAspect(const QColor& colour)
{
    return new Prs3d_LineAspect(Colour(colour), Aspect_TOL_SOLID, 1.0);
}

Handle(AIS_ViewCube) NewCube(const Handle(AIS_AnimationCamera) & animation)
{
    Handle(AIS_ViewCube) cube = new AIS_ViewCube;
    cube->SetViewAnimation(animation);
    cube->SetFixedAnimationLoop(false);
    cube->SetAutoStartAnimation(true);
    cube->SetDuration(TurnSeconds);
    cube->SetFitSelected(false);
    cube->SetZLayer(Graphic3d_ZLayerId_Topmost);
    cube->SetBoxColor(Colour(CubeColour));
    cube->SetTextColor(Colour(CubeTextColour));
    cube->SetInnerColor(Colour(CubeTextColour));
    const QByteArray font = QFontInfo(QGuiApplication::font()).family().toUtf8();
    cube->SetFont(font.constData());
    const Handle(Prs3d_DatumAspect) axes = new Prs3d_DatumAspect;
    const Handle(Prs3d_TextAspect) letters = new Prs3d_TextAspect;
    letters->SetColor(Colour(AxisColour));
    letters->SetFont(font.constData());
    letters->SetHeight(AxisLetterHeight);
    axes->SetTextAspect(letters);
    for (const auto axis : {Prs3d_DatumParts_XAxis, Prs3d_DatumParts_YAxis, Prs3d_DatumParts_ZAxis})
        axes->ShadingAspect(axis)->SetColor(Colour(AxisColour));
    cube->Attributes()->SetDatumAspect(axes);
    return cube;
}

} // namespace

PartScene::PartScene(QOpenGLContext& context, std::function<void()> askForFrame)
    : m_askForFrame(std::move(askForFrame))
{
    // The kernel asks for the window of the context; the toolkit's own, a buffer, is none to it.
    m_surface.setSurfaceType(QSurface::OpenGLSurface);
    m_surface.setFormat(context.format());
    m_surface.create();
    const Handle(OpenGl_Context) wrapped = new OpenGl_Context;
    if (!context.makeCurrent(&m_surface) || !wrapped->Init() || !wrapped->IsGlGreaterEqual(2, 1))
        throw Standard_ProgramError("the system's OpenGL is none that the geometry kernel can use");

    m_driver = new OpenGl_GraphicDriver(
        new Aspect_DisplayConnection(static_cast<Aspect_XDisplay*>(wrapped->GetDisplay())), false);
    m_driver->ChangeOptions().buffersNoSwap = true;
    m_driver->ChangeOptions().buffersOpaqueAlpha = true;
    // The toolkit's buffer takes colours as they are on the screen.
    m_driver->ChangeOptions().sRGBDisable = true;
    m_driver->ChangeOptions().useSystemBuffer = false;

    const Handle(V3d_Viewer) viewer = new V3d_Viewer(m_driver);
    SetLights(*viewer);
    m_window = new Aspect_NeutralWindow;
    m_window->SetNativeHandle(wrapped->Window());
    m_window->SetSize(1, 1);
    m_view = viewer->CreateView();
    m_view->SetImmediateUpdate(false);
    m_view->SetWindow(m_window, wrapped->RenderingContext());
    m_view->SetProj(V3d_TypeOfOrientation_Zup_AxoRight);
    m_view->ChangeRenderingParams().NbMsaaSamples = Samples;

    m_context = new AIS_InteractiveContext(viewer);
    const Handle(Prs3d_Drawer)& drawer = m_context->DefaultDrawer();
    drawer->SetFaceBoundaryDraw(true);
    drawer->SetFaceBoundaryUpperContinuity(GeomAbs_C1);
    drawer->UIsoAspect()->SetNumber(0);
    drawer->VIsoAspect()->SetNumber(0);
    drawer->SetDeviationCoefficient(Chord);
    drawer->SetDeviationAngle(FacetAngle);
    SetStyle(m_context, Prs3d_TypeOfHighlight_Dynamic, CursorColour);
    SetStyle(m_context, Prs3d_TypeOfHighlight_LocalDynamic, CursorColour);
    SetStyle(m_context, Prs3d_TypeOfHighlight_Selected, SelectionColour);
    SetStyle(m_context, Prs3d_TypeOfHighlight_LocalSelected, SelectionColour);

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

    m_cube = NewCube(ViewAnimation());
    m_context->Display(m_cube, false);
}

PartScene::~PartScene()
{
    m_context->RemoveAll(false);
    m_view->Remove();
}

void PartScene::SetPalette(const QPalette& palette)
{
    const QColor& window = palette.color(QPalette::Window);
    const bool isDark = window.lightness() < 128;
    const QColor top = isDark ? window.lighter(110) : window.lighter(106);
    const QColor bottom = isDark ? window.lighter(190) : window.darker(122);
    m_view->SetBgGradientColors(Colour(top), Colour(bottom), Aspect_GFM_VER, false);
    m_askForFrame();
}

void PartScene::Resize(int width, int height, double pixelRatio)
{
    m_window->SetSize(std::max(width, 1), std::max(height, 1));
    m_view->MustBeResized();
    m_view->ChangeRenderingParams().Resolution =
        static_cast<unsigned int>(qRound(DotsPerInch * pixelRatio));
    m_cube->SetSize(CubeSize * pixelRatio);
    m_cube->SetFontHeight(CubeFontHeight); // The resolution makes it as large as the cube.
    const int margin = qRound(CubeMargin * pixelRatio);
    m_cube->SetTransformPersistence(new Graphic3d_TransformPers(
        Graphic3d_TMF_TriedronPers, Aspect_TOTP_RIGHT_UPPER, Graphic3d_Vec2i(margin, margin)));
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
                        const Handle(AIS_InteractiveObject) & next, int mode, int selection)
{
    if (!shown.IsNull())
        m_context->Remove(shown, false);
    shown = next;
    ResetPreviousMoveTo();
    m_askForFrame();
    if (!next.IsNull())
        m_context->Display(next, mode, selection, false);
}

void PartScene::ShowPart(const TopoDS_Shape& shape, bool isShaded)
{
    Handle(AIS_Shape) part;
    if (!shape.IsNull()) {
        part = new AIS_Shape(shape);
        part->SetMaterial(Graphic3d_NameOfMaterial_Plastified);
        part->SetColor(Colour(PartColour));
        // The colour of the part would be that of its edges, too.
        const Handle(Prs3d_Drawer)& style = part->Attributes();
        style->SetFaceBoundaryAspect(NewLineAspect(EdgeColour));
        for (const auto set : {&Prs3d_Drawer::SetWireAspect, &Prs3d_Drawer::SetFreeBoundaryAspect,
                               &Prs3d_Drawer::SetUnFreeBoundaryAspect})
            (*style.*set)(NewLineAspect(WireColour));
    }
    Replace(m_part, part, isShaded ? AIS_Shaded : AIS_WireFrame, FaceSelection);
}

void PartScene::SetShaded(bool isShaded)
{
    if (!m_part.IsNull())
        m_context->SetDisplayMode(m_part, isShaded ? AIS_Shaded : AIS_WireFrame, false);
    m_askForFrame();
}

void PartScene::ShowHighlight(const TopoDS_Shape& shape)
{
    Handle(AIS_Shape) highlight;
    if (!shape.IsNull()) {
        highlight = new AIS_Shape(shape);
        highlight->SetMaterial(Graphic3d_NameOfMaterial_Plastified);
        highlight->SetColor(Colour(SelectionColour));
        highlight->SetTransparency(0.4);
        // Above the part, which would hide what lies within.
        highlight->SetZLayer(Graphic3d_ZLayerId_Topmost);
    }
    Replace(m_highlight, highlight, AIS_Shaded, NoSelection);
}

void PartScene::ShowMark(const gp_Pnt& point)
{
    const Handle(AIS_Point) mark = new AIS_Point(new Geom_CartesianPoint(point));
    mark->Attributes()->SetPointAspect(
        new Prs3d_PointAspect(Aspect_TOM_O_PLUS, Colour(MarkColour), MarkScale));
    mark->SetZLayer(Graphic3d_ZLayerId_Topmost);
    Replace(m_mark, mark, 0, NoSelection);
}

void PartScene::HideMark()
{
    Replace(m_mark, Handle(AIS_InteractiveObject)(), 0, NoSelection);
}

void PartScene::FitAll()
{
    AbortViewAnimation();
    m_view->FitAll(FitMargin, false);
    ResetPreviousMoveTo();
    m_askForFrame();
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
    m_askForFrame();
}

std::optional<PartScene::Hit> PartScene::Detected(int x, int y) const
{
    if (!m_context->HasDetected() || m_context->MainSelector()->NbPicked() == 0)
        return {};
    const Handle(StdSelect_BRepOwner) owner =
        Handle(StdSelect_BRepOwner)::DownCast(m_context->DetectedOwner());
    if (owner.IsNull() || owner->Shape().ShapeType() != TopAbs_FACE)
        return {};

    Hit hit{TopoDS::Face(owner->Shape()), m_context->MainSelector()->PickedPoint(1)};
    // The viewer's own point is on the facets that are drawn.
    gp_XYZ from;
    gp_XYZ along;
    m_view->ConvertWithProj(x, y, from.ChangeCoord(1), from.ChangeCoord(2), from.ChangeCoord(3),
                            along.ChangeCoord(1), along.ChangeCoord(2), along.ChangeCoord(3));
    IntCurvesFace_Intersector ray(hit.face, Precision::Confusion());
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
    // In place of drawing at once: the toolkit says when.
    Q_UNUSED(context)
    Q_UNUSED(view)
    if (IsTurning()) {
        ViewAnimation()->UpdateTimer();
        ResetPreviousMoveTo();
    }
    m_askForFrame();
}
