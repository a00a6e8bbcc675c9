#include "MainEffectsPlot.h"

#include "ColumnBox.h"
#include "MainEffects.h"
#include "QwtParts.h"
#include "ResultColumns.h"

#include <QPen>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_symbol.h>

namespace {

constexpr int PointSize = 7;
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
{
    setObjectName(QStringLiteral("mainEffectsPlot"));
    SetCanvas(*m_plot);
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
    for (const QwtPlotCurve* const curve : m_curves)
        delete curve;
    m_curves.clear();
    m_parameters.clear();
    if (m_response.Column() >= 0) {
        const Column response = Shown(m_response.Column());
        for (const int column : VaryingInputs()) {
            if (column != m_response.Column())
                AddEffect(column, response);
        }
    }
    QList<double> ticks;
    constexpr double Middle = 0.5;
    for (int place = 0; place < m_parameters.size(); ++place)
        ticks << place + Middle;
    m_plot->setAxisScaleDraw(QwtPlot::xBottom, new NameScale(m_parameters));
    m_plot->setAxisScaleDiv(QwtPlot::xBottom,
                            QwtScaleDiv(0.0, std::max(1, int(m_parameters.size())), {}, {}, ticks));
    SetAxisTitle(*m_plot, QwtPlot::yLeft, tr("Mean of %1").arg(m_response.currentText()));
    m_plot->replot();
}

void MainEffectsPlot::AddEffect(int column, const std::vector<double>& response)
{
    const std::vector<LevelMean> means = MainEffect(Shown(column), response);
    if (means.size() < 2)
        return;
    const double first = means.front().level;
    const double range = means.back().level - first;
    QVector<QPointF> points;
    for (const LevelMean& mean : means) {
        const double share = (mean.level - first) / range;
        points << QPointF(double(m_parameters.size()) + Margin + share * (1.0 - 2.0 * Margin),
                          mean.mean);
    }
    QwtPlotCurve* const curve = AddLine(*m_plot, PointColor(), Columns().Names()[column]);
    curve->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, PointColor(), QPen(Qt::NoPen),
                                   QSize(PointSize, PointSize)));
    curve->setSamples(points);
    m_curves.push_back(curve);
    m_parameters << Columns().Names()[column];
}
