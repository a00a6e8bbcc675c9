#pragma once

#include "PlotCanvas.h"
#include "PlotRange.h"
#include "StudyPlot.h"

#include <functional>

class ColumnPicker;

/// Every chosen column against every other one, in one picture; on the diagonal, how often each
/// value occurs. A rectangle in one field selects runs.
class ScatterMatrix : public StudyPlot
{
    Q_OBJECT

public:
    ScatterMatrix(StudyTable& table, StudySelection& selection, QWidget* parent);
    ~ScatterMatrix() override;

    void Paint(QPainter& painter, const QRect& area) override;

protected:
    void ShowRows() override;
    void ShowSelection() override;
    QWidget& Canvas() override { return *m_canvas; }

private:
    /// Where column @p x is plotted against column @p y, by their places among the chosen ones.
    QRectF Field(const QRectF& area, int x, int y) const;
    QPointF PlaceOf(const QRectF& field, int x, int y, int row) const;
    void VisitPoints(const QRectF& area, bool isOfSelected,
                     const std::function<void(const QPointF&)>& visit) const;
    int PointSize(bool isOfSelected) const;
    void PaintPoints(QPainter& painter, const QRect& area) const;
    QImage Points(const QSize& size, bool isOfSelected) const;
    void PaintDiagonal(QPainter& painter, const QRectF& field, int place) const;
    void SelectIn(const QRect& rectangle);

    ColumnPicker* m_picker;
    PlotCanvas* m_canvas;
    std::vector<int> m_chosen;
    std::vector<PlotRange> m_ranges;
    QImage m_points; // Of all runs, as they were painted last.
};
