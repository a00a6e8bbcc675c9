#include "HostApplication.h"
#include "KernelText.h"
#include "ShownView.h"

#include <BRepGProp.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <GProp_GProps.hxx>

class tst_PartViewPicking : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFaceUnderTheCursorIsHighlighted();
    void AClickedFaceStaysHighlighted();
    void AnotherClickSelectsAnotherFace();
    void PickingReportsTheClickedFace_data();
    void PickingReportsTheClickedFace();
    void PickingWaitsForAFace();
    void EscapeEndsPicking();
    void WithoutPickingNoFaceIsReported();
    void ADragPicksNothing();
    void ThePointUnderTheCursorIsOnTheSurface();
    void ThePointIsLostBesideThePart();
    void ThePointIsLostWithTheCursorOrTheShape();
};

void tst_PartViewPicking::TheFaceUnderTheCursorIsHighlighted()
{
    const ShownView shown;
    shown.view->SetStandardView(PartView::FrontView);
    const QPoint face = shown.Middle() + QPoint(30, 20);
    shown.MoveTo({5, shown.view->height() - 5});
    const QImage before = shown.Picture();
    shown.MoveTo(shown.Middle());
    QVERIFY(IsBlue(At(shown.Picture(), face)));
    shown.MoveTo({5, shown.view->height() - 5});
    QCOMPARE(shown.Picture(), before);
}

void tst_PartViewPicking::AClickedFaceStaysHighlighted()
{
    const ShownView shown;
    shown.view->SetStandardView(PartView::FrontView);
    const QPoint face = shown.Middle() + QPoint(30, 20);
    QVERIFY(!IsOrange(At(shown.Picture(), face)));
    QTest::mouseClick(shown.view, Qt::LeftButton, {}, shown.Middle());
    shown.MoveTo({5, shown.view->height() - 5});
    QVERIFY(IsOrange(At(shown.Picture(), face)));
    shown.view->SetStandardView(PartView::FrontView);
    QVERIFY(IsOrange(At(shown.Picture(), face)));
    QTest::mouseClick(shown.view, Qt::LeftButton, {}, {5, shown.view->height() - 5});
    QVERIFY(!IsOrange(At(shown.Picture(), face)));
}

void tst_PartViewPicking::AnotherClickSelectsAnotherFace()
{
    const ShownView shown;
    const QPoint first = shown.Middle() + QPoint(-50, 30);
    const QPoint second = shown.Middle() + QPoint(100, 50);
    const QPoint beside(5, shown.view->height() - 5);
    QTest::mouseClick(shown.view, Qt::LeftButton, {}, first);
    QTest::mouseClick(shown.view, Qt::LeftButton, {}, second);
    shown.MoveTo(beside);
    QVERIFY(!IsOrange(At(shown.Picture(), first)));
    QVERIFY(IsOrange(At(shown.Picture(), second)));
}

void tst_PartViewPicking::PickingReportsTheClickedFace_data()
{
    AddStandardViews();
}

void tst_PartViewPicking::PickingReportsTheClickedFace()
{
    QFETCH(PartView::StandardView, view);
    QFETCH(QString, middle);
    const ShownView shown;
    shown.view->SetStandardView(view);
    shown.view->PickFace();
    QVERIFY(shown.view->IsPicking());
    QCOMPARE(shown.view->cursor().shape(), Qt::CrossCursor);
    QTest::mouseClick(shown.view, Qt::LeftButton, {}, shown.Middle());
    QCOMPARE(shown.picked, 1);
    QVERIFY(!shown.view->IsPicking());
    QCOMPARE(shown.view->cursor().shape(), Qt::ArrowCursor);

    GProp_GProps properties;
    BRepGProp::SurfaceProperties(shown.pickedFace, properties);
    QString face = KernelText(properties.CentreOfMass());
    const QStringList known = middle.split(' ');
    const gp_Pnt centre(known[0] == "*" ? 50.0 : known[0].toDouble(),
                        known[1] == "*" ? 30.0 : known[1].toDouble(),
                        known[2] == "*" ? 20.0 : known[2].toDouble());
    QCOMPARE(face, KernelText(centre));
    QVERIFY(shown.pickedPoint.Distance(centre) < 2.0);
    // The next click selects, no more.
    QTest::mouseClick(shown.view, Qt::LeftButton, {}, shown.Middle());
    QCOMPARE(shown.picked, 1);
}

void tst_PartViewPicking::PickingWaitsForAFace()
{
    const ShownView shown;
    shown.view->PickFace();
    QTest::mouseClick(shown.view, Qt::LeftButton, {}, {5, shown.view->height() - 5});
    QVERIFY(shown.view->IsPicking());
    // Turning the view in between is fine.
    shown.Drag(Qt::LeftButton, {}, shown.Middle(), {30, 0});
    QVERIFY(shown.view->IsPicking());
    QCOMPARE(shown.picked, 0);
    QTest::mouseClick(shown.view, Qt::LeftButton, {}, shown.Middle() + QPoint(0, 40));
    QCOMPARE(shown.picked, 1);
}

void tst_PartViewPicking::EscapeEndsPicking()
{
    const ShownView shown;
    QSignalSpy cancelled(shown.view, &PartView::PickingCancelled);
    QTest::keyClick(shown.view->window(), Qt::Key_Escape);
    QCOMPARE(cancelled.size(), 0);
    shown.view->PickFace();
    QTest::keyClick(shown.view->window(), Qt::Key_Escape);
    QCOMPARE(cancelled.size(), 1);
    QVERIFY(!shown.view->IsPicking());
    QCOMPARE(shown.view->cursor().shape(), Qt::ArrowCursor);
    QTest::mouseClick(shown.view, Qt::LeftButton, {}, shown.Middle());
    QCOMPARE(shown.picked, 0);
}

void tst_PartViewPicking::WithoutPickingNoFaceIsReported()
{
    const ShownView shown;
    QTest::mouseClick(shown.view, Qt::LeftButton, {}, shown.Middle());
    QCOMPARE(shown.picked, 0);
}

void tst_PartViewPicking::ADragPicksNothing()
{
    const ShownView shown;
    shown.view->PickFace();
    shown.Drag(Qt::LeftButton, {}, shown.Middle(), {40, 10});
    QCOMPARE(shown.picked, 0);
}

void tst_PartViewPicking::ThePointUnderTheCursorIsOnTheSurface()
{
    const ShownView shown;
    shown.view->ShowShape(BRepPrimAPI_MakeCylinder(50.0, 80.0).Shape());
    shown.view->SetStandardView(PartView::FrontView);
    for (int x = -60; x <= 60; x += 8) {
        shown.MoveTo(shown.Middle() + QPoint(x, 5));
        QVERIFY(shown.point.has_value());
        QVERIFY(std::abs(std::hypot(shown.point->X(), shown.point->Y()) - 50.0) < 1e-9);
        QVERIFY(shown.point->Y() < 0.0);
    }
}

void tst_PartViewPicking::ThePointIsLostBesideThePart()
{
    const ShownView shown;
    shown.MoveTo(shown.Middle());
    QVERIFY(shown.point.has_value());
    QCOMPARE(shown.lost, 0);
    shown.MoveTo({5, shown.view->height() - 5});
    QCOMPARE(shown.lost, 1);
    shown.MoveTo({8, shown.view->height() - 8});
    QCOMPARE(shown.lost, 1);
    shown.MoveTo(shown.Middle());
    QVERIFY(shown.point.has_value());
}

void tst_PartViewPicking::ThePointIsLostWithTheCursorOrTheShape()
{
    const ShownView shown;
    shown.MoveTo(shown.Middle());
    QVERIFY(shown.point.has_value());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(shown.view, &leave);
    QCOMPARE(shown.lost, 1);
    shown.MoveTo(shown.Middle() + QPoint(1, 1));
    QVERIFY(shown.point.has_value());
    shown.view->ShowShape(TopoDS_Shape());
    QCOMPARE(shown.lost, 2);
}

int main(int argc, char** argv)
{
    return RunTest<tst_PartViewPicking, HostApplication>(argc, argv);
}

#include "tst_PartViewPicking.moc"
