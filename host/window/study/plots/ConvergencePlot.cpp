#include "ConvergencePlot.h"

#include "ColumnBox.h"
#include "QwtParts.h"
#include "RectangleDrag.h"
#include "ResultColumns.h"

#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int PointSize = 4;
constexpr int SelectedSize = 7;

} // namespace

ConvergencePlot::ConvergencePlot(StudyTable& table, StudySelection& selection, QWidget* parent)
    : StudyPlot(table, selection, parent)
    , m_response(AddColumnBox(tr("Course of"), "comboBox_Response"))
    , m_plot(NewQwtPlot(this))
    , m_points(AddPoints(*m_plot, PointColor().lighter(), PointSize))
    , m_selected(AddPoints(*m_plot, SelectedColor(), SelectedSize))
    , m_least(AddLine(*m_plot, {44, 160, 44}, tr("Least so far")))
    , m_greatest(AddLine(*m_plot, {148, 103, 189}, tr("Greatest so far")))
    , m_mean(AddLine(*m_plot, {255, 127, 14}, tr("Mean so far")))
{
    setObjectName(QStringLiteral("convergencePlot"));
    m_plot->insertLegend(new QwtLegend, QwtPlot::RightLegend);
    SetAxisTitle(*m_plot, QwtPlot::xBottom, tr("Runs that have ended"));
    SetCanvas(*m_plot);
    auto* const drag = new RectangleDrag(m_plot->canvas());
    connect(drag, &RectangleDrag::Dragged, this, &ConvergencePlot::SelectIn);
}

ConvergencePlot::~ConvergencePlot() = default;

QWidget& ConvergencePlot::Canvas()
{
    return *m_plot;
}

void ConvergencePlot::Paint(QPainter& painter, const QRect& area)
{
    PaintQwtPlot(*m_plot, painter, area);
}

void ConvergencePlot::ShowRows()
{
    m_response.Refresh(Columns(), FirstResult(Columns()));
    m_order.clear();
    if (m_response.Column() >= 0) {
        m_order = Rows();
        // Rows are added as runs end.
        std::sort(m_order.begin(), m_order.end());
        m_order.erase(std::remove_if(m_order.begin(), m_order.end(),
                                     [this](int row) {
                                         return !std::isfinite(
                                             Columns().Value(m_response.Column(), row));
                                     }),
                      m_order.end());
    }
    QVector<QPointF> points;
    QVector<QPointF> least;
    QVector<QPointF> greatest;
    QVector<QPointF> mean;
    double sum = 0.0;
    for (const int row : m_order) {
        const double value = Columns().Value(m_response.Column(), row);
        const double place = double(points.size()) + 1.0;
        sum += value;
        points << QPointF(place, value);
        least << QPointF(place, least.isEmpty() ? value : std::min(least.last().y(), value));
        greatest << QPointF(place,
                            greatest.isEmpty() ? value : std::max(greatest.last().y(), value));
        mean << QPointF(place, sum / place);
    }
    m_points->setSamples(points);
    m_least->setSamples(least);
    m_greatest->setSamples(greatest);
    m_mean->setSamples(mean);
    SetAxisTitle(*m_plot, QwtPlot::yLeft, TitleOf(m_response));
}

void ConvergencePlot::ShowSelection()
{
    QVector<QPointF> points;
    for (std::size_t place = 0; place < m_order.size(); ++place) {
        if (IsSelected(m_order[place]))
            points << QPointF(double(place) + 1.0,
                              Columns().Value(m_response.Column(), m_order[place]));
    }
    m_selected->setSamples(points);
    m_plot->replot();
}

void ConvergencePlot::SelectIn(const QRect& rectangle)
{
    const QwtScaleMap x = m_plot->canvasMap(QwtPlot::xBottom);
    const QwtScaleMap y = m_plot->canvasMap(QwtPlot::yLeft);
    std::vector<int> rows;
    for (std::size_t place = 0; place < m_order.size(); ++place) {
        const QPointF point(x.transform(double(place) + 1.0),
                            y.transform(Columns().Value(m_response.Column(), m_order[place])));
        if (IsWithin(rectangle, point))
            rows.push_back(m_order[place]);
    }
    Select(std::move(rows));
}
