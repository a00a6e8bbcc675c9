#include "ParallelPlot.h"

#include "ColumnPicker.h"
#include "DensityImage.h"
#include "NumberTexts.h"
#include "RectangleDrag.h"
#include "ResultColumns.h"

#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int UsualColumns = 8;
constexpr int SideMargin = 50; // In pixels; half a name.
constexpr int BrushWidth = 10; // Of the mark of a range.
constexpr int LeastBrush = 12; // In pixels; less is a click.

} // namespace

ParallelPlot::ParallelPlot(StudyTable& table, StudySelection& selection, QWidget* parent)
    : StudyPlot(table, selection, parent)
    , m_picker(new ColumnPicker(UsualColumns, this))
    , m_canvas(new PlotCanvas(*this))
{
    setObjectName(QStringLiteral("parallelPlot"));
    Controls().addWidget(m_picker);
    SetCanvas(*m_canvas);
    m_canvas->setToolTip(tr("Drag along an axis to select a range; click on it to take that back"));
    connect(m_picker, &ColumnPicker::Changed, this, &ParallelPlot::RefreshLater);
    auto* const drag = new RectangleDrag(m_canvas);
    connect(drag, &RectangleDrag::Dragged, this, &ParallelPlot::Brush);
}

ParallelPlot::~ParallelPlot() = default;

void ParallelPlot::ShowRows()
{
    m_picker->Refresh(Columns());
    m_chosen = m_picker->Chosen();
    m_ranges.clear();
    for (const int column : m_chosen)
        m_ranges.push_back(PlotRange::Of(Columns().Column(column), Rows()));
    const auto isGone = [this](const QString& name) {
        return std::none_of(m_chosen.begin(), m_chosen.end(),
                            [&](int column) { return Columns().Names()[column] == name; });
    };
    for (auto brush = m_brushes.begin(); brush != m_brushes.end();)
        brush = isGone(brush->first) ? m_brushes.erase(brush) : std::next(brush);
    m_lines = QImage();
}

void ParallelPlot::ShowSelection()
{
    m_canvas->update();
}

QRectF ParallelPlot::PlotArea(const QRectF& area) const
{
    const int line = fontMetrics().height();
    return area.adjusted(SideMargin, 2.0 * line + 4.0, -SideMargin, -line - 4.0);
}

double ParallelPlot::XOf(const QRectF& plot, int axis) const
{
    const auto gaps = double(std::max<std::size_t>(1, m_chosen.size() - 1));
    return plot.left() + plot.width() * axis / gaps;
}

QPointF ParallelPlot::PlaceOf(const QRectF& plot, std::size_t axis, int row) const
{
    const double share = m_ranges[axis].ShareOf(Columns().Value(m_chosen[axis], row));
    return {XOf(plot, int(axis)), plot.bottom() - share * plot.height()};
}

QImage ParallelPlot::Lines(const QSize& size, double scale, bool isOfSelected) const
{
    DensityImage image(size);
    const QRectF plot = PlotArea(QRectF(QPointF(), QSizeF(size) / scale));
    // Axis by axis, which is faster: neighbouring pixels stay in the processor's cache.
    for (std::size_t axis = 1; axis < m_chosen.size(); ++axis) {
        for (const int row : Rows()) {
            if (!isOfSelected || IsSelected(row))
                image.AddLine(PlaceOf(plot, axis - 1, row) * scale,
                              PlaceOf(plot, axis, row) * scale);
        }
    }
    return image.Image(isOfSelected ? SelectedColor() : PointColor());
}

void ParallelPlot::PaintLines(QPainter& painter, const QRectF& plot) const
{
    const auto isFinite = [](const QPointF& point) {
        return std::isfinite(point.x()) && std::isfinite(point.y());
    };
    for (const bool isOfSelected : {false, true}) {
        painter.setPen(isOfSelected ? SelectedColor() : PointColor());
        for (const int row : Rows()) {
            for (std::size_t axis = 1; axis < m_chosen.size(); ++axis) {
                const QPointF from = PlaceOf(plot, axis - 1, row);
                const QPointF to = PlaceOf(plot, axis, row);
                if ((!isOfSelected || IsSelected(row)) && isFinite(from) && isFinite(to))
                    painter.drawLine(from, to);
            }
        }
    }
}

void ParallelPlot::Paint(QPainter& painter, const QRect& area)
{
    if (m_chosen.size() < 2) {
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(area, Qt::AlignCenter, tr("Choose two columns or more."));
        return;
    }
    if (IsVector(painter)) {
        PaintLines(painter, PlotArea(area));
    } else {
        const double scale = painter.transform().m11();
        const QSize size = (QSizeF(area.size()) * scale).toSize();
        if (m_lines.size() != size)
            m_lines = Lines(size, scale, false);
        painter.drawImage(area, m_lines);
        painter.drawImage(area, Lines(size, scale, true));
    }
    for (std::size_t axis = 0; axis < m_chosen.size(); ++axis)
        PaintAxis(painter, PlotArea(area), int(axis));
}

void ParallelPlot::PaintAxis(QPainter& painter, const QRectF& plot, int axis) const
{
    const int column = m_chosen[std::size_t(axis)];
    const PlotRange& range = m_ranges[std::size_t(axis)];
    const double x = XOf(plot, axis);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
    const double width = plot.width() / double(m_chosen.size() - 1);
    const int line = painter.fontMetrics().height();
    const QRectF text(x - width / 2.0, plot.top() - 2.0 * line - 2.0, width, line);
    painter.drawText(
        text, Qt::AlignCenter,
        painter.fontMetrics().elidedText(Columns().Title(column), Qt::ElideMiddle, int(width) - 4));
    painter.drawText(text.translated(0.0, line), Qt::AlignCenter, ShortText(range.greatest));
    painter.drawText(QRectF(text.left(), plot.bottom() + 2.0, width, line), Qt::AlignCenter,
                     ShortText(range.least));
    const auto brush = m_brushes.find(Columns().Names()[column]);
    if (brush == m_brushes.end())
        return;
    const double top = plot.bottom() - range.ShareOf(brush->second.second) * plot.height();
    const double bottom = plot.bottom() - range.ShareOf(brush->second.first) * plot.height();
    QColor color = SelectedColor();
    constexpr double Faint = 0.35;
    color.setAlphaF(Faint);
    painter.fillRect(
        QRectF(QPointF(x - BrushWidth / 2.0, top), QPointF(x + BrushWidth / 2.0, bottom)), color);
}

void ParallelPlot::Brush(const QRect& rectangle)
{
    if (m_chosen.size() < 2)
        return;
    const QRectF plot = PlotArea(m_canvas->rect());
    // The nearest axis.
    const double gap = plot.width() / double(m_chosen.size() - 1);
    const int axis = std::clamp(int(std::lround((rectangle.center().x() - plot.left()) / gap)), 0,
                                int(m_chosen.size()) - 1);
    const QString& name = Columns().Names()[m_chosen[std::size_t(axis)]];
    if (rectangle.height() < LeastBrush) {
        m_brushes.erase(name);
    } else {
        const PlotRange& range = m_ranges[std::size_t(axis)];
        m_brushes[name] = {range.ValueAt((plot.bottom() - rectangle.bottom()) / plot.height()),
                           range.ValueAt((plot.bottom() - rectangle.top()) / plot.height())};
    }
    SelectBrushed();
    m_canvas->update();
}

void ParallelPlot::SelectBrushed()
{
    std::vector<int> rows;
    const auto isWithin = [this](int row) {
        for (const auto& [name, range] : m_brushes) {
            const double value = Columns().Value(Columns().Names().indexOf(name), row);
            if (!(value >= range.first && value <= range.second))
                return false;
        }
        return true;
    };
    if (!m_brushes.empty())
        std::copy_if(Rows().begin(), Rows().end(), std::back_inserter(rows), isWithin);
    Select(std::move(rows));
}
