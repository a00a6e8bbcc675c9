#include "MainEffectsPlot.h"

#include "ColumnBox.h"
#include "MainEffects.h"
#include "QwtParts.h"
#include "RectangleDrag.h"
#include "ResultColumns.h"

#include <QPen>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>
#include <qwt_symbol.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int PointSize = 7;
constexpr int SelectedSize = 9;
constexpr double Margin = 0.12; // Of the place of a parameter, at both sides.

/// Writes names under the places of the parameters, which are 1 wide.
class NameScale : public QwtScaleDraw
{
public:
    explicit NameScale(QStringList names)
        : m_names(std::move(names))
    {
        enableComponent(QwtAbstractScaleDraw::Ticks, false);
    }

    QwtText label(double value) const override
    {
        return {m_names.value(int(value)), QwtText::PlainText};
    }

private:
    QStringList m_names;
};

} // namespace

MainEffectsPlot::MainEffectsPlot(StudyTable& table, StudySelection& selection, QWidget* parent)
    : StudyPlot(table, selection, parent)
    , m_response(AddColumnBox(tr("Effects on"), "comboBox_Response"))
    , m_plot(NewQwtPlot(this))
    , m_selected(AddPoints(*m_plot, SelectedColor(), SelectedSize))
{
    setObjectName(QStringLiteral("mainEffectsPlot"));
    m_selected->setZ(m_selected->z() + 1.0); // Before the lines, which are added later.
    SetCanvas(*m_plot);
    auto* const drag = new RectangleDrag(m_plot->canvas());
    connect(drag, &RectangleDrag::Dragged, this, &MainEffectsPlot::SelectIn);
}

MainEffectsPlot::~MainEffectsPlot() = default;

QWidget& MainEffectsPlot::Canvas()
{
    return *m_plot;
}

void MainEffectsPlot::Paint(QPainter& painter, const QRect& area)
{
    PaintQwtPlot(*m_plot, painter, area);
}

void MainEffectsPlot::ShowRows()
{
    const ResultColumns& columns = Columns();
    m_response.Refresh(columns, FirstResult(columns));
    for (const Effect& effect : m_effects)
        delete effect.curve;
    m_effects.clear();
    m_parameters.clear();
    if (m_response.Column() >= 0) {
        const Column response = Shown(m_response.Column());
        for (const int column : VaryingInputs()) {
            if (column != m_response.Column())
                AddEffect(column, response);
        }
    }
    QStringList titles;
    QList<double> ticks;
    constexpr double Middle = 0.5;
    for (const Effect& effect : m_effects) {
        ticks << double(titles.size()) + Middle;
        titles << columns.Title(effect.column);
    }
    auto* const names = new NameScale(titles);
    // Leaves room for what is below the base line, such as "_".
    names->setMinimumExtent(names->spacing() + fontMetrics().height() + fontMetrics().descent());
    m_plot->setAxisScaleDraw(QwtPlot::xBottom, names);
    m_plot->setAxisScaleDiv(QwtPlot::xBottom,
                            QwtScaleDiv(0.0, std::max(1, int(m_parameters.size())), {}, {}, ticks));
    SetAxisTitle(*m_plot, QwtPlot::yLeft, tr("Mean of %1").arg(TitleOf(m_response)));
}

void MainEffectsPlot::AddEffect(int column, const std::vector<double>& response)
{
    Effect effect;
    effect.column = column;
    effect.means = MainEffect(Shown(column), response);
    if (effect.means.size() < 2)
        return;
    const double first = effect.means.front().level;
    const double range = effect.means.back().level - first;
    QVector<QPointF> points;
    for (const LevelMean& mean : effect.means) {
        const double share = (mean.level - first) / range;
        effect.places.push_back(double(m_parameters.size()) + Margin +
                                share * (1.0 - 2.0 * Margin));
        points << QPointF(effect.places.back(), mean.mean);
    }
    effect.curve = AddLine(*m_plot, PointColor(), Columns().Names()[column]);
    effect.curve->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, PointColor(), QPen(Qt::NoPen),
                                          QSize(PointSize, PointSize)));
    effect.curve->setSamples(points);
    m_effects.push_back(std::move(effect));
    m_parameters << Columns().Names()[column];
}

int MainEffectsPlot::LevelOf(const Effect& effect, int row) const
{
    const double value = Columns().Value(effect.column, row);
    if (!std::isfinite(Columns().Value(m_response.Column(), row)))
        return -1;
    const auto level =
        std::find_if(effect.means.begin(), effect.means.end(),
                     [value](const LevelMean& mean) { return value <= mean.greatest; });
    return level == effect.means.end() ? -1 : int(level - effect.means.begin());
}

void MainEffectsPlot::ShowSelection()
{
    QVector<QPointF> points;
    for (const Effect& effect : m_effects) {
        std::vector<double> sums(effect.means.size());
        std::vector<int> counts(effect.means.size());
        for (const int row : Rows()) {
            const int level = IsSelected(row) ? LevelOf(effect, row) : -1;
            if (level < 0)
                continue;
            sums[std::size_t(level)] += Columns().Value(m_response.Column(), row);
            ++counts[std::size_t(level)];
        }
        for (std::size_t level = 0; level < counts.size(); ++level) {
            if (counts[level] > 0)
                points << QPointF(effect.places[level], sums[level] / counts[level]);
        }
    }
    m_selected->setSamples(points);
    m_plot->replot();
}

// The runs at the levels whose means are in the rectangle.
void MainEffectsPlot::SelectIn(const QRect& rectangle)
{
    const QwtScaleMap x = m_plot->canvasMap(QwtPlot::xBottom);
    const QwtScaleMap y = m_plot->canvasMap(QwtPlot::yLeft);
    std::vector<int> rows;
    for (const Effect& effect : m_effects) {
        std::vector<char> isIn;
        for (std::size_t level = 0; level < effect.means.size(); ++level)
            isIn.push_back(IsWithin(rectangle, QPointF(x.transform(effect.places[level]),
                                                       y.transform(effect.means[level].mean)))
                               ? 1
                               : 0);
        for (const int row : Rows()) {
            const int level = LevelOf(effect, row);
            if (level >= 0 && isIn[std::size_t(level)] != 0)
                rows.push_back(row);
        }
    }
    Select(std::move(rows));
}
