#include "AnalysisHost.h"

#include <QFile>
#include <QPushButton>
#include <QTableWidget>

class tst_AnalysisActionsProperties : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ANewPropertyIsStored();
    void ACancelledPropertyIsNotStored();
    void ARefusedAndThenCancelledPropertyIsNotStored();
    void ThePropertiesOfTheFileAreShown();
    void APropertyAddedInTheManagerIsShownEvenAfterCancel();
    void APropertyCanUseAMaterialOfTheSystemLibrary();
    void TheChosenMaterialIsReported();
    void ACancelledLibraryReportsNothing();
    void TheLibraryOpensAtTheMaterialChosenBefore();
    void TheCheckListsEveryProblem();
    void TheCheckReadsTheFilesFirst();
    void ACompleteSetUpIsReported();
};

namespace {

void SelectMaterial(const QDialog& library, const QString& name)
{
    auto& table = Find<QTableWidget>(library, "tableWidget");
    const QList<QTableWidgetItem*> items = table.findItems(name, Qt::MatchExactly);
    QCOMPARE(items.size(), 1);
    table.scrollToItem(items.first());
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      table.visualItemRect(items.first()).center());
}

} // namespace

void tst_AnalysisActionsProperties::ANewPropertyIsStored()
{
    AnalysisHost host(*this);
    host.Run("action_NewElementProperty", [](QDialog& dialog) {
        Type(dialog, "lineEdit_PropName", "plate");
        Type(dialog, "lineEdit_mat", "steel");
        Type(dialog, "lineEdit_thickness", "2.5");
        Click(dialog, "pushbu_OK");
    });
    QCOMPARE(host.Shown("Element properties"),
             QStringList("plate: Shell, material steel, thickness 2.5"));
}

void tst_AnalysisActionsProperties::ACancelledPropertyIsNotStored()
{
    AnalysisHost host(*this);
    host.Run("action_NewElementProperty", [](QDialog& dialog) {
        Type(dialog, "lineEdit_PropName", "plate");
        Click(dialog, "pubut_Cancel");
    });
    QCOMPARE(host.Shown("Element properties"), QStringList(""));
}

void tst_AnalysisActionsProperties::ARefusedAndThenCancelledPropertyIsNotStored()
{
    AnalysisHost host(*this);
    host.Run("action_NewElementProperty", [](QDialog& dialog) {
        Click(dialog, "pushbu_OK");
        Click(dialog, "pubut_Cancel");
    });
    QCOMPARE(host.user.Boxes(),
             QVector<ShownBox>({ShownBox::Notice("Error", "Property name is empty")}));
    QCOMPARE(host.Shown("Element properties"), QStringList(""));
}

void tst_AnalysisActionsProperties::ThePropertiesOfTheFileAreShown()
{
    AnalysisHost host(*this);
    KVPropertyData& store = *KVPropertyData::GetInstance();
    auto* const property = new CQLTElemPropDef;
    property->m_strName = "of the file";
    store.AddPropInfo(property);
    QCOMPARE(store.WriteXML("./ElementProperty.xml"), 0);
    store.Clear();
    host.Run("action_ElementProperties", [](QDialog& dialog) {
        QCOMPARE(Find<QTableWidget>(dialog, "tabwidget_Prop").rowCount(), 1);
        Click(dialog, "pushButton_OK");
    });
    QCOMPARE(host.Shown("Element properties"),
             QStringList("of the file: no type, no material, thickness 0"));
}

void tst_AnalysisActionsProperties::APropertyAddedInTheManagerIsShownEvenAfterCancel()
{
    AnalysisHost host(*this);
    host.user.Then([](QDialog& manager) {
        Click(manager, "pushButton_add");
        Click(manager, "pushButton_Cancel");
    });
    host.user.Then([](QDialog& editor) {
        Type(editor, "lineEdit_PropName", "plate");
        Click(editor, "pushbu_OK");
    });
    host.Trigger("action_ElementProperties");
    QVERIFY(host.user.IsDone());
    QCOMPARE(host.Shown("Element properties"),
             QStringList("plate: Shell, no material, thickness 1"));
    QVERIFY(!QFile::exists("ElementProperty.xml"));
}

void tst_AnalysisActionsProperties::APropertyCanUseAMaterialOfTheSystemLibrary()
{
    AnalysisHost host(*this);
    host.user.Then([](QDialog& manager) {
        Click(manager, "pushButton_add");
        Click(manager, "pushButton_OK");
    });
    host.user.Then([](QDialog& editor) {
        Type(editor, "lineEdit_PropName", "plate");
        Click(editor, "pshbuton_Material");
        Click(editor, "pushbu_OK");
    });
    host.user.Then([](QDialog& library) {
        SelectMaterial(library, "Titanium grade 2");
        Click(library, "pushButton_6");
    });
    host.Trigger("action_ElementProperties");
    QVERIFY(host.user.IsDone());
    QCOMPARE(host.Shown("Element properties"),
             QStringList("plate: Shell, material Titanium grade 2, thickness 1"));
    QVERIFY(QFile::exists("ElementProperty.xml"));
    host.Trigger("action_CheckSetup");
    QCOMPARE(host.posted.last()[1].toString(), QString("The set-up is complete"));
}

void tst_AnalysisActionsProperties::TheChosenMaterialIsReported()
{
    AnalysisHost host(*this);
    host.Run("action_MaterialLibrary", [](QDialog& dialog) {
        QVERIFY(Find<QTableWidget>(dialog, "tableWidget").rowCount() >= 40);
        SelectMaterial(dialog, "Steel S355");
        Click(dialog, "pushButton_6");
    });
    QVERIFY(QFile::exists("SysMaterial.xml"));
    QCOMPARE(host.posted.size(), 1);
    QCOMPARE(host.posted[0][0].toInt(), int(InfoLevel));
    QCOMPARE(host.posted[0][1].toString(), QString("Chosen material: Steel S355"));
}

void tst_AnalysisActionsProperties::ACancelledLibraryReportsNothing()
{
    AnalysisHost host(*this);
    host.Run("action_MaterialLibrary", [](QDialog& dialog) {
        SelectMaterial(dialog, "Steel S355");
        Click(dialog, "pushButton_8");
    });
    QCOMPARE(host.posted.size(), 0);
}

void tst_AnalysisActionsProperties::TheLibraryOpensAtTheMaterialChosenBefore()
{
    AnalysisHost host(*this);
    host.Run("action_MaterialLibrary", [](QDialog& dialog) {
        SelectMaterial(dialog, "Steel S355");
        Click(dialog, "pushButton_6");
    });
    host.Run("action_MaterialLibrary", [](QDialog& dialog) {
        const auto& table = Find<QTableWidget>(dialog, "tableWidget");
        QVERIFY(table.currentRow() >= 0);
        QCOMPARE(table.item(table.currentRow(), 0)->text(), QString("Steel S355"));
        dialog.reject();
    });
}

void tst_AnalysisActionsProperties::TheCheckListsEveryProblem()
{
    AnalysisHost host(*this);
    host.Run("action_BoundaryCondition", [](QDialog& dialog) {
        for (const char* const box : {"chb_XD", "chb_YD", "chb_ZD", "chb_XR", "chb_YR", "chb_ZR"})
            QTest::keyClick(&Find<QWidget>(dialog, box), Qt::Key_Space);
        Click(dialog, "okButton");
    });
    host.Run("action_LoadForce", [](QDialog& dialog) {
        Type(dialog, "lied_FX", "none");
        Click(dialog, "okButton");
    });
    host.Trigger("action_CheckSetup");
    QStringList texts;
    for (const QList<QVariant>& message : host.posted) {
        QCOMPARE(message[0].toInt(), int(WarningLevel));
        texts << message[1].toString();
    }
    QCOMPARE(texts, QStringList({"No element property is defined",
                                 "Boundary condition \"defaultBC\" fixes no degree of freedom",
                                 "Load \"Default\" is zero"}));
}

void tst_AnalysisActionsProperties::TheCheckReadsTheFilesFirst()
{
    AnalysisHost host(*this);
    KVPropertyData& store = *KVPropertyData::GetInstance();
    auto* const property = new CQLTElemPropDef;
    property->m_strName = "plate";
    property->m_strMaterialName = "Steel S355";
    property->m_nTypeCode = CQLTElemPropDef::ShellType;
    store.AddPropInfo(property);
    QCOMPARE(store.WriteXML("./ElementProperty.xml"), 0);
    store.Clear();
    host.Trigger("action_CheckSetup");
    QCOMPARE(host.posted.size(), 1);
    QCOMPARE(host.posted[0][1].toString(),
             QString("Element property \"plate\": the thickness 0 must be greater than 0"));
    QCOMPARE(host.Shown("Element properties").size(), 1);
}

void tst_AnalysisActionsProperties::ACompleteSetUpIsReported()
{
    AnalysisHost host(*this);
    host.Run("action_NewElementProperty", [](QDialog& dialog) {
        Type(dialog, "lineEdit_PropName", "plate");
        Type(dialog, "lineEdit_mat", "Steel S355");
        Click(dialog, "pushbu_OK");
    });
    host.Trigger("action_CheckSetup");
    QCOMPARE(host.posted.size(), 1);
    QCOMPARE(host.posted[0][0].toInt(), int(InfoLevel));
    QCOMPARE(host.posted[0][1].toString(), QString("The set-up is complete"));
}

TARN_TEST_MAIN(tst_AnalysisActionsProperties)
#include "tst_AnalysisActionsProperties.moc"
