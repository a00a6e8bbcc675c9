#include "EmptyDesignStores.h"
#include "ModalDriver.h"
#include "ParameterEditor.h"
#include "ParameterEditorTable.h"

#include <QSignalSpy>

/// What the editor refuses in the "Value" column.
class tst_ParameterEditorNumbers : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void OnlyPlainNumbersAreAcceptedInTheValueColumn_data();
    void OnlyPlainNumbersAreAcceptedInTheValueColumn();
    void TheCurrentColumnDecidesAndNotTheChangedOne();
    void FillingTheTableIsNotTested();
    void NoItemIsPassedOver();
    void TheHostMayChangeTheTableBehindTheBox_data();
    void TheHostMayChangeTheTableBehindTheBox();
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
    QTest::newRow("decimal") << "2.5" << true;
    QTest::newRow("full stops") << "1.2.3" << true;
    QTest::newRow("empty") << "" << true;
    QTest::newRow("negative") << "-2" << false;
    QTest::newRow("vector") << "1,2,3" << false;
    QTest::newRow("exponent") << "1e3" << false;
    QTest::newRow("blank") << "1 " << false;
    QTest::newRow("full-width digit") << QStringLiteral("１") << false;
}

void tst_ParameterEditorNumbers::OnlyPlainNumbersAreAcceptedInTheValueColumn()
{
    const EmptyDesignStores stores;
    QFETCH(QString, text);
    QFETCH(bool, accepted);
    Store("a", "7");
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    ModalDriver user;
    user.Then([&](QDialog& shown) {
        TypeIntoCell(shown, 0, ValueColumn, text);
        QTRY_COMPARE(user.Boxes().size(), accepted ? 0 : 1);
        QTRY_COMPARE(RowTexts(shown, 0).at(ValueColumn), accepted ? text : QString());
        shown.reject();
    });
    editor.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), accepted ? QVector<ShownBox>() : QVector<ShownBox>({NumberBox}));
}

void tst_ParameterEditorNumbers::TheCurrentColumnDecidesAndNotTheChangedOne()
{
    const EmptyDesignStores stores;
    Store("a", "1");
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    ModalDriver user;
    Table(editor).item(0, ValueColumn)->setText("no number"); // no current cell
    Table(editor).setCurrentCell(0, NameColumn);
    Table(editor).item(0, ValueColumn)->setText("-1");
    QVERIFY(user.Boxes().isEmpty());
    Table(editor).setCurrentCell(0, ValueColumn);
    Table(editor).item(0, DescriptionColumn)->setText("text");
    QCOMPARE(user.Boxes(), QVector<ShownBox>({NumberBox}));
    QCOMPARE(RowTexts(editor, 0), QStringList({"a", "-1", "Scalar", "", "", ""}));
}

void tst_ParameterEditorNumbers::FillingTheTableIsNotTested()
{
    const EmptyDesignStores stores;
    Store("a", "-1");
    ParameterEditor editor(nullptr);
    QSignalSpy changed(&Table(editor), &QTableWidget::cellChanged);
    ModalDriver user;
    editor.m_Slot_RefreshGUI();
    Table(editor).setCurrentCell(0, ValueColumn);
    editor.m_Slot_Add();
    editor.m_Slot_RefreshGUI();
    editor.m_Slot_Apply();
    QVERIFY(user.Boxes().isEmpty());
    QCOMPARE(changed.count(), 0);
    QCOMPARE(RowTexts(editor, 0).constFirst(), "a");
}

void tst_ParameterEditorNumbers::NoItemIsPassedOver()
{
    const EmptyDesignStores stores;
    ParameterEditor editor(nullptr);
    editor.m_Slot_Add();
    Table(editor).setCurrentCell(0, ValueColumn);
    ModalDriver user;
    editor.m_Slot_NoNumber(nullptr);
    QVERIFY(user.Boxes().isEmpty());
}

void tst_ParameterEditorNumbers::TheHostMayChangeTheTableBehindTheBox_data()
{
    QTest::addColumn<EditorAction>("action");
    QTest::addColumn<QString>("left");
    QTest::newRow("refresh") << EditorAction([](ParameterEditor& editor) {
        editor.m_Slot_RefreshGUI();
    }) << "1 2 3";
    QTest::newRow("apply") << EditorAction([](ParameterEditor& editor) { editor.m_Slot_Apply(); })
                           << "1 x 3";
    QTest::newRow("clear the store") << EditorAction([](ParameterEditor& editor) {
        GlobalParaMeterMgr::m_nameMapParameters.clear();
        editor.m_Slot_RefreshGUI();
    }) << "";
    QTest::newRow("delete the row")
        << EditorAction([](ParameterEditor& editor) { editor.m_Slot_Delete(); }) << "1 3";
    QTest::newRow("delete the row above")
        << EditorAction([](ParameterEditor& editor) { Table(editor).removeRow(0); }) << " 3";
    QTest::newRow("take the item") << EditorAction([](ParameterEditor& editor) {
        delete Table(editor).takeItem(1, ValueColumn);
    }) << "1 - 3";
    QTest::newRow("close the editor")
        << EditorAction([](ParameterEditor& editor) { editor.reject(); }) << "1  3";
}

void tst_ParameterEditorNumbers::TheHostMayChangeTheTableBehindTheBox()
{
    const EmptyDesignStores stores;
    QFETCH(EditorAction, action);
    Store("a", "1");
    Store("b", "2");
    Store("c", "3");
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    ModalDriver user;
    user.WhileBoxOpen([&](QMessageBox&) {
        action(editor);
        QTest::qWait(20); // until what was deleted for later is gone
    });
    user.Then([&](QDialog& shown) {
        TypeIntoCell(shown, 1, ValueColumn, "x");
        QTRY_COMPARE(user.Boxes().size(), 1);
        QTest::qWait(20);
        shown.reject();
    });
    editor.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({NumberBox}));
    QStringList values;
    for (int row = 0; row < Table(editor).rowCount(); ++row) {
        const QTableWidgetItem* const item = Table(editor).item(row, ValueColumn);
        values << (item != nullptr ? item->text() : "-");
    }
    QTEST(values.join(' '), "left");
}

TARN_TEST_MAIN(tst_ParameterEditorNumbers)
#include "tst_ParameterEditorNumbers.moc"
