#include "MaterialFiles.h"
#include "PropertyManager.h"

#include <QFile>
#include <QLineEdit>

// "Add" and "Edit".
class tst_ELementPropGUIEdits : public With<DialogTest, TemporaryDirectory, EmptyAnalysisStores>
{
    Q_OBJECT

private Q_SLOTS:
    void AddEntersARowAndARecord();
    void TheFirstRowAddedIsSelectedOnCyan();
    void AddOfANameThatIsHeldEntersASecondRow();
    void AddCancelledChangesNothing_data();
    void AddCancelledChangesNothing();
    void OnlyAddedPropertiesAreReturned();
    void AddedPropertiesAreWrittenAndReadBack();
    void TheWholeChainRunsByClicks();
    void AnUnsavedRenameReappearsWithTheOldName();
    void EditNeedsARow();
    void EditNeedsARecord();
    void EditShowsTheRecord();
    void EditChangesTheRecordAndNumbersTheHeaders();
    void EditRenames();
    void AnEditReplacesThePropertyOfItsNewName();
    void EditCancelledKeepsHeadersAndRecord();
    void CancellingARefusedEditKeepsBothProperties();
    void TheHostMayDestroyTheManagerWhileTheEditorIsOpen_data();
    void TheHostMayDestroyTheManagerWhileTheEditorIsOpen();
};

void tst_ELementPropGUIEdits::AddEntersARowAndARecord()
{
    Hold("M");
    ELementPropGUI manager(nullptr);
    Then([&](QDialog& shown) {
        Then([&](QDialog& editor) {
            QCOMPARE(editor.parentWidget(), &manager);
            QCOMPARE(Find<QLineEdit>(editor, "lineEdit_PropName").text(), QString());
            Type(editor, "lineEdit_PropName", "A");
            Type(editor, "lineEdit_mat", "Bronze");
            Click(editor, "pushbu_OK");
        });
        Click(shown, "pushButton_add");
        // At the end, until the next refill.
        QCOMPARE(ColumnTexts(Table(shown)), QStringList({"M", "A"}));
        QCOMPARE(RowTexts(Table(shown), 1), QStringList({"A", "Shell", "Bronze"}));
        QCOMPARE(SelectedRows(Table(shown)), QVector<int>({1}));
        QCOMPARE(HeaderTexts(Table(shown)).constFirst(), "Property Name");
        Click(shown, "pushButton_Cancel");
    });
    QCOMPARE(manager.exec(), int(QDialog::Rejected));
    QCOMPARE(StoredNames(), QStringList({"A", "M"}));
    Properties added;
    manager.GetPropData(added);
    QVERIFY((added == Properties{{"A", Store().GetProptyDataMap()["A"]}}));
    manager.ShowProperty();
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"A", "M"}));
}

void tst_ELementPropGUIEdits::TheFirstRowAddedIsSelectedOnCyan()
{
    ELementPropGUI manager(nullptr);
    Then(Confirm("A"));
    manager.InsertProperty();
    QCOMPARE(SelectedRows(Table(manager)), QVector<int>({0}));
    QCOMPARE(Table(manager).currentRow(), 0);
    QCOMPARE(Table(manager).styleSheet(), "selection-background-color:cyan");
}

void tst_ELementPropGUIEdits::AddOfANameThatIsHeldEntersASecondRow()
{
    const CQLTElemPropDef* const old = Hold("A");
    ELementPropGUI manager(nullptr);
    for (int i = 0; i < 2; ++i) {
        Then(Confirm("A"));
        manager.InsertProperty();
    }
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"A", "A", "A"}));
    QCOMPARE(StoredNames(), QStringList({"A"}));
    QVERIFY(Store().GetProptyDataMap()["A"] != old);
    // The replaced record still exists for earlier users of its pointer.
    QCOMPARE(old->m_strMaterialName, "Steel");
    QCOMPARE(manager.GetSelectedProp(), Store().GetProptyDataMap()["A"]);
}

void tst_ELementPropGUIEdits::AddCancelledChangesNothing_data()
{
    QTest::addColumn<bool>("refusedBefore");
    NewRow("at once", false);
    NewRow("after a refused OK", true);
}

void tst_ELementPropGUIEdits::AddCancelledChangesNothing()
{
    QFETCH(bool, refusedBefore);
    Hold("A");
    ELementPropGUI manager(nullptr);
    Then([=](QDialog& editor) {
        if (refusedBefore)
            BeRefusedAndCancel(editor);
        else
            Click(editor, "pubut_Cancel");
    });
    manager.InsertProperty();
    QCOMPARE(Boxes().size(), refusedBefore ? 1 : 0);
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"A"}));
    QCOMPARE(StoredNames(), QStringList({"A"}));
    Properties added;
    manager.GetPropData(added);
    QVERIFY(added.empty());
}

void tst_ELementPropGUIEdits::OnlyAddedPropertiesAreReturned()
{
    WriteProperties({"A"});
    ELementPropGUI manager(nullptr);
    QVERIFY(manager.GetSelectedProp() == nullptr);
    Then(Confirm("B"));
    manager.InsertProperty();
    QCOMPARE(manager.GetSelectedProp(), Store().GetProptyDataMap()["B"]);
    QVERIFY(manager.GetSelectedProp() != nullptr);
    Properties added;
    manager.GetPropData(added);
    QVERIFY((added == Properties{{"A", nullptr}, {"B", manager.GetSelectedProp()}}));
    // A new dialog has none.
    ELementPropGUI other(nullptr);
    QVERIFY(other.GetSelectedProp() == nullptr);
}

void tst_ELementPropGUIEdits::AddedPropertiesAreWrittenAndReadBack()
{
    {
        ELementPropGUI manager(nullptr);
        Then([](QDialog& editor) {
            Find<QLineEdit>(editor, "lineEdit_PropName").setText("板 <1>");
            Type(editor, "lineEdit_mat", "Bronze");
            Type(editor, "lineEdit_thickness", "0.1");
            Click(editor, "pushbu_OK");
        });
        manager.InsertProperty();
        manager.on_OK_Button();
    }
    Store().Clear();
    const ELementPropGUI manager(nullptr);
    QCOMPARE(RowTexts(Table(manager), 0), QStringList({"板 <1>", "Shell", "Bronze"}));
    const CQLTElemPropDef& record = *Store().GetProptyDataMap()["板 <1>"];
    QCOMPARE(record.m_dThickness, 0.1);
    QCOMPARE(record.m_nTypeCode, int(CQLTElemPropDef::ShellType));
}

void tst_ELementPropGUIEdits::TheWholeChainRunsByClicks()
{
    WriteMaterials(SystemFile, {{"Glass", "7e10", "0.22", "2500"}});
    ELementPropGUI manager(nullptr);
    Then([](QDialog& shown) {
        Click(shown, "pushButton_add");
        QCOMPARE(RowTexts(Table(shown), 0), QStringList({"Pane", "Shell", "Hard glass"}));
        Click(shown, "pushButton_OK");
    });
    Then([](QDialog& editor) {
        Type(editor, "lineEdit_PropName", "Pane");
        Type(editor, "lineEdit_thickness", "4");
        Click(editor, "pshbuton_Material");
        Click(editor, "pushbu_OK");
    });
    Then([](QDialog& library) {
        ClickRow(Find<QTableWidget>(library, "tableWidget"), 0);
        Click(library, "pushButton");
        Click(library, "pushButton_6");
    });
    Then([](QDialog& material) {
        QCOMPARE(Find<QLineEdit>(material, "lineEditName").text(), "Glass");
        Type(material, "lineEditName", "Hard glass");
        Click(material, "pushButton");
    });
    QCOMPARE(manager.exec(), int(QDialog::Rejected));
    QVERIFY(QFile::exists(File));
    QCOMPARE(KVMaterialData::GetInstance()->GetMaterialNameList(),
             QStringList({"Glass", "Hard glass"}));
    KVMaterialData::GetInstance()->ClearInfo();
    QCOMPARE(KVMaterialData::GetInstance()->ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(KVMaterialData::GetInstance()->GetMaterialInfo("Hard glass")->m_strPoisson, "0.22");
    QCOMPARE(manager.GetSelectedProp()->m_dThickness, 4.0);
}

void tst_ELementPropGUIEdits::AnUnsavedRenameReappearsWithTheOldName()
{
    WriteProperties({"A"});
    ELementPropGUI manager(nullptr);
    Then([&](QDialog& shown) {
        Then(Confirm("Z"));
        Click(shown, "pushButton__edit");
        Click(shown, "pushButton_Cancel");
    });
    manager.exec();
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"Z"}));
    const ELementPropGUI next(nullptr);
    QCOMPARE(ColumnTexts(Table(next)), QStringList({"A", "Z"}));
}

void tst_ELementPropGUIEdits::EditNeedsARow()
{
    ELementPropGUI manager(nullptr);
    Then([](QDialog& shown) {
        Click(shown, "pushButton__edit");
        Click(shown, "pushButton_Cancel");
    });
    manager.exec();
    QCOMPARE(Boxes(), ShownBoxes({NoSelection()}));
}

void tst_ELementPropGUIEdits::EditNeedsARecord()
{
    Hold("A");
    ELementPropGUI manager(nullptr);
    Store().Clear();
    manager.EditProperty();
    // A missing cell means the empty name.
    delete Table(manager).takeItem(0, 0);
    manager.EditProperty();
    QCOMPARE(Boxes(), ShownBoxes({NoRecord(), NoRecord()}));
    QCOMPARE(HeaderTexts(Table(manager)).constFirst(), "Property Name");
}

void tst_ELementPropGUIEdits::EditShowsTheRecord()
{
    Hold("A", "Bronze");
    Hold("B", "Copper");
    ELementPropGUI manager(nullptr);
    Then([&](QDialog& shown) {
        Then([&](QDialog& editor) {
            QCOMPARE(editor.parentWidget(), &manager);
            QCOMPARE(Find<QLineEdit>(editor, "lineEdit_PropName").text(), "A");
            QCOMPARE(Find<QLineEdit>(editor, "lineEdit_mat").text(), "Bronze");
            QCOMPARE(Find<QLineEdit>(editor, "lineEdit_thickness").text(), "2");
            editor.reject();
        });
        ClickRow(Table(shown), 0);
        Click(shown, "pushButton__edit");
        Click(shown, "pushButton_Cancel");
    });
    manager.exec();
}

void tst_ELementPropGUIEdits::EditChangesTheRecordAndNumbersTheHeaders()
{
    const CQLTElemPropDef* const record = Hold("A");
    Hold("B");
    ELementPropGUI manager(nullptr);
    Table(manager).setCurrentCell(0, 0);
    Then([](QDialog& editor) {
        Type(editor, "lineEdit_thickness", "7");
        Type(editor, "lineEdit_mat", "Bronze");
        Click(editor, "pushbu_OK");
    });
    manager.EditProperty();
    QCOMPARE(record->m_dThickness, 7.0);
    QCOMPARE(Store().GetProptyDataMap()["A"], record);
    QCOMPARE(HeaderTexts(Table(manager)), QStringList({"1", "2", "3"}));
    QCOMPARE(RowTexts(Table(manager), 0), QStringList({"A", "Shell", "Bronze"}));
    QCOMPARE(Table(manager).rowCount(), 2);
    QCOMPARE(SelectedRows(Table(manager)), QVector<int>({1}));
    // An edited property does not count as added.
    Properties added;
    manager.GetPropData(added);
    QVERIFY(added.empty());
}

void tst_ELementPropGUIEdits::EditRenames()
{
    HoldAll({"A", "B"});
    ELementPropGUI manager(nullptr);
    Table(manager).setCurrentCell(0, 0);
    Then(Confirm("Z"));
    manager.EditProperty();
    QCOMPARE(StoredNames(), QStringList({"B", "Z"}));
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"B", "Z"}));
}

void tst_ELementPropGUIEdits::AnEditReplacesThePropertyOfItsNewName()
{
    const CQLTElemPropDef* const edited = Hold("A", "Bronze");
    Hold("B");
    ELementPropGUI manager(nullptr);
    Table(manager).setCurrentCell(0, 0);
    Then(Confirm("B"));
    manager.EditProperty();
    QCOMPARE(StoredNames(), QStringList({"B"}));
    QCOMPARE(Store().GetProptyDataMap()["B"], edited);
    QCOMPARE(RowTexts(Table(manager), 0), QStringList({"B", "Shell", "Bronze"}));
}

void tst_ELementPropGUIEdits::EditCancelledKeepsHeadersAndRecord()
{
    const CQLTElemPropDef* const record = Hold("A");
    ELementPropGUI manager(nullptr);
    Then([](QDialog& editor) {
        Type(editor, "lineEdit_PropName", "typed");
        Click(editor, "pubut_Cancel");
    });
    manager.EditProperty();
    QCOMPARE(record->m_strName, "A");
    QCOMPARE(HeaderTexts(Table(manager)).constFirst(), "Property Name");
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"A"}));
}

void tst_ELementPropGUIEdits::CancellingARefusedEditKeepsBothProperties()
{
    WriteProperties({"A", "B"});
    ELementPropGUI manager(nullptr);
    Then([&](QDialog& shown) {
        for (int row = 0; row < 2; ++row) {
            ClickRow(Table(shown), row);
            Then(BeRefusedAndCancel);
            Click(shown, "pushButton__edit");
        }
        QCOMPARE(ColumnTexts(Table(shown)), QStringList({"A", "B"}));
        Click(shown, "pushButton_OK");
    });
    manager.exec();
    QCOMPARE(Boxes().size(), 2);
    Store().Clear();
    QCOMPARE(Store().ReadXML(File), 0);
    QCOMPARE(StoredNames(), QStringList({"A", "B"}));
}

void tst_ELementPropGUIEdits::TheHostMayDestroyTheManagerWhileTheEditorIsOpen_data()
{
    QTest::addColumn<QByteArray>("button");
    NewRow("Add", QByteArray("pushButton_add"));
    NewRow("Edit", QByteArray("pushButton__edit"));
}

void tst_ELementPropGUIEdits::TheHostMayDestroyTheManagerWhileTheEditorIsOpen()
{
    QFETCH(QByteArray, button);
    Hold("A");
    auto* const manager = new ELementPropGUI(nullptr);
    Then([&](QDialog& shown) { Click(shown, button); });
    Then([manager](QDialog&) { delete manager; });
    QCOMPARE(manager->exec(), int(QDialog::Rejected));
    QCOMPARE(StoredNames(), QStringList({"A"}));
}

TARN_TEST_MAIN(tst_ELementPropGUIEdits)
#include "tst_ELementPropGUIEdits.moc"
