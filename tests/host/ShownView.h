#pragma once

#include "PartView.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <QMainWindow>
#include <QScreen>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <cmath>
#include <optional>

Q_DECLARE_METATYPE(PartView::StandardView)

// A view of a block that is shown, handled with the mouse, and looked at.

inline TopoDS_Shape Block()
{
    return BRepPrimAPI_MakeBox(100.0, 60.0, 40.0).Shape();
}

inline QColor At(const QImage& image, const QPoint& point)
{
    return image.pixelColor(point * image.devicePixelRatio());
}

inline bool IsOrange(const QColor& colour)
{
    return colour.red() > colour.blue() + 60;
}

inline bool IsBlue(const QColor& colour)
{
    return colour.blue() > colour.red() + 60;
}

/// A view of the block in a window of its own.
class ShownView
{
public:
    ShownView()
    {
        QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
        window.setCentralWidget(view = new PartView);
        window.resize(400, 300);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            FailTest("The window does not become active");
        view->ShowShape(Block());
        QObject::connect(view, &PartView::PointMoved, view, [this](const gp_Pnt& p) { point = p; });
        QObject::connect(view, &PartView::PointLost, view, [this] {
            point.reset();
            ++lost;
        });
        QObject::connect(view, &PartView::FacePicked, view,
                         [this](const TopoDS_Face& face, const gp_Pnt& p) {
                             ++picked;
                             pickedFace = face;
                             pickedPoint = p;
                         });
    }

    QImage Picture() const { return view->grab().toImage(); }
    QPoint Middle() const { return view->rect().center(); }

    // QTest would move the pointer of the screen and wait for events.
    void MoveTo(const QPoint& to) const
    {
        QMouseEvent move(QEvent::MouseMove, to, view->mapToGlobal(to), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(view, &move);
    }
    void Drag(Qt::MouseButton button, Qt::KeyboardModifiers keys, const QPoint& from,
              const QPoint& by) const
    {
        QTest::mousePress(view, button, keys, from);
        for (int i = 1; i <= 4; ++i) {
            const QPointF at = from + by * i / 4;
            QMouseEvent move(QEvent::MouseMove, at, view->mapToGlobal(at.toPoint()), Qt::NoButton,
                             button, keys);
            QCoreApplication::sendEvent(view, &move);
        }
        QTest::mouseRelease(view, button, keys, from + by);
    }
    void Scroll(const QPoint& at, int notches) const
    {
        for (int i = 0; i < std::abs(notches); ++i) {
            QWheelEvent wheel(at, view->mapToGlobal(at), {}, {0, notches > 0 ? 120 : -120},
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(view, &wheel);
        }
    }

    QMainWindow window;
    PartView* view;
    std::optional<gp_Pnt> point;
    int lost = 0;
    int picked = 0;
    TopoDS_Face pickedFace;
    gp_Pnt pickedPoint;
};

// Where the picture differs from one without the part.
inline QRect PartRect(const ShownView& shown)
{
    const QImage with = shown.Picture();
    shown.view->SetDisplayMode(PartView::ShadedWithEdges);
    const TopoDS_Shape none;
    PartView& view = *shown.view;
    view.ShowShape(none);
    const QImage without = shown.Picture();
    view.ShowShape(Block(), false);
    QRect part;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y))
                part |= QRect(x, y, 1, 1);
        }
    }
    return part;
}

inline int BlackPixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y).lightness() < 40 ? 1 : 0;
    }
    return count;
}

/// The rows of a test: each standard view and its side.
inline void AddStandardViews()
{
    QTest::addColumn<PartView::StandardView>("view");
    QTest::addColumn<QString>("middle"); // The visible point of the block; * is not known exactly.
    QTest::addColumn<QString>("right");  // The axis that points to the right.
    QTest::newRow("front") << PartView::FrontView << "* 0 *"
                           << "+x";
    QTest::newRow("back") << PartView::BackView << "* 60 *"
                          << "-x";
    QTest::newRow("left") << PartView::LeftView << "0 * *"
                          << "-y";
    QTest::newRow("right") << PartView::RightView << "100 * *"
                           << "+y";
    QTest::newRow("top") << PartView::TopView << "* * 40"
                         << "+x";
    QTest::newRow("bottom") << PartView::BottomView << "* * 0"
                            << "+x";
}
