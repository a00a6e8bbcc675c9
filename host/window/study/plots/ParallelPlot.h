#pragma once

#include "PlotCanvas.h"
#include "PlotRange.h"
#include "StudyPlot.h"

#include <map>
#include <utility>

class ColumnPicker;

/// Parallel coordinates: an axis for each chosen column and a line for each run. Ranges that are
/// dragged along axes select the runs that are within all of them.
class ParallelPlot : public StudyPlot
{
    Q_OBJECT

public:
    ParallelPlot(StudyTable& table, StudySelection& selection, QWidget* parent);
    ~ParallelPlot() override;

    void Paint(QPainter& painter, const QRect& area) override;

    /// How many axes have a range.
    int BrushCount() const { return int(m_brushes.size()); }

protected:
    void ShowRows() override;
    void ShowSelection() override;
    QWidget& Canvas() override { return *m_canvas; }

private:
    QRectF PlotArea(const QRectF& area) const;
    double XOf(const QRectF& plot, int axis) const;
    QPointF PlaceOf(const QRectF& plot, std::size_t axis, int row) const;
    void PaintLines(QPainter& painter, const QRectF& plot) const;
    QImage Lines(const QSize& size, double scale, bool isOfSelected) const;
    void PaintAxis(QPainter& painter, const QRectF& plot, int axis) const;
    void Brush(const QRect& rectangle);
    void SelectBrushed();

    ColumnPicker* m_picker;
    PlotCanvas* m_canvas;
    std::vector<int> m_chosen;
    std::vector<PlotRange> m_ranges;
    std::map<QString, std::pair<double, double>> m_brushes; // By the column's name.
    QImage m_lines; // Of all runs, as they were painted last.
};
