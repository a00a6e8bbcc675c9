#pragma once

#include "MainEffects.h"
#include "StudyPlot.h"

class QwtPlot;
class QwtPlotCurve;

/// The mean of a result at each level of each parameter: how strongly each of them acts. Beside it
/// stand the means of the selected runs at these levels.
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
    void ShowSelection() override;
    QWidget& Canvas() override;

private:
    /// What is shown of a parameter.
    struct Effect
    {
        int column = 0;
        std::vector<LevelMean> means;
        std::vector<double> places; // Across, of each mean.
        QwtPlotCurve* curve = nullptr;
    };

    void AddEffect(int column, const std::vector<double>& response);
    /// The level of a run in an effect; below 0 if it does not count.
    int LevelOf(const Effect& effect, int row) const;
    void SelectIn(const QRect& rectangle);

    ColumnBox& m_response;
    QwtPlot* m_plot;
    QwtPlotCurve* m_selected;
    std::vector<Effect> m_effects;
    QStringList m_parameters;
};
