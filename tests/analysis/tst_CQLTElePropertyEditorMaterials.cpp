#include "MaterialFiles.h"
#include "PropertyRecord.h"
#include "Tables.h"

#include <memory>

// "Browse", which picks a material in the library.

namespace {

QTableWidget& Table(const QWidget& library)
{
    return Find<QTableWidget>(library, "tableWidget");
}

} // namespace

class tst_CQLTElePropertyEditorMaterials
    : public With<DialogTest, TemporaryDirectory, EmptyAnalysisStores>
{
    Q_OBJECT

private Q_SLOTS:
    void BrowsePicksAMaterial();
    void BrowseCancelledChangesNothing_data();
    void BrowseCancelledChangesNothing();
    void BrowseWithoutARowEmptiesTheMaterial();
    void BrowseReadsBothFilesAgain();
    void TheHostMayDestroyTheEditorWhileTheLibraryIsOpen_data();
    void TheHostMayDestroyTheEditorWhileTheLibraryIsOpen();
};

void tst_CQLTElePropertyEditorMaterials::BrowsePicksAMaterial()
{
    WriteMaterials(UserFile, {{"Bronze", "1", "2", "3"}, {"Copper", "4", "5", "6"}});
    CQLTElePropertyEditor editor(nullptr);
    Then([&](QDialog& shown) {
        Click(shown, "pshbuton_Material");
        QCOMPARE(Text(shown, "lineEdit_mat"), "Copper");
        QCOMPARE(editor.selectedPropName(), "Copper");
        Type(shown, "lineEdit_PropName", "P1");
        Click(shown, "pushbu_OK");
    });
    Then([](QDialog& library) {
        QCOMPARE(library.objectName(), "KVMaterialLibrary");
        QVERIFY(library.parentWidget() == nullptr);
        // The dialog does not search for the name in the field: nothing is pre-selected.
        QCOMPARE(Table(library).currentRow(), -1);
        ClickRow(Table(library), 1);
        Click(library, "pushButton_6");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    const std::unique_ptr<CQLTElemPropDef> record(editor.GetPropData());
    QCOMPARE(record->m_strMaterialName, "Copper");
    QCOMPARE(editor.selectedPropName(), "Copper");
}

void tst_CQLTElePropertyEditorMaterials::BrowseCancelledChangesNothing_data()
{
    AddWaysToLeave();
}

void tst_CQLTElePropertyEditorMaterials::BrowseCancelledChangesNothing()
{
    QFETCH(QString, way);
    WriteMaterials(UserFile, {{"Bronze", "1", "2", "3"}});
    CQLTElePropertyEditor editor(nullptr);
    Then([&](QDialog& shown) {
        Type(shown, "lineEdit_mat", "typed");
        Click(shown, "pshbuton_Material");
        QCOMPARE(Text(shown, "lineEdit_mat"), "typed");
        QCOMPARE(editor.selectedPropName(), QString());
        shown.reject();
    });
    Then([&](QDialog& library) {
        ClickRow(Table(library), 0);
        Leave(library, way, "pushButton_8");
    });
    editor.exec();
}

void tst_CQLTElePropertyEditorMaterials::BrowseWithoutARowEmptiesTheMaterial()
{
    CQLTElePropertyEditor editor(nullptr);
    Then([&](QDialog& shown) {
        Type(shown, "lineEdit_mat", "typed");
        Click(shown, "pshbuton_Material");
        QCOMPARE(Text(shown, "lineEdit_mat"), "");
        shown.reject();
    });
    Then([](QDialog& library) { Click(library, "pushButton_6"); });
    editor.exec();
}

void tst_CQLTElePropertyEditorMaterials::BrowseReadsBothFilesAgain()
{
    WriteMaterials(SystemFile, {{"Glass", "1", "2", "3"}});
    WriteMaterials(UserFile, {{"Bronze", "4", "5", "6"}});
    HoldMaterial("not written yet");
    CQLTElePropertyEditor editor(nullptr);
    Then([](QDialog& shown) {
        Click(shown, "pshbuton_Material");
        shown.reject();
    });
    Then([](QDialog& library) {
        QCOMPARE(ColumnTexts(Table(library)), QStringList({"Bronze", "Glass"}));
        library.reject();
    });
    editor.exec();
    QVERIFY(KVMaterialData::GetInstance()->GetMaterialInfo("not written yet") == nullptr);
}

void tst_CQLTElePropertyEditorMaterials::TheHostMayDestroyTheEditorWhileTheLibraryIsOpen_data()
{
    QTest::addColumn<QByteArray>("button");
    NewRow("accepted", QByteArray("pushButton_6"));
    NewRow("cancelled", QByteArray("pushButton_8"));
}

void tst_CQLTElePropertyEditorMaterials::TheHostMayDestroyTheEditorWhileTheLibraryIsOpen()
{
    QFETCH(QByteArray, button);
    WriteMaterials(UserFile, {{"Bronze", "1", "2", "3"}});
    auto* const editor = new CQLTElePropertyEditor(nullptr);
    Then([](QDialog& shown) { Click(shown, "pshbuton_Material"); });
    Then([&](QDialog& library) {
        delete editor;
        ClickRow(Table(library), 0);
        Click(library, button);
    });
    QCOMPARE(editor->exec(), int(QDialog::Rejected));
}

TARN_TEST_MAIN(tst_CQLTElePropertyEditorMaterials)
#include "tst_CQLTElePropertyEditorMaterials.moc"
