#pragma once

#include <QPointF>
#include <QString>
#include <QVector>

class TopoDS_Shape;

/// The visible lines of a shape, seen from above its front right corner. Lengths are in mm, and y
/// points downwards, as on the screen.
struct LineDrawing
{
    using Line = QVector<QPointF>;

    QVector<Line> edges;     ///< Sharp edges and outlines.
    QVector<Line> smooth;    ///< Where one face runs into the next without a corner.
    bool isTooLarge = false; ///< The shape has so many faces that drawing them would take seconds.
    QString failure;         ///< Why the kernel found no lines; empty if it did not fail.
};

/// Finds the lines of @p shape, which takes a time with the square of the number of its faces. A
/// null shape has none.
LineDrawing DrawLines(const TopoDS_Shape& shape);
