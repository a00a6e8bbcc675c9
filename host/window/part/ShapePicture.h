#pragma once

#include <QPolygonF>
#include <QVector>
#include <QWidget>

class TopoDS_Shape;

/// A line drawing of a shape, seen from above its front right corner, scaled to fit.
class ShapePicture : public QWidget
{
    Q_OBJECT

public:
    explicit ShapePicture(QWidget* parent);
    ~ShapePicture() override;

    /// Draws @p shape from now on; a shape whose lines cannot be found leaves an empty picture, and
    /// one with so many faces that drawing would take seconds a text that says so.
    void SetShape(const TopoDS_Shape& shape);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_isTooLarge = false;
    QVector<QPolygonF> m_edges;  // Sharp edges and outlines.
    QVector<QPolygonF> m_smooth; // Where one face runs into the next without a corner.
};
