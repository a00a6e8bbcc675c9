#include "HostApplication.h"
#include "HostTestMain.h"
#include "MessageDock.h"
#include "OpenWindow.h"

#include <QTableView>
#include <QTableWidget>
#include <QTreeWidget>

class tst_MainWindowPart : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFeaturesOfTheProjectAreShown();
    void ASelectedFeatureShowsItsFields();
    void UndoAndRedoHaveShortcuts();
    void DeletingAUsedFeatureIsRefused();
    void SuppressRebuilds();
    void AFailedRebuildMarksTheFeatureAndKeepsTheShape();
    void AnEmptyPartIsNotAFailure();
    void AZeroDirectionIsReportedAsAWarning();
};

void tst_MainWindowPart::TheFeaturesOfTheProjectAreShown()
{
    const OpenWindow open;
    const auto& tree = Find<QTreeWidget>(open.window, "featureTree");
    QCOMPARE(tree.topLevelItemCount(), Project::Load(Project::SamplePath()).Features().Size());
    QCOMPARE(tree.topLevelItem(0)->text(0), QString("plate"));
}

void tst_MainWindowPart::ASelectedFeatureShowsItsFields()
{
    OpenWindow open;
    open.SelectFeature("plate");
    const auto& fields = Find<QTableWidget>(open.window, "fieldTable");
    QCOMPARE(fields.item(0, 1)->text(), QString("plate"));
    QCOMPARE(fields.item(2, 1)->text(), QString("outer_diameter / 2"));
    QCOMPARE(fields.item(2, 2)->text(), QString("100 mm"));
    open.user.Then([](QDialog& editor) {
        TypeValue(editor, "outer_diameter", "240");
        Click(editor, "pushButton_OK");
    });
    open.Trigger("action_Parameters");
    QCOMPARE(fields.item(2, 2)->text(), QString("120 mm"));
}

void tst_MainWindowPart::UndoAndRedoHaveShortcuts()
{
    OpenWindow open;
    open.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&open.window));
    const QString box = open.Shown("label_BoundingBox");
    auto& fields = Find<QTableWidget>(open.window, "fieldTable");
    open.SelectFeature("plate");
    fields.item(2, 1)->setText("150");
    open.window.Part().WaitUntilIdle();
    QCOMPARE(open.Shown("label_BoundingBox"), QString("300 × 300 × 50 mm"));
    QTest::keyClick(&open.window, Qt::Key_Z, Qt::ControlModifier);
    open.window.Part().WaitUntilIdle();
    QCOMPARE(open.Shown("label_BoundingBox"), box);
    QCOMPARE(fields.item(2, 1)->text(), QString("outer_diameter / 2"));
    QTest::keyClick(&open.window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    open.window.Part().WaitUntilIdle();
    QCOMPARE(open.Shown("label_BoundingBox"), QString("300 × 300 × 50 mm"));
}

void tst_MainWindowPart::DeletingAUsedFeatureIsRefused()
{
    OpenWindow open;
    auto& tree = Find<QTreeWidget>(open.window, "featureTree");
    const int count = tree.topLevelItemCount();
    const PostedMessages posted;
    open.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&open.window));
    open.SelectFeature("plate");
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_Delete);
    QCOMPARE(posted.At(ErrorLevel), QStringList("Cannot delete \"plate\": it is used by \"body\""));
    QCOMPARE(tree.topLevelItemCount(), count);
    // The last one is used by none.
    open.SelectFeature("flange");
    QTest::keyClick(&tree, Qt::Key_Delete);
    QCOMPARE(tree.topLevelItemCount(), count - 1);
}

void tst_MainWindowPart::SuppressRebuilds()
{
    OpenWindow open;
    const QString mass = open.Shown("label_Mass");
    open.SelectFeature("flange");
    open.Trigger("action_Suppress");
    QVERIFY(open.Shown("label_Mass") != mass);
    QVERIFY(Find<QTreeWidget>(open.window, "featureTree").selectedItems()[0]->font(0).strikeOut());
    open.Trigger("action_Suppress");
    QCOMPARE(open.Shown("label_Mass"), mass);
}

void tst_MainWindowPart::AFailedRebuildMarksTheFeatureAndKeepsTheShape()
{
    OpenWindow open;
    const QString mass = open.Shown("label_Mass");
    const PostedMessages posted;
    open.SelectFeature("flange");
    Find<QTableWidget>(open.window, "fieldTable").item(2, 1)->setText("80");
    open.window.Part().WaitUntilIdle();
    const QStringList errors = posted.At(ErrorLevel);
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors[0].startsWith("The part cannot be built: flange: "), qPrintable(errors[0]));
    QVERIFY(open.Shown("label_Status").contains("last valid shape"));
    QCOMPARE(open.Shown("label_Mass"), mass);
    const auto& tree = Find<QTreeWidget>(open.window, "featureTree");
    QVERIFY(!tree.selectedItems()[0]->icon(0).isNull());
    const QAbstractItemModel& lines = *Find<QTableView>(open.window, "messageView").model();
    const auto isDimmed = [&] {
        const QModelIndex text = lines.index(0, MessageDock::TextColumn);
        return lines.match(text, Qt::DisplayRole, errors[0])
            .value(0)
            .data(Qt::ForegroundRole)
            .isValid();
    };
    QVERIFY(!isDimmed());
    open.Trigger("action_Undo");
    QVERIFY(isDimmed());
    QVERIFY(tree.selectedItems()[0]->icon(0).isNull());
    QVERIFY(open.Shown("label_Status").startsWith("Built at "));
}

void tst_MainWindowPart::AnEmptyPartIsNotAFailure()
{
    OpenWindow open;
    const PostedMessages posted;
    Find<QTreeWidget>(open.window, "featureTree").selectAll();
    open.Trigger("action_DeleteFeature");
    QCOMPARE(posted.At(ErrorLevel), QStringList());
    QCOMPARE(open.Shown("label_Status"), QString("The part has no shape yet"));
    open.Trigger("action_Undo");
    QVERIFY(open.Shown("label_Status").startsWith("Built at "));
}

void tst_MainWindowPart::AZeroDirectionIsReportedAsAWarning()
{
    OpenWindow open;
    const PostedMessages posted;
    open.user.Then([](QDialog& dialog) {
        Type(dialog, "lineEdit_zDir", "0");
        Click(dialog, "pushButton_OK");
    });
    open.user.Then([](QDialog& dialog) {
        Type(dialog, "lineEdit_xDir", "1");
        Click(dialog, "pushButton_OK");
    });
    open.Trigger("action_Add_rotate");
    QVERIFY(open.user.IsDone());
    QCOMPARE(posted.At(ErrorLevel), QStringList());
    QCOMPARE(posted.At(WarningLevel).filter("direction").size(), 1);
    QCOMPARE(open.Shown("label_BoundingBox"), QString("200 × 50 × 200 mm"));
}

TARN_HOST_TEST_MAIN(tst_MainWindowPart, HostApplication)
#include "tst_MainWindowPart.moc"
