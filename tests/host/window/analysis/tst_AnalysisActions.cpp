#include "AnalysisHost.h"
#include "AnalysisType.h"
#include "AttributeCommonMgr.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

class tst_AnalysisActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheMenuOffersEveryDialog();
    void TheDialogsBelongToTheWindow_data();
    void TheDialogsBelongToTheWindow();
    void OkStoresTheTypeOfTheDialog();
    void CancelKeepsTheType();
    void AnAcceptedBoundaryConditionIsStoredAndItsNameRegistered();
    void ACancelledBoundaryConditionIsNotStored();
    void ASecondBoundaryConditionOfTheSameNameIsRefused();
    void ALoadWithTheNameOfABoundaryConditionIsRefused();
    void AForceIsStoredByTheLabelOfItsField();
    void ACancelledLoadIsNotStored();
    void TheNameOfADeletedLoadCanBeUsedAgain();
    void TheFrequencyRangeIsShownAfterOk();
    void TheMeshSizeIsStoredAndShownAgain();
    void ACancelledMeshSizeIsNotStored();
    void TheSubShapeMeshIsStoredAndShownAgain();
    void ACancelledSubShapeMeshIsNotStored();
    void ANonNumericSubShapeMeshIsReportedAndNotStored_data();
    void ANonNumericSubShapeMeshIsReportedAndNotStored();
};

namespace {

bool IsTaken(std::string name)
{
    return AttributeCommonMgr::GetInstance()->FindName(name);
}

} // namespace

void tst_AnalysisActions::TheMenuOffersEveryDialog()
{
    const AnalysisHost host(*this);
    QStringList texts;
    const QList<QAction*> actions = host.menu.actions();
    for (const QAction* const action : actions)
        texts << action->text().remove('&');
    QCOMPARE(texts, QStringList({"Analysis type", "Boundary condition", "Load force",
                                 "Delete boundary condition or load", "", "New element property",
                                 "Element properties", "Material library", "", "Frequency range",
                                 "Mesh size", "Sub-shape mesh", "", "Check Set-up"}));
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
    AnalysisHost host(*this);
    host.Run(action, [&](QDialog& shown) {
        QCOMPARE(QByteArray(shown.metaObject()->className()), dialog);
        QCOMPARE(shown.parentWidget(), &host.window);
        shown.reject();
    });
    QVERIFY(host.window.findChildren<QDialog*>().isEmpty());
    QCOMPARE(host.user.Boxes(), QVector<ShownBox>());
    QCOMPARE(host.posted.size(), 0);
}

void tst_AnalysisActions::OkStoresTheTypeOfTheDialog()
{
    AnalysisHost host(*this);
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

void tst_AnalysisActions::CancelKeepsTheType()
{
    AnalysisHost host(*this);
    host.model.SetSolverType(AnalysisType::ComplexEigenvalueFamily,
                             AnalysisType::ComplexEigenvalueKind);
    host.Run("action_AnalysisType", [](QDialog& dialog) { Click(dialog, "cancael_push_button"); });
    QCOMPARE(host.model.Family(), 7);
    QCOMPARE(host.model.Kind(), 7);
}

void tst_AnalysisActions::AnAcceptedBoundaryConditionIsStoredAndItsNameRegistered()
{
    AnalysisHost host(*this);
    host.Run("action_BoundaryCondition", [](QDialog& dialog) {
        Type(dialog, "lied_Name", "foot");
        QTest::keyClick(&Find<QWidget>(dialog, "chb_YD"), Qt::Key_Space);
        Click(dialog, "okButton");
    });
    QCOMPARE(host.Shown("Boundary conditions"), QStringList("foot: fixes X_D, Z_D, X_R, Y_R, Z_R"));
    QVERIFY(IsTaken("foot"));
}

void tst_AnalysisActions::ACancelledBoundaryConditionIsNotStored()
{
    AnalysisHost host(*this);
    host.Run("action_BoundaryCondition", [](QDialog& dialog) { Click(dialog, "cancelButton"); });
    QVERIFY(host.model.Constraints().empty());
    QVERIFY(!IsTaken("defaultBC"));
}

void tst_AnalysisActions::ASecondBoundaryConditionOfTheSameNameIsRefused()
{
    AnalysisHost host(*this);
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

void tst_AnalysisActions::ALoadWithTheNameOfABoundaryConditionIsRefused()
{
    AnalysisHost host(*this);
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

void tst_AnalysisActions::AForceIsStoredByTheLabelOfItsField()
{
    AnalysisHost host(*this);
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
    AnalysisHost host(*this);
    host.Run("action_LoadForce", [](QDialog& dialog) { Click(dialog, "cancelButton"); });
    QVERIFY(host.model.Loads().empty());
    QVERIFY(!IsTaken("Default"));
}

void tst_AnalysisActions::TheNameOfADeletedLoadCanBeUsedAgain()
{
    AnalysisHost host(*this);
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

void tst_AnalysisActions::TheFrequencyRangeIsShownAfterOk()
{
    AnalysisHost host(*this);
    host.Run("action_FrequencyRange", [](QDialog& dialog) {
        Type(dialog, "lineEdit_MinFreq", "5e6");
        Type(dialog, "lineEdit_MaxFreq", "250.5");
        Type(dialog, "lineEdit_NumFreq", "3");
        Click(dialog, "pushButton_OK");
    });
    QCOMPARE(host.Shown("Frequency range"), QStringList("5e+06 to 250.5, 3 points"));
}

void tst_AnalysisActions::TheMeshSizeIsStoredAndShownAgain()
{
    AnalysisHost host(*this);
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

void tst_AnalysisActions::ACancelledMeshSizeIsNotStored()
{
    AnalysisHost host(*this);
    host.Run("action_MeshSize", [](QDialog& dialog) {
        Type(dialog, "lineEdit_MeshSize", "0.125");
        Click(dialog, "pushButton_2");
    });
    QCOMPARE(host.Shown("Mesh size"), QStringList("not set"));
}

void tst_AnalysisActions::TheSubShapeMeshIsStoredAndShownAgain()
{
    AnalysisHost host(*this);
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

void tst_AnalysisActions::ACancelledSubShapeMeshIsNotStored()
{
    AnalysisHost host(*this);
    host.Run("action_SubShapeMesh", [](QDialog& dialog) {
        Type(dialog, "lineEdit_MeshSize", "0.05");
        Type(dialog, "lineEdit_MeshNumber", "12");
        Click(dialog, "pushButton_Cancel");
    });
    QCOMPARE(host.Shown("Sub-shape mesh"), QStringList("not set"));
    QCOMPARE(host.posted.size(), 0);
}

void tst_AnalysisActions::ANonNumericSubShapeMeshIsReportedAndNotStored_data()
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

void tst_AnalysisActions::ANonNumericSubShapeMeshIsReportedAndNotStored()
{
    QFETCH(QString, size);
    QFETCH(QString, number);
    AnalysisHost host(*this);
    host.Run("action_SubShapeMesh", [&](QDialog& dialog) {
        Type(dialog, "lineEdit_MeshSize", size);
        Type(dialog, "lineEdit_MeshNumber", number);
        Click(dialog, "pushButton_OK");
    });
    QCOMPARE(host.Shown("Sub-shape mesh"), QStringList("not set"));
    QCOMPARE(host.posted.size(), 1);
    QCOMPARE(host.posted[0][0].toInt(), int(WarningLevel));
    QCOMPARE(host.posted[0][1].toString(),
             QString("The sub-shape mesh was not applied: size and number must be numeric"));
}

TARN_TEST_MAIN(tst_AnalysisActions)
#include "tst_AnalysisActions.moc"
