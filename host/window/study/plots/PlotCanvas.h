#pragma once

#include "StudyPlot.h"

#include <QWidget>

/// What a StudyPlot paints by itself.
class PlotCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit PlotCanvas(StudyPlot& plot)
        : QWidget(&plot)
        , m_plot(plot)
    {
        setBackgroundRole(QPalette::Base);
        setAutoFillBackground(true);
    }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    StudyPlot& m_plot;
};
