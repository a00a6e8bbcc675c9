#include "AnalysisActions.h"
#include "AnalysisRecords.h"
#include "AnalysisTree.h"
#include "AnalysisType.h"
#include "AttributeCommonMgr.h"
#include "DrawerOutput.h"
#include "EmptyAnalysisStores.h"
#include "EmptyAttributeNames.h"
#include "FrequencyPref.h"
#include "MessageLevel.h"
#include "ModalDriver.h"
#include "TestCase.h"

#include <QAction>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTreeWidget>

class tst_AnalysisActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheMenuOffersEveryDialog();
    void TheDialogsBelongToTheWindow_data();
    void TheDialogsBelongToTheWindow();
    void TheTypeIsTakenFromTheDialog();
    void ATypeThatIsCancelledStays();
    void AnAcceptedBoundaryConditionIsStoredAndItsNameTaken();
    void ACancelledBoundaryConditionIsNotStored();
    void ASecondBoundaryConditionOfANameIsRefused();
    void ABoundaryConditionAndALoadShareTheirNames();
    void AForceIsStoredByTheFieldItWasTypedInto();
    void ACancelledLoadIsNotStored();
    void ADeletedLoadsNameCanBeGivenAgain();
    void ANewPropertyIsStored();
    void ACancelledPropertyIsNotStored();
    void APropertyThatWasRefusedAndCancelledIsNotStored();
    void ThePropertiesOfTheFileAreShown();
    void APropertyAddedInTheManagerIsShownEvenAfterCancel();
    void APropertyIsGivenAMaterialOfTheSystemLibrary();
    void TheMaterialLibraryIsProvidedAndItsChoiceTold();
    void ACancelledLibraryTellsNothing();
    void TheLibraryOpensAtTheMaterialOfBefore();
    void TheFrequencyRangeIsShownAfterOk();
    void TheMeshSizeIsTakenAndShownAgain();
    void ACancelledMeshSizeIsNotTaken();
    void TheSubShapeMeshIsTakenAndShownAgain();
    void ACancelledSubShapeMeshIsNotTaken();
    void ASubShapeMeshThatIsNoNumberIsToldAndNotTaken_data();
    void ASubShapeMeshThatIsNoNumberIsToldAndNotTaken();
    void TheCheckListsEveryProblem();
    void TheCheckReadsTheFilesFirst();
    void ACompleteSetUpIsTold();
};

namespace {

/// The menu in a window of its own, in an empty working directory with empty stores.
class Host
{
public:
    explicit Host(TestCase& test)
        : model(&window)
        , tree(model, &window)
    {
        test.EnterTemporaryDirectory();
        (new AnalysisActions(model, tree, &window))->FillMenu(menu);
    }
    ~Host()
    {
        FrequencyPref::m_MinFreq = 1.0;
        FrequencyPref::m_MaxFreq = 1000000.0;
        FrequencyPref::m_NumFreq = 10;
    }
    Q_DISABLE_COPY(Host)

    /// Triggers the action; its dialog takes the step.
    void Run(const char* name, const std::function<void(QDialog&)>& step)
    {
        user.Then(step);
        Trigger(name);
        QVERIFY(user.IsDone());
    }

    void Trigger(const char* name)
    {
        const QList<QAction*> actions = menu.actions();
        for (QAction* const action : actions) {
            if (action->objectName() == name) {
                action->trigger();
                return;
            }
        }
        qFatal("There is no action named \"%s\"", name);
    }

    /// The texts of a group of the tree: its own value, or those of its records.
    QStringList Shown(const QString& group) const
    {
        const auto& widget = Find<QTreeWidget>(tree, "modelTree");
        QStringList texts;
        const QList<QTreeWidgetItem*> items = widget.findItems(group, Qt::MatchExactly);
        for (const QTreeWidgetItem* const item : items) {
            if (item->childCount() == 0)
                texts << item->text(AnalysisTree::ValueColumn);
            for (int i = 0; i < item->childCount(); ++i)
                texts << item->child(i)->text(AnalysisTree::NameColumn) + ": " +
                             item->child(i)->text(AnalysisTree::ValueColumn);
        }
        return texts;
    }

private:
    const EmptyAnalysisStores m_stores;
    const EmptyAttributeNames m_names;

public:
    QWidget window;
    AnalysisRecords model;
    AnalysisTree tree;
    QMenu menu;
    ModalDriver user;
    QSignalSpy posted{DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage};
};

bool IsTaken(std::string name)
{
    return AttributeCommonMgr::GetInstance()->FindName(name);
}

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

void tst_AnalysisActions::TheMenuOffersEveryDialog()
{
    const Host host(*this);
    QStringList texts;
    const QList<QAction*> actions = host.menu.actions();
    for (const QAction* const action : actions)
        texts << action->text().remove('&');
    QCOMPARE(texts, QStringList({"Analysis type", "Boundary condition", "Load force",
                                 "Delete boundary condition or load", "", "New element property",
                                 "Element properties", "Material library", "", "Frequency range",
                                 "Mesh size", "Sub-shape mesh", "", "Is the set-up complete?"}));
}

void tst_AnalysisActions::TheDialogsBelongToTheWindow_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QByteArray>("dialog");
    QTest::newRow("type") << QByteArray("action_AnalysisType") << QByteArray("CAnalysisTypeGUI");
    QTest::newRow("held") << QByteArray("action_BoundaryCondition")
                          << QByteArray("CQLTConstrainEditor");
    QTest::newRow("load") << QByteArray("action_LoadForce") << QByteArray("CQLTLoadForceEditor");
    QTest::newRow("property") << QByteArray("action_NewElementProperty")
                              << QByteArray("CQLTElePropertyEditor");
    QTest::newRow("properties") << QByteArray("action_ElementProperties")
                                << QByteArray("ELementPropGUI");
    QTest::newRow("materials") << QByteArray("action_MaterialLibrary")
                               << QByteArray("KVMaterialLibrary");
    QTest::newRow("frequencies") << QByteArray("action_FrequencyRange")
                                 << QByteArray("frequencySetting");
    QTest::newRow("mesh") << QByteArray("action_MeshSize") << QByteArray("MeshSizeInput");
    QTest::newRow("sub-shape") << QByteArray("action_SubShapeMesh")
                               << QByteArray("SubShapeMeshParameterDlg");
}

void tst_AnalysisActions::TheDialogsBelongToTheWindow()
{
    QFETCH(QByteArray, action);
    QFETCH(QByteArray, dialog);
    Host host(*this);
    host.Run(action, [&](QDialog& shown) {
        QCOMPARE(QByteArray(shown.metaObject()->className()), dialog);
        QCOMPARE(shown.parentWidget(), &host.window);
        shown.reject();
    });
    QVERIFY(host.window.findChildren<QDialog*>().isEmpty());
    QCOMPARE(host.user.Boxes(), QVector<ShownBox>());
    QCOMPARE(host.posted.size(), 0);
}

void tst_AnalysisActions::TheTypeIsTakenFromTheDialog()
{
    Host host(*this);
    // The dialog lets its user choose one type only; the host may show it any.
    host.model.SetSolverType(AnalysisType::MechanicsFamily, AnalysisType::FrequencyResponseKind);
    host.Run("action_AnalysisType", [](QDialog& dialog) {
        QVERIFY(Find<QRadioButton>(dialog, "rad_Freq").isChecked());
        Find<QRadioButton>(dialog, "rad_Vibration").setFocus();
        QTest::keyClick(&Find<QRadioButton>(dialog, "rad_Vibration"), Qt::Key_Space);
        Click(dialog, "ok_push_button");
    });
    QCOMPARE(host.model.Family(), 1);
    QCOMPARE(host.model.Kind(), 2);
    QCOMPARE(host.Shown("Analysis type"), QStringList("Vibration (family 1, kind 2)"));
}

void tst_AnalysisActions::ATypeThatIsCancelledStays()
{
    Host host(*this);
    host.model.SetSolverType(AnalysisType::ComplexEigenvalueFamily,
                             AnalysisType::ComplexEigenvalueKind);
    host.Run("action_AnalysisType", [](QDialog& dialog) { Click(dialog, "cancael_push_button"); });
    QCOMPARE(host.model.Family(), 7);
    QCOMPARE(host.model.Kind(), 7);
}

void tst_AnalysisActions::AnAcceptedBoundaryConditionIsStoredAndItsNameTaken()
{
    Host host(*this);
    host.Run("action_BoundaryCondition", [](QDialog& dialog) {
        Type(dialog, "lied_Name", "foot");
        QTest::keyClick(&Find<QWidget>(dialog, "chb_YD"), Qt::Key_Space);
        Click(dialog, "okButton");
    });
    QCOMPARE(host.Shown("Boundary conditions"), QStringList("foot: holds X_D, Z_D, X_R, Y_R, Z_R"));
    QVERIFY(IsTaken("foot"));
}

void tst_AnalysisActions::ACancelledBoundaryConditionIsNotStored()
{
    Host host(*this);
    host.Run("action_BoundaryCondition", [](QDialog& dialog) { Click(dialog, "cancelButton"); });
    QVERIFY(host.model.Constraints().empty());
    QVERIFY(!IsTaken("defaultBC"));
}

void tst_AnalysisActions::ASecondBoundaryConditionOfANameIsRefused()
{
    Host host(*this);
    host.Run("action_BoundaryCondition", [](QDialog& dialog) { Click(dialog, "okButton"); });
    host.Run("action_BoundaryCondition", [](QDialog& dialog) {
        Click(dialog, "okButton");
        QVERIFY(dialog.isVisible());
        dialog.reject();
    });
    QCOMPARE(host.user.Boxes(), QVector<ShownBox>({ShownBox::Notice(
                                    "Warning", "CQLTConstrainEditor: Duplicated Attribute Name")}));
    QCOMPARE(host.model.Constraints().size(), std::size_t(1));
}

void tst_AnalysisActions::ABoundaryConditionAndALoadShareTheirNames()
{
    Host host(*this);
    host.Run("action_BoundaryCondition", [](QDialog& dialog) {
        Type(dialog, "lied_Name", "Default");
        Click(dialog, "okButton");
    });
    host.Run("action_LoadForce", [](QDialog& dialog) {
        Click(dialog, "okButton");
        dialog.reject();
    });
    QCOMPARE(host.user.Boxes(),
             QVector<ShownBox>({ShownBox::Notice("Warning", "Duplicated Attribute Name")}));
    QVERIFY(host.model.Loads().empty());
}

void tst_AnalysisActions::AForceIsStoredByTheFieldItWasTypedInto()
{
    Host host(*this);
    host.Run("action_LoadForce", [](QDialog& dialog) {
        // The fields beside the labels "FY" and "FZ", in this order.
        Type(dialog, "lied_FZ", "5");
        Type(dialog, "lied_FY", "7");
        Click(dialog, "okButton");
    });
    QCOMPARE(host.Shown("Loads"), QStringList("Default: FX = 1000, FY = 7, FZ = 5"));
    QVERIFY(IsTaken("Default"));
}

void tst_AnalysisActions::ACancelledLoadIsNotStored()
{
    Host host(*this);
    host.Run("action_LoadForce", [](QDialog& dialog) { Click(dialog, "cancelButton"); });
    QVERIFY(host.model.Loads().empty());
    QVERIFY(!IsTaken("Default"));
}

void tst_AnalysisActions::ADeletedLoadsNameCanBeGivenAgain()
{
    Host host(*this);
    const auto accept = [](QDialog& dialog) {
        Click(dialog, "okButton");
    };
    host.Run("action_LoadForce", accept);
    auto& tree = Find<QTreeWidget>(host.tree, "modelTree");
    tree.setCurrentItem(tree.findItems("Loads", Qt::MatchExactly).constFirst()->child(0));
    host.Trigger("action_DeleteAttribute");
    QVERIFY(host.model.Loads().empty());
    QVERIFY(!IsTaken("Default"));
    host.Run("action_LoadForce", accept);
    QCOMPARE(host.user.Boxes(), QVector<ShownBox>());
    QCOMPARE(host.model.Loads().size(), std::size_t(1));
}

void tst_AnalysisActions::ANewPropertyIsStored()
{
    Host host(*this);
    host.Run("action_NewElementProperty", [](QDialog& dialog) {
        Type(dialog, "lineEdit_PropName", "plate");
        Type(dialog, "lineEdit_mat", "steel");
        Type(dialog, "lineEdit_thickness", "2.5");
        Click(dialog, "pushbu_OK");
    });
    QCOMPARE(host.Shown("Element properties"),
             QStringList("plate: Shell, material steel, thickness 2.5"));
}

void tst_AnalysisActions::ACancelledPropertyIsNotStored()
{
    Host host(*this);
    host.Run("action_NewElementProperty", [](QDialog& dialog) {
        Type(dialog, "lineEdit_PropName", "plate");
        Click(dialog, "pubut_Cancel");
    });
    QCOMPARE(host.Shown("Element properties"), QStringList(""));
}

void tst_AnalysisActions::APropertyThatWasRefusedAndCancelledIsNotStored()
{
    Host host(*this);
    host.Run("action_NewElementProperty", [](QDialog& dialog) {
        Click(dialog, "pushbu_OK");
        Click(dialog, "pubut_Cancel");
    });
    QCOMPARE(host.user.Boxes(),
             QVector<ShownBox>({ShownBox::Notice("Error", "Property name is empty")}));
    QCOMPARE(host.Shown("Element properties"), QStringList(""));
}

void tst_AnalysisActions::ThePropertiesOfTheFileAreShown()
{
    Host host(*this);
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

void tst_AnalysisActions::APropertyAddedInTheManagerIsShownEvenAfterCancel()
{
    Host host(*this);
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

void tst_AnalysisActions::APropertyIsGivenAMaterialOfTheSystemLibrary()
{
    Host host(*this);
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

void tst_AnalysisActions::TheMaterialLibraryIsProvidedAndItsChoiceTold()
{
    Host host(*this);
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

void tst_AnalysisActions::ACancelledLibraryTellsNothing()
{
    Host host(*this);
    host.Run("action_MaterialLibrary", [](QDialog& dialog) {
        SelectMaterial(dialog, "Steel S355");
        Click(dialog, "pushButton_8");
    });
    QCOMPARE(host.posted.size(), 0);
}

void tst_AnalysisActions::TheLibraryOpensAtTheMaterialOfBefore()
{
    Host host(*this);
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

void tst_AnalysisActions::TheFrequencyRangeIsShownAfterOk()
{
    Host host(*this);
    host.Run("action_FrequencyRange", [](QDialog& dialog) {
        Type(dialog, "lineEdit_MinFreq", "5e6");
        Type(dialog, "lineEdit_MaxFreq", "250.5");
        Type(dialog, "lineEdit_NumFreq", "3");
        Click(dialog, "pushButton_OK");
    });
    QCOMPARE(host.Shown("Frequency range"), QStringList("5e+06 to 250.5, 3 points"));
}

void tst_AnalysisActions::TheMeshSizeIsTakenAndShownAgain()
{
    Host host(*this);
    host.Run("action_MeshSize", [](QDialog& dialog) {
        QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_MeshSize").text(), QString("1"));
        Type(dialog, "lineEdit_MeshSize", "0.125");
        Click(dialog, "pushButton");
    });
    QCOMPARE(host.Shown("Mesh size"), QStringList("0.125"));
    host.Run("action_MeshSize", [](QDialog& dialog) {
        QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_MeshSize").text(), QString("0.125"));
        dialog.reject();
    });
}

void tst_AnalysisActions::ACancelledMeshSizeIsNotTaken()
{
    Host host(*this);
    host.Run("action_MeshSize", [](QDialog& dialog) {
        Type(dialog, "lineEdit_MeshSize", "0.125");
        Click(dialog, "pushButton_2");
    });
    QCOMPARE(host.Shown("Mesh size"), QStringList("not set"));
}

void tst_AnalysisActions::TheSubShapeMeshIsTakenAndShownAgain()
{
    Host host(*this);
    host.Run("action_SubShapeMesh", [](QDialog& dialog) {
        QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_MeshSize").text(), QString());
        Type(dialog, "lineEdit_MeshSize", "0.05123456789");
        Type(dialog, "lineEdit_MeshNumber", "12");
        Click(dialog, "pushButton_OK");
    });
    QCOMPARE(host.Shown("Sub-shape mesh"), QStringList("size 0.05123456789, number 12"));
    QCOMPARE(host.posted.size(), 0);
    host.Run("action_SubShapeMesh", [](QDialog& dialog) {
        QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_MeshSize").text(), QString("0.05123456789"));
        QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_MeshNumber").text(), QString("12"));
        dialog.reject();
    });
}

void tst_AnalysisActions::ACancelledSubShapeMeshIsNotTaken()
{
    Host host(*this);
    host.Run("action_SubShapeMesh", [](QDialog& dialog) {
        Type(dialog, "lineEdit_MeshSize", "0.05");
        Type(dialog, "lineEdit_MeshNumber", "12");
        Click(dialog, "pushButton_Cancel");
    });
    QCOMPARE(host.Shown("Sub-shape mesh"), QStringList("not set"));
    QCOMPARE(host.posted.size(), 0);
}

void tst_AnalysisActions::ASubShapeMeshThatIsNoNumberIsToldAndNotTaken_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("number");
    QTest::newRow("both empty") << ""
                                << "";
    QTest::newRow("size a word") << "small"
                                 << "12";
    QTest::newRow("number a fraction") << "0.05"
                                       << "1.5";
}

void tst_AnalysisActions::ASubShapeMeshThatIsNoNumberIsToldAndNotTaken()
{
    QFETCH(QString, size);
    QFETCH(QString, number);
    Host host(*this);
    host.Run("action_SubShapeMesh", [&](QDialog& dialog) {
        Type(dialog, "lineEdit_MeshSize", size);
        Type(dialog, "lineEdit_MeshNumber", number);
        Click(dialog, "pushButton_OK");
    });
    QCOMPARE(host.Shown("Sub-shape mesh"), QStringList("not set"));
    QCOMPARE(host.posted.size(), 1);
    QCOMPARE(host.posted[0][0].toInt(), int(WarningLevel));
    QCOMPARE(host.posted[0][1].toString(),
             QString("The sub-shape mesh was not taken: its size and number must be numbers"));
}

void tst_AnalysisActions::TheCheckListsEveryProblem()
{
    Host host(*this);
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
    QCOMPARE(texts, QStringList({"There is no element property",
                                 "Boundary condition \"defaultBC\" holds nothing",
                                 "Load \"Default\" is zero"}));
}

void tst_AnalysisActions::TheCheckReadsTheFilesFirst()
{
    Host host(*this);
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
             QString("Element property \"plate\": its thickness 0 is not above 0"));
    QCOMPARE(host.Shown("Element properties").size(), 1);
}

void tst_AnalysisActions::ACompleteSetUpIsTold()
{
    Host host(*this);
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

TARN_TEST_MAIN(tst_AnalysisActions)
#include "tst_AnalysisActions.moc"
