#include "ShapePicture.h"

#include "MessageLevel.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRepLib.hxx>
#include <QPainter>
#include <Standard_Failure.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Ax2.hxx>

#include <GCPnts_TangentialDeflection.hxx>
#include <HLRAlgo_Projector.hxx>
#include <HLRBRep_Algo.hxx>
#include <HLRBRep_HLRToShape.hxx>

namespace {

constexpr double MarginPixels = 12.0;

// Finding the hidden lines takes a time with the square of the number of faces: about 0.5 s for so
// many.
constexpr int MaximumFaces = 3000;
// A sphere or a free-form face takes as long as so many flat ones.
constexpr int CurvedFace = 40;

bool HasTooManyFaces(const TopoDS_Shape& shape)
{
    int count = 0;
    for (TopExp_Explorer face(shape, TopAbs_FACE); face.More() && count <= MaximumFaces;
         face.Next()) {
        const GeomAbs_SurfaceType type =
            BRepAdaptor_Surface(TopoDS::Face(face.Current())).GetType();
        const bool isSimple =
            type == GeomAbs_Plane || type == GeomAbs_Cylinder || type == GeomAbs_Cone;
        count += isSimple ? 1 : CurvedFace;
    }
    return count > MaximumFaces;
}

// From the eye's side, with the vertical axis upwards.
gp_Ax2 ViewAxes()
{
    const gp_Dir towardsEye(0.5, -1.0, 0.8);
    return {gp::Origin(), towardsEye, gp::DZ().Crossed(towardsEye)};
}

// The edges of a drawing that lies in the plane z = 0, with y downwards as on the screen.
void AppendLines(const TopoDS_Shape& drawing, QVector<QPolygonF>& lines)
{
    if (drawing.IsNull())
        return;
    BRepLib::BuildCurves3d(drawing);
    for (TopExp_Explorer edge(drawing, TopAbs_EDGE); edge.More(); edge.Next()) {
        const BRepAdaptor_Curve curve(TopoDS::Edge(edge.Current()));
        const GCPnts_TangentialDeflection points(curve, 0.1, 1.0);
        QPolygonF line;
        for (int i = 1; i <= points.NbPoints(); ++i)
            line << QPointF(points.Value(i).X(), -points.Value(i).Y());
        lines << line;
    }
}

} // namespace

ShapePicture::ShapePicture(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("shapePicture"));
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setMinimumSize(160, 120);
}

ShapePicture::~ShapePicture() = default;

QSize ShapePicture::sizeHint() const
{
    return {420, 320};
}

void ShapePicture::SetShape(const TopoDS_Shape& shape)
{
    m_edges.clear();
    m_smooth.clear();
    update();
    m_isTooLarge = !shape.IsNull() && HasTooManyFaces(shape);
    if (shape.IsNull() || m_isTooLarge)
        return;
    try {
        const Handle(HLRBRep_Algo) hiddenLines = new HLRBRep_Algo;
        hiddenLines->Add(shape);
        hiddenLines->Projector(HLRAlgo_Projector(ViewAxes()));
        hiddenLines->Update();
        hiddenLines->Hide();
        HLRBRep_HLRToShape drawing(hiddenLines);
        AppendLines(drawing.VCompound(), m_edges);
        AppendLines(drawing.OutLineVCompound(), m_edges);
        AppendLines(drawing.Rg1LineVCompound(), m_smooth);
    } catch (const Standard_Failure& failure) {
        PostMessageToChannel(WarningLevel,
                             tr("The shape cannot be drawn: %1")
                                 .arg(QString::fromLocal8Bit(failure.GetMessageString())));
    }
}

void ShapePicture::paintEvent(QPaintEvent*)
{
    if (m_isTooLarge) {
        QPainter(this).drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                                tr("The part has too many faces for a line drawing."));
        return;
    }
    QRectF bounds;
    for (const QPolygonF& line : qAsConst(m_edges))
        bounds |= line.boundingRect();
    const QRectF area =
        QRectF(rect()).adjusted(MarginPixels, MarginPixels, -MarginPixels, -MarginPixels);
    if (bounds.isEmpty() || area.isEmpty())
        return;

    const double scale = qMin(area.width() / bounds.width(), area.height() / bounds.height());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.center());
    painter.scale(scale, scale);
    painter.translate(-bounds.center());

    // A cosmetic pen keeps its width in pixels.
    const auto draw = [&painter](const QVector<QPolygonF>& lines, const QColor& color,
                                 double width) {
        QPen pen(color, width);
        pen.setCosmetic(true);
        painter.setPen(pen);
        for (const QPolygonF& line : lines)
            painter.drawPolyline(line);
    };
    const QColor ink = palette().color(QPalette::Text);
    QColor faint = ink; // On a dark ground as well, which the palette's own middle colour is not.
    faint.setAlphaF(0.3);
    draw(m_smooth, faint, 1.0);
    draw(m_edges, ink, 1.5);
}
