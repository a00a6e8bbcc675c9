#include "LocalText.h"
#include "ParameterEditorTable.h"

#include <cmath>

/// The expressions that Apply evaluates in the store.
class tst_ParameterEditorExpressions : public With<DialogTest, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void AnExpressionIsEvaluatedOverItsParameters();
    void TextsPassThroughTheLocalCodePage();
    void TheResultIsShownWithSixDigits_data();
    void TheResultIsShownWithSixDigits();
    void TheListOfNamesIsChecked_data();
    void TheListOfNamesIsChecked();
    void EveryRefusedRecordShowsItsBox();
    void ARecordWithoutExpressionIsLeftAlone();
    void ANameGivenTwiceIsOneVariable();
    void AnUnlistedNameGivesNoNumber();
    void ARecordOfAnyTypeIsEvaluated();
    void OneApplyEvaluatesATableThatIsSortedByUse();
    void ALaterExpressionHasItsValueOfThePreviousApply();
    void TheValueOfThePreviousApplyHasSixDigits();
    void ACycleIsEvaluatedOnce();
    void OnlyTheVectorTextIsTranslated();
    void TheHostMayChangeTheStoreWhileTheBoxIsOpen_data();
    void TheHostMayChangeTheStoreWhileTheBoxIsOpen();
    void TheHostMayDestroyTheEditorWhileABoxIsOpen_data();
    void TheHostMayDestroyTheEditorWhileABoxIsOpen();
};

void tst_ParameterEditorExpressions::AnExpressionIsEvaluatedOverItsParameters()
{
    ParameterEditor editor(nullptr);
    Then([](QDialog& shown) {
        Click(shown, "pushButton_Add");
        TypeIntoCell(shown, 0, NameColumn, "a");
        TypeIntoCell(shown, 0, ValueColumn, "2");
        Click(shown, "pushButton_Add");
        TypeIntoCell(shown, 1, NameColumn, "b");
        TypeIntoCell(shown, 1, ExpressionColumn, "a*3");
        TypeIntoCell(shown, 1, ExpressionParaColumn, "a");
        Click(shown, "pushButton_Apply");
        QCOMPARE(RowTexts(shown, 1), QStringList({"b", "6", "Scalar", "a*3", "a", ""}));
        shown.reject();
    });
    editor.exec();
    QVERIFY(Boxes().isEmpty());
    QCOMPARE(Stored("b").m_dValue, 6.0);
    QCOMPARE(Stored("b").m_strValue, "6");
    QCOMPARE(Stored("b").m_varRawValue, QVariant(6.0));
    QCOMPARE(Stored("b").m_strExpressPara, "a");
}

void tst_ParameterEditorExpressions::TextsPassThroughTheLocalCodePage()
{
    UseCodePage("GB18030");
    ParameterEditor editor(nullptr);
    AddRow(editor, QStringLiteral("长度"), "2");
    AddExpression(editor, "b", QStringLiteral("长度*3"), QStringLiteral("长度"));
    editor.m_Slot_Apply();
    QCOMPARE(Stored("b").m_strExpression, tarn::ToLocal8Bit(QStringLiteral("长度*3")));
    QCOMPARE(Stored("b").m_dValue, 6.0);
    QCOMPARE(RowTexts(editor, 1).at(ExpressionColumn), QStringLiteral("长度*3"));
}

void tst_ParameterEditorExpressions::TheResultIsShownWithSixDigits_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("text");
    NewRow("sum of tenths", "0.1+0.2", "0.3");
    NewRow("large", "1234567", "1.23457e+06");
    NewRow("small", "1/3000000", "3.33333e-07");
    NewRow("negative", "-2.5", "-2.5");
    NewRow("no value", "1/0", "nan");
}

void tst_ParameterEditorExpressions::TheResultIsShownWithSixDigits()
{
    QFETCH(QString, expression);
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "1");
    AddExpression(editor, "b", expression, "a");
    editor.m_Slot_Apply();
    QTEST(Stored("b").m_strValue, "text");
    QTEST(RowTexts(editor, 1).at(ValueColumn), "text");
}

void tst_ParameterEditorExpressions::TheListOfNamesIsChecked_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<ShownBoxes>("boxes");
    QTest::addColumn<QString>("value");
    NewRow("known", "a,b", ShownBoxes(), "3");
    NewRow("the record itself", "a,b,r", ShownBoxes(), "3");
    NewRow("empty part", "a,,b", ShownBoxes({EmptyNameBox}), "3");
    NewRow("two empty parts", ",a,b,", ShownBoxes({EmptyNameBox, EmptyNameBox}), "3");
    NewRow("unknown", "x1", ShownBoxes({UnknownBox("x1")}), "50");
    NewRow("the first refusal ends the check", "a,x1,,x2,12", ShownBoxes({UnknownBox("x1")}), "50");
    NewRow("empty, then unknown", ",x1", ShownBoxes({EmptyNameBox, UnknownBox("x1")}), "50");
    NewRow("a blank belongs to the name", "a, b", ShownBoxes({UnknownBox(" b")}), "50");
    NewRow("case counts", "A,b", ShownBoxes({UnknownBox("A")}), "50");
    NewRow("a number that is stored", "a,12", ShownBoxes({DigitalBox}), "50");
    NewRow("a number that is not", "a,13", ShownBoxes({UnknownBox("13")}), "50");
    NewRow("a semicolon separates nothing", "a;b", ShownBoxes({UnknownBox("a;b")}), "50");
    NewRow("empty list: no variables", "", ShownBoxes({EmptyNameBox}), "nan");
}

void tst_ParameterEditorExpressions::TheListOfNamesIsChecked()
{
    QFETCH(QString, names);
    Store("12", "12");
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "1");
    AddRow(editor, "b", "2");
    AddExpression(editor, "r", "a+b", names, "50");
    editor.m_Slot_Apply();
    QTEST(Boxes(), "boxes");
    QTEST(Stored("r").m_strValue, "value");
    QCOMPARE(Stored("r").m_varRawValue.isValid(), Stored("r").m_strValue != "50");
    QCOMPARE(Stored("r").m_strExpressPara, names);
}

void tst_ParameterEditorExpressions::EveryRefusedRecordShowsItsBox()
{
    ParameterEditor editor(nullptr);
    AddExpression(editor, "r", "1", "x", "7");
    AddExpression(editor, "s", "2", "");
    AddExpression(editor, "t", "3", "y", "8");
    AddExpression(editor, "u", "4", "r");
    editor.m_Slot_Apply();
    QCOMPARE(Boxes(), ShownBoxes({UnknownBox("x"), EmptyNameBox, UnknownBox("y")}));
    QCOMPARE(Stored("r").m_strValue, "7");
    QCOMPARE(Stored("s").m_strValue, "2");
    QCOMPARE(Stored("t").m_strValue, "8");
    QCOMPARE(Stored("u").m_strValue, "4");
}

void tst_ParameterEditorExpressions::ARecordWithoutExpressionIsLeftAlone()
{
    ParameterEditor editor(nullptr);
    AddExpression(editor, "a", "", "nowhere,,12", "2.50");
    editor.m_Slot_Apply();
    QVERIFY(Boxes().isEmpty());
    QCOMPARE(Stored("a").m_strValue, "2.50");
    QVERIFY(!Stored("a").m_varRawValue.isValid());
}

void tst_ParameterEditorExpressions::ANameGivenTwiceIsOneVariable()
{
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "2");
    AddExpression(editor, "b", "a+a", "a,a");
    editor.m_Slot_Apply();
    QVERIFY(Boxes().isEmpty());
    QCOMPARE(Stored("b").m_strValue, "4");
}

void tst_ParameterEditorExpressions::AnUnlistedNameGivesNoNumber()
{
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "1");
    AddRow(editor, "c", "2");
    AddExpression(editor, "b", "a+c", "a");
    editor.m_Slot_Apply();
    QCOMPARE(Stored("b").m_strValue, "nan");
}

void tst_ParameterEditorExpressions::ARecordOfAnyTypeIsEvaluated()
{
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "2");
    for (const char* const type : {"Bool", "Tensor", "Vector"})
        AddRow(editor, type, "1,2,3", type, "a*2", "a");
    editor.m_Slot_Apply();
    for (const char* const type : {"Bool", "Tensor", "Vector"}) {
        QCOMPARE(Stored(type).m_dValue, 4.0);
        QCOMPARE(Stored(type).m_strValue, "4");
    }
    QCOMPARE(Stored("Vector").m_dY, 2.0);
}

void tst_ParameterEditorExpressions::OneApplyEvaluatesATableThatIsSortedByUse()
{
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "1");
    for (int i = 1; i < 5; ++i) {
        const QString before = i == 1 ? "a" : "b" + QString::number(i - 1);
        AddExpression(editor, "b" + QString::number(i), before + "*2", before);
    }
    editor.m_Slot_Apply();
    QCOMPARE(Stored("b4").m_dValue, 16.0);
}

void tst_ParameterEditorExpressions::ALaterExpressionHasItsValueOfThePreviousApply()
{
    ParameterEditor editor(nullptr);
    AddExpression(editor, "first", "last+1", "last");
    AddExpression(editor, "last", "a*2", "a", "30");
    AddRow(editor, "a", "5");
    editor.m_Slot_Apply();
    QCOMPARE(Stored("first").m_dValue, 31.0);
    QCOMPARE(Stored("last").m_dValue, 10.0);
    editor.m_Slot_Apply();
    QCOMPARE(Stored("first").m_dValue, 11.0);
}

void tst_ParameterEditorExpressions::TheValueOfThePreviousApplyHasSixDigits()
{
    ParameterEditor editor(nullptr);
    AddExpression(editor, "scalar", "third", "third");
    AddExpression(editor, "tensor", "t", "t");
    AddRow(editor, "a", "1");
    AddExpression(editor, "third", "a/3", "a");
    AddRow(editor, "t", "", "Tensor", "a/3", "a");
    editor.m_Slot_Apply();
    QCOMPARE(Stored("third").m_dValue, 1.0 / 3.0);
    editor.m_Slot_Apply();
    QCOMPARE(Stored("scalar").m_dValue, 0.333333);
    // The row of any other type is written again without a value.
    QCOMPARE(Stored("tensor").m_dValue, 0.0);
    QCOMPARE(Stored("t").m_dValue, 1.0 / 3.0);
}

void tst_ParameterEditorExpressions::ACycleIsEvaluatedOnce()
{
    ParameterEditor editor(nullptr);
    AddExpression(editor, "a", "b+1", "b", "10");
    AddExpression(editor, "b", "a+1", "a", "20");
    AddExpression(editor, "self", "self*2", "self", "3");
    editor.m_Slot_Apply();
    QVERIFY(Boxes().isEmpty());
    QCOMPARE(Stored("a").m_dValue, 21.0);
    QCOMPARE(Stored("b").m_dValue, 22.0);
    QCOMPARE(Stored("self").m_dValue, 6.0);
}

void tst_ParameterEditorExpressions::OnlyTheVectorTextIsTranslated()
{
    const Marker translator;
    Store("12", "1");
    ParameterEditor editor(nullptr);
    AddExpression(editor, "a", "1", "");
    AddExpression(editor, "b", "1", "x");
    AddExpression(editor, "c", "1", "12");
    editor.m_Slot_Add();
    Combo(editor, 3).setCurrentIndex(1);
    editor.m_Slot_Apply();
    QCOMPARE(Boxes(), ShownBoxes({ShownBox::Notice("ParameterEditor:Error",
                                                   "ParameterEditor:invalid coordinate type"),
                                  EmptyNameBox, UnknownBox("x"), DigitalBox}));
}

using StoreAction = void (*)(ParameterEditor&);
Q_DECLARE_METATYPE(StoreAction)

void tst_ParameterEditorExpressions::TheHostMayChangeTheStoreWhileTheBoxIsOpen_data()
{
    QTest::addColumn<StoreAction>("action");
    QTest::addColumn<QString>("left");
    NewRow("clear the store",
           StoreAction([](ParameterEditor&) { GlobalParaMeterMgr::m_nameMapParameters.clear(); }),
           "");
    NewRow("remove the record", StoreAction([](ParameterEditor&) {
               GlobalParaMeterMgr::m_nameMapParameters.erase("r");
           }),
           "a=2 s=6");
    NewRow("remove the next record", StoreAction([](ParameterEditor&) {
               GlobalParaMeterMgr::m_nameMapParameters.erase("s");
           }),
           "a=2 r=4");
    NewRow("remove a name that was checked", StoreAction([](ParameterEditor&) {
               GlobalParaMeterMgr::m_nameMapParameters.erase("a");
               GlobalParaMeterMgr::m_nameMapParameters.erase("s");
           }),
           "r=1");
    NewRow("replace the expression",
           StoreAction([](ParameterEditor&) { Stored("r").m_strExpression = "nowhere"; }),
           "a=2 r=1 s=6");
    NewRow("make it a plain value", StoreAction([](ParameterEditor&) {
               GlobalParaMeterMgr::m_nameMapParameters.erase("r");
               Store("r", "9");
           }),
           "a=2 s=6 r=9");
    NewRow("replace the list",
           StoreAction([](ParameterEditor&) { Stored("r").m_strExpressPara = "nowhere"; }),
           "a=2 r=1 s=6");
    NewRow("change a value", StoreAction([](ParameterEditor&) { Stored("a").m_dValue = 3.0; }),
           "a=2 r=6 s=9");
    NewRow("refresh the table",
           StoreAction([](ParameterEditor& editor) { editor.m_Slot_RefreshGUI(); }), "a=2 r=4 s=6");
    NewRow("delete all rows",
           StoreAction([](ParameterEditor& editor) { Table(editor).setRowCount(0); }),
           "a=2 r=4 s=6");
    NewRow("close the editor", StoreAction([](ParameterEditor& editor) { editor.reject(); }),
           "a=2 r=4 s=6");
}

void tst_ParameterEditorExpressions::TheHostMayChangeTheStoreWhileTheBoxIsOpen()
{
    QFETCH(StoreAction, action);
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "2");
    AddExpression(editor, "r", "a*2", "a,", "1");
    AddExpression(editor, "s", "a*3", "a", "1");
    User().WhileBoxOpen([&](QMessageBox&) {
        action(editor);
        QCoreApplication::processEvents();
    });
    Then([](QDialog& shown) { Click(shown, "pushButton_OK"); });
    editor.exec();
    QCOMPARE(Boxes(), ShownBoxes({EmptyNameBox}));
    QStringList left;
    for (const auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters)
        left << name + "=" + record.m_strValue;
    QTEST(left.join(' '), "left");
    QCOMPARE(Table(editor).rowCount(), left.size());
}

void tst_ParameterEditorExpressions::TheHostMayDestroyTheEditorWhileABoxIsOpen_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("button");
    NewRow("Vector, Apply", "Vector", "", "pushButton_Apply");
    NewRow("Vector, OK", "Vector", "", "pushButton_OK");
    NewRow("expression, Apply", "Scalar", "x", "pushButton_Apply");
    NewRow("expression, OK", "Scalar", "x", "pushButton_OK");
}

void tst_ParameterEditorExpressions::TheHostMayDestroyTheEditorWhileABoxIsOpen()
{
    QFETCH(QString, type);
    QFETCH(QString, names);
    QFETCH(QString, button);
    auto* const editor = new ParameterEditor(nullptr);
    AddExpression(*editor, "r", "1", names, "1");
    Combo(*editor, 0).setCurrentText(type);
    User().WhileBoxOpen([editor](QMessageBox&) { delete editor; });
    Click(*editor, button.toLatin1().constData());
    QCOMPARE(Boxes(), ShownBoxes({names.isEmpty() ? VectorBox : UnknownBox(names)}));
}

TARN_TEST_MAIN(tst_ParameterEditorExpressions)
#include "tst_ParameterEditorExpressions.moc"
