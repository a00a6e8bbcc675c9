#include "FormTest.h"
#include "ParameterEditorTable.h"

#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

// The form, the buttons and the rows.

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "ParameterEditor";
    form.title = "ParameterEditor";
    form.size = {651, 300};
    form.lines = {
        "QTableWidget tableWidget in ParameterEditor at gridLayout[0,0 1x6]: ",
        "QPushButton pushButton_Add in ParameterEditor at gridLayout[1,0]: Add",
        "QPushButton pushButton_Del in ParameterEditor at gridLayout[1,1]: Delete",
        "QPushButton pushButton_Apply in ParameterEditor at gridLayout[1,2]: Apply",
        "QPushButton pushButton_OK in ParameterEditor at gridLayout[1,3]: OK",
        "QPushButton pushButton_Cancel in ParameterEditor at gridLayout[1,4]: Cancel",
        "QGridLayout gridLayout: spacing 6, margins 11 11 11 11",
        "QSpacerItem at gridLayout[1,5]: 277x20, horizontal",
    };
    form.tabOrder = {"tableWidget",      "pushButton_Add", "pushButton_Del",
                     "pushButton_Apply", "pushButton_OK",  "pushButton_Cancel"};
    form.methods = {"public signal m_Signal_Apply()",
                    "public slot m_Slot_Apply()",
                    "public slot m_Slot_Delete()",
                    "public slot m_Slot_Add()",
                    "public slot m_Slot_OK()",
                    "public slot m_Slot_Cancel()",
                    "public slot m_Slot_ProcessExp()",
                    "public slot m_Slot_RefreshGUI()",
                    "public slot m_Slot_NoNumber(QTableWidgetItem*)"};
    form.hasFont = true;
    return form;
}

} // namespace

class tst_ParameterEditor : public With<FormTest<ParameterEditor>, EmptyDesignStores>
{
    Q_OBJECT

public:
    tst_ParameterEditor()
        : With(Form())
    {
    }

private Q_SLOTS:
    void TheHeadersAreAsDesigned();
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
    void ApplyWritesAndNotifiesTheHostEachTime();
    void TabFollowsTheRowsAfterApply();
    void OkAppliesAndAcceptsEvenAfterARefusal();
    void CancelWritesNothingAndRejects_data();
    void CancelWritesNothingAndRejects();
    void TheHostMayDestroyTheEditorOnASignal_data();
    void TheHostMayDestroyTheEditorOnASignal();
    void PressingACellOpensNothingAndChangesNothing();
    void EnterInACellPressesNoButton();
    void TheTextsAreTranslatable();
};

void tst_ParameterEditor::TheHeadersAreAsDesigned()
{
    QCOMPARE(HeaderTexts(Table(ParameterEditor(nullptr))),
             QStringList({"Name", "Value", "Type", "Expression", "Expression Para", "Desciption"}));
}

void tst_ParameterEditor::TheTableOpensEmpty()
{
    Store("a", "1");
    const ParameterEditor editor(nullptr);
    QCOMPARE(Table(editor).rowCount(), 0);
}

void tst_ParameterEditor::RefreshShowsTheStoreInItsOrder()
{
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
    NewRow("Bool", 0, "Bool");
    NewRow("Scalar", 1, "Scalar");
    NewRow("Vector", 2, "Vector");
    NewRow("Tensor", 3, "Tensor");
    NewRow("too large", 4, "Scalar");
    NewRow("negative", -1, "Scalar");
}

void tst_ParameterEditor::TheTypeCodeChoosesTheComboEntry()
{
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
    NewRow("Scalar", 0, 1, 7.5);
    NewRow("Tensor", 2, 3, 0.0);
    NewRow("Bool", 3, 0, 0.0);
    NewRow("none", -1, 1, 0.0);
    NewRow("an entry that does not belong there", 4, 1, 0.0);
    NewRow("no combo box", -2, 1, 0.0);
}

void tst_ParameterEditor::TheComboEntryGivesTheTypeCode()
{
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
    Store("a", "1");
    ParameterEditor editor(nullptr);
    editor.m_Slot_Delete();
    editor.m_Slot_RefreshGUI();
    editor.m_Slot_Delete();
    QCOMPARE(Table(editor).rowCount(), 1);
}

void tst_ParameterEditor::ApplyWritesAndNotifiesTheHostEachTime()
{
    ParameterEditor editor(nullptr);
    editor.show();
    int rowsWhenNotified = -1;
    connect(&editor, &ParameterEditor::m_Signal_Apply,
            [&] { rowsWhenNotified = Table(editor).rowCount(); });
    QSignalSpy spy(&editor, SIGNAL(m_Signal_Apply()));
    Store("stored", "4");
    Click(editor, "pushButton_Add");
    TypeIntoCell(editor, 0, NameColumn, "a");
    TypeIntoCell(editor, 0, ValueColumn, "2.5");
    TypeIntoCell(editor, 0, DescriptionColumn, "free text");
    Click(editor, "pushButton_Apply");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(rowsWhenNotified, 2);
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

void tst_ParameterEditor::TabFollowsTheRowsAfterApply()
{
    for (const char* const name : {"a", "b", "c", "d"})
        Store(name, "1");
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    editor.show();
    Table(editor).setCurrentCell(1, NameColumn);
    Click(editor, "pushButton_Del");
    Click(editor, "pushButton_Add");
    Click(editor, "pushButton_Apply");
    QCOMPARE(Table(editor).rowCount(), 5);
    const QWidget* combo = &Combo(editor, 0);
    for (int row = 1; row < 5; ++row) {
        combo = combo->nextInFocusChain();
        QCOMPARE(combo, &Combo(editor, row));
    }
}

void tst_ParameterEditor::OkAppliesAndAcceptsEvenAfterARefusal()
{
    ParameterEditor editor(nullptr);
    QSignalSpy spy(&editor, SIGNAL(m_Signal_Apply()));
    bool openWhenNotified = false;
    connect(&editor, &ParameterEditor::m_Signal_Apply,
            [&] { openWhenNotified = editor.isVisible(); });
    Then([](QDialog& shown) {
        Click(shown, "pushButton_Add");
        Combo(shown, 0).setCurrentText("Vector");
        Click(shown, "pushButton_OK");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QCOMPARE(Boxes(), ShownBoxes({ShownBox::Notice("Error", "invalid coordinate type")}));
    QCOMPARE(spy.count(), 1);
    QVERIFY(openWhenNotified);
    QCOMPARE(Table(editor).rowCount(), 0);
}

void tst_ParameterEditor::CancelWritesNothingAndRejects_data()
{
    QTest::addColumn<bool>("visible");
    QTest::addColumn<int>("times");
    NewRow("visible, reported by the slot and by closing", true, 2);
    NewRow("hidden", false, 1);
}

void tst_ParameterEditor::CancelWritesNothingAndRejects()
{
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
    if (visible) {
        Then(cancel);
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

void tst_ParameterEditor::TheHostMayDestroyTheEditorOnASignal_data()
{
    QTest::addColumn<QByteArray>("button");
    for (const char* const button : {"pushButton_Apply", "pushButton_OK", "pushButton_Cancel"})
        NewRow(button, QByteArray(button));
}

void tst_ParameterEditor::TheHostMayDestroyTheEditorOnASignal()
{
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
    Table(editor).item(0, ValueColumn)->setText("x");
    QCOMPARE(Boxes(),
             ShownBoxes({ShownBox::Notice("ParameterEditor:Notify",
                                          "ParameterEditor:Please Input a digital number")}));
}

TARN_TEST_MAIN(tst_ParameterEditor)
#include "tst_ParameterEditor.moc"
