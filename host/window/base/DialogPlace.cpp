#include "DialogPlace.h"

#include <QDialog>
#include <QScreen>

namespace {

int Area(const QRect& rect)
{
    return rect.isValid() ? rect.width() * rect.height() : 0;
}

} // namespace

void PlaceBeside(QDialog& dialog, const QWidget& widget)
{
    constexpr int Frame = 30; // Of the window system, at the top.
    const QRect covered(widget.mapToGlobal(QPoint(0, 0)), widget.size());
    const QScreen* const screen = widget.screen();
    const QRect room = screen->availableGeometry();
    QRect place(room.topLeft(), dialog.size());
    QRect best;
    for (const int x : {covered.left() - place.width(), covered.right() + 1, room.left(),
                        room.right() - place.width() + 1}) {
        for (const int y : {covered.bottom() + Frame, covered.top() - place.height(),
                            room.bottom() - place.height() + 1, room.top() + Frame}) {
            place.moveTo(qBound(room.left(), x, qMax(room.left(), room.right() - place.width())),
                         qBound(room.top(), y, qMax(room.top(), room.bottom() - place.height())));
            if (best.isNull() || Area(place & covered) < Area(best & covered))
                best = place;
        }
    }
    dialog.move(best.topLeft());
}
