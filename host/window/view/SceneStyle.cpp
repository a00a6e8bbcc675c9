#include "SceneStyle.h"

#include "Angles.h"

#include <AIS_AnimationCamera.hxx>
#include <AIS_InteractiveContext.hxx>
#include <AIS_Point.hxx>
#include <AIS_Shape.hxx>
#include <AIS_ViewCube.hxx>
#include <Geom_CartesianPoint.hxx>
#include <Prs3d_DatumAspect.hxx>
#include <Prs3d_IsoAspect.hxx>
#include <Prs3d_LineAspect.hxx>
#include <Prs3d_PointAspect.hxx>
#include <QFontInfo>
#include <QGuiApplication>
#include <QPalette>
#include <V3d_View.hxx>
#include <V3d_Viewer.hxx>

namespace {

// In pixels of a screen with a ratio of 1.
constexpr double CubeSize = 34.0;
constexpr int CubeMargin = 66; // From both sides of the corner to the cube's middle.
constexpr double CubeFontHeight = 7.0;
constexpr double AxisLetterHeight = 14.0;

constexpr double TurnSeconds = 0.25;
constexpr double MarkScale = 3.0;
constexpr double Chord = 0.0005; // The largest distance of a facet, as a share of the part's size.
constexpr double FacetAngle = 8.0 * tarn::RadiansPerDegree;

Quantity_Color Colour(const QColor& colour)
{
    return {colour.redF(), colour.greenF(), colour.blueF(), Quantity_TOC_sRGB};
}

const QColor PartColour(0x9d, 0xb0, 0xc4);
const QColor EdgeColour(0x00, 0x00, 0x00);
const QColor WireColour(0x3f, 0x6e, 0xa5); // Visible on a light and on a dark background.
const QColor CursorColour(0x96, 0xd2, 0xf8);
const QColor SelectionColour(0xff, 0x9a, 0x2e);
const QColor SectionColour(0xc8, 0x8a, 0x5a);
const QColor MarkColour(0xd0, 0x20, 0x20);
const QColor CubeColour(0xb4, 0xbe, 0xca);
const QColor AxisColour(0x74, 0x86, 0x9a);
const QColor CubeTextColour(0x1c, 0x22, 0x2a);

void SetHighlight(const AIS_InteractiveContext& context, Prs3d_TypeOfHighlight type,
                  const QColor& colour)
{
    const Handle(Prs3d_Drawer)& style = context.HighlightStyle(type);
    style->SetColor(Colour(colour));
    style->SetTransparency(0.0F);
    style->SetDisplayMode(AIS_Shaded);
    style->SetZLayer(Graphic3d_ZLayerId_Default); // Below the cube.
}

Handle(Prs3d_LineAspect) NewLineAspect(const QColor& colour)
{
    return new Prs3d_LineAspect(Colour(colour), Aspect_TOL_SOLID, 1.0);
}

} // namespace

// From above the viewer's left shoulder: straight from the eye, the three sides of a box that is
// seen from its corner would look alike.
void SceneStyle::SetLights(V3d_Viewer& viewer)
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

void SceneStyle::SetDrawing(const AIS_InteractiveContext& context)
{
    const Handle(Prs3d_Drawer)& drawer = context.DefaultDrawer();
    drawer->SetFaceBoundaryDraw(true);
    drawer->SetFaceBoundaryUpperContinuity(GeomAbs_C1);
    drawer->UIsoAspect()->SetNumber(0);
    drawer->VIsoAspect()->SetNumber(0);
    drawer->SetDeviationCoefficient(Chord);
    drawer->SetDeviationAngle(FacetAngle);
    SetHighlight(context, Prs3d_TypeOfHighlight_Dynamic, CursorColour);
    SetHighlight(context, Prs3d_TypeOfHighlight_LocalDynamic, CursorColour);
    SetHighlight(context, Prs3d_TypeOfHighlight_Selected, SelectionColour);
    SetHighlight(context, Prs3d_TypeOfHighlight_LocalSelected, SelectionColour);
}

Quantity_Color SceneStyle::CutColour()
{
    return Colour(SectionColour);
}

void SceneStyle::SetBackground(V3d_View& view, const QPalette& palette)
{
    const QColor& window = palette.color(QPalette::Window);
    const bool isDark = window.lightness() < 128;
    const QColor top = isDark ? window.lighter(110) : window.lighter(106);
    const QColor bottom = isDark ? window.lighter(190) : window.darker(122);
    view.SetBgGradientColors(Colour(top), Colour(bottom), Aspect_GFM_VER, false);
}

Handle(AIS_InteractiveObject) SceneStyle::NewPart(const TopoDS_Shape& shape)
{
    if (shape.IsNull())
        return {};
    Handle(AIS_Shape) part = new AIS_Shape(shape);
    part->SetMaterial(Graphic3d_NameOfMaterial_Plastified);
    part->SetColor(Colour(PartColour));
    // Otherwise the edges have the colour of the part.
    const Handle(Prs3d_Drawer)& style = part->Attributes();
    style->SetFaceBoundaryAspect(NewLineAspect(EdgeColour));
    for (const auto set : {&Prs3d_Drawer::SetWireAspect, &Prs3d_Drawer::SetFreeBoundaryAspect,
                           &Prs3d_Drawer::SetUnFreeBoundaryAspect})
        (*style.*set)(NewLineAspect(WireColour));
    return part;
}

Handle(AIS_InteractiveObject) SceneStyle::NewHighlight(const TopoDS_Shape& shape)
{
    if (shape.IsNull())
        return {};
    Handle(AIS_Shape) highlight = new AIS_Shape(shape);
    highlight->SetMaterial(Graphic3d_NameOfMaterial_Plastified);
    highlight->SetDisplayMode(AIS_Shaded);
    highlight->SetColor(Colour(SelectionColour));
    highlight->Attributes()->SetFaceBoundaryAspect(NewLineAspect(EdgeColour));
    highlight->Attributes()->SetFaceBoundaryDraw(true);
    // Above the part, which would hide a shape within it; opaque, with a depth of its own, so that
    // a body does not look hollow.
    highlight->SetZLayer(Graphic3d_ZLayerId_Topmost);
    return highlight;
}

Handle(AIS_InteractiveObject) SceneStyle::NewMark(const gp_Pnt& point)
{
    Handle(AIS_Point) mark = new AIS_Point(new Geom_CartesianPoint(point));
    mark->Attributes()->SetPointAspect(
        new Prs3d_PointAspect(Aspect_TOM_O_PLUS, Colour(MarkColour), MarkScale));
    mark->SetZLayer(Graphic3d_ZLayerId_Topmost);
    return mark;
}

Handle(AIS_ViewCube) SceneStyle::NewCube(const Handle(AIS_AnimationCamera) & animation)
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

void SceneStyle::PlaceCube(AIS_ViewCube& cube, double pixelRatio)
{
    cube.SetSize(CubeSize * pixelRatio);
    cube.SetFontHeight(CubeFontHeight); // The resolution makes it as large as the cube.
    const int margin = qRound(CubeMargin * pixelRatio);
    cube.SetTransformPersistence(new Graphic3d_TransformPers(
        Graphic3d_TMF_TriedronPers, Aspect_TOTP_RIGHT_UPPER, Graphic3d_Vec2i(margin, margin)));
}
