#include "HostApplication.h"
#include "HostTestMain.h"
#include "ShownView.h"

#include <BRepPrimAPI_MakeBox.hxx>

#include <cmath>

Q_DECLARE_METATYPE(Qt::MouseButton)
Q_DECLARE_METATYPE(Qt::KeyboardModifiers)

class tst_PartViewCamera : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFirstShapeIsFittedIn();
    void TheFirstShapeIsNotFittedInUnasked();
    void DraggingOrbits_data();
    void DraggingOrbits();
    void DraggingPans_data();
    void DraggingPans();
    void TheWheelZoomsAboutTheCursor();
    void TheWheelStopsAtThePrecisionOfTheCamera();
    void FitBringsTheWholeShapeBack();
    void StandardViewsLookFromTheirSide_data();
    void StandardViewsLookFromTheirSide();
    void AClickOnTheCubeTurnsTheView();
    void ARebuildKeepsTheCamera();
};

void tst_PartViewCamera::TheFirstShapeIsFittedIn()
{
    const ShownView shown;
    const QRect whole(QPoint(), shown.Picture().size());
    for (const double size : {1e-2, 1.0, 1e6}) {
        shown.view->ShowShape(TopoDS_Shape());
        shown.view->ShowShape(BRepPrimAPI_MakeBox(size, size, size).Shape());
        shown.view->SetStandardView(PartView::FrontView);
        shown.MoveTo(shown.Middle());
        QVERIFY(shown.point.has_value());
        QVERIFY(std::abs(shown.point->X() - size / 2.0) < size * 0.02);
        shown.view->ShowShape(TopoDS_Shape());
        shown.view->ShowShape(Block());
        const QRect part = PartRect(shown);
        QVERIFY(whole.adjusted(1, 1, -1, -1).contains(part));
        QVERIFY(part.height() > whole.height() / 2);
    }
}

void tst_PartViewCamera::TheFirstShapeIsNotFittedInUnasked()
{
    const ShownView shown;
    shown.Scroll(shown.Middle(), -5);
    const QRect before = PartRect(shown);
    shown.view->ShowShape(TopoDS_Shape());
    shown.view->ShowShape(Block(), false);
    QCOMPARE(PartRect(shown), before);
}

void tst_PartViewCamera::DraggingOrbits_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_PartViewCamera::DraggingOrbits()
{
    QFETCH(Qt::MouseButton, button);
    ShownView shown;
    shown.view->SetStandardView(PartView::FrontView);
    const auto leftSideIsSeen = [&shown] {
        for (int x = 0; x < shown.view->width(); x += 4) {
            shown.MoveTo({x, shown.Middle().y()});
            if (shown.point.has_value() && std::abs(shown.point->X()) < 1e-9 &&
                shown.point->Y() > 1.0)
                return true;
        }
        return false;
    };
    QVERIFY(!leftSideIsSeen());
    const QImage before = shown.Picture();
    shown.Drag(button, Qt::NoModifier, shown.Middle(), {80, 0});
    QVERIFY(shown.Picture() != before);
    QVERIFY(leftSideIsSeen());
}

void tst_PartViewCamera::DraggingPans_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<Qt::KeyboardModifiers>("keys");
    QTest::newRow("right") << Qt::RightButton << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("left and Shift") << Qt::LeftButton << Qt::KeyboardModifiers(Qt::ShiftModifier);
}

void tst_PartViewCamera::DraggingPans()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(Qt::KeyboardModifiers, keys);
    const ShownView shown;
    shown.view->SetStandardView(PartView::TopView);
    shown.Scroll(shown.Middle(), -4);
    const QRect before = PartRect(shown);
    shown.Drag(button, keys, shown.Middle(), {-40, 24});
    const QRect after = PartRect(shown);
    // The point under the cursor stays there.
    QVERIFY(std::abs(after.left() - before.left() + 40) <= 2);
    QVERIFY(std::abs(after.top() - before.top() - 24) <= 2);
    QVERIFY(std::abs(after.width() - before.width()) <= 2);
}

void tst_PartViewCamera::TheWheelZoomsAboutTheCursor()
{
    const ShownView shown;
    shown.view->SetStandardView(PartView::FrontView);
    const QPoint cursor = shown.Middle() + QPoint(60, -20);
    const QRect before = PartRect(shown);
    shown.MoveTo(cursor);
    QVERIFY(shown.point.has_value());
    const gp_Pnt fixed = *shown.point;
    for (const int notches : {3, -6, 2}) {
        shown.Scroll(cursor, notches);
        shown.MoveTo(cursor + QPoint(0, 1));
        shown.MoveTo(cursor);
        QVERIFY(shown.point.has_value());
        QVERIFY(shown.point->Distance(fixed) < 1.0);
    }
    shown.Scroll(cursor, -1);
    QVERIFY(PartRect(shown).width() < before.width());
}

void tst_PartViewCamera::TheWheelStopsAtThePrecisionOfTheCamera()
{
    const ShownView shown;
    const QImage before = shown.Picture();
    for (const int notches : {400, -1200, 700}) {
        shown.Scroll(shown.Middle(), notches);
        shown.Picture();
    }
    shown.view->SetStandardView(PartView::IsometricView);
    QCOMPARE(shown.Picture(), before);
}

void tst_PartViewCamera::FitBringsTheWholeShapeBack()
{
    const ShownView shown;
    const QRect before = PartRect(shown);
    shown.Scroll(shown.Middle() + QPoint(100, 50), 10);
    QVERIFY(PartRect(shown) != before);
    shown.view->FitAll();
    const QRect after = PartRect(shown);
    QVERIFY((after.topLeft() - before.topLeft()).manhattanLength() <= 2);
    QVERIFY((after.bottomRight() - before.bottomRight()).manhattanLength() <= 2);
}

void tst_PartViewCamera::StandardViewsLookFromTheirSide_data()
{
    AddStandardViews();
}

void tst_PartViewCamera::StandardViewsLookFromTheirSide()
{
    QFETCH(PartView::StandardView, view);
    QFETCH(QString, middle);
    QFETCH(QString, right);
    const ShownView shown;
    shown.view->SetStandardView(view);
    shown.MoveTo(shown.Middle());
    QVERIFY(shown.point.has_value());
    const gp_Pnt seen = *shown.point;
    const gp_Pnt centre(50.0, 30.0, 20.0);
    const QStringList expected = middle.split(' ');
    for (int i = 0; i < 3; ++i) {
        if (expected[i] == "*")
            QVERIFY(std::abs(seen.Coord(i + 1) - centre.Coord(i + 1)) < 1.0);
        else
            QVERIFY(std::abs(seen.Coord(i + 1) - expected[i].toDouble()) < 1e-9);
    }
    shown.MoveTo(shown.Middle() + QPoint(20, 0));
    QVERIFY(shown.point.has_value());
    const gp_Vec step(seen, *shown.point);
    const double along = step.Coord(right[1] == 'x' ? 1 : 2);
    QVERIFY(right[0] == '+' ? along > 1.0 : along < -1.0);
}

void tst_PartViewCamera::AClickOnTheCubeTurnsTheView()
{
    const ShownView shown;
    // The top of the cube in the isometric view.
    QTest::mouseClick(shown.view, Qt::LeftButton, {}, {shown.view->width() - 66, 48});
    const auto topIsSeen = [&shown] {
        shown.MoveTo(shown.Middle() + QPoint(-30, -15));
        const bool isThere = shown.point.has_value() && shown.point->X() < 50.0;
        const bool isTop = isThere && std::abs(shown.point->Z() - 40.0) < 1e-9;
        shown.MoveTo(shown.Middle() + QPoint(-30, 25));
        return isTop && shown.point.has_value() && std::abs(shown.point->Z() - 40.0) < 1e-9;
    };
    QVERIFY(!topIsSeen());
    QTRY_VERIFY(topIsSeen());
}

void tst_PartViewCamera::ARebuildKeepsTheCamera()
{
    const ShownView shown;
    shown.Drag(Qt::LeftButton, {}, shown.Middle(), {50, -20});
    shown.Drag(Qt::RightButton, {}, shown.Middle(), {10, 15});
    shown.Scroll(shown.Middle(), 3);
    shown.MoveTo({5, shown.view->height() - 5});
    const QImage before = shown.Picture();
    shown.view->ShowShape(Block());
    QCOMPARE(shown.Picture(), before);
    // A smaller part is seen smaller.
    shown.view->ShowShape(BRepPrimAPI_MakeBox(gp_Pnt(45.0, 27.0, 18.0), 10.0, 6.0, 4.0).Shape());
    QVERIFY(BlackPixels(shown.Picture()) < BlackPixels(before));
    shown.view->ShowShape(Block());
    QCOMPARE(shown.Picture(), before);
}

TARN_HOST_TEST_MAIN(tst_PartViewCamera, HostApplication)
#include "tst_PartViewCamera.moc"
