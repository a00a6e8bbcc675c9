#include "FeatureTree.h"
#include "HostTestMain.h"
#include "PickingWindow.h"

#include <QPushButton>

/// What clicks in the view do while nothing is to be picked, and the tools that pick.
class tst_FaceClicks : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AClickSelectsTheFeatureThatMadeTheFace();
    void ADoubleClickEditsTheFeature();
    void MeasuringPostsTheResult();
    void MeasuringNothingIsReported();
    void ASectionShowsTheInside();
    void AChangeThatLeavesThePictureIsFitted();
};

void tst_FaceClicks::AClickSelectsTheFeatureThatMadeTheFace()
{
    PickingWindow open;
    open.Add(NewFeature("far", "move", {"cube"}, {{"dy", "1"}}));
    open.Trigger("action_FitView");
    open.view->grab();
    open.window.Features().Select("far");
    open.ClickInTheMiddle();
    QCOMPARE(open.window.Features().Selected(), QStringList("cube"));
}

void tst_FaceClicks::ADoubleClickEditsTheFeature()
{
    PickingWindow open;
    open.Add(NewFeature("ball", "sphere", {}, {{"radius", "20"}}));
    open.Trigger("action_FitView");
    open.view->grab();
    int asked = 0;
    open.user.Then([&](QDialog& dialog) {
        ++asked;
        dialog.reject();
    });
    // Beside the seam of the sphere, where no edge is near.
    const QPoint place = open.view->rect().center() - QPoint(50, 30);
    open.MoveTo(place);
    QTest::mouseClick(open.view, Qt::LeftButton, {}, place);
    // As a window system sends it, with the release that QTest leaves out.
    QMouseEvent second(QEvent::MouseButtonDblClick, place, open.view->mapToGlobal(place),
                       Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(open.view, &second);
    QTest::mouseRelease(open.view, Qt::LeftButton, {}, place);
    QTRY_COMPARE(asked, 1);
    QCOMPARE(open.window.Features().Selected(), QStringList("ball"));
}

void tst_FaceClicks::MeasuringPostsTheResult()
{
    PickingWindow open;
    open.Trigger("action_Measure");
    QCoreApplication::sendPostedEvents();
    open.Trigger("action_FitView");
    const QPoint edge = open.UpperEdge();
    open.ClickInTheMiddle();
    open.ClickAt(edge);
    const QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    Click(open.window, "doneButton");
    QCOMPARE(posted.size(), 1);
    QCOMPARE(posted[0][1].toString(), QString("Distance: 0 mm; Angle: 0°"));
}

void tst_FaceClicks::MeasuringNothingIsReported()
{
    PickingWindow open;
    open.Trigger("action_Measure");
    const QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    Click(open.window, "doneButton");
    QCOMPARE(posted.size(), 1);
    QCOMPARE(posted[0][1].toString(),
             QString("Nothing was measured: pick one or two faces or edges"));
}

void tst_FaceClicks::ASectionShowsTheInside()
{
    PickingWindow open;
    open.Add(NewFeature("ball", "sphere", {}, {{"radius", "20"}}));
    open.Trigger("action_FitView");
    const QImage whole = open.view->grab().toImage();
    open.Trigger("action_SectionX");
    const QImage cut = open.view->grab().toImage();
    QVERIFY(cut != whole);
    QVERIFY(IsOrange(At(cut, open.view->rect().center() + QPoint(40, 40))));
    open.Trigger("action_NoSection");
    QCOMPARE(open.view->grab().toImage(), whole);
}

void tst_FaceClicks::AChangeThatLeavesThePictureIsFitted()
{
    PickingWindow open;
    const auto isPartAt = [&open](const QPoint& place) {
        const QColor colour = At(open.view->grab().toImage(), place);
        return colour.blue() > colour.red() + 10;
    };
    QVERIFY(isPartAt(open.view->rect().center() + QPoint(20, 20)));
    open.Add(NewFeature("away", "move", {"cube"}, {{"dy", "1000"}}));
    QVERIFY(isPartAt(open.view->rect().center() + QPoint(20, 20)));
    QVERIFY(!isPartAt(QPoint(3, open.view->height() / 2)));
}

TARN_HOST_TEST_MAIN(tst_FaceClicks)
#include "tst_FaceClicks.moc"
