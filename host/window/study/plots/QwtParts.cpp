#include "QwtParts.h"

#include "NumberTexts.h"

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_renderer.h>
#include <qwt_scale_draw.h>
#include <qwt_symbol.h>
#include <qwt_text.h>

namespace {

/// Writes numbers as everywhere else in the program, whatever the locale: 3000, not 3.000.
class NumberScale : public QwtScaleDraw
{
public:
    QwtText label(double value) const override { return {ShortText(value), QwtText::PlainText}; }
};

} // namespace

QwtPlot* NewQwtPlot(QWidget* parent)
{
    auto* const plot = new QwtPlot(parent);
    plot->setAxisScaleDraw(QwtPlot::xBottom, new NumberScale);
    plot->setAxisScaleDraw(QwtPlot::yLeft, new NumberScale);
    plot->setObjectName(QStringLiteral("plot"));
    plot->setCanvasBackground(plot->palette().color(QPalette::Base));
    if (auto* const canvas = qobject_cast<QwtPlotCanvas*>(plot->canvas()))
        canvas->setFrameStyle(QFrame::NoFrame);
    auto* const grid = new QwtPlotGrid;
    QColor color = plot->palette().color(QPalette::Text);
    constexpr double Faint = 0.15;
    color.setAlphaF(Faint);
    grid->setPen(color, 0.0);
    grid->attach(plot);
    return plot;
}

QwtPlotCurve* AddPoints(QwtPlot& plot, const QColor& color, int size)
{
    auto* const curve = new QwtPlotCurve;
    curve->setStyle(QwtPlotCurve::NoCurve);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, color, QPen(Qt::NoPen), QSize(size, size)));
    curve->setItemAttribute(QwtPlotItem::Legend, false);
    curve->attach(&plot);
    return curve;
}

QwtPlotCurve* AddLine(QwtPlot& plot, const QColor& color, const QString& title)
{
    auto* const curve = new QwtPlotCurve(title);
    curve->setPen(color, 2.0);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->setLegendAttribute(QwtPlotCurve::LegendShowLine);
    curve->attach(&plot);
    return curve;
}

void PaintQwtPlot(QwtPlot& plot, QPainter& painter, const QRect& area)
{
    QwtPlotRenderer renderer;
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
    renderer.render(&plot, &painter, area);
}

void SetAxisTitle(QwtPlot& plot, int axis, const QString& title)
{
    QwtText text(title, QwtText::PlainText);
    text.setFont(plot.font());
    plot.setAxisTitle(axis, text);
}
