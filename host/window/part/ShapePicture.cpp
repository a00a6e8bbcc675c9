#include "ShapePicture.h"

#include "MessageLevel.h"

#include <QPainter>
#include <QPolygonF>

namespace {

constexpr double MarginPixels = 12.0;

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

void ShapePicture::SetLines(const LineDrawing& lines)
{
    m_lines = lines;
    update();
    if (!lines.failure.isEmpty())
        PostMessageToChannel(WarningLevel, tr("The shape cannot be drawn: %1").arg(lines.failure));
}

void ShapePicture::paintEvent(QPaintEvent*)
{
    if (m_lines.isTooLarge) {
        QPainter(this).drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                                tr("The part has too many faces for a line drawing."));
        return;
    }
    QRectF bounds;
    for (const LineDrawing::Line& line : qAsConst(m_lines.edges))
        bounds |= QPolygonF(line).boundingRect();
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
    const auto draw = [&painter](const QVector<LineDrawing::Line>& lines, const QColor& color,
                                 double width) {
        QPen pen(color, width);
        pen.setCosmetic(true);
        painter.setPen(pen);
        for (const LineDrawing::Line& line : lines)
            painter.drawPolyline(line.constData(), line.size());
    };
    const QColor ink = palette().color(QPalette::Text);
    QColor faint = ink; // On a dark ground as well, which the palette's own middle colour is not.
    faint.setAlphaF(0.3);
    draw(m_lines.smooth, faint, 1.0);
    draw(m_lines.edges, ink, 1.5);
}
