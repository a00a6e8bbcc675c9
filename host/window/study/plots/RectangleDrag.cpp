#include "RectangleDrag.h"

#include <QApplication>
#include <QMouseEvent>
#include <QRubberBand>

#include <cmath>

// QRectF takes a point that is not a number for one within it.
bool IsWithin(const QRect& rectangle, const QPointF& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y()) &&
           QRectF(rectangle).contains(point);
}

RectangleDrag::RectangleDrag(QWidget* target)
    : QObject(target)
    , m_target(target)
    , m_band(new QRubberBand(QRubberBand::Rectangle, target))
{
    target->installEventFilter(this);
}

RectangleDrag::~RectangleDrag() = default;

bool RectangleDrag::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const mouse = dynamic_cast<QMouseEvent*>(event);
    if (watched != m_target || mouse == nullptr)
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton) {
        m_isDragging = true;
        m_begin = mouse->pos();
        return true;
    }
    if (!m_isDragging)
        return false;
    const QRect rectangle = QRect(m_begin, mouse->pos()).normalized();
    const bool isClick =
        (mouse->pos() - m_begin).manhattanLength() < QApplication::startDragDistance();
    if (event->type() == QEvent::MouseMove) {
        m_band->setGeometry(rectangle);
        m_band->setVisible(!isClick);
        return true;
    }
    if (event->type() != QEvent::MouseButtonRelease)
        return false;
    m_isDragging = false;
    m_band->hide();
    constexpr int Reach = 4; // In pixels.
    Q_EMIT Dragged(isClick
                       ? QRect(mouse->pos(), mouse->pos()).adjusted(-Reach, -Reach, Reach, Reach)
                       : rectangle);
    return true;
}
