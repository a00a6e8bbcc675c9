#include "HostApplication.h"
#include "ShownView.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRep_Builder.hxx>
#include <QMainWindow>
#include <QProcess>

#include <cmath>

class tst_PartView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ThisSystemCanShowTheView();
    void TheShapeIsShadedWithBlackEdges();
    void AWireframeHasNoFaces();
    void ANullShapeEmptiesTheView();
    void ATypedPointIsMarked();
    void AFeatureWithinThePartIsHighlighted();
    void TheViewSurvivesHidingAndResizing();
    void TheViewSurvivesAnotherWindow();
    void SettingsBeforeTheViewIsShownHold();
    void TheGrabbedWindowShowsTheModel();
    void TheBackgroundFollowsThePalette();
    void ShapesWithoutGeometryDoNoHarm();
    void NothingIsWrittenToTheConsole_data();
    void NothingIsWrittenToTheConsole();
};

static const char ChildArgument[] = "--show-a-view";

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

void tst_PartView::ATypedPointIsMarked()
{
    const ShownView shown;
    shown.view->SetStandardView(PartView::FrontView);
    const QImage before = shown.Picture();
    QVERIFY(!IsOrange(At(before, shown.Middle())));
    // The mark is visible even within the block.
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
    // The highlight cannot be picked.
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

void tst_PartView::SettingsBeforeTheViewIsShownHold()
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

void tst_PartView::ShapesWithoutGeometryDoNoHarm()
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
    // The offscreen platform prints this for every window.
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

// Returns 0 if the view shows a part, turns, and finds a point on it, 1 if there is no view.
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
