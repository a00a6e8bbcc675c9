#include "HostApplication.h"
#include "HostTestMain.h"
#include "Modelling.h"
#include "PartView.h"

#include <QRadioButton>

class tst_PartActionsMirror : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutAViewTheUserTypesThePointOnTheFace();
    void AMirrorWaitsForItsFace();
    void AWaitingMirrorCanBeCancelled();
    void AMirrorTakesATypedPoint();
    void AnEditedMirrorWaitsForAnotherFace();
    void AFailedViewCountsAsNone();
    void ATypedPointNeedsAWaitingMirror();
};

static void AskForFaceMirror(Modelling& modelling, const char* action)
{
    modelling.user.Then([](QDialog& dialog) {
        Find<QRadioButton>(dialog, "radioButton_3").setChecked(true);
        Click(dialog, "pushButton_OK");
    });
    modelling.Trigger(action);
    QVERIFY(modelling.user.IsDone());
}

void tst_PartActionsMirror::WithoutAViewTheUserTypesThePointOnTheFace()
{
    Modelling modelling;
    modelling.Trigger("action_Add_box");
    modelling.posted.clear();
    modelling.user.Then([](QDialog& dialog) {
        Find<QRadioButton>(dialog, "radioButton_3").setChecked(true);
        Click(dialog, "pushButton_OK");
    });
    modelling.Trigger("action_Add_mirror");
    QVERIFY(modelling.user.IsDone());
    QCOMPARE(modelling.Last().kind, &KindOf("mirrorFace"));
    QCOMPARE(modelling.Last().inputs, QStringList("box"));
    QVERIFY(modelling.posted.count() == 1);
    QVERIFY(modelling.posted[0][1].toString().contains("type a point on the face"));
}

void tst_PartActionsMirror::AMirrorWaitsForItsFace()
{
    PartView view;
    Modelling modelling(&view);
    modelling.Trigger("action_Add_box");
    AskForFaceMirror(modelling, "action_Add_mirror");
    QVERIFY(view.IsPicking());
    QCOMPARE(modelling.model.Features().Size(), 1);
    Q_EMIT view.FacePicked(TopoDS_Face(), gp_Pnt(10.000000000000002, 5.25, 5.0 - 1e-12));
    QCOMPARE(modelling.Last().kind, &KindOf("mirrorFace"));
    QCOMPARE(modelling.Last().inputs, QStringList("box"));
    QCOMPARE(modelling.Last().fields, QStringList({"10", "5.25", "5"}));
    QVERIFY2(!modelling.model.HasFailed(), qPrintable(modelling.model.Failure()));
    // The next click is an ordinary one.
    Q_EMIT view.FacePicked(TopoDS_Face(), gp_Pnt(0.0, 5.0, 5.0));
    QCOMPARE(modelling.model.Features().Size(), 2);
}

void tst_PartActionsMirror::AWaitingMirrorCanBeCancelled()
{
    PartView view;
    Modelling modelling(&view);
    modelling.Trigger("action_Add_box");
    AskForFaceMirror(modelling, "action_Add_mirror");
    view.CancelPicking();
    modelling.placing->TakePoint(gp_Pnt(10.0, 5.0, 5.0));
    QCOMPARE(modelling.model.Features().Size(), 1);
    // Another feature gives it up, too.
    AskForFaceMirror(modelling, "action_Add_mirror");
    modelling.Trigger("action_Add_cylinder");
    QVERIFY(!view.IsPicking());
    modelling.placing->TakePoint(gp_Pnt(10.0, 5.0, 5.0));
    QCOMPARE(modelling.Names(), QStringList({"box", "cylinder"}));
}

void tst_PartActionsMirror::AMirrorTakesATypedPoint()
{
    PartView view;
    Modelling modelling(&view);
    modelling.Trigger("action_Add_box");
    AskForFaceMirror(modelling, "action_Add_mirror");
    modelling.placing->TakePoint(gp_Pnt(5.0, 5.0, 10.0));
    QCOMPARE(modelling.Last().fields, QStringList({"5", "5", "10"}));
    QVERIFY(!view.IsPicking());
}

void tst_PartActionsMirror::AnEditedMirrorWaitsForAnotherFace()
{
    PartView view;
    Modelling modelling(&view);
    modelling.Trigger("action_Add_box");
    modelling.model.Add(NewFeature("twin", "mirrorFace", {"box"}, {{"x", "10"}}));
    modelling.Select({"twin"});
    AskForFaceMirror(modelling, "action_EditFeature");
    QVERIFY(view.IsPicking());
    Q_EMIT view.FacePicked(TopoDS_Face(), gp_Pnt(0.0, 5.0, 5.0));
    QCOMPARE(modelling.Names(), QStringList({"box", "twin"}));
    QCOMPARE(modelling.Last().fields, QStringList({"0", "5", "5"}));
}

void tst_PartActionsMirror::AFailedViewCountsAsNone()
{
    PartView view;
    Modelling modelling(&view);
    modelling.Trigger("action_Add_box");
    Q_EMIT view.Failed("broken");
    AskForFaceMirror(modelling, "action_Add_mirror");
    QCOMPARE(modelling.Last().kind, &KindOf("mirrorFace"));
}

void tst_PartActionsMirror::ATypedPointNeedsAWaitingMirror()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.placing->TakePoint(gp_Pnt(1.0, 2.0, 3.0));
    QCOMPARE(modelling.model.Features().Size(), 3);
}

TARN_HOST_TEST_MAIN(tst_PartActionsMirror, HostApplication)
#include "tst_PartActionsMirror.moc"
