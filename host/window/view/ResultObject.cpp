#include "ResultObject.h"

#include <AIS_ColorScale.hxx>
#include <Graphic3d_ArrayOfPoints.hxx>
#include <Graphic3d_ArrayOfSegments.hxx>
#include <Graphic3d_ArrayOfTriangles.hxx>
#include <Graphic3d_AspectFillArea3d.hxx>
#include <Graphic3d_AspectLine3d.hxx>
#include <Graphic3d_AspectMarker3d.hxx>
#include <Graphic3d_Group.hxx>
#include <Graphic3d_Texture2Dmanual.hxx>
#include <Graphic3d_TextureParams.hxx>
#include <Prs3d_Presentation.hxx>
#include <Prs3d_TextAspect.hxx>
#include <PrsMgr_PresentationManager.hxx>
#include <QFontInfo>
#include <QGuiApplication>
#include <QPalette>

#include <Image_PixMap.hxx>
#include <SelectMgr_Selection.hxx>

#include <algorithm>
#include <utility>

namespace {

constexpr int Intervals = 10;
constexpr int TextureWidth = 256;
constexpr double MarkScale = 6.0;

// In pixels of a screen with a ratio of 1.
constexpr int LegendWidth = 110;
constexpr int LegendHeight = 260;
constexpr int LegendMargin = 12;
constexpr int LegendTextHeight = 13;

const Quantity_Color MeshColour(0.35, 0.44, 0.55, Quantity_TOC_RGB);
const Quantity_Color LineColour(0.02, 0.02, 0.03, Quantity_TOC_RGB);

gp_Pnt PointAt(const MeshSkin::Point& point)
{
    return {double(point[0]), double(point[1]), double(point[2])};
}

// The colours of a legend in a row.
Handle(Graphic3d_TextureMap) NewColours()
{
    const Handle(Image_PixMap) picture = new Image_PixMap;
    picture->InitZero(Image_Format_RGB, TextureWidth, 2);
    for (int x = 0; x < TextureWidth; ++x) {
        Quantity_Color colour;
        AIS_ColorScale::FindColor(x, 0.0, TextureWidth - 1, TextureWidth, colour);
        for (int y = 0; y < 2; ++y)
            picture->SetPixelColor(x, y, Quantity_ColorRGBA(colour), true);
    }
    Handle(Graphic3d_Texture2Dmanual) texture = new Graphic3d_Texture2Dmanual(picture);
    texture->SetMipMaps(false);
    texture->SetColorMap(true);
    texture->DisableRepeat();
    texture->EnableModulate();
    return texture;
}

} // namespace

ResultObject::ResultObject(ViewResult result, double pixelRatio)
    : m_result(std::move(result))
{
    if (!m_result.values.empty())
        MakeLegend(pixelRatio);
}

void ResultObject::MakeLegend(double pixelRatio)
{
    const auto pixels = [pixelRatio](int size) {
        return qRound(size * pixelRatio);
    };
    const Handle(AIS_ColorScale) legend = new AIS_ColorScale;
    legend->SetRange(0.0, m_result.greatest);
    legend->SetNumberOfIntervals(Intervals);
    legend->SetSmoothTransition(true);
    legend->SetLabelAtBorder(true);
    legend->SetFormat("%.4g");
    legend->SetTitle(TCollection_ExtendedString(m_result.title.toUtf8().constData(), true));
    legend->SetSize(pixels(LegendWidth), pixels(LegendHeight));
    legend->SetTextHeight(LegendTextHeight);
    const Handle(Prs3d_TextAspect) text = new Prs3d_TextAspect;
    text->SetFont(QFontInfo(QGuiApplication::font()).family().toUtf8().constData());
    legend->Attributes()->SetTextAspect(text);
    const QColor ink = QGuiApplication::palette().color(QPalette::WindowText);
    legend->SetColor({ink.redF(), ink.greenF(), ink.blueF(), Quantity_TOC_sRGB});
    legend->SetTransformPersistence(
        new Graphic3d_TransformPers(Graphic3d_TMF_2d, Aspect_TOTP_LEFT_LOWER,
                                    Graphic3d_Vec2i(pixels(LegendMargin), pixels(LegendMargin))));
    legend->SetZLayer(Graphic3d_ZLayerId_TopOSD);
    m_colours = NewColours();
    AddChild(legend);
}

void ResultObject::Compute(const Handle(PrsMgr_PresentationManager) & manager,
                           const Handle(Prs3d_Presentation) & presentation, int mode)
{
    Q_UNUSED(manager)
    Q_UNUSED(mode)
    Move();
    DrawFaces(presentation);
    if (m_result.hasLines)
        DrawLines(presentation);
    if (m_result.marked)
        DrawMark(presentation);
}

void ResultObject::ComputeSelection(const Handle(SelectMgr_Selection) & selection, int mode)
{
    Q_UNUSED(selection)
    Q_UNUSED(mode)
}

void ResultObject::Move()
{
    m_points = m_result.skin->points;
    const auto scale = float(m_scale);
    for (std::size_t i = 0; i < m_result.moves.size(); ++i) {
        for (std::size_t axis = 0; axis < 3; ++axis)
            m_points[i][axis] += scale * m_result.moves[i][axis];
    }
}

void ResultObject::DrawFaces(const Handle(Prs3d_Presentation) & presentation) const
{
    const MeshSkin& skin = *m_result.skin;
    std::vector<gp_XYZ> normals(m_points.size());
    const auto at = [this](int point) {
        return PointAt(m_points[std::size_t(point)]).XYZ();
    };
    for (const auto& [a, b, c] : skin.triangles) {
        const gp_XYZ normal = (at(b) - at(a)).Crossed(at(c) - at(a));
        for (const int corner : {a, b, c})
            normals[std::size_t(corner)] += normal;
    }
    const bool hasColours = !m_result.values.empty();
    const Handle(Graphic3d_ArrayOfTriangles) faces = new Graphic3d_ArrayOfTriangles(
        int(m_points.size()), 3 * int(skin.triangles.size()), true, false, hasColours);
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        const double length = normals[i].Modulus();
        const gp_Dir normal = length > 0.0 ? gp_Dir(normals[i]) : gp_Dir();
        if (hasColours)
            faces->AddVertex(
                PointAt(m_points[i]), normal,
                gp_Pnt2d(std::clamp(double(m_result.values[i]) / m_result.greatest, 0.0, 1.0),
                         0.5));
        else
            faces->AddVertex(PointAt(m_points[i]), normal);
    }
    for (const auto& [a, b, c] : skin.triangles)
        faces->AddEdges(a + 1, b + 1, c + 1);

    Graphic3d_MaterialAspect material(Graphic3d_NameOfMaterial_Plastified);
    material.SetColor(hasColours ? Quantity_Color(Quantity_NOC_WHITE) : MeshColour);
    const Handle(Graphic3d_AspectFillArea3d) aspect = new Graphic3d_AspectFillArea3d;
    aspect->SetInteriorStyle(Aspect_IS_SOLID);
    aspect->SetInteriorColor(hasColours ? Quantity_Color(Quantity_NOC_WHITE) : MeshColour);
    aspect->SetFrontMaterial(material);
    aspect->SetBackMaterial(material);
    aspect->SetFaceCulling(Graphic3d_TypeOfBackfacingModel_DoubleSided);
    // Behind the lines.
    aspect->SetPolygonOffsets(Aspect_POM_Fill, 1.0F, 1.0F);
    if (hasColours) {
        aspect->SetTextureMap(m_colours);
        aspect->SetTextureMapOn();
    }
    const Handle(Graphic3d_Group) group = presentation->NewGroup();
    group->SetGroupPrimitivesAspect(aspect);
    group->AddPrimitiveArray(faces);
}

void ResultObject::DrawLines(const Handle(Prs3d_Presentation) & presentation) const
{
    const MeshSkin& skin = *m_result.skin;
    const Handle(Graphic3d_ArrayOfSegments) lines =
        new Graphic3d_ArrayOfSegments(int(m_points.size()), 2 * int(skin.lines.size()));
    for (const MeshSkin::Point& point : m_points)
        lines->AddVertex(PointAt(point));
    for (const auto& [from, to] : skin.lines)
        lines->AddEdges(from + 1, to + 1);
    const Handle(Graphic3d_Group) group = presentation->NewGroup();
    group->SetGroupPrimitivesAspect(new Graphic3d_AspectLine3d(LineColour, Aspect_TOL_SOLID, 1.0));
    group->AddPrimitiveArray(lines);
}

void ResultObject::DrawMark(const Handle(Prs3d_Presentation) & presentation) const
{
    const Handle(Graphic3d_ArrayOfPoints) points = new Graphic3d_ArrayOfPoints(1);
    points->AddVertex(PointAt(m_points.at(*m_result.marked)));
    const Handle(Graphic3d_Group) group = presentation->NewGroup();
    group->SetGroupPrimitivesAspect(
        new Graphic3d_AspectMarker3d(Aspect_TOM_O_PLUS, Quantity_NOC_BLACK, MarkScale));
    group->AddPrimitiveArray(points);
}
