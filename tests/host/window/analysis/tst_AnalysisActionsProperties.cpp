#include "AnalysisEntries.h"
#include "AnalysisHost.h"
#include "MaterialLibrary.h"

#include <QFile>
#include <QListWidget>
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
    void ACheckWithoutProblemsIsReported();
    void TheCheckReadsTheFilesFirst();
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
             QStringList("plate: material steel, solid elements in the whole part; nothing is "
                         "picked for shells yet"));
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
             QStringList("of the file: no material, solid elements in the whole part; nothing is "
                         "picked for shells yet"));
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
             QStringList("plate: no material, solid elements in the whole part; nothing is picked "
                         "for shells yet"));
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
             QStringList("plate: material Titanium grade 2, solid elements in the whole part; "
                         "nothing is picked for shells yet"));
    QVERIFY(QFile::exists("ElementProperty.xml"));
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
    QCOMPARE(host.posted[0][1].toString(),
             QString("Chosen material: Steel S355; source: " + SourceOf("Steel S355")));
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
    AnalysisDefinition analysis;
    analysis.constraints = {Constraint("foot")};
    analysis.constraints[0].faces.clear();
    analysis.properties = {Property("plate", "Steel S355")};
    analysis.meshSize = "0";
    host.model.SetDefinition(analysis);
    host.Trigger("action_CheckSetup");
    const auto& list = Find<QListWidget>(host.check, "setupCheckList");
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts << list.item(row)->text();
    QCOMPARE(texts,
             QStringList({"The project has no part. Add a body first.",
                          "Boundary condition \"foot\" acts nowhere: pick its faces or edges",
                          "The mesh size is 0 mm, but has to be greater than 0"}));
    QCOMPARE(host.posted.size(), 1);
    QCOMPARE(host.posted[0][0].toInt(), int(WarningLevel));
    QCOMPARE(host.posted[0][1].toString(), QString("Set-up check: problems: 3, warnings: 0"));

    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(1)).center());
    QVERIFY(host.tree.Selected() == (AnalysisEntry{AnalysisEntry::Constraint, 0}));
}

void tst_AnalysisActionsProperties::ACheckWithoutProblemsIsReported()
{
    AnalysisHost host(*this);
    host.check.ShowProblems({});
    QCOMPARE(host.posted.size(), 1);
    QCOMPARE(host.posted[0][0].toInt(), int(InfoLevel));
    QCOMPARE(host.posted[0][1].toString(), QString("The check of the set-up found no problems"));
}

void tst_AnalysisActionsProperties::TheCheckReadsTheFilesFirst()
{
    AnalysisHost host(*this);
    KVPropertyData& store = *KVPropertyData::GetInstance();
    auto* const property = new CQLTElemPropDef;
    property->m_strName = "plate";
    store.AddPropInfo(property);
    QCOMPARE(store.WriteXML("./ElementProperty.xml"), 0);
    store.Clear();
    host.Trigger("action_CheckSetup");
    const auto& list = Find<QListWidget>(host.check, "setupCheckList");
    QVERIFY(
        !list.findItems("Element property \"plate\" has no material", Qt::MatchExactly).isEmpty());
    QCOMPARE(host.Shown("Element properties").size(), 1);
}

TARN_TEST_MAIN(tst_AnalysisActionsProperties)
#include "tst_AnalysisActionsProperties.moc"
