#include "ParameterEditorTable.h"

#include <QSignalSpy>

/// The texts that the editor refuses in the "Value" column.
class tst_ParameterEditorNumbers : public With<DialogTest, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void OnlyPlainNumbersAreAcceptedInTheValueColumn_data();
    void OnlyPlainNumbersAreAcceptedInTheValueColumn();
    void TheCurrentColumnCountsAndNotTheChangedOne();
    void FillingTheTableIsNotChecked();
    void AMissingItemIsIgnored();
    void TheHostMayChangeTheTableWhileTheBoxIsOpen_data();
    void TheHostMayChangeTheTableWhileTheBoxIsOpen();
};

namespace {

const ShownBox NumberBox = ShownBox::Notice("Notify", "Please Input a digital number");

} // namespace

using EditorAction = void (*)(ParameterEditor&);
Q_DECLARE_METATYPE(EditorAction)

void tst_ParameterEditorNumbers::OnlyPlainNumbersAreAcceptedInTheValueColumn_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("accepted");
    NewRow("decimal", "2.5", true);
    NewRow("full stops", "1.2.3", true);
    NewRow("empty", "", true);
    NewRow("negative", "-2", false);
    NewRow("vector", "1,2,3", false);
    NewRow("exponent", "1e3", false);
    NewRow("blank", "1 ", false);
    NewRow("full-width digit", QStringLiteral("１"), false);
}

void tst_ParameterEditorNumbers::OnlyPlainNumbersAreAcceptedInTheValueColumn()
{
    QFETCH(QString, text);
    QFETCH(bool, accepted);
    Store("a", "7");
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    Then([&](QDialog& shown) {
        TypeIntoCell(shown, 0, ValueColumn, text);
        QTRY_COMPARE(Boxes().size(), accepted ? 0 : 1);
        QTRY_COMPARE(RowTexts(shown, 0).at(ValueColumn), accepted ? text : QString());
        shown.reject();
    });
    editor.exec();
    QCOMPARE(Boxes(), accepted ? ShownBoxes() : ShownBoxes({NumberBox}));
}

void tst_ParameterEditorNumbers::TheCurrentColumnCountsAndNotTheChangedOne()
{
    Store("a", "1");
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    Table(editor).item(0, ValueColumn)->setText("no number"); // no current cell
    Table(editor).setCurrentCell(0, NameColumn);
    Table(editor).item(0, ValueColumn)->setText("-1");
    QVERIFY(Boxes().isEmpty());
    Table(editor).setCurrentCell(0, ValueColumn);
    Table(editor).item(0, DescriptionColumn)->setText("text");
    QCOMPARE(Boxes(), ShownBoxes({NumberBox}));
    QCOMPARE(RowTexts(editor, 0), QStringList({"a", "-1", "Scalar", "", "", ""}));
}

void tst_ParameterEditorNumbers::FillingTheTableIsNotChecked()
{
    Store("a", "-1");
    ParameterEditor editor(nullptr);
    QSignalSpy changed(&Table(editor), &QTableWidget::cellChanged);
    editor.m_Slot_RefreshGUI();
    Table(editor).setCurrentCell(0, ValueColumn);
    editor.m_Slot_Add();
    editor.m_Slot_RefreshGUI();
    editor.m_Slot_Apply();
    QVERIFY(Boxes().isEmpty());
    QCOMPARE(changed.count(), 0);
    QCOMPARE(RowTexts(editor, 0).constFirst(), "a");
}

void tst_ParameterEditorNumbers::AMissingItemIsIgnored()
{
    ParameterEditor editor(nullptr);
    editor.m_Slot_Add();
    Table(editor).setCurrentCell(0, ValueColumn);
    editor.m_Slot_NoNumber(nullptr);
    QVERIFY(Boxes().isEmpty());
}

void tst_ParameterEditorNumbers::TheHostMayChangeTheTableWhileTheBoxIsOpen_data()
{
    QTest::addColumn<EditorAction>("action");
    QTest::addColumn<QString>("left");
    NewRow("refresh", EditorAction([](ParameterEditor& editor) { editor.m_Slot_RefreshGUI(); }),
           "1 2 3");
    NewRow("apply", EditorAction([](ParameterEditor& editor) { editor.m_Slot_Apply(); }), "1 x 3");
    NewRow("clear the store", EditorAction([](ParameterEditor& editor) {
               GlobalParaMeterMgr::m_nameMapParameters.clear();
               editor.m_Slot_RefreshGUI();
           }),
           "");
    NewRow("delete the row", EditorAction([](ParameterEditor& editor) { editor.m_Slot_Delete(); }),
           "1 3");
    NewRow("delete the row above",
           EditorAction([](ParameterEditor& editor) { Table(editor).removeRow(0); }), " 3");
    NewRow("take the item", EditorAction([](ParameterEditor& editor) {
               delete Table(editor).takeItem(1, ValueColumn);
           }),
           "1 - 3");
    NewRow("close the editor", EditorAction([](ParameterEditor& editor) { editor.reject(); }),
           "1  3");
}

void tst_ParameterEditorNumbers::TheHostMayChangeTheTableWhileTheBoxIsOpen()
{
    QFETCH(EditorAction, action);
    Store("a", "1");
    Store("b", "2");
    Store("c", "3");
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    User().WhileBoxOpen([&](QMessageBox&) {
        action(editor);
        DeliverEvents(); // deletes the old widgets
    });
    Then([&](QDialog& shown) {
        TypeIntoCell(shown, 1, ValueColumn, "x");
        QTRY_COMPARE(Boxes().size(), 1);
        DeliverEvents();
        shown.reject();
    });
    editor.exec();
    QCOMPARE(Boxes(), ShownBoxes({NumberBox}));
    QTEST(ColumnTexts(Table(editor), ValueColumn).join(' '), "left");
}

TARN_TEST_MAIN(tst_ParameterEditorNumbers)
#include "tst_ParameterEditorNumbers.moc"
