#pragma once

#include <QColor>
#include <QString>

class QPainter;
class QRect;
class QWidget;
class QwtPlot;
class QwtPlotCurve;

/// @file
/// What the plots that use Qwt have in common.

/// A plot in the colours of the palette, with a grid.
QwtPlot* NewQwtPlot(QWidget* parent);
/// A curve of points of @p size pixels. The plot owns it.
QwtPlotCurve* AddPoints(QwtPlot& plot, const QColor& color, int size);
/// A curve that is a line. The plot owns it; its @p title is in the legend.
QwtPlotCurve* AddLine(QwtPlot& plot, const QColor& color, const QString& title);
/// Draws the plot with its axes into @p area.
void PaintQwtPlot(QwtPlot& plot, QPainter& painter, const QRect& area);
/// With the font of the widget.
void SetAxisTitle(QwtPlot& plot, int axis, const QString& title);
