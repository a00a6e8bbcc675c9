#include "DrawerOutput.h"
#include "HostApplication.h"
#include "KernelText.h"
#include "ShownView.h"
#include "TestCase.h"

#include <BRepGProp.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRep_Builder.hxx>
#include <GProp_GProps.hxx>
#include <QMainWindow>
#include <QProcess>
#include <QScreen>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <cmath>
#include <optional>

Q_DECLARE_METATYPE(Qt::MouseButton)
Q_DECLARE_METATYPE(Qt::KeyboardModifiers)

class tst_PartView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ThisSystemCanShowTheView();
    void TheShapeIsShadedWithBlackEdges();
    void AWireframeHasNoFaces();
    void ANullShapeEmptiesTheView();
    void TheFirstShapeIsFittedIn();
    void TheFirstShapeIsNotFittedInUnasked();
    void DraggingOrbits_data();
    void DraggingOrbits();
    void DraggingPans_data();
    void DraggingPans();
    void TheWheelZoomsAboutTheCursor();
    void TheWheelStopsWhereTheDigitsEnd();
    void FitBringsTheWholeShapeBack();
    void StandardViewsLookFromTheirSide_data();
    void StandardViewsLookFromTheirSide();
    void AClickOnTheCubeTurnsTheView();
    void ARebuildKeepsTheCamera();
    void ATypedPointIsMarked();
    void AFeatureWithinThePartIsHighlighted();
    void TheViewSurvivesHidingAndResizing();
    void TheViewSurvivesAnotherWindow();
    void WhatIsSetBeforeTheViewIsShownHolds();
    void TheGrabbedWindowShowsTheModel();
    void TheBackgroundFollowsThePalette();
    void ShapesThatCannotBeDrawnDoNoHarm();
    void NothingIsWrittenToTheConsole_data();
    void NothingIsWrittenToTheConsole();
};

namespace {

const char ChildArgument[] = "--show-a-view";

} // namespace

void tst_PartView::ThisSystemCanShowTheView()
{
    QCOMPARE(PartView::UnavailableReason(), QString());
}

void tst_PartView::TheShapeIsShadedWithBlackEdges()
{
    const ShownView shown;
    const QImage picture = shown.Picture();
    QSet<QRgb> shades;
    const QPoint middle = shown.Middle();
    // Three sides of the block meet near the middle, each with a shade of its own.
    for (const QPoint& side : {QPoint(0, -40), QPoint(-60, 60), QPoint(100, 50)})
        shades << At(picture, middle + side).rgb();
    QCOMPARE(shades.size(), 3);
    QVERIFY(BlackPixels(picture) > 300);
}

void tst_PartView::AWireframeHasNoFaces()
{
    const ShownView shown;
    QCOMPARE(shown.view->CurrentDisplayMode(), PartView::ShadedWithEdges);
    const QPoint face = shown.Middle() + QPoint(100, 50);
    const QImage shaded = shown.Picture();
    shown.view->SetDisplayMode(PartView::Wireframe);
    QCOMPARE(shown.view->CurrentDisplayMode(), PartView::Wireframe);
    const QImage wires = shown.Picture();
    QVERIFY(At(wires, face) != At(shaded, face));
    // The background has one colour in each line.
    QCOMPARE(At(wires, face), At(wires, QPoint(2, face.y())));
    int wirePixels = 0;
    for (int y = 0; y < wires.height(); ++y) {
        for (int x = 0; x < wires.width(); ++x)
            wirePixels += IsBlue(wires.pixelColor(x, y)) ? 1 : 0;
    }
    QVERIFY(wirePixels > 300);
    shown.view->SetDisplayMode(PartView::ShadedWithEdges);
    QCOMPARE(shown.Picture(), shaded);
}

void tst_PartView::ANullShapeEmptiesTheView()
{
    const ShownView shown;
    shown.view->ShowShape(TopoDS_Shape());
    const QImage picture = shown.Picture();
    QCOMPARE(At(picture, shown.Middle()), At(picture, QPoint(2, shown.Middle().y())));
}

void tst_PartView::TheFirstShapeIsFittedIn()
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

void tst_PartView::TheFirstShapeIsNotFittedInUnasked()
{
    const ShownView shown;
    shown.Scroll(shown.Middle(), -5);
    const QRect before = PartRect(shown);
    shown.view->ShowShape(TopoDS_Shape());
    shown.view->ShowShape(Block(), false);
    QCOMPARE(PartRect(shown), before);
}

void tst_PartView::DraggingOrbits_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_PartView::DraggingOrbits()
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

void tst_PartView::DraggingPans_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<Qt::KeyboardModifiers>("keys");
    QTest::newRow("right") << Qt::RightButton << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("left and Shift") << Qt::LeftButton << Qt::KeyboardModifiers(Qt::ShiftModifier);
}

void tst_PartView::DraggingPans()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(Qt::KeyboardModifiers, keys);
    const ShownView shown;
    shown.view->SetStandardView(PartView::TopView);
    shown.Scroll(shown.Middle(), -4);
    const QRect before = PartRect(shown);
    shown.Drag(button, keys, shown.Middle(), {-40, 24});
    const QRect after = PartRect(shown);
    // What lies under the cursor stays there.
    QVERIFY(std::abs(after.left() - before.left() + 40) <= 2);
    QVERIFY(std::abs(after.top() - before.top() - 24) <= 2);
    QVERIFY(std::abs(after.width() - before.width()) <= 2);
}

void tst_PartView::TheWheelZoomsAboutTheCursor()
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

void tst_PartView::TheWheelStopsWhereTheDigitsEnd()
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

void tst_PartView::FitBringsTheWholeShapeBack()
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

void tst_PartView::StandardViewsLookFromTheirSide_data()
{
    AddStandardViews();
}

void tst_PartView::StandardViewsLookFromTheirSide()
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

void tst_PartView::AClickOnTheCubeTurnsTheView()
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

void tst_PartView::ARebuildKeepsTheCamera()
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
    shown.view->ShowShape(BRepPrimAPI_MakeBox(10.0, 6.0, 4.0).Shape());
    QVERIFY(BlackPixels(shown.Picture()) < BlackPixels(before));
    shown.view->ShowShape(Block());
    QCOMPARE(shown.Picture(), before);
}

void tst_PartView::ATypedPointIsMarked()
{
    const ShownView shown;
    shown.view->SetStandardView(PartView::FrontView);
    const QImage before = shown.Picture();
    QVERIFY(!IsOrange(At(before, shown.Middle())));
    // Within the block: a mark is seen all the same.
    shown.view->ShowPoint({50.0, 30.0, 20.0});
    QVERIFY(IsOrange(At(shown.Picture(), shown.Middle())));
    shown.view->ShowPoint({20.0, 30.0, 20.0});
    QVERIFY(!IsOrange(At(shown.Picture(), shown.Middle())));
    QVERIFY(shown.Picture() != before);
    shown.view->HidePoint();
    QCOMPARE(shown.Picture(), before);
}

void tst_PartView::AFeatureWithinThePartIsHighlighted()
{
    const ShownView shown;
    shown.view->SetStandardView(PartView::FrontView);
    const QImage before = shown.Picture();
    const QPoint inside = shown.Middle() + QPoint(10, 5);
    shown.view->HighlightShape(
        BRepPrimAPI_MakeBox(gp_Pnt(30.0, 20.0, 10.0), gp_Pnt(70.0, 40.0, 30.0)).Shape());
    QVERIFY(IsOrange(At(shown.Picture(), inside)));
    // It is no part to pick.
    shown.MoveTo(shown.Middle());
    QVERIFY(std::abs(shown.point.value().Y()) < 1e-9);
    shown.MoveTo({5, shown.view->height() - 5});
    shown.view->HighlightShape(TopoDS_Shape());
    QCOMPARE(shown.Picture(), before);
}

void tst_PartView::TheViewSurvivesHidingAndResizing()
{
    ShownView shown;
    shown.view->SetStandardView(PartView::FrontView);
    const QImage before = shown.Picture();
    shown.window.hide();
    shown.view->ShowShape(Block());
    shown.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&shown.window));
    QCOMPARE(shown.Picture(), before);

    shown.window.resize(640, 200);
    QTRY_COMPARE(shown.view->size(), QSize(640, 200));
    shown.MoveTo(shown.Middle());
    QVERIFY(shown.point.has_value());
    QVERIFY(std::abs(shown.point->X() - 50.0) < 1.0);
    shown.window.resize(400, 300);
    QTRY_COMPARE(shown.view->size(), QSize(400, 300));
    shown.MoveTo({5, shown.view->height() - 5});
    QCOMPARE(shown.Picture(), before);
}

void tst_PartView::TheViewSurvivesAnotherWindow()
{
    ShownView shown;
    shown.view->ShowPoint({50.0, 0.0, 20.0});
    shown.Drag(Qt::LeftButton, {}, shown.Middle(), {50, -20});
    shown.MoveTo({5, shown.view->height() - 5});
    const QImage before = shown.Picture();
    {
        QMainWindow other;
        other.setCentralWidget(shown.view);
        other.resize(400, 300);
        other.show();
        QVERIFY(QTest::qWaitForWindowExposed(&other));
        QCOMPARE(shown.Picture(), before);
        shown.window.setCentralWidget(shown.view);
    }
    QCoreApplication::processEvents();
    QCOMPARE(shown.Picture(), before);
}

void tst_PartView::WhatIsSetBeforeTheViewIsShownHolds()
{
    PartView view;
    view.resize(400, 300);
    view.ShowShape(Block());
    view.SetStandardView(PartView::FrontView);
    view.SetDisplayMode(PartView::Wireframe);
    view.ShowPoint({50.0, 30.0, 20.0});
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QImage early = view.grab().toImage();
    QVERIFY(IsOrange(At(early, view.rect().center())));
    view.SetStandardView(PartView::FrontView);
    QCOMPARE(view.grab().toImage(), early);
}

void tst_PartView::TheGrabbedWindowShowsTheModel()
{
    const ShownView shown;
    QVERIFY(BlackPixels(shown.view->window()->grab().toImage()) > 300);
}

void tst_PartView::TheBackgroundFollowsThePalette()
{
    const ShownView shown;
    const QPoint corner(3, 3);
    QVERIFY(At(shown.Picture(), corner).lightness() > 180);
    QPalette dark = shown.view->palette();
    dark.setColor(QPalette::Window, QColor(0x2b, 0x2f, 0x35));
    shown.view->setPalette(dark);
    QVERIFY(At(shown.Picture(), corner).lightness() < 90);
    QVERIFY(At(shown.Picture(), shown.Middle() + QPoint(50, 30)).lightness() > 90);
}

void tst_PartView::ShapesThatCannotBeDrawnDoNoHarm()
{
    const ShownView shown;
    shown.view->ShowShape(TopoDS_Face());
    TopoDS_Face empty;
    BRep_Builder().MakeFace(empty);
    shown.view->ShowShape(empty);
    shown.view->FitAll();
    shown.Picture();
    shown.view->ShowShape(Block());
    shown.view->SetStandardView(PartView::FrontView);
    shown.MoveTo(shown.Middle());
    QVERIFY(shown.point.has_value());
}

void tst_PartView::NothingIsWrittenToTheConsole_data()
{
    QTest::addColumn<QStringList>("environment");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("as it is") << QStringList() << true;
    QTest::newRow("scaled") << QStringList("QT_SCALE_FACTOR=2") << true;
    QTest::newRow("offscreen, beside a display")
        << QStringList("QT_QPA_PLATFORM=offscreen") << true;
    QTest::newRow("offscreen") << QStringList({"QT_QPA_PLATFORM=offscreen", "DISPLAY="}) << false;
    QTest::newRow("no OpenGL") << QStringList("QT_XCB_GL_INTEGRATION=none") << false;
    QTest::newRow("no GLX") << QStringList("QT_XCB_GL_INTEGRATION=xcb_egl") << false;
    QTest::newRow("no driver") << QStringList("LIBGL_DRIVERS_PATH=/nonexistent") << false;
    QTest::newRow("an old driver")
        << QStringList({"MESA_GL_VERSION_OVERRIDE=1.4", "MESA_EXTENSION_MAX_YEAR=2001"}) << false;
}

void tst_PartView::NothingIsWrittenToTheConsole()
{
    QFETCH(QStringList, environment);
    QFETCH(bool, isShown);
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString& variable : qAsConst(environment))
        variables.insert(variable.section('=', 0, 0), variable.section('=', 1));
    variables.insert("XDG_RUNTIME_DIR", EnterTemporaryDirectory());
    QProcess child;
    child.setProcessEnvironment(variables);
    child.start(QCoreApplication::applicationFilePath(), {ChildArgument});
    QVERIFY(child.waitForFinished(60000));
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QString errors = QString::fromLocal8Bit(child.readAllStandardError());
    // The offscreen platform says so of every window.
    errors.remove("This plugin does not support propagateSizeHints()\n");
    QCOMPARE(errors, QString());
    QCOMPARE(QString::fromLocal8Bit(child.readAllStandardOutput()), QString());
    QCOMPARE(child.exitCode(), isShown ? 0 : 1);
}

// In the front view, where the front of the cube reaches from 88 to 49 pixels from the right side.
static bool LettersFitTheCube(const QImage& picture)
{
    const double ratio = picture.devicePixelRatio();
    int letters = 0;
    for (int y = qRound(55 * ratio); y < qRound(72 * ratio); ++y) {
        for (int x = qRound(12 * ratio); x < qRound(120 * ratio); ++x) {
            if (picture.pixelColor(picture.width() - x, y).lightness() > 80)
                continue;
            ++letters;
            if (x < 49 * ratio || x > 88 * ratio)
                return false;
        }
    }
    return letters > 0;
}

// 0: the view shows a part, is turned, and finds a point on it. 1: there can be no view.
static int ShowAView()
{
    if (!PartView::UnavailableReason().isEmpty())
        return 1;
    ShownView shown;
    shown.Drag(Qt::LeftButton, {}, shown.Middle(), {50, -20});
    shown.view->SetStandardView(PartView::FrontView);
    const QImage picture = shown.Picture();
    shown.MoveTo(shown.Middle());
    const bool isScaled = picture.size() == shown.view->size() * shown.view->devicePixelRatioF();
    const bool isFound = shown.point.has_value() && std::abs(shown.point->X() - 50.0) < 1.0;
    if (!LettersFitTheCube(picture))
        return 3;
    return isScaled && isFound && BlackPixels(picture) > 300 ? 0 : 2;
}

int main(int argc, char** argv)
{
    if (argc > 1 && qstrcmp(argv[1], ChildArgument) == 0) {
        HostApplication application(argc, argv);
        return ShowAView();
    }
    return RunTest<tst_PartView, HostApplication>(argc, argv);
}

#include "tst_PartView.moc"
