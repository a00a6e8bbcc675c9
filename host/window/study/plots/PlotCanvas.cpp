#include "PlotCanvas.h"

#include <QPainter>

void PlotCanvas::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    m_plot.Paint(painter, rect());
}
