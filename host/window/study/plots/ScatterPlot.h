#pragma once

#include "StudyPlot.h"

class QCheckBox;
class QComboBox;
class QwtPlot;
class QwtPlotCurve;

/// Two columns against each other, with the Pareto front of two aims. A rectangle selects runs.
class ScatterPlot : public StudyPlot
{
    Q_OBJECT

public:
    ScatterPlot(StudyTable& table, StudySelection& selection, QWidget* parent);
    ~ScatterPlot() override;

    void Paint(QPainter& painter, const QRect& area) override;
    /// The runs of the front, as rows of the columns; empty if it is not shown.
    const std::vector<int>& Front() const { return m_front; }

protected:
    void ShowRows() override;
    void ShowSelection() override;
    QWidget& Canvas() override;

private:
    void AddFrontControls();
    void ShowFront();
    void SelectIn(const QRect& rectangle);

    ColumnBox& m_x;
    ColumnBox& m_y;
    QCheckBox* m_hasFront = nullptr;
    QComboBox* m_xAim = nullptr;
    QComboBox* m_yAim = nullptr;
    QwtPlot* m_plot;
    QwtPlotCurve* m_points;
    QwtPlotCurve* m_selected;
    QwtPlotCurve* m_frontCurve;
    std::vector<int> m_front;
};
