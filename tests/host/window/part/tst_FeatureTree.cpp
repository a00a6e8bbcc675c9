#include "EmptyDesignStores.h"
#include "FeatureTexts.h"
#include "FeatureTree.h"
#include "HostTestMain.h"
#include "NewFeature.h"
#include "PartModel.h"

#include <QAction>
#include <QSignalSpy>
#include <QTreeWidget>

class tst_FeatureTree : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AFeatureHasARowInItsOrder();
    void ARowShowsTheInputsAndFieldsOfTheFeature();
    void ASuppressedFeatureIsStruckOut();
    void AFailedFeatureIsMarkedAndShowsTheReason();
    void SelectedNamesComeInTheOrderOfSelecting();
    void TheSelectionOutlivesChanges();
    void ARenamedFeatureStaysSelected();
    void ADeletedFeatureIsSelectedNoLonger();
    void SelectChoosesOneFeatureAlone();
    void ADoubleClickAsksForEditing();
    void OfferedActionsHaveTheirKeysInTheList();
};

namespace {

struct ShownTree
{
    ShownTree()
    {
        FeatureList list;
        list.Append(NewFeature("plate", "box", {}, {{"x", "4 * 5"}}));
        list.Append(NewFeature("pin", "cylinder", {}, {{"radius", "2"}}));
        list.Append(NewFeature("body", "fuse", {"plate", "pin"}));
        model.Open(list, {}, {});
        dock.resize(600, 300);
        dock.show();
    }

    QTreeWidget& Tree() const { return Find<QTreeWidget>(dock, "featureTree"); }
    QTreeWidgetItem& Row(int row) const { return *Tree().topLevelItem(row); }
    void Press(int row, Qt::KeyboardModifiers keys = {}) const
    {
        QTest::mouseClick(Tree().viewport(), Qt::LeftButton, keys,
                          Tree().visualItemRect(&Row(row)).center());
    }

    EmptyDesignStores stores;
    PartModel model;
    FeatureTree dock{model, nullptr};
};

} // namespace

void tst_FeatureTree::AFeatureHasARowInItsOrder()
{
    const ShownTree shown;
    QStringList rows;
    for (int row = 0; row < shown.Tree().topLevelItemCount(); ++row)
        rows << shown.Row(row).text(FeatureTree::NameColumn) + '/' +
                    shown.Row(row).text(FeatureTree::KindColumn);
    QCOMPARE(rows, QStringList({"plate/Box", "pin/Cylinder", "body/Fuse"}));
}

void tst_FeatureTree::ARowShowsTheInputsAndFieldsOfTheFeature()
{
    ShownTree shown;
    QCOMPARE(shown.Row(0).text(FeatureTree::FieldsColumn),
             QString("Size x = 4 * 5, Size y = 10, Size z = 10"));
    QCOMPARE(shown.Row(2).text(FeatureTree::FieldsColumn), QString("of plate, pin"));
    Feature import = NewFeature("import", "import");
    import.file = "parts/nut.step";
    shown.model.Add(import);
    QCOMPARE(shown.Row(3).text(FeatureTree::FieldsColumn), QString("nut.step"));
    Feature image = NewFeature("image", "mirrorFace", {"plate"});
    image.face = FaceReference{"plate.xmax", {}};
    shown.model.Add(image);
    QCOMPARE(shown.Row(4).text(FeatureTree::FieldsColumn), QString("of plate, at plate.xmax"));
    Feature round = NewFeature("round", "fillet", {"plate"});
    round.edges = EdgesOf("plate.xmax | plate.zmax");
    shown.model.Add(round);
    QCOMPARE(shown.Row(5).text(FeatureTree::FieldsColumn),
             QString("of plate, at plate.xmax | plate.zmax, Radius = 1"));
}

void tst_FeatureTree::ASuppressedFeatureIsStruckOut()
{
    ShownTree shown;
    QVERIFY(!shown.Row(1).font(FeatureTree::NameColumn).strikeOut());
    shown.model.SetSuppressed({"pin"}, true);
    QVERIFY(shown.Row(1).font(FeatureTree::NameColumn).strikeOut());
    QVERIFY(!shown.Row(0).font(FeatureTree::NameColumn).strikeOut());
    shown.model.UndoStack().undo();
    QVERIFY(!shown.Row(1).font(FeatureTree::NameColumn).strikeOut());
}

void tst_FeatureTree::AFailedFeatureIsMarkedAndShowsTheReason()
{
    ShownTree shown;
    QVERIFY(shown.Row(1).icon(FeatureTree::NameColumn).isNull());
    shown.model.Change("pin", NewFeature("pin", "cylinder", {}, {{"radius", "-2"}}));
    QVERIFY(!shown.Row(1).icon(FeatureTree::NameColumn).isNull());
    QCOMPARE(shown.Row(1).toolTip(FeatureTree::NameColumn), shown.model.Failure());
    QVERIFY(shown.Row(0).icon(FeatureTree::NameColumn).isNull());
    shown.model.UndoStack().undo();
    QVERIFY(shown.Row(1).icon(FeatureTree::NameColumn).isNull());
    QCOMPARE(shown.Row(1).toolTip(FeatureTree::NameColumn), QString());
}

void tst_FeatureTree::SelectedNamesComeInTheOrderOfSelecting()
{
    const ShownTree shown;
    QSignalSpy changed(&shown.dock, &FeatureTree::SelectionChanged);
    shown.Press(2);
    shown.Press(0, Qt::ControlModifier);
    shown.Press(1, Qt::ControlModifier);
    QCOMPARE(shown.dock.Selected(), QStringList({"body", "plate", "pin"}));
    QCOMPARE(changed.count(), 3);
    shown.Press(2, Qt::ControlModifier);
    QCOMPARE(shown.dock.Selected(), QStringList({"plate", "pin"}));
}

void tst_FeatureTree::TheSelectionOutlivesChanges()
{
    ShownTree shown;
    shown.Press(1);
    shown.Press(0, Qt::ControlModifier);
    shown.model.Move("pin", -1);
    QCOMPARE(shown.dock.Selected(), QStringList({"pin", "plate"}));
    QVERIFY(shown.Row(0).isSelected() && shown.Row(1).isSelected() && !shown.Row(2).isSelected());
}

void tst_FeatureTree::ARenamedFeatureStaysSelected()
{
    ShownTree shown;
    shown.Press(1);
    shown.model.Change("pin", NewFeature("bolt", "cylinder"));
    QCOMPARE(shown.dock.Selected(), QStringList({"bolt"}));
    shown.model.UndoStack().undo();
    QCOMPARE(shown.dock.Selected(), QStringList({"pin"}));
}

void tst_FeatureTree::ADeletedFeatureIsSelectedNoLonger()
{
    ShownTree shown;
    shown.Press(2);
    QSignalSpy changed(&shown.dock, &FeatureTree::SelectionChanged);
    shown.model.Remove({"body"});
    QCOMPARE(shown.dock.Selected(), QStringList());
    QVERIFY(changed.count() > 0);
    QVERIFY(shown.Tree().selectedItems().isEmpty());
}

void tst_FeatureTree::SelectChoosesOneFeatureAlone()
{
    ShownTree shown;
    shown.Press(0);
    shown.Press(1, Qt::ControlModifier);
    shown.dock.Select("body");
    QCOMPARE(shown.dock.Selected(), QStringList({"body"}));
    shown.dock.Select("nut");
    QCOMPARE(shown.dock.Selected(), QStringList({"body"}));
}

void tst_FeatureTree::ADoubleClickAsksForEditing()
{
    const ShownTree shown;
    QSignalSpy wanted(&shown.dock, &FeatureTree::EditWanted);
    shown.Press(1);
    QCOMPARE(wanted.count(), 0);
    QTest::mouseDClick(shown.Tree().viewport(), Qt::LeftButton, {},
                       shown.Tree().visualItemRect(&shown.Row(1)).center());
    QCOMPARE(wanted.count(), 1);
    QCOMPARE(shown.dock.Selected(), QStringList({"pin"}));
}

void tst_FeatureTree::OfferedActionsHaveTheirKeysInTheList()
{
    ShownTree shown;
    QAction action(nullptr);
    action.setShortcut(QKeySequence::Delete);
    QSignalSpy triggered(&action, &QAction::triggered);
    shown.dock.OfferActions({&action});
    shown.dock.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&shown.dock));
    shown.Press(1);
    shown.Tree().setFocus();
    QTest::keyClick(&shown.Tree(), Qt::Key_Delete);
    QCOMPARE(triggered.count(), 1);
}

TARN_HOST_TEST_MAIN(tst_FeatureTree)
#include "tst_FeatureTree.moc"
