#include "DialogFacts.h"
#include "EmptyDesignStores.h"
#include "ModalDriver.h"
#include "ParameterEditor.h"
#include "ParameterEditorTable.h"

#include <QGridLayout>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

/// The form, the buttons and the rows.
class tst_ParameterEditor : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheWindowIsAsDesigned();
    void TheButtonsAreAsDesigned_data();
    void TheButtonsAreAsDesigned();
    void TheSpacerFillsTheRestOfTheButtonRow();
    void TheHeadersAreAsDesigned();
    void TabFollowsReadingOrder();
    void SlotsAndSignalStandInTheirOrder();
    void TheTableOpensEmpty();
    void RefreshShowsTheStoreInItsOrder();
    void RefreshKeepsHeadersAndAdaptsTheRows();
    void TheTypeCodeChoosesTheComboEntry_data();
    void TheTypeCodeChoosesTheComboEntry();
    void TheComboEntryGivesTheTypeCode_data();
    void TheComboEntryGivesTheTypeCode();
    void AnAddedRowIsAnEmptyScalar();
    void DeleteRemovesTheCurrentRowOfTheTableOnly();
    void DeleteWithoutACurrentRowRemovesNothing();
    void ApplyWritesRebuildsAndTellsTheHostAndMayBeRepeated();
    void OkAppliesAndAcceptsAlsoAfterARefusal();
    void CancelWritesNothingAndRejects_data();
    void CancelWritesNothingAndRejects();
    void TheHostMayDestroyTheEditorWhenItIsTold_data();
    void TheHostMayDestroyTheEditorWhenItIsTold();
    void PressingACellOpensNothingAndChangesNothing();
    void EnterInACellPressesNoButton();
    void EscapeLeaves();
    void TheTextsAreTranslatable();
};

void tst_ParameterEditor::TheWindowIsAsDesigned()
{
    const ParameterEditor editor(nullptr);
    QVERIFY(qobject_cast<const QDialog*>(&editor) != nullptr);
    QCOMPARE(ParameterEditor::staticMetaObject.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(editor.objectName(), "ParameterEditor");
    QCOMPARE(editor.windowTitle(), "ParameterEditor");
    QCOMPARE(editor.size(), QSize(651, 300));
    QCOMPARE(editor.font().family(), QStringLiteral("微软雅黑"));
    QCOMPARE(editor.font().pointSize(), QApplication::font().pointSize());
    QVERIFY(!editor.isModal());
    QVERIFY(!editor.testAttribute(Qt::WA_DeleteOnClose));
    const auto* const layout = qobject_cast<QGridLayout*>(editor.layout());
    QCOMPARE(layout->objectName(), "gridLayout");
    QCOMPARE(layout->horizontalSpacing(), 6);
    QCOMPARE(layout->verticalSpacing(), 6);
    QCOMPARE(layout->contentsMargins(), QMargins(11, 11, 11, 11));

    QWidget parent;
    QCOMPARE(ParameterEditor(&parent).parentWidget(), &parent);
}

void tst_ParameterEditor::TheButtonsAreAsDesigned_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("column");
    QTest::newRow("Add") << "pushButton_Add"
                         << "Add" << 0;
    QTest::newRow("Delete") << "pushButton_Del"
                            << "Delete" << 1;
    QTest::newRow("Apply") << "pushButton_Apply"
                           << "Apply" << 2;
    QTest::newRow("OK") << "pushButton_OK"
                        << "OK" << 3;
    QTest::newRow("Cancel") << "pushButton_Cancel"
                            << "Cancel" << 4;
}

void tst_ParameterEditor::TheButtonsAreAsDesigned()
{
    QFETCH(QString, name);
    QFETCH(int, column);
    const ParameterEditor editor(nullptr);
    auto& button = Find<QPushButton>(editor, qPrintable(name));
    QTEST(button.text(), "text");
    QVERIFY(!button.autoDefault());
    QVERIFY(!button.isDefault());
    auto* const layout = qobject_cast<QGridLayout*>(editor.layout());
    QCOMPARE(layout->itemAtPosition(1, column)->widget(), &button);
}

void tst_ParameterEditor::TheSpacerFillsTheRestOfTheButtonRow()
{
    const ParameterEditor editor(nullptr);
    auto* const layout = qobject_cast<QGridLayout*>(editor.layout());
    QCOMPARE(layout->columnCount(), 6);
    const QSpacerItem* const spacer = layout->itemAtPosition(1, 5)->spacerItem();
    QCOMPARE(spacer->sizeHint(), QSize(277, 20));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    for (int column = 0; column < 6; ++column)
        QCOMPARE(layout->itemAtPosition(0, column)->widget(), &Table(editor));
}

void tst_ParameterEditor::TheHeadersAreAsDesigned()
{
    const ParameterEditor editor(nullptr);
    QStringList headers;
    for (int column = 0; column < Table(editor).columnCount(); ++column)
        headers << Table(editor).horizontalHeaderItem(column)->text();
    QCOMPARE(headers,
             QStringList({"Name", "Value", "Type", "Expression", "Expression Para", "Desciption"}));
}

void tst_ParameterEditor::TabFollowsReadingOrder()
{
    const EmptyDesignStores stores;
    ParameterEditor editor(nullptr);
    QCOMPARE(TabOrder(editor),
             QStringList({"tableWidget", "pushButton_Add", "pushButton_Del", "pushButton_Apply",
                          "pushButton_OK", "pushButton_Cancel"}));
}

void tst_ParameterEditor::SlotsAndSignalStandInTheirOrder()
{
    QCOMPARE(OwnMethods(ParameterEditor::staticMetaObject),
             QStringList({"public signal m_Signal_Apply()", "public slot m_Slot_Apply()",
                          "public slot m_Slot_Delete()", "public slot m_Slot_Add()",
                          "public slot m_Slot_OK()", "public slot m_Slot_Cancel()",
                          "public slot m_Slot_ProcessExp()", "public slot m_Slot_RefreshGUI()",
                          "public slot m_Slot_NoNumber(QTableWidgetItem*)"}));
}

void tst_ParameterEditor::TheTableOpensEmpty()
{
    const EmptyDesignStores stores;
    Store("a", "1");
    const ParameterEditor editor(nullptr);
    QCOMPARE(Table(editor).rowCount(), 0);
}

void tst_ParameterEditor::RefreshShowsTheStoreInItsOrder()
{
    const EmptyDesignStores stores;
    Store("b", "2.50");
    Store("a", "1,2,3", 2);
    Stored("b").m_strExpression = QStringLiteral("长度*2").toLocal8Bit().toStdString();
    Stored("b").m_strExpressPara = QStringLiteral("长度");
    Stored("b").m_strDescription = "the second";
    ParameterEditor editor(nullptr);
    QVERIFY(QMetaObject::invokeMethod(&editor, "m_Slot_RefreshGUI"));
    QCOMPARE(Table(editor).rowCount(), 2);
    QCOMPARE(RowTexts(editor, 0), QStringList({"b", "2.50", "Scalar", QStringLiteral("长度*2"),
                                               QStringLiteral("长度"), "the second"}));
    QCOMPARE(RowTexts(editor, 1), QStringList({"a", "1,2,3", "Vector", "", "", ""}));
}

void tst_ParameterEditor::RefreshKeepsHeadersAndAdaptsTheRows()
{
    const EmptyDesignStores stores;
    for (const char* const name : {"a", "b", "c"})
        Store(name, "1");
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    GlobalParaMeterMgr::m_nameMapParameters.erase("b");
    editor.m_Slot_RefreshGUI();
    QCOMPARE(Table(editor).rowCount(), 2);
    QCOMPARE(RowTexts(editor, 1).constFirst(), "c");
    GlobalParaMeterMgr::m_nameMapParameters.clear();
    editor.m_Slot_RefreshGUI();
    QCOMPARE(Table(editor).rowCount(), 0);
    QCOMPARE(Table(editor).horizontalHeaderItem(DescriptionColumn)->text(), "Desciption");
}

void tst_ParameterEditor::TheTypeCodeChoosesTheComboEntry_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("entry");
    QTest::newRow("Bool") << 0 << "Bool";
    QTest::newRow("Scalar") << 1 << "Scalar";
    QTest::newRow("Vector") << 2 << "Vector";
    QTest::newRow("Tensor") << 3 << "Tensor";
    QTest::newRow("too large") << 4 << "Scalar";
    QTest::newRow("negative") << -1 << "Scalar";
}

void tst_ParameterEditor::TheTypeCodeChoosesTheComboEntry()
{
    const EmptyDesignStores stores;
    QFETCH(int, code);
    Store("a", "1", code);
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    QTEST(Combo(editor, 0).currentText(), "entry");
}

void tst_ParameterEditor::TheComboEntryGivesTheTypeCode_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("code");
    QTest::addColumn<double>("value");
    QTest::newRow("Scalar") << 0 << 1 << 7.5;
    QTest::newRow("Tensor") << 2 << 3 << 0.0;
    QTest::newRow("Bool") << 3 << 0 << 0.0;
    QTest::newRow("none") << -1 << 1 << 0.0;
    QTest::newRow("an entry that does not belong there") << 4 << 1 << 0.0;
    QTest::newRow("no combo box") << -2 << 1 << 0.0;
}

void tst_ParameterEditor::TheComboEntryGivesTheTypeCode()
{
    const EmptyDesignStores stores;
    QFETCH(int, index);
    ParameterEditor editor(nullptr);
    editor.m_Slot_Add();
    Table(editor).item(0, NameColumn)->setText("a");
    Table(editor).item(0, ValueColumn)->setText("7.5");
    if (index == -2) {
        Table(editor).removeCellWidget(0, TypeColumn);
    } else {
        Combo(editor, 0).addItem("a fifth");
        Combo(editor, 0).setCurrentIndex(index);
    }
    editor.m_Slot_Apply();
    QTEST(Stored("a").m_nType, "code");
    QTEST(Stored("a").m_dValue, "value");
    QCOMPARE(Stored("a").m_strValue, "7.5");
    QVERIFY(!Stored("a").m_varRawValue.isValid());
}

void tst_ParameterEditor::AnAddedRowIsAnEmptyScalar()
{
    const EmptyDesignStores stores;
    ParameterEditor editor(nullptr);
    editor.show();
    Click(editor, "pushButton_Add");
    Click(editor, "pushButton_Add");
    QCOMPARE(Table(editor).rowCount(), 2);
    QCOMPARE(RowTexts(editor, 1), QStringList({"", "", "Scalar", "", "", ""}));
    QVERIFY(Table(editor).item(1, TypeColumn) == nullptr);
    const QComboBox& combo = Combo(editor, 1);
    QStringList entries;
    for (int i = 0; i < combo.count(); ++i) {
        entries << combo.itemText(i);
        QVERIFY(combo.itemIcon(i).isNull());
        QVERIFY(!combo.itemData(i).isValid());
    }
    QCOMPARE(entries, QStringList({"Scalar", "Vector", "Tensor", "Bool"}));
    QVERIFY(!combo.isEditable());
    QVERIFY(GlobalParaMeterMgr::m_nameMapParameters.empty());
}

void tst_ParameterEditor::DeleteRemovesTheCurrentRowOfTheTableOnly()
{
    const EmptyDesignStores stores;
    for (const char* const name : {"a", "b", "c"})
        Store(name, "1");
    Stored("c").m_nType = ParametersDef::BoolType;
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    editor.show();
    Table(editor).setCurrentCell(1, NameColumn);
    Click(editor, "pushButton_Del");
    QCOMPARE(Table(editor).rowCount(), 2);
    QCOMPARE(RowTexts(editor, 1), QStringList({"c", "1", "Bool", "", "", ""}));
    QCOMPARE(int(GlobalParaMeterMgr::m_nameMapParameters.count("b")), 1);

    Click(editor, "pushButton_Apply");
    QCOMPARE(Table(editor).rowCount(), 3);
    QCOMPARE(RowTexts(editor, 1).constFirst(), "b");
    QCOMPARE(Stored("c").m_nType, int(ParametersDef::BoolType));
}

void tst_ParameterEditor::DeleteWithoutACurrentRowRemovesNothing()
{
    const EmptyDesignStores stores;
    Store("a", "1");
    ParameterEditor editor(nullptr);
    editor.m_Slot_Delete();
    editor.m_Slot_RefreshGUI();
    editor.m_Slot_Delete();
    QCOMPARE(Table(editor).rowCount(), 1);
}

void tst_ParameterEditor::ApplyWritesRebuildsAndTellsTheHostAndMayBeRepeated()
{
    const EmptyDesignStores stores;
    ParameterEditor editor(nullptr);
    editor.show();
    int rowsWhenTold = -1;
    connect(&editor, &ParameterEditor::m_Signal_Apply,
            [&] { rowsWhenTold = Table(editor).rowCount(); });
    QSignalSpy spy(&editor, SIGNAL(m_Signal_Apply()));
    Store("stored", "4");
    Click(editor, "pushButton_Add");
    TypeIntoCell(editor, 0, NameColumn, "a");
    TypeIntoCell(editor, 0, ValueColumn, "2.5");
    TypeIntoCell(editor, 0, DescriptionColumn, "free text");
    Click(editor, "pushButton_Apply");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(rowsWhenTold, 2);
    QCOMPARE(RowTexts(editor, 0).constFirst(), "stored");
    QCOMPARE(Stored("a").m_strName, "a");
    QCOMPARE(Stored("a").m_dValue, 2.5);
    QCOMPARE(Stored("a").m_strDescription, "free text");
    QVERIFY(editor.isVisible());

    TypeIntoCell(editor, 1, ValueColumn, "3");
    Click(editor, "pushButton_Apply");
    QCOMPARE(spy.count(), 2);
    QCOMPARE(Stored("a").m_dValue, 3.0);
    editor.close();
}

void tst_ParameterEditor::OkAppliesAndAcceptsAlsoAfterARefusal()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    ParameterEditor editor(nullptr);
    QSignalSpy spy(&editor, SIGNAL(m_Signal_Apply()));
    bool openWhenTold = false;
    connect(&editor, &ParameterEditor::m_Signal_Apply, [&] { openWhenTold = editor.isVisible(); });
    user.Then([](QDialog& shown) {
        Click(shown, "pushButton_Add");
        Combo(shown, 0).setCurrentText("Vector");
        Click(shown, "pushButton_OK");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(),
             QVector<ShownBox>({ShownBox::Notice("Error", "invalid coordinate type")}));
    QCOMPARE(spy.count(), 1);
    QVERIFY(openWhenTold);
    QCOMPARE(Table(editor).rowCount(), 0);
}

void tst_ParameterEditor::CancelWritesNothingAndRejects_data()
{
    QTest::addColumn<bool>("visible");
    QTest::addColumn<int>("times");
    QTest::newRow("visible, told by the slot and by closing") << true << 2;
    QTest::newRow("hidden") << false << 1;
}

void tst_ParameterEditor::CancelWritesNothingAndRejects()
{
    const EmptyDesignStores stores;
    QFETCH(bool, visible);
    Store("a", "1");
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    QSignalSpy rejected(&editor, SIGNAL(rejected()));
    QSignalSpy finished(&editor, SIGNAL(finished(int)));
    QSignalSpy applied(&editor, SIGNAL(m_Signal_Apply()));
    const auto cancel = [](QDialog& shown) {
        Table(shown).item(0, ValueColumn)->setText("9");
        Click(shown, "pushButton_Cancel");
    };
    ModalDriver user;
    if (visible) {
        user.Then(cancel);
        QCOMPARE(editor.exec(), int(QDialog::Rejected));
        QCOMPARE(finished.count(), 1);
    } else {
        cancel(editor);
    }
    QVERIFY(!editor.isVisible());
    QTEST(rejected.count(), "times");
    QCOMPARE(applied.count(), 0);
    QCOMPARE(Stored("a").m_strValue, "1");
}

void tst_ParameterEditor::TheHostMayDestroyTheEditorWhenItIsTold_data()
{
    QTest::addColumn<QByteArray>("button");
    for (const char* const button : {"pushButton_Apply", "pushButton_OK", "pushButton_Cancel"})
        QTest::newRow(button) << QByteArray(button);
}

void tst_ParameterEditor::TheHostMayDestroyTheEditorWhenItIsTold()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, button);
    const QPointer<ParameterEditor> editor = new ParameterEditor(nullptr);
    const auto destroy = [editor] {
        delete editor.data();
    };
    connect(editor, &ParameterEditor::m_Signal_Apply, destroy);
    connect(editor, &ParameterEditor::rejected, destroy);
    editor->show();
    Click(*editor, button);
    QVERIFY(editor == nullptr);
}

void tst_ParameterEditor::PressingACellOpensNothingAndChangesNothing()
{
    const EmptyDesignStores stores;
    Store("a", "1");
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    editor.show();
    QSignalSpy pressed(&Table(editor), &QTableWidget::cellPressed);
    QTableWidget& table = Table(editor);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      table.visualItemRect(table.item(0, NameColumn)).center());
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(RowTexts(editor, 0), QStringList({"a", "1", "Scalar", "", "", ""}));
    editor.close();
}

void tst_ParameterEditor::EnterInACellPressesNoButton()
{
    const EmptyDesignStores stores;
    Store("a", "1");
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    QSignalSpy applied(&editor, SIGNAL(m_Signal_Apply()));
    editor.show();
    TypeIntoCell(editor, 0, NameColumn, "b");
    for (const int key : {Qt::Key_Enter, Qt::Key_Return}) {
        QTest::keyClick(&Table(editor), Qt::Key(key));
        QTest::keyClick(&Combo(editor, 0), Qt::Key(key));
    }
    QVERIFY(editor.isVisible());
    QCOMPARE(applied.count(), 0);
    QCOMPARE(Table(editor).rowCount(), 1);
    QCOMPARE(RowTexts(editor, 0).constFirst(), "b");
    editor.close();
}

void tst_ParameterEditor::EscapeLeaves()
{
    ModalDriver user;
    ParameterEditor editor(nullptr);
    user.Then([](QDialog& shown) { QTest::keyClick(&Table(shown), Qt::Key_Escape); });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
}

void tst_ParameterEditor::TheTextsAreTranslatable()
{
    const Marker translator;
    ParameterEditor editor(nullptr);
    editor.m_Slot_Add();
    QCOMPARE(editor.windowTitle(), "ParameterEditor:ParameterEditor");
    QCOMPARE(Find<QPushButton>(editor, "pushButton_Del").text(), "ParameterEditor:Delete");
    QCOMPARE(Table(editor).horizontalHeaderItem(5)->text(), "ParameterEditor:Desciption");
    QCOMPARE(Combo(editor, 0).itemText(3), "ParameterEditor:Bool");
    QCOMPARE(ParameterEditor::tr("text"), "ParameterEditor:text");

    Table(editor).setCurrentCell(0, ValueColumn);
    ModalDriver user;
    Table(editor).item(0, ValueColumn)->setText("x");
    QCOMPARE(user.Boxes(),
             QVector<ShownBox>({ShownBox::Notice(
                 "ParameterEditor:Notify", "ParameterEditor:Please Input a digital number")}));
}

TARN_TEST_MAIN(tst_ParameterEditor)
#include "tst_ParameterEditor.moc"
