#include "ScatterPlot.h"

#include "ColumnBox.h"
#include "ParetoFront.h"
#include "QwtParts.h"
#include "RectangleDrag.h"
#include "ResultColumns.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_map.h>

#include <cmath>
#include <utility>

namespace {

constexpr int PointSize = 5;
constexpr int SelectedSize = 7;
const QColor FrontColor(44, 160, 44);

} // namespace

ScatterPlot::ScatterPlot(StudyTable& table, StudySelection& selection, QWidget* parent)
    : StudyPlot(table, selection, parent)
    , m_x(AddColumnBox(tr("Across"), "comboBox_X"))
    , m_y(AddColumnBox(tr("Up"), "comboBox_Y"))
    , m_plot(NewQwtPlot(this))
    , m_points(AddPoints(*m_plot, PointColor(), PointSize))
    , m_selected(AddPoints(*m_plot, SelectedColor(), SelectedSize))
    , m_frontCurve(AddLine(*m_plot, FrontColor, tr("Pareto front")))
{
    setObjectName(QStringLiteral("scatterPlot"));
    AddFrontControls();
    SetCanvas(*m_plot);
    auto* const drag = new RectangleDrag(m_plot->canvas());
    connect(drag, &RectangleDrag::Dragged, this, &ScatterPlot::SelectIn);
}

ScatterPlot::~ScatterPlot() = default;

void ScatterPlot::AddFrontControls()
{
    m_hasFront = new QCheckBox(tr("Pareto front"), this);
    m_hasFront->setObjectName(QStringLiteral("checkBox_Front"));
    Controls().addWidget(m_hasFront);
    connect(m_hasFront, &QCheckBox::clicked, this, &ScatterPlot::RefreshLater);
    const auto addAim = [this](const QString& name, const QStringList& texts) {
        auto* const box = new QComboBox(this);
        box->addItems(texts);
        box->setAccessibleName(name);
        Controls().addWidget(box);
        connect(box, QOverload<int>::of(&QComboBox::activated), this, &ScatterPlot::RefreshLater);
        connect(m_hasFront, &QCheckBox::toggled, box, &QComboBox::setVisible);
        box->hide();
        return box;
    };
    m_xAim = addAim(tr("Aim across"), {tr("least across"), tr("greatest across")});
    m_yAim = addAim(tr("Aim upwards"), {tr("least upwards"), tr("greatest upwards")});
    m_xAim->setObjectName(QStringLiteral("comboBox_XAim"));
    m_yAim->setObjectName(QStringLiteral("comboBox_YAim"));
}

QWidget& ScatterPlot::Canvas()
{
    return *m_plot;
}

void ScatterPlot::Paint(QPainter& painter, const QRect& area)
{
    PaintQwtPlot(*m_plot, painter, area);
}

void ScatterPlot::ShowRows()
{
    const ResultColumns& columns = Columns();
    const std::vector<int> varying = VaryingColumns(columns);
    m_x.Refresh(columns, varying.empty() ? 0 : varying.front());
    m_y.Refresh(columns, FirstResult(columns));
    SetAxisTitle(*m_plot, QwtPlot::xBottom, TitleOf(m_x));
    SetAxisTitle(*m_plot, QwtPlot::yLeft, TitleOf(m_y));
    QVector<QPointF> points;
    if (m_x.Column() >= 0 && m_y.Column() >= 0) {
        const std::vector<double>& x = columns.Column(m_x.Column());
        const std::vector<double>& y = columns.Column(m_y.Column());
        points.reserve(int(Rows().size()));
        for (const int row : Rows()) {
            const QPointF point(x[std::size_t(row)], y[std::size_t(row)]);
            if (std::isfinite(point.x()) && std::isfinite(point.y()))
                points << point;
        }
    }
    m_points->setSamples(points);
    ShowFront();
}

void ScatterPlot::ShowFront()
{
    m_front.clear();
    QVector<QPointF> corners;
    if (m_hasFront->isChecked() && m_x.Column() >= 0 && m_y.Column() >= 0) {
        const Column x = Shown(m_x.Column());
        const Column y = Shown(m_y.Column());
        const std::vector<int> front =
            ParetoFront(x, Aim(m_xAim->currentIndex()), y, Aim(m_yAim->currentIndex()));
        for (const int place : front) {
            m_front.push_back(Rows()[std::size_t(place)]);
            corners << QPointF(x[std::size_t(place)], y[std::size_t(place)]);
        }
    }
    m_frontCurve->setSamples(corners);
}

void ScatterPlot::ShowSelection()
{
    QVector<QPointF> points;
    if (m_x.Column() >= 0 && m_y.Column() >= 0) {
        for (const int row : Rows()) {
            const QPointF point(Columns().Value(m_x.Column(), row),
                                Columns().Value(m_y.Column(), row));
            if (IsSelected(row) && std::isfinite(point.x()) && std::isfinite(point.y()))
                points << point;
        }
    }
    m_selected->setSamples(points);
    m_plot->replot();
}

void ScatterPlot::SelectIn(const QRect& rectangle)
{
    if (m_x.Column() < 0 || m_y.Column() < 0)
        return;
    const QwtScaleMap x = m_plot->canvasMap(QwtPlot::xBottom);
    const QwtScaleMap y = m_plot->canvasMap(QwtPlot::yLeft);
    std::vector<int> rows;
    for (const int row : Rows()) {
        const QPointF place(x.transform(Columns().Value(m_x.Column(), row)),
                            y.transform(Columns().Value(m_y.Column(), row)));
        if (IsWithin(rectangle, place))
            rows.push_back(row);
    }
    Select(std::move(rows));
}
