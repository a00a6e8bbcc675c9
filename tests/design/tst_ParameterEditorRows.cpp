#include "ParameterEditorTable.h"

#include <cmath>

/// The rows that Apply writes into the store.
class tst_ParameterEditorRows : public With<DialogTest, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void AVectorTakesItsComponentsFromThreeParts_data();
    void AVectorTakesItsComponentsFromThreeParts();
    void AVectorIsRefusedUnlessItHasThreeParts_data();
    void AVectorIsRefusedUnlessItHasThreeParts();
    void ARefusedVectorStopsTheWritingOfRows();
    void ATypedVectorEndsAtItsEmptyCell();
    void AScalarTextThatIsNotANumberIsZero_data();
    void AScalarTextThatIsNotANumberIsZero();
    void RowsAreWrittenAsTyped();
    void ARowWithoutItemsIsWrittenUnderTheEmptyName();
    void ARewrittenRecordIsReplacedAsAWhole();
    void TheHostMayChangeTheTableDuringTheRefusalOfAVector();
};

void tst_ParameterEditorRows::AVectorTakesItsComponentsFromThreeParts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("z");
    NewRow("numbers", "1,2.5,3", 1.0, 2.5, 3.0);
    NewRow("a name", "1,len,3", 1.0, 5.0, 3.0);
    NewRow("a name of an earlier row", "above,0,0", 8.0, 0.0, 0.0);
    NewRow("a name of a later row", "below,0,0", 0.0, 0.0, 0.0);
    NewRow("unknown names", "nowhere,-1,1e3", 0.0, 0.0, 0.0);
    NewRow("empty parts", ",,", 0.0, 0.0, 0.0);
    NewRow("two full stops", "1.2.3,.,1.", 0.0, 0.0, 1.0);
    NewRow("blanks belong to the name", " len,len , 7", 0.0, 0.0, 0.0);
    NewRow("case counts", "LEN,Len,len", 0.0, 0.0, 5.0);
    NewRow("a raw value", "raw,0,0", 4.0, 0.0, 0.0);
}

void tst_ParameterEditorRows::AVectorTakesItsComponentsFromThreeParts()
{
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

void tst_ParameterEditorRows::AVectorIsRefusedUnlessItHasThreeParts_data()
{
    QTest::addColumn<QString>("text");
    NewRow("empty", "");
    NewRow("one", "1");
    NewRow("two", "1,2");
    NewRow("four", "1,2,3,4");
    NewRow("a comma at the end", "1,2,3,");
    NewRow("full-width commas", QStringLiteral("1，2，3"));
}

void tst_ParameterEditorRows::AVectorIsRefusedUnlessItHasThreeParts()
{
    QFETCH(QString, text);
    ParameterEditor editor(nullptr);
    AddRow(editor, "v", text, "Vector");
    editor.m_Slot_Apply();
    QCOMPARE(Boxes(), ShownBoxes({VectorBox}));
    QVERIFY(StoredNames().isEmpty());
}

void tst_ParameterEditorRows::ARefusedVectorStopsTheWritingOfRows()
{
    Store("v", "1,2,3", 2);
    Store("late", "1");
    ParameterEditor editor(nullptr);
    AddRow(editor, "early", "2");
    AddRow(editor, "v", "1,2", "Vector");
    AddRow(editor, "late", "7");
    AddRow(editor, "u", "1", "Vector");
    editor.m_Slot_Apply();
    QCOMPARE(Boxes(), ShownBoxes({VectorBox}));
    QCOMPARE(StoredNames(), QStringList({"v", "late", "early"}));
    QCOMPARE(Stored("early").m_dValue, 2.0);
    QCOMPARE(Stored("late").m_dValue, 1.0);
    // The table shows what is stored, not what was typed.
    QCOMPARE(Table(editor).rowCount(), 3);
    QCOMPARE(RowTexts(editor, 0), QStringList({"v", "1,2,3", "Vector", "", "", ""}));
    QCOMPARE(RowTexts(editor, 1).at(ValueColumn), "1");
}

void tst_ParameterEditorRows::ATypedVectorEndsAtItsEmptyCell()
{
    ParameterEditor editor(nullptr);
    Then([](QDialog& shown) {
        Click(shown, "pushButton_Add");
        TypeIntoCell(shown, 0, NameColumn, "v");
        Combo(shown, 0).setCurrentText("Vector");
        TypeIntoCell(shown, 0, ValueColumn, "1,2,3");
        Click(shown, "pushButton_OK");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QCOMPARE(Boxes(),
             ShownBoxes({ShownBox::Notice("Notify", "Please Input a digital number"), VectorBox}));
    QVERIFY(StoredNames().isEmpty());
}

void tst_ParameterEditorRows::AScalarTextThatIsNotANumberIsZero_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    NewRow("number", "2.50", 2.5);
    NewRow("negative", "-2", -2.0);
    NewRow("exponent", "1e3", 1000.0);
    NewRow("letters", "abc", 0.0);
    NewRow("comma", "1,5", 0.0);
    NewRow("two full stops", "1.2.3", 0.0);
    NewRow("empty", "", 0.0);
}

void tst_ParameterEditorRows::AScalarTextThatIsNotANumberIsZero()
{
    QFETCH(QString, text);
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", text);
    editor.m_Slot_Apply();
    QTEST(Stored("a").m_dValue, "value");
    QCOMPARE(Stored("a").m_strValue, text);
    QVERIFY(!Stored("a").m_varRawValue.isValid());
}

void tst_ParameterEditorRows::RowsAreWrittenAsTyped()
{
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "1");
    AddRow(editor, "", "2");
    AddRow(editor, "a", "3");
    AddRow(editor, " a", "4");
    AddExpression(editor, "bad", "1 +* (", "a", "5");
    editor.m_Slot_Apply();
    QVERIFY(Boxes().isEmpty());
    QCOMPARE(StoredNames(), QStringList({"a", "", " a", "bad"}));
    QCOMPARE(Stored("a").m_strValue, "3");
    QCOMPARE(Stored("").m_strValue, "2");
    QCOMPARE(Stored(" a").m_strValue, "4");
    QCOMPARE(Stored("bad").m_strExpression, std::string("1 +* ("));
    // An expression without a value gives NaN, and reading its text again gives NaN.
    QVERIFY(std::isnan(Stored("bad").m_dValue));
    QVERIFY(std::isnan(Stored("bad").m_varRawValue.toDouble()));
    QCOMPARE(Stored("bad").m_strValue, "nan");
    editor.m_Slot_Apply();
    QCOMPARE(RowTexts(editor, 3).at(ValueColumn), "nan");
}

void tst_ParameterEditorRows::ARowWithoutItemsIsWrittenUnderTheEmptyName()
{
    ParameterEditor editor(nullptr);
    Table(editor).setRowCount(2);
    editor.m_Slot_Apply();
    QCOMPARE(StoredNames(), QStringList({""}));
    QCOMPARE(Stored("").m_nType, int(ParametersDef::ScalarType));
    QCOMPARE(RowTexts(editor, 0), QStringList({"", "", "Scalar", "", "", ""}));
}

void tst_ParameterEditorRows::ARewrittenRecordIsReplacedAsAWhole()
{
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

void tst_ParameterEditorRows::TheHostMayChangeTheTableDuringTheRefusalOfAVector()
{
    ParameterEditor editor(nullptr);
    AddRow(editor, "a", "2");
    AddRow(editor, "v", "", "Vector");
    User().WhileBoxOpen([&](QMessageBox&) {
        Table(editor).setRowCount(0);
        GlobalParaMeterMgr::m_nameMapParameters.clear();
    });
    editor.m_Slot_Apply();
    QCOMPARE(Boxes(), ShownBoxes({VectorBox}));
    QVERIFY(StoredNames().isEmpty());
    QCOMPARE(Table(editor).rowCount(), 0);
}

TARN_TEST_MAIN(tst_ParameterEditorRows)
#include "tst_ParameterEditorRows.moc"
