#pragma once

#include "StudyPlot.h"

class QwtPlot;
class QwtPlotCurve;

/// The mean of a result at each level of each parameter: how strongly each of them acts.
class MainEffectsPlot : public StudyPlot
{
    Q_OBJECT

public:
    MainEffectsPlot(StudyTable& table, StudySelection& selection, QWidget* parent);
    ~MainEffectsPlot() override;

    void Paint(QPainter& painter, const QRect& area) override;
    /// The parameters that are shown, from left to right.
    const QStringList& Parameters() const { return m_parameters; }

protected:
    void ShowRows() override;
    void ShowSelection() override {}
    QWidget& Canvas() override;

private:
    void AddEffect(int column, const std::vector<double>& response);

    ColumnBox& m_response;
    QwtPlot* m_plot;
    std::vector<QwtPlotCurve*> m_curves;
    QStringList m_parameters;
};
