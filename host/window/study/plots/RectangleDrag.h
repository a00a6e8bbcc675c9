#pragma once

#include <QObject>
#include <QPointF>
#include <QRect>

class QRubberBand;
class QWidget;

/// Whether @p point is within the rectangle; one that is not finite is not.
bool IsWithin(const QRect& rectangle, const QPointF& point);

/// Lets the user drag a rectangle over a widget with the left mouse button.
class RectangleDrag : public QObject
{
    Q_OBJECT

public:
    /// @p target owns this object.
    explicit RectangleDrag(QWidget* target);
    ~RectangleDrag() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// A click is a rectangle of a few pixels around its place.
    void Dragged(const QRect& rectangle);

private:
    QWidget* m_target;
    QRubberBand* m_band;
    QPoint m_begin;
    bool m_isDragging = false;
};
