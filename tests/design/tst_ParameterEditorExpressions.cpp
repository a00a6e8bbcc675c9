#include "EmptyDesignStores.h"
#include "LocalText.h"
#include "ModalDriver.h"
#include "ParameterEditor.h"
#include "ParameterEditorTable.h"

#include <cmath>

/// What Apply writes into the store and computes there.
class tst_ParameterEditorExpressions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AVectorTakesItsComponentsFromThreeParts_data();
    void AVectorTakesItsComponentsFromThreeParts();
    void AVectorIsRefusedUnlessItHasThreeParts_data();
    void AVectorIsRefusedUnlessItHasThreeParts();
    void ARefusedVectorStopsTheWritingOfRows();
    void ATypedVectorEndsAtItsEmptyCell();
    void AScalarTextThatIsNoNumberIsZero_data();
    void AScalarTextThatIsNoNumberIsZero();
    void RowsAreWrittenAsTheyStand();
    void ARowWithoutItemsIsWrittenUnderTheEmptyName();
    void ARewrittenRecordIsReplacedAsAWhole();
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
    void OneApplySettlesATableWrittenFromTopToBottom();
    void ALaterExpressionIsSeenWithItsPreviousApply();
    void TheValueOfThePreviousApplyHasSixDigits();
    void ACycleIsEvaluatedOnce();
    void OnlyTheVectorTextIsTranslated();
    void TheHostMayChangeTheStoreBehindTheBox_data();
    void TheHostMayChangeTheStoreBehindTheBox();
    void TheHostMayChangeTheTableBehindTheRefusalOfAVector();
    void TheHostMayDestroyTheEditorBehindABox_data();
    void TheHostMayDestroyTheEditorBehindABox();
};

namespace {

const ShownBox VectorBox = ShownBox::Notice("Error", "invalid coordinate type");
const ShownBox EmptyNameBox =
    ShownBox::Notice("Error", "Please input parameters name for expression");
const ShownBox DigitalBox = ShownBox::Notice("Error", "Digital is not allowed as paramter");

ShownBox UnknownBox(const QString& name)
{
    return ShownBox::Notice("Error", "Not find parameter: " + name);
}

using Boxes = QVector<ShownBox>;

/// Appends a row as the user fills it in; no cell is current, so the number test is not in the way.
void AddRow(ParameterEditor& editor, const QString& name, const QString& value,
            const QString& type = "Scalar", const QString& expression = QString(),
            const QString& names = QString())
{
    editor.m_Slot_Add();
    const int row = Table(editor).rowCount() - 1;
    Table(editor).item(row, NameColumn)->setText(name);
    Table(editor).item(row, ValueColumn)->setText(value);
    Combo(editor, row).setCurrentText(type);
    Table(editor).item(row, ExpressionColumn)->setText(expression);
    Table(editor).item(row, ExpressionParaColumn)->setText(names);
}

void AddExpression(ParameterEditor& editor, const QString& name, const QString& expression,
                   const QString& names, const QString& value = QString())
{
    AddRow(editor, name, value, "Scalar", expression, names);
}

QStringList StoredNames()
{
    QStringList names;
    for (const auto& entry : GlobalParaMeterMgr::m_nameMapParameters)
        names << entry.first;
    return names;
}

} // namespace

Q_DECLARE_METATYPE(Boxes)

void tst_ParameterEditorExpressions::AVectorTakesItsComponentsFromThreeParts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("z");
    QTest::newRow("numbers") << "1,2.5,3" << 1.0 << 2.5 << 3.0;
    QTest::newRow("a name") << "1,len,3" << 1.0 << 5.0 << 3.0;
    QTest::newRow("a name of an earlier row") << "above,0,0" << 8.0 << 0.0 << 0.0;
    QTest::newRow("a name of a later row") << "below,0,0" << 0.0 << 0.0 << 0.0;
    QTest::newRow("unknown names") << "nowhere,-1,1e3" << 0.0 << 0.0 << 0.0;
    QTest::newRow("empty parts") << ",," << 0.0 << 0.0 << 0.0;
    QTest::newRow("two full stops") << "1.2.3,.,1." << 0.0 << 0.0 << 1.0;
    QTest::newRow("blanks belong to the name") << " len,len , 7" << 0.0 << 0.0 << 0.0;
    QTest::newRow("case counts") << "LEN,Len,len" << 0.0 << 0.0 << 5.0;
    QTest::newRow("a raw value") << "raw,0,0" << 4.0 << 0.0 << 0.0;
}

void tst_ParameterEditorExpressions::AVectorTakesItsComponentsFromThreeParts()
{
    const EmptyDesignStores stores;
    QFETCH(QString, text);
    Store("len", "5");
    Store("raw", "1");
    Stored("raw").m_varRawValue = 4.0;
    ParameterEditor editor(nullptr);
    AddRow(editor, "above", "8");
    AddRow(editor, "v", text, "Vector");
    AddRow(editor, "below", "9");
    editor.m_Slot_Apply();
    QTEST(Stored("v").m_dX, "x");
    QTEST(Stored("v").m_dY, "y");
    QTEST(Stored("v").m_dZ, "z");
    QCOMPARE(Stored("v").m_nType, int(ParametersDef::VectorType));
    QCOMPARE(Stored("v").m_strValue, text);
    QCOMPARE(Stored("v").m_dValue, 0.0);
    QVERIFY(!Stored("v").m_varRawValue.isValid());
}

void tst_ParameterEditorExpressions::AVectorIsRefusedUnlessItHasThreeParts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("one") << "1";
    QTest::newRow("two") << "1,2";
    QTest::newRow("four") << "1,2,3,4";
    QTest::newRow("a comma at the end") << "1,2,3,";
    QTest::newRow("full-width commas") << QStringLiteral("1，2，3");
}

void tst_ParameterEditorExpressions::AVectorIsRefusedUnlessItHasThreeParts()
{
    const EmptyDesignStores stores;
    QFETCH(QString, text);
    ModalDriver user;
    ParameterEditor editor(nullptr);
    AddRow(editor, "v", text, "Vector");
    editor.m_Slot_Apply();
    QCOMPARE(user.Boxes(), Boxes({VectorBox}));
    QVERIFY(StoredNames().isEmpty());
}

void tst_ParameterEditorExpressions::ARefusedVectorStopsTheWritingOfRows()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    Store("v", "1,2,3", 2);
    Store("late", "1");
    ParameterEditor editor(nullptr);
    AddRow(editor, "early", "2");
    AddRow(editor, "v", "1,2", "Vector");
    AddRow(editor, "late", "7");
    AddRow(editor, "u", "1", "Vector");
    editor.m_Slot_Apply();
    QCOMPARE(user.Boxes(), Boxes({VectorBox}));
    QCOMPARE(StoredNames(), QStringList({"v", "late", "early"}));
    QCOMPARE(Stored("early").m_dValue, 2.0);
    QCOMPARE(Stored("late").m_dValue, 1.0);
    // The table shows what is stored, and no longer what was typed.
    QCOMPARE(Table(editor).rowCount(), 3);
    QCOMPARE(RowTexts(editor, 0), QStringList({"v", "1,2,3", "Vector", "", "", ""}));
    QCOMPARE(RowTexts(editor, 1).at(ValueColumn), "1");
}

void tst_ParameterEditorExpressions::ATypedVectorEndsAtItsEmptyCell()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    ParameterEditor editor(nullptr);
    user.Then([](QDialog& shown) {
        Click(shown, "pushButton_Add");
        TypeIntoCell(shown, 0, NameColumn, "v");
        Combo(shown, 0).setCurrentText("Vector");
        TypeIntoCell(shown, 0, ValueColumn, "1,2,3");
        Click(shown, "pushButton_OK");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(),
             Boxes({ShownBox::Notice("Notify", "Please Input a digital number"), VectorBox}));
    QVERIFY(StoredNames().isEmpty());
}

void tst_ParameterEditorExpressions::AScalarTextThatIsNoNumberIsZero_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("number") << "2.50" << 2.5;
    QTest::newRow("negative") << "-2" << -2.0;
    QTest::newRow("exponent") << "1e3" << 1000.0;
    QTest::newRow("letters") << "abc" << 0.0;
    QTest::newRow("comma") << "1,5" << 0.0;
    QTest::newRow("two full stops") << "1.2.3" << 0.0;
    QTest::newRow("empty") << "" << 0.0;
}

void tst_ParameterEditorExpressions::AScalarTextThatIsNoNumberIsZero()
{
    const EmptyDesignStores stores;
    QFETCH(QString, text);
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", text);
    editor.m_Slot_Apply();
    QTEST(Stored("a").m_dValue, "value");
    QCOMPARE(Stored("a").m_strValue, text);
    QVERIFY(!Stored("a").m_varRawValue.isValid());
}

void tst_ParameterEditorExpressions::RowsAreWrittenAsTheyStand()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "1");
    AddRow(editor, "", "2");
    AddRow(editor, "a", "3");
    AddRow(editor, " a", "4");
    AddExpression(editor, "bad", "1 +* (", "a", "5");
    editor.m_Slot_Apply();
    QVERIFY(user.Boxes().isEmpty());
    QCOMPARE(StoredNames(), QStringList({"a", "", " a", "bad"}));
    QCOMPARE(Stored("a").m_strValue, "3");
    QCOMPARE(Stored("").m_strValue, "2");
    QCOMPARE(Stored(" a").m_strValue, "4");
    QCOMPARE(Stored("bad").m_strExpression, std::string("1 +* ("));
    // What has no value is no number, and stays none when the text is read again.
    QVERIFY(std::isnan(Stored("bad").m_dValue));
    QVERIFY(std::isnan(Stored("bad").m_varRawValue.toDouble()));
    QCOMPARE(Stored("bad").m_strValue, "nan");
    editor.m_Slot_Apply();
    QCOMPARE(RowTexts(editor, 3).at(ValueColumn), "nan");
}

void tst_ParameterEditorExpressions::ARowWithoutItemsIsWrittenUnderTheEmptyName()
{
    const EmptyDesignStores stores;
    ParameterEditor editor(nullptr);
    Table(editor).setRowCount(2);
    editor.m_Slot_Apply();
    QCOMPARE(StoredNames(), QStringList({""}));
    QCOMPARE(Stored("").m_nType, int(ParametersDef::ScalarType));
    QCOMPARE(RowTexts(editor, 0), QStringList({"", "", "Scalar", "", "", ""}));
}

void tst_ParameterEditorExpressions::ARewrittenRecordIsReplacedAsAWhole()
{
    const EmptyDesignStores stores;
    Store("a", "1", 2);
    Stored("a").m_dX = 9.0;
    Stored("a").m_varRawValue = 9.0;
    Stored("a").m_strDescription = "before";
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "2");
    Table(editor).item(0, DescriptionColumn)->setText("after");
    editor.m_Slot_Apply();
    QCOMPARE(Stored("a").m_dX, 0.0);
    QVERIFY(!Stored("a").m_varRawValue.isValid());
    QCOMPARE(Stored("a").m_strDescription, "after");
    QCOMPARE(StoredNames().size(), 1);
}

void tst_ParameterEditorExpressions::AnExpressionIsEvaluatedOverItsParameters()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    ParameterEditor editor(nullptr);
    user.Then([](QDialog& shown) {
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
    QVERIFY(user.IsDone());
    QVERIFY(user.Boxes().isEmpty());
    QCOMPARE(Stored("b").m_dValue, 6.0);
    QCOMPARE(Stored("b").m_strValue, "6");
    QCOMPARE(Stored("b").m_varRawValue, QVariant(6.0));
    QCOMPARE(Stored("b").m_strExpressPara, "a");
}

void tst_ParameterEditorExpressions::TextsPassThroughTheLocalCodePage()
{
    const EmptyDesignStores stores;
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
    QTest::newRow("sum of tenths") << "0.1+0.2"
                                   << "0.3";
    QTest::newRow("large") << "1234567"
                           << "1.23457e+06";
    QTest::newRow("small") << "1/3000000"
                           << "3.33333e-07";
    QTest::newRow("negative") << "-2.5"
                              << "-2.5";
    QTest::newRow("no value") << "1/0"
                              << "nan";
}

void tst_ParameterEditorExpressions::TheResultIsShownWithSixDigits()
{
    const EmptyDesignStores stores;
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
    QTest::addColumn<Boxes>("boxes");
    QTest::addColumn<QString>("value");
    QTest::newRow("known") << "a,b" << Boxes() << "3";
    QTest::newRow("the record itself") << "a,b,r" << Boxes() << "3";
    QTest::newRow("empty part") << "a,,b" << Boxes({EmptyNameBox}) << "3";
    QTest::newRow("two empty parts") << ",a,b," << Boxes({EmptyNameBox, EmptyNameBox}) << "3";
    QTest::newRow("unknown") << "x1" << Boxes({UnknownBox("x1")}) << "50";
    QTest::newRow("the first refusal ends the check")
        << "a,x1,,x2,12" << Boxes({UnknownBox("x1")}) << "50";
    QTest::newRow("empty, then unknown")
        << ",x1" << Boxes({EmptyNameBox, UnknownBox("x1")}) << "50";
    QTest::newRow("a blank belongs to the name") << "a, b" << Boxes({UnknownBox(" b")}) << "50";
    QTest::newRow("case counts") << "A,b" << Boxes({UnknownBox("A")}) << "50";
    QTest::newRow("a number that is stored") << "a,12" << Boxes({DigitalBox}) << "50";
    QTest::newRow("a number that is not") << "a,13" << Boxes({UnknownBox("13")}) << "50";
    QTest::newRow("a semicolon separates nothing") << "a;b" << Boxes({UnknownBox("a;b")}) << "50";
    QTest::newRow("empty list: no variables") << "" << Boxes({EmptyNameBox}) << "nan";
}

void tst_ParameterEditorExpressions::TheListOfNamesIsChecked()
{
    const EmptyDesignStores stores;
    QFETCH(QString, names);
    Store("12", "12");
    ModalDriver user;
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "1");
    AddRow(editor, "b", "2");
    AddExpression(editor, "r", "a+b", names, "50");
    editor.m_Slot_Apply();
    QTEST(user.Boxes(), "boxes");
    QTEST(Stored("r").m_strValue, "value");
    QCOMPARE(Stored("r").m_varRawValue.isValid(), Stored("r").m_strValue != "50");
    QCOMPARE(Stored("r").m_strExpressPara, names);
}

void tst_ParameterEditorExpressions::EveryRefusedRecordShowsItsBox()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    ParameterEditor editor(nullptr);
    AddExpression(editor, "r", "1", "x", "7");
    AddExpression(editor, "s", "2", "");
    AddExpression(editor, "t", "3", "y", "8");
    AddExpression(editor, "u", "4", "r");
    editor.m_Slot_Apply();
    QCOMPARE(user.Boxes(), Boxes({UnknownBox("x"), EmptyNameBox, UnknownBox("y")}));
    QCOMPARE(Stored("r").m_strValue, "7");
    QCOMPARE(Stored("s").m_strValue, "2");
    QCOMPARE(Stored("t").m_strValue, "8");
    QCOMPARE(Stored("u").m_strValue, "4");
}

void tst_ParameterEditorExpressions::ARecordWithoutExpressionIsLeftAlone()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    ParameterEditor editor(nullptr);
    AddExpression(editor, "a", "", "nowhere,,12", "2.50");
    editor.m_Slot_Apply();
    QVERIFY(user.Boxes().isEmpty());
    QCOMPARE(Stored("a").m_strValue, "2.50");
    QVERIFY(!Stored("a").m_varRawValue.isValid());
}

void tst_ParameterEditorExpressions::ANameGivenTwiceIsOneVariable()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "2");
    AddExpression(editor, "b", "a+a", "a,a");
    editor.m_Slot_Apply();
    QVERIFY(user.Boxes().isEmpty());
    QCOMPARE(Stored("b").m_strValue, "4");
}

void tst_ParameterEditorExpressions::AnUnlistedNameGivesNoNumber()
{
    const EmptyDesignStores stores;
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "1");
    AddRow(editor, "c", "2");
    AddExpression(editor, "b", "a+c", "a");
    editor.m_Slot_Apply();
    QCOMPARE(Stored("b").m_strValue, "nan");
}

void tst_ParameterEditorExpressions::ARecordOfAnyTypeIsEvaluated()
{
    const EmptyDesignStores stores;
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

void tst_ParameterEditorExpressions::OneApplySettlesATableWrittenFromTopToBottom()
{
    const EmptyDesignStores stores;
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "1");
    for (int i = 1; i < 5; ++i) {
        const QString before = i == 1 ? "a" : "b" + QString::number(i - 1);
        AddExpression(editor, "b" + QString::number(i), before + "*2", before);
    }
    editor.m_Slot_Apply();
    QCOMPARE(Stored("b4").m_dValue, 16.0);
}

void tst_ParameterEditorExpressions::ALaterExpressionIsSeenWithItsPreviousApply()
{
    const EmptyDesignStores stores;
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
    const EmptyDesignStores stores;
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
    // The row of any other type is written anew without a value.
    QCOMPARE(Stored("tensor").m_dValue, 0.0);
    QCOMPARE(Stored("t").m_dValue, 1.0 / 3.0);
}

void tst_ParameterEditorExpressions::ACycleIsEvaluatedOnce()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    ParameterEditor editor(nullptr);
    AddExpression(editor, "a", "b+1", "b", "10");
    AddExpression(editor, "b", "a+1", "a", "20");
    AddExpression(editor, "self", "self*2", "self", "3");
    editor.m_Slot_Apply();
    QVERIFY(user.Boxes().isEmpty());
    QCOMPARE(Stored("a").m_dValue, 21.0);
    QCOMPARE(Stored("b").m_dValue, 22.0);
    QCOMPARE(Stored("self").m_dValue, 6.0);
}

void tst_ParameterEditorExpressions::OnlyTheVectorTextIsTranslated()
{
    const EmptyDesignStores stores;
    const Marker translator;
    Store("12", "1");
    ModalDriver user;
    ParameterEditor editor(nullptr);
    AddExpression(editor, "a", "1", "");
    AddExpression(editor, "b", "1", "x");
    AddExpression(editor, "c", "1", "12");
    editor.m_Slot_Add();
    Combo(editor, 3).setCurrentIndex(1);
    editor.m_Slot_Apply();
    QCOMPARE(user.Boxes(), Boxes({ShownBox::Notice("ParameterEditor:Error",
                                                   "ParameterEditor:invalid coordinate type"),
                                  EmptyNameBox, UnknownBox("x"), DigitalBox}));
}

using StoreAction = void (*)(ParameterEditor&);
Q_DECLARE_METATYPE(StoreAction)

void tst_ParameterEditorExpressions::TheHostMayChangeTheStoreBehindTheBox_data()
{
    QTest::addColumn<StoreAction>("action");
    QTest::addColumn<QString>("left");
    QTest::newRow("clear the store")
        << StoreAction([](ParameterEditor&) { GlobalParaMeterMgr::m_nameMapParameters.clear(); })
        << "";
    QTest::newRow("remove the record")
        << StoreAction([](ParameterEditor&) { GlobalParaMeterMgr::m_nameMapParameters.erase("r"); })
        << "a=2 s=6";
    QTest::newRow("remove the next record")
        << StoreAction([](ParameterEditor&) { GlobalParaMeterMgr::m_nameMapParameters.erase("s"); })
        << "a=2 r=4";
    QTest::newRow("remove a name that was checked") << StoreAction([](ParameterEditor&) {
        GlobalParaMeterMgr::m_nameMapParameters.erase("a");
        GlobalParaMeterMgr::m_nameMapParameters.erase("s");
    }) << "r=1";
    QTest::newRow("replace the expression")
        << StoreAction([](ParameterEditor&) { Stored("r").m_strExpression = "nowhere"; })
        << "a=2 r=1 s=6";
    QTest::newRow("make it a plain value") << StoreAction([](ParameterEditor&) {
        GlobalParaMeterMgr::m_nameMapParameters.erase("r");
        Store("r", "9");
    }) << "a=2 s=6 r=9";
    QTest::newRow("replace the list")
        << StoreAction([](ParameterEditor&) { Stored("r").m_strExpressPara = "nowhere"; })
        << "a=2 r=1 s=6";
    QTest::newRow("change a value")
        << StoreAction([](ParameterEditor&) { Stored("a").m_dValue = 3.0; }) << "a=2 r=6 s=9";
    QTest::newRow("refresh the table")
        << StoreAction([](ParameterEditor& editor) { editor.m_Slot_RefreshGUI(); })
        << "a=2 r=4 s=6";
    QTest::newRow("delete all rows")
        << StoreAction([](ParameterEditor& editor) { Table(editor).setRowCount(0); })
        << "a=2 r=4 s=6";
    QTest::newRow("close the editor")
        << StoreAction([](ParameterEditor& editor) { editor.reject(); }) << "a=2 r=4 s=6";
}

void tst_ParameterEditorExpressions::TheHostMayChangeTheStoreBehindTheBox()
{
    const EmptyDesignStores stores;
    QFETCH(StoreAction, action);
    ModalDriver user;
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "2");
    AddExpression(editor, "r", "a*2", "a,", "1");
    AddExpression(editor, "s", "a*3", "a", "1");
    user.WhileBoxOpen([&](QMessageBox&) {
        action(editor);
        QCoreApplication::processEvents();
    });
    user.Then([](QDialog& shown) { Click(shown, "pushButton_OK"); });
    editor.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), Boxes({EmptyNameBox}));
    QStringList left;
    for (const auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters)
        left << name + "=" + record.m_strValue;
    QTEST(left.join(' '), "left");
    QCOMPARE(Table(editor).rowCount(), left.size());
}

void tst_ParameterEditorExpressions::TheHostMayChangeTheTableBehindTheRefusalOfAVector()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "2");
    AddRow(editor, "v", "", "Vector");
    user.WhileBoxOpen([&](QMessageBox&) {
        Table(editor).setRowCount(0);
        GlobalParaMeterMgr::m_nameMapParameters.clear();
    });
    editor.m_Slot_Apply();
    QCOMPARE(user.Boxes(), Boxes({VectorBox}));
    QVERIFY(StoredNames().isEmpty());
    QCOMPARE(Table(editor).rowCount(), 0);
}

// clang-format off
void tst_ParameterEditorExpressions::TheHostMayDestroyTheEditorBehindABox_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("button");
    QTest::newRow("Vector, Apply")     << "Vector" << ""  << "pushButton_Apply";
    QTest::newRow("Vector, OK")        << "Vector" << ""  << "pushButton_OK";
    QTest::newRow("expression, Apply") << "Scalar" << "x" << "pushButton_Apply";
    QTest::newRow("expression, OK")    << "Scalar" << "x" << "pushButton_OK";
}
// clang-format on

void tst_ParameterEditorExpressions::TheHostMayDestroyTheEditorBehindABox()
{
    const EmptyDesignStores stores;
    QFETCH(QString, type);
    QFETCH(QString, names);
    QFETCH(QString, button);
    ModalDriver user;
    auto* const editor = new ParameterEditor(nullptr);
    AddExpression(*editor, "r", "1", names, "1");
    Combo(*editor, 0).setCurrentText(type);
    user.WhileBoxOpen([editor](QMessageBox&) { delete editor; });
    Click(*editor, button.toLatin1().constData());
    QCOMPARE(user.Boxes(), Boxes({names.isEmpty() ? VectorBox : UnknownBox(names)}));
    QVERIFY(user.IsDone());
}

TARN_TEST_MAIN(tst_ParameterEditorExpressions)
#include "tst_ParameterEditorExpressions.moc"
