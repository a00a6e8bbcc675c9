#include "ScatterMatrix.h"

#include "ColumnPicker.h"
#include "DensityImage.h"
#include "NumberTexts.h"
#include "RectangleDrag.h"
#include "ResultColumns.h"

#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int UsualColumns = 6;
constexpr int Gap = 4;   // Between fields, in pixels.
constexpr int Inset = 3; // Of the points in a field.
constexpr int Bins = 20; // Of a histogram.
constexpr std::size_t FewRuns = 2000;

} // namespace

ScatterMatrix::ScatterMatrix(StudyTable& table, StudySelection& selection, QWidget* parent)
    : StudyPlot(table, selection, parent)
    , m_picker(new ColumnPicker(UsualColumns, this))
    , m_canvas(new PlotCanvas(*this))
{
    setObjectName(QStringLiteral("scatterMatrix"));
    Controls().addWidget(m_picker);
    SetCanvas(*m_canvas);
    connect(m_picker, &ColumnPicker::Changed, this, &ScatterMatrix::RefreshLater);
    auto* const drag = new RectangleDrag(m_canvas);
    connect(drag, &RectangleDrag::Dragged, this, &ScatterMatrix::SelectIn);
}

ScatterMatrix::~ScatterMatrix() = default;

void ScatterMatrix::ShowRows()
{
    m_picker->Refresh(Columns());
    m_chosen = m_picker->Chosen();
    m_ranges.clear();
    for (const int column : m_chosen)
        m_ranges.push_back(PlotRange::Of(Columns().Column(column), Rows()));
    m_points = QImage();
}

void ScatterMatrix::ShowSelection()
{
    m_canvas->update();
}

QRectF ScatterMatrix::Field(const QRectF& area, int x, int y) const
{
    const double width = area.width() / double(m_chosen.size());
    const double height = area.height() / double(m_chosen.size());
    return QRectF(area.left() + x * width, area.top() + y * height, width, height)
        .adjusted(Gap / 2.0, Gap / 2.0, -Gap / 2.0, -Gap / 2.0);
}

QPointF ScatterMatrix::PlaceOf(const QRectF& field, int x, int y, int row) const
{
    const QRectF inner = field.adjusted(Inset, Inset, -Inset, -Inset);
    const auto shareOf = [&](int place) {
        return m_ranges[std::size_t(place)].ShareOf(
            Columns().Value(m_chosen[std::size_t(place)], row));
    };
    return {inner.left() + shareOf(x) * inner.width(),
            inner.bottom() - shareOf(y) * inner.height()};
}

void ScatterMatrix::VisitPoints(const QRectF& area, bool isOfSelected,
                                const std::function<void(const QPointF&)>& visit) const
{
    const int columns = int(m_chosen.size());
    for (int x = 0; x < columns; ++x) {
        for (int y = 0; y < columns; ++y) {
            if (x == y)
                continue;
            const QRectF field = Field(area, x, y);
            for (const int row : Rows()) {
                if (isOfSelected && !IsSelected(row))
                    continue;
                const QPointF place = PlaceOf(field, x, y, row);
                if (std::isfinite(place.x()) && std::isfinite(place.y()))
                    visit(place);
            }
        }
    }
}

// Few points have room to be seen.
int ScatterMatrix::PointSize(bool isOfSelected) const
{
    return (Rows().size() < FewRuns ? 4 : 2) + (isOfSelected ? 1 : 0);
}

QImage ScatterMatrix::Points(const QSize& size, bool isOfSelected) const
{
    DensityImage image(size);
    const int pointSize = PointSize(isOfSelected);
    VisitPoints(QRectF(QPointF(), size), isOfSelected,
                [&](const QPointF& place) { image.AddPoint(place.toPoint(), pointSize); });
    return image.Image(isOfSelected ? SelectedColor() : PointColor());
}

void ScatterMatrix::PaintPoints(QPainter& painter, const QRect& area) const
{
    painter.setPen(Qt::NoPen);
    for (const bool isOfSelected : {false, true}) {
        painter.setBrush(isOfSelected ? SelectedColor() : PointColor());
        const double radius = PointSize(isOfSelected) / 2.0;
        VisitPoints(area, isOfSelected,
                    [&](const QPointF& place) { painter.drawEllipse(place, radius, radius); });
    }
    painter.setBrush(Qt::NoBrush);
}

void ScatterMatrix::Paint(QPainter& painter, const QRect& area)
{
    if (m_chosen.empty()) {
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(area, Qt::AlignCenter, tr("No column varies yet."));
        return;
    }
    QColor line = palette().color(QPalette::Text);
    constexpr double Faint = 0.3;
    line.setAlphaF(Faint);
    const int columns = int(m_chosen.size());
    for (int x = 0; x < columns; ++x) {
        for (int y = 0; y < columns; ++y) {
            painter.setPen(line);
            painter.drawRect(Field(area, x, y));
        }
        PaintDiagonal(painter, Field(area, x, x), x);
    }
    if (IsVector(painter))
        return PaintPoints(painter, area);
    const double scale = painter.transform().m11();
    const QSize size = (QSizeF(area.size()) * scale).toSize();
    if (m_points.size() != size)
        m_points = Points(size, false);
    painter.drawImage(area, m_points);
    painter.drawImage(area, Points(size, true));
}

void ScatterMatrix::PaintDiagonal(QPainter& painter, const QRectF& field, int place) const
{
    const PlotRange& range = m_ranges[std::size_t(place)];
    const int column = m_chosen[std::size_t(place)];
    std::vector<int> counts(Bins);
    for (const int row : Rows()) {
        const double share = range.ShareOf(Columns().Value(column, row));
        if (std::isfinite(share))
            ++counts[std::size_t(std::clamp(int(share * Bins), 0, Bins - 1))];
    }
    const int most = std::max(1, *std::max_element(counts.begin(), counts.end()));
    constexpr double Highest = 0.6; // Room for the name.
    QColor color = PointColor();
    constexpr double Faint = 0.4;
    color.setAlphaF(Faint);
    for (int bin = 0; bin < Bins; ++bin) {
        const double height = Highest * field.height() * counts[std::size_t(bin)] / most;
        const double width = field.width() / Bins;
        painter.fillRect(QRectF(field.left() + bin * width, field.bottom() - height, width, height),
                         color);
    }
    painter.setPen(palette().color(QPalette::Text));
    const QRectF text = field.adjusted(Inset, Inset, -Inset, -Inset);
    painter.drawText(text, Qt::AlignTop | Qt::AlignHCenter,
                     painter.fontMetrics().elidedText(Columns().Title(column), Qt::ElideMiddle,
                                                      int(text.width())));
    painter.drawText(text, Qt::AlignBottom | Qt::AlignLeft, ShortText(range.least));
    painter.drawText(text, Qt::AlignBottom | Qt::AlignRight, ShortText(range.greatest));
}

void ScatterMatrix::SelectIn(const QRect& rectangle)
{
    const int columns = int(m_chosen.size());
    for (int x = 0; x < columns; ++x) {
        for (int y = 0; y < columns; ++y) {
            const QRectF field = Field(m_canvas->rect(), x, y);
            // The field that the rectangle is mostly in.
            if (x == y || !field.contains(QRectF(rectangle).center()))
                continue;
            std::vector<int> rows;
            for (const int row : Rows()) {
                if (IsWithin(rectangle, PlaceOf(field, x, y, row)))
                    rows.push_back(row);
            }
            return Select(std::move(rows));
        }
    }
}
