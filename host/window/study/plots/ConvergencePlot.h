#pragma once

#include "StudyPlot.h"

class QwtPlot;
class QwtPlotCurve;

/// A result over the number of runs that have ended: each value, and the mean, least and greatest
/// one so far. Shows when more runs tell nothing new.
class ConvergencePlot : public StudyPlot
{
    Q_OBJECT

public:
    ConvergencePlot(StudyTable& table, StudySelection& selection, QWidget* parent);
    ~ConvergencePlot() override;

    void Paint(QPainter& painter, const QRect& area) override;

protected:
    void ShowRows() override;
    void ShowSelection() override;
    QWidget& Canvas() override;

private:
    void SelectIn(const QRect& rectangle);

    ColumnBox& m_response;
    QwtPlot* m_plot;
    QwtPlotCurve* m_points;
    QwtPlotCurve* m_selected;
    QwtPlotCurve* m_least;
    QwtPlotCurve* m_greatest;
    QwtPlotCurve* m_mean;
    std::vector<int> m_order; // The rows with a value, as they came.
};
