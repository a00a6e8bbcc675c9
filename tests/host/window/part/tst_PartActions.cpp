#include "HostApplication.h"
#include "HostTestMain.h"
#include "Modelling.h"
#include "ShapeMeasures.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTableWidget>

class tst_PartActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheMenuOffersEveryKind();
    void AKindWithoutADialogIsAddedWithDefaults_data();
    void AKindWithoutADialogIsAddedWithDefaults();
    void AKindWithADialogIsAddedAfterOK();
    void ACancelledDialogAddsNothing();
    void TheNewFeatureIsSelectedAndNamedAfterItsKind();
    void SelectedFeaturesAreTheInputsInTheirOrder();
    void WithoutASelectionTheLastBodiesAreTheInputs();
    void ASelectedBodyComesBeforeTheLastOne();
    void TooManySelectedAreRefused();
    void TooFewBodiesAreRefused();
    void EditRunsTheDialog();
    void EditOpensTheFieldsIfThereIsNoDialog();
    void UpAndDownMoveTheFeature();
    void AMoveBeforeAnInputIsRefusedWithAMessage();
    void SuppressToggles();
    void DeletingAUsedFeatureIsRefusedWithAMessage();
    void SeveralAreDeletedAtOnce();
    void DeletingTheMakerOfAFaceInUseIsRefused();
    void CopiedFeaturesArePastedBehind();
    void PastingOtherTextIsRefusedWithAMessage();
    void UndoAndRedoNameTheChange();
    void TheSelectionEnablesActions();
};

void tst_PartActions::TheMenuOffersEveryKind()
{
    Modelling modelling;
    for (const FeatureKind& kind : FeatureKinds::All()) {
        QString name = "action_Add_" + kind.word;
        if (QString(kind.word).startsWith("mirror"))
            name = "action_Add_mirror";
        if (kind.readsFile)
            name = "action_ImportStep";
        QVERIFY2(modelling.window.findChild<QAction*>(name) != nullptr, qPrintable(name));
    }
}

void tst_PartActions::AKindWithoutADialogIsAddedWithDefaults_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<double>("volume");
    QTest::newRow("box") << QByteArray("action_Add_box") << 1000.0;
    QTest::newRow("cylinder") << QByteArray("action_Add_cylinder") << 1000.0 * 3.141592653589793;
}

void tst_PartActions::AKindWithoutADialogIsAddedWithDefaults()
{
    QFETCH(QByteArray, action);
    QFETCH(double, volume);
    Modelling modelling;
    modelling.Trigger(action);
    QVERIFY(qFuzzyCompare(Measure(modelling.model.Shape()).volume, volume));
    QCOMPARE(modelling.posted.count(), 0);
}

void tst_PartActions::AKindWithADialogIsAddedAfterOK()
{
    Modelling modelling;
    modelling.user.Then([](QDialog& dialog) {
        Type(dialog, "lineEdit_TopRadius", "2");
        Click(dialog, "pushButton_OK");
    });
    modelling.Trigger("action_Add_cone");
    QVERIFY(modelling.user.IsDone());
    QCOMPARE(modelling.Last().kind, &KindOf("cone"));
    QCOMPARE(FieldText(modelling.Last(), "topRadius"), QString("2"));
    QVERIFY(!modelling.model.Shape().IsNull());
}

void tst_PartActions::ACancelledDialogAddsNothing()
{
    Modelling modelling;
    modelling.user.Then([](QDialog& dialog) { Click(dialog, "pushButton_Cancel"); });
    modelling.Trigger("action_Add_torus");
    QVERIFY(modelling.user.IsDone());
    QVERIFY(modelling.model.Features().IsEmpty());
}

void tst_PartActions::TheNewFeatureIsSelectedAndNamedAfterItsKind()
{
    Modelling modelling;
    modelling.Trigger("action_Add_box");
    modelling.Trigger("action_Add_box");
    QCOMPARE(modelling.Names(), QStringList({"box", "box_2"}));
    QCOMPARE(modelling.tree->Selected(), QStringList("box_2"));
    QCOMPARE(Find<QTableWidget>(modelling.window, "fieldTable").item(0, 1)->text(),
             QString("box_2"));
}

void tst_PartActions::SelectedFeaturesAreTheInputsInTheirOrder()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"pin", "plate"});
    modelling.Trigger("action_Add_cut");
    QCOMPARE(modelling.Last().inputs, QStringList({"pin", "plate"}));
}

void tst_PartActions::WithoutASelectionTheLastBodiesAreTheInputs()
{
    Modelling modelling;
    modelling.model.Add(NewFeature("a", "box"));
    modelling.model.Add(NewFeature("b", "box"));
    modelling.model.Add(NewFeature("c", "cylinder"));
    modelling.Trigger("action_Add_fuse");
    QCOMPARE(modelling.Last().inputs, QStringList({"b", "c"}));
    modelling.Select({});
    modelling.user.Then([](QDialog& dialog) { Click(dialog, "pushButton_OK"); });
    modelling.Trigger("action_Add_move");
    QCOMPARE(modelling.Last().inputs, QStringList("fuse"));
}

void tst_PartActions::ASelectedBodyComesBeforeTheLastOne()
{
    Modelling modelling;
    modelling.model.Add(NewFeature("a", "box"));
    modelling.model.Add(NewFeature("b", "cylinder"));
    modelling.Select({"b"});
    modelling.Trigger("action_Add_cut");
    QCOMPARE(modelling.Last().inputs, QStringList({"b", "a"}));
}

void tst_PartActions::TooManySelectedAreRefused()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"plate", "pin"});
    modelling.Trigger("action_Add_move");
    modelling.CheckRefused("Move takes one body, but 2 features are selected");
    QCOMPARE(modelling.model.Features().Size(), 3);
}

void tst_PartActions::TooFewBodiesAreRefused()
{
    Modelling modelling;
    modelling.Trigger("action_Add_fillet");
    modelling.CheckRefused("Fillet needs a body, but there is none");
    modelling.Trigger("action_Add_box");
    modelling.posted.clear();
    modelling.Trigger("action_Add_cut");
    modelling.CheckRefused("Cut needs two bodies, but there are not enough");
    QCOMPARE(modelling.Names(), QStringList("box"));
}

void tst_PartActions::EditRunsTheDialog()
{
    Modelling modelling;
    modelling.model.Add(NewFeature("ring", "torus", {}, {{"radius", "5 * 4"}}));
    modelling.Select({"ring"});
    modelling.user.Then([](QDialog& dialog) {
        Type(dialog, "lineEdit_RadiusSweep", "4");
        Click(dialog, "pushButton_OK");
    });
    modelling.Trigger("action_EditFeature");
    QVERIFY(modelling.user.IsDone());
    QCOMPARE(FieldText(modelling.Last(), "sweepRadius"), QString("4"));
    QCOMPARE(FieldText(modelling.Last(), "radius"), QString("5 * 4"));
    QCOMPARE(modelling.model.UndoStack().undoText(), QString("Change \"ring\""));
}

void tst_PartActions::EditOpensTheFieldsIfThereIsNoDialog()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&modelling.window));
    modelling.Select({"pin"});
    modelling.Trigger("action_EditFeature");
    const auto& table = Find<QTableWidget>(modelling.window, "fieldTable");
    QVERIFY(table.hasFocus() || table.isAncestorOf(QApplication::focusWidget()));
    QCOMPARE(table.currentItem()->text(), QString("2"));
}

void tst_PartActions::UpAndDownMoveTheFeature()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"pin"});
    modelling.Trigger("action_MoveUp");
    QCOMPARE(modelling.Names(), QStringList({"pin", "plate", "body"}));
    modelling.Trigger("action_MoveDown");
    QCOMPARE(modelling.Names(), QStringList({"plate", "pin", "body"}));
    QCOMPARE(modelling.tree->Selected(), QStringList("pin"));
}

void tst_PartActions::AMoveBeforeAnInputIsRefusedWithAMessage()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"body"});
    modelling.Trigger("action_MoveUp");
    modelling.CheckRefused("Cannot move \"body\"");
    QCOMPARE(modelling.Names(), QStringList({"plate", "pin", "body"}));
}

void tst_PartActions::SuppressToggles()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"body"});
    QVERIFY(!modelling.Action("action_Suppress").isChecked());
    modelling.Trigger("action_Suppress");
    QVERIFY(modelling.Last().suppressed);
    QVERIFY(modelling.Action("action_Suppress").isChecked());
    modelling.Trigger("action_Suppress");
    QVERIFY(!modelling.Last().suppressed);
    QVERIFY(!modelling.Action("action_Suppress").isChecked());
}

void tst_PartActions::DeletingAUsedFeatureIsRefusedWithAMessage()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"plate"});
    modelling.Trigger("action_DeleteFeature");
    modelling.CheckRefused("Cannot delete \"plate\": it is used by \"body\"");
    QCOMPARE(modelling.model.Features().Size(), 3);
}

void tst_PartActions::SeveralAreDeletedAtOnce()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.Select({"pin", "body"});
    modelling.Trigger("action_DeleteFeature");
    QCOMPARE(modelling.Names(), QStringList("plate"));
    QCOMPARE(modelling.posted.count(), 0);
}

void tst_PartActions::DeletingTheMakerOfAFaceInUseIsRefused()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.model.Add(NewFeature("plain", "box"));
    Feature image = NewFeature("image", "mirrorFace", {"body"});
    image.face = FaceReference{"plain.xmax", {}};
    modelling.model.Add(image);
    modelling.model.WaitUntilIdle();
    modelling.posted.clear();
    modelling.Select({"plain"});
    modelling.Trigger("action_DeleteFeature");
    modelling.CheckRefused("Cannot delete \"plain\": it is used by \"image\"");
}

void tst_PartActions::CopiedFeaturesArePastedBehind()
{
    Modelling modelling;
    modelling.AddSamples();
    QVERIFY(!modelling.Action("action_CopyFeatures").isEnabled());
    modelling.Select({"plate", "pin", "body"});
    QWidget& tree = Find<QTreeWidget>(modelling.window, "featureTree");
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(&tree, Qt::Key_V, Qt::ControlModifier);
    modelling.model.WaitUntilIdle();
    QCOMPARE(modelling.Names(),
             QStringList({"plate", "pin", "body", "plate_2", "pin_2", "body_2"}));
    QCOMPARE(modelling.Last().inputs, QStringList({"plate_2", "pin_2"}));
    QCOMPARE(modelling.tree->Selected(), QStringList("body_2"));
    modelling.Trigger("action_Undo"); // One step for all of them.
    QCOMPARE(modelling.Names(), QStringList({"plate", "pin", "body"}));
}

void tst_PartActions::PastingOtherTextIsRefusedWithAMessage()
{
    Modelling modelling;
    modelling.AddSamples();
    modelling.posted.clear();
    QGuiApplication::clipboard()->setText("a sentence");
    modelling.Trigger("action_PasteFeatures");
    modelling.CheckRefused("The clipboard has no copied features. Copy features first.");
    QCOMPARE(modelling.Names().size(), 3);
}

void tst_PartActions::UndoAndRedoNameTheChange()
{
    Modelling modelling;
    QVERIFY(!modelling.Action("action_Undo").isEnabled());
    modelling.Trigger("action_Add_cylinder");
    QCOMPARE(modelling.Action("action_Undo").text(), QString("&Undo Add Cylinder \"cylinder\""));
    modelling.Trigger("action_Undo");
    QVERIFY(modelling.model.Features().IsEmpty());
    QCOMPARE(modelling.Action("action_Redo").text(), QString("&Redo Add Cylinder \"cylinder\""));
    modelling.Trigger("action_Redo");
    QCOMPARE(modelling.Names(), QStringList("cylinder"));
}

void tst_PartActions::TheSelectionEnablesActions()
{
    Modelling modelling;
    modelling.AddSamples();
    const auto enabled = [&modelling] {
        QStringList names;
        for (const char* const name : {"action_EditFeature", "action_MoveUp", "action_MoveDown",
                                       "action_Suppress", "action_DeleteFeature"}) {
            if (modelling.Action(name).isEnabled())
                names << QString(name).mid(7);
        }
        return names.join(' ');
    };
    modelling.Select({});
    QCOMPARE(enabled(), QString());
    modelling.Select({"plate"});
    QCOMPARE(enabled(), QString("EditFeature MoveDown Suppress DeleteFeature"));
    modelling.Select({"pin"});
    QCOMPARE(enabled(), QString("EditFeature MoveUp MoveDown Suppress DeleteFeature"));
    modelling.Select({"body"});
    QCOMPARE(enabled(), QString("EditFeature MoveUp Suppress DeleteFeature"));
    modelling.Select({"plate", "pin"});
    QCOMPARE(enabled(), QString("Suppress DeleteFeature"));
}

TARN_HOST_TEST_MAIN(tst_PartActions, HostApplication)
#include "tst_PartActions.moc"
