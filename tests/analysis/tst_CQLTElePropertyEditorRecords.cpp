#include "PropertyRecord.h"
#include "TextRecorder.h"

#include <limits>
#include <memory>

// The record after OK and after Cancel.
class tst_CQLTElePropertyEditorRecords
    : public With<DialogTest, TemporaryDirectory, EmptyAnalysisStores>
{
    Q_OBJECT

private Q_SLOTS:
    void OkWritesANewRecord();
    void OkWritesTheGivenRecord();
    void OkStoresTheShownDigits();
    void AnotherTypeBecomesAShell();
    void ASolidKeepsThicknessAndWord();
    void AnyOtherTypeKeepsTheTypeOfTheRecord();
    void TheThicknessIsReadAsTyped_data();
    void TheThicknessIsReadAsTyped();
    void TheNameIsTakenAsTyped_data();
    void TheNameIsTakenAsTyped();
    void AnEmptyNameIsRefused();
    void ARefusalHasAlreadyWrittenTypeAndName();
    void ALaterOkCompletesTheRefusedRecord();
    void LeavingChangesNothing_data();
    void LeavingChangesNothing();
    void ApplyAndTheSpareSlotDoNothing();
    void OkReturnsTheTypedMaterial_data();
    void OkReturnsTheTypedMaterial();
    void TheHostMayDestroyTheEditorWhileTheBoxIsOpen();
    void MessagesAreTranslatedInTheContextOfTheClass();
};

void tst_CQLTElePropertyEditorRecords::OkWritesANewRecord()
{
    CQLTElePropertyEditor editor(nullptr);
    Then([](QDialog& shown) {
        Type(shown, "lineEdit_PropName", "P1");
        Type(shown, "lineEdit_thickness", "2.5");
        Click(shown, "pushbu_OK");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    const std::unique_ptr<CQLTElemPropDef> record(editor.GetPropData());
    QVERIFY(record != nullptr);
    QCOMPARE(Fields(*record), QStringList({"P1", "0", "", "2.5", "Shell", "2"}));
    QCOMPARE(editor.selectedPropName(), QString());
}

void tst_CQLTElePropertyEditorRecords::OkWritesTheGivenRecord()
{
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(2);
    editor.SetPropData(&record);
    Then([](QDialog& shown) {
        Type(shown, "lineEdit_PropName", "P2");
        Type(shown, "lineEdit_mat", "Bronze");
        Type(shown, "lineEdit_thickness", "4");
        Click(shown, "pushbu_OK");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QCOMPARE(editor.GetPropData(), &record);
    QCOMPARE(Fields(record), QStringList({"P2", "77", "Bronze", "4", "Shell", "2"}));
}

void tst_CQLTElePropertyEditorRecords::OkStoresTheShownDigits()
{
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(2);
    editor.SetPropData(&record);
    QCOMPARE(editor.ApplyOk(), 0);
    QCOMPARE(record.m_dThickness, 0.123457);
}

void tst_CQLTElePropertyEditorRecords::AnotherTypeBecomesAShell()
{
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(1);
    editor.SetPropData(&record);
    QCOMPARE(editor.ApplyOk(), 0);
    QCOMPARE(Fields(record), QStringList({"P1", "77", "Steel", "1", "Shell", "2"}));
}

void tst_CQLTElePropertyEditorRecords::ASolidKeepsThicknessAndWord()
{
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = {"P1", 77, "Steel", 0.5, "Word", 2};
    editor.SetPropData(&record);
    Choose(editor, "radb_Solid");
    QCOMPARE(editor.ApplyOk(), 0);
    QCOMPARE(Fields(record), QStringList({"P1", "77", "Steel", "0.5", "Word", "1"}));
}

void tst_CQLTElePropertyEditorRecords::AnyOtherTypeKeepsTheTypeOfTheRecord()
{
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = {"P1", 77, "Steel", 0.5, "Word", 9};
    editor.SetPropData(&record);
    Choose(editor, "rad_Bar");
    QCOMPARE(editor.ApplyOk(), 0);
    QCOMPARE(Fields(record), QStringList({"P1", "77", "Steel", "0.5", "Word", "9"}));
}

void tst_CQLTElePropertyEditorRecords::TheThicknessIsReadAsTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("thickness");
    NewRow("a number", "2.5", 2.5);
    NewRow("an exponent", "1e-3", 0.001);
    NewRow("negative", "-4", -4.0);
    NewRow("blanks around", " 3 ", 3.0);
    NewRow("empty", "", 0.0);
    NewRow("a word", "thick", 0.0);
    NewRow("with a unit", "2 mm", 0.0);
    NewRow("a comma", "2,5", 0.0);
    NewRow("infinite", "inf", std::numeric_limits<double>::infinity());
}

void tst_CQLTElePropertyEditorRecords::TheThicknessIsReadAsTyped()
{
    QFETCH(QString, typed);
    QFETCH(double, thickness);
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(2);
    editor.SetPropData(&record);
    Then([&](QDialog& shown) {
        Type(shown, "lineEdit_thickness", typed);
        Click(shown, "pushbu_OK");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QCOMPARE(record.m_dThickness, thickness);
}

void tst_CQLTElePropertyEditorRecords::TheNameIsTakenAsTyped_data()
{
    QTest::addColumn<QString>("name");
    NewRow("blank", " ");
    NewRow("blanks around", " P1 ");
    NewRow("Chinese", "板");
    NewRow("markup", "<b>P</b>");
}

void tst_CQLTElePropertyEditorRecords::TheNameIsTakenAsTyped()
{
    QFETCH(QString, name);
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record;
    editor.SetPropData(&record);
    Find<QLineEdit>(editor, "lineEdit_PropName").setText(name);
    QCOMPARE(editor.ApplyOk(), 0);
    QCOMPARE(record.m_strName, name);
}

void tst_CQLTElePropertyEditorRecords::AnEmptyNameIsRefused()
{
    CQLTElePropertyEditor editor(nullptr);
    Then([&](QDialog& shown) {
        Type(shown, "lineEdit_mat", "Steel");
        Type(shown, "lineEdit_thickness", "3");
        Click(shown, "pushbu_OK");
        QVERIFY(shown.isVisible());
        QCOMPARE(Text(shown, "lineEdit_mat"), "Steel");
        QCOMPARE(Text(shown, "lineEdit_thickness"), "3");
        QVERIFY(editor.GetPropData() != nullptr);
        QCOMPARE(Fields(*editor.GetPropData()), QStringList({"", "0", "", "3", "Shell", "2"}));
        QCOMPARE(editor.selectedPropName(), "Steel");
        Click(shown, "pubut_Cancel");
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QCOMPARE(Boxes(), ShownBoxes({EmptyName()}));
    const std::unique_ptr<CQLTElemPropDef> record(editor.GetPropData());
    QVERIFY(record != nullptr);
}

void tst_CQLTElePropertyEditorRecords::ARefusalHasAlreadyWrittenTypeAndName()
{
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(1);
    editor.SetPropData(&record);
    Then([](QDialog& shown) {
        Type(shown, "lineEdit_PropName", "");
        Type(shown, "lineEdit_mat", "Bronze");
        Click(shown, "pushbu_OK");
        Click(shown, "pubut_Cancel");
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QCOMPARE(Boxes(), ShownBoxes({EmptyName()}));
    QCOMPARE(Fields(record), QStringList({"", "77", "Steel", "1", "Shell", "2"}));
}

void tst_CQLTElePropertyEditorRecords::ALaterOkCompletesTheRefusedRecord()
{
    CQLTElePropertyEditor editor(nullptr);
    const CQLTElemPropDef* refused = nullptr;
    Then([&](QDialog& shown) {
        Type(shown, "lineEdit_mat", "Steel");
        Click(shown, "pushbu_OK");
        refused = editor.GetPropData();
        Type(shown, "lineEdit_PropName", "P1");
        Click(shown, "pushbu_OK");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    const std::unique_ptr<CQLTElemPropDef> record(editor.GetPropData());
    QCOMPARE(Boxes(), ShownBoxes({EmptyName()}));
    QCOMPARE(record.get(), refused);
    QCOMPARE(Fields(*record), QStringList({"P1", "0", "Steel", "1", "Shell", "2"}));
}

void tst_CQLTElePropertyEditorRecords::LeavingChangesNothing_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("given");
    for (const char* const way : {"Cancel", "Escape", "close"}) {
        QTest::addRow("a given record by %s", way) << way << true;
        QTest::addRow("no record by %s", way) << way << false;
    }
}

void tst_CQLTElePropertyEditorRecords::LeavingChangesNothing()
{
    QFETCH(QString, way);
    QFETCH(bool, given);
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(1);
    if (given)
        editor.SetPropData(&record);
    Then([&](QDialog& shown) {
        Type(shown, "lineEdit_PropName", "typed");
        Type(shown, "lineEdit_mat", "typed");
        Leave(shown, way, "pubut_Cancel");
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QCOMPARE(editor.GetPropData(), given ? &record : nullptr);
    QCOMPARE(Fields(record), Fields(Record(1)));
    QCOMPARE(editor.selectedPropName(), QString());
}

void tst_CQLTElePropertyEditorRecords::ApplyAndTheSpareSlotDoNothing()
{
    CQLTElePropertyEditor editor(nullptr);
    Find<QLineEdit>(editor, "lineEdit_PropName").setText("P1");
    Find<QPushButton>(editor, "pubut_Apply").setEnabled(true);
    Click(editor, "pubut_Apply");
    editor.on_ApplyOk();
    QVERIFY(editor.GetPropData() == nullptr);
    QCOMPARE(editor.result(), 0);
}

void tst_CQLTElePropertyEditorRecords::OkReturnsTheTypedMaterial_data()
{
    QTest::addColumn<QString>("typed");
    NewRow("a name", "nowhere to be found");
    NewRow("emptied", "");
}

void tst_CQLTElePropertyEditorRecords::OkReturnsTheTypedMaterial()
{
    QFETCH(QString, typed);
    CQLTElePropertyEditor editor(nullptr);
    CQLTElemPropDef record = Record(2);
    editor.SetPropData(&record);
    Find<QLineEdit>(editor, "lineEdit_mat").setText(typed);
    QCOMPARE(editor.ApplyOk(), 0);
    QCOMPARE(editor.selectedPropName(), typed);
    QCOMPARE(record.m_strMaterialName, typed);
}

void tst_CQLTElePropertyEditorRecords::TheHostMayDestroyTheEditorWhileTheBoxIsOpen()
{
    auto* const editor = new CQLTElePropertyEditor(nullptr);
    CQLTElemPropDef record = Record(2);
    editor->SetPropData(&record);
    Then([](QDialog& shown) {
        Type(shown, "lineEdit_PropName", "");
        Click(shown, "pushbu_OK");
    });
    User().WhileBoxOpen([&](QMessageBox&) { delete editor; });
    QCOMPARE(editor->exec(), int(QDialog::Rejected));
    QCOMPARE(Boxes(), ShownBoxes({EmptyName()}));
}

void tst_CQLTElePropertyEditorRecords::MessagesAreTranslatedInTheContextOfTheClass()
{
    const TextRecorder recorder;
    CQLTElePropertyEditor editor(nullptr);
    QCOMPARE(editor.ApplyOk(), -1);
    const std::unique_ptr<CQLTElemPropDef> record(editor.GetPropData());
    QCOMPARE(Boxes(), ShownBoxes({EmptyName()}));
    QCOMPARE(recorder.TextsOf("CQLTElePropertyEditor"),
             QStringList({"Error", "Property name is empty"}));
}

TARN_TEST_MAIN(tst_CQLTElePropertyEditorRecords)
#include "tst_CQLTElePropertyEditorRecords.moc"
