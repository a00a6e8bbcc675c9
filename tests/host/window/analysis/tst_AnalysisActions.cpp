#include "AnalysisEntries.h"
#include "AnalysisHost.h"
#include "AnalysisType.h"
#include "AttributeCommonMgr.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

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
    void AMeshSizeMayBeAnExpression();
    void ATextWithoutValueIsReportedAndNotStored_data();
    void ATextWithoutValueIsReportedAndNotStored();
    void SeveralLocalMeshesAreStored();
    void AnEntryIsEditedInItsDialog();
    void ACancelledEditKeepsTheEntry();
};

namespace {

bool IsTaken(std::string name)
{
    return AttributeCommonMgr::GetInstance()->FindName(name);
}

void Choose(AnalysisHost& host, const AnalysisEntry& entry)
{
    host.tree.Select(entry);
    QVERIFY(host.tree.Selected() == entry);
}

const QWidget* NextByTab(const QWidget& widget)
{
    const QWidget* next = widget.nextInFocusChain();
    while ((next->focusPolicy() & Qt::TabFocus) == 0)
        next = next->nextInFocusChain();
    return next;
}

// The one in the same row.
const QLabel* LabelBeside(const QLineEdit& field)
{
    const QList<QLabel*> labels = field.parentWidget()->findChildren<QLabel*>();
    const auto found = std::find_if(labels.begin(), labels.end(), [&](const QLabel* label) {
        return qAbs(label->geometry().center().y() - field.geometry().center().y()) < 8;
    });
    return found == labels.end() ? nullptr : *found;
}

} // namespace

void tst_AnalysisActions::TheMenuOffersEveryDialog()
{
    const AnalysisHost host(*this);
    QStringList texts;
    const QList<QAction*> actions = host.menu.actions();
    for (const QAction* const action : actions)
        texts << action->text().remove('&');
    QCOMPARE(texts,
             QStringList({"Analysis type", "Boundary condition", "Load force", "", "Edit entry",
                          "Pick faces and edges", "Delete entry", "", "New element property",
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
    host.SetType({AnalysisType::MechanicsFamily, AnalysisType::FrequencyResponseKind});
    host.Run("action_AnalysisType", [](QDialog& dialog) {
        QVERIFY(Find<QRadioButton>(dialog, "rad_Freq").isChecked());
        Find<QRadioButton>(dialog, "rad_Vibration").setFocus();
        QTest::keyClick(&Find<QRadioButton>(dialog, "rad_Vibration"), Qt::Key_Space);
        Click(dialog, "ok_push_button");
    });
    QVERIFY(host.model.Definition().type == SolverType());
    QCOMPARE(host.Shown("Analysis type"), QStringList("Vibration (family 1, kind 2)"));
}

void tst_AnalysisActions::CancelKeepsTheType()
{
    AnalysisHost host(*this);
    const SolverType type{AnalysisType::ComplexEigenvalueFamily,
                          AnalysisType::ComplexEigenvalueKind};
    host.SetType(type);
    host.Run("action_AnalysisType", [](QDialog& dialog) { Click(dialog, "cancael_push_button"); });
    QVERIFY(host.model.Definition().type == type);
}

void tst_AnalysisActions::AnAcceptedBoundaryConditionIsStoredAndItsNameRegistered()
{
    AnalysisHost host(*this);
    host.Run("action_BoundaryCondition", [](QDialog& dialog) {
        Type(dialog, "lied_Name", "foot");
        QTest::keyClick(&Find<QWidget>(dialog, "chb_YD"), Qt::Key_Space);
        Click(dialog, "okButton");
    });
    QCOMPARE(host.Shown("Boundary conditions"),
             QStringList("foot: fixes X_D, Z_D, X_R, Y_R, Z_R; nothing is picked yet"));
    QVERIFY(IsTaken("foot"));
}

void tst_AnalysisActions::ACancelledBoundaryConditionIsNotStored()
{
    AnalysisHost host(*this);
    host.Run("action_BoundaryCondition", [](QDialog& dialog) { Click(dialog, "cancelButton"); });
    QVERIFY(host.model.Definition().constraints.empty());
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
    QCOMPARE(host.model.Definition().constraints.size(), std::size_t(1));
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
    QVERIFY(host.model.Definition().loads.empty());
}

void tst_AnalysisActions::AForceIsStoredByTheLabelOfItsField()
{
    AnalysisHost host(*this);
    host.Run("action_LoadForce", [](QDialog& dialog) {
        for (const char* const force : {"FX", "FY", "FZ"}) {
            const auto& field = Find<QLineEdit>(dialog, QByteArray("lied_") + force);
            const QLabel* const label = LabelBeside(field);
            QVERIFY(label != nullptr);
            QCOMPARE(label->text(), QString(force));
            QCOMPARE(label->buddy(), &field);
        }
        const auto& forceY = Find<QLineEdit>(dialog, "lied_FY");
        QCOMPARE(NextByTab(Find<QLineEdit>(dialog, "lied_FX")), &forceY);
        QCOMPARE(NextByTab(forceY), &Find<QLineEdit>(dialog, "lied_FZ"));
        Type(dialog, "lied_FY", "7");
        Type(dialog, "lied_FZ", "5");
        Click(dialog, "okButton");
    });
    QCOMPARE(host.Shown("Loads"),
             QStringList("Default: FX = 1000 N, FY = 7 N, FZ = 5 N; nothing is picked yet"));
    QVERIFY(IsTaken("Default"));
}

void tst_AnalysisActions::ACancelledLoadIsNotStored()
{
    AnalysisHost host(*this);
    host.Run("action_LoadForce", [](QDialog& dialog) { Click(dialog, "cancelButton"); });
    QVERIFY(host.model.Definition().loads.empty());
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
    QVERIFY(host.model.Definition().loads.empty());
    QVERIFY(!IsTaken("Default"));
    host.Run("action_LoadForce", accept);
    QCOMPARE(host.user.Boxes(), QVector<ShownBox>());
    QCOMPARE(host.model.Definition().loads.size(), std::size_t(1));
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
    QCOMPARE(host.Shown("Frequency range"), QStringList("5e+06 Hz to 250.5 Hz, 3 modes"));
}

void tst_AnalysisActions::TheMeshSizeIsStoredAndShownAgain()
{
    AnalysisHost host(*this);
    host.Run("action_MeshSize", [](QDialog& dialog) {
        QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_MeshSize").text(), QString("1"));
        Type(dialog, "lineEdit_MeshSize", "0.125");
        Click(dialog, "pushButton");
    });
    QCOMPARE(host.Shown("Mesh size"), QStringList("0.125 mm"));
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
    QCOMPARE(host.Shown("Mesh size"), QStringList("not set: a tenth of the longest side"));
}

void tst_AnalysisActions::AMeshSizeMayBeAnExpression()
{
    AnalysisHost host(*this);
    host.Run("action_MeshSize", [](QDialog& dialog) {
        Type(dialog, "lineEdit_MeshSize", "2 * 4");
        Click(dialog, "pushButton");
    });
    QCOMPARE(host.Shown("Mesh size"), QStringList("2 * 4 mm"));
    host.Run("action_MeshSize", [](QDialog& dialog) { Click(dialog, "pushButton"); });
    QCOMPARE(host.model.Definition().meshSize, QString("2 * 4"));
}

void tst_AnalysisActions::ATextWithoutValueIsReportedAndNotStored_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const char* action, const char* field, const char* button,
                        const char* text, const char* message) {
        QTest::newRow(name) << QByteArray(action) << QByteArray(field) << QByteArray(button)
                            << QString(text) << QString(message);
    };
    row("mesh size, comma", "action_MeshSize", "lineEdit_MeshSize", "pushButton", "12,5",
        "The mesh size: \"12,5\" is neither a number nor an expression with a value: ");
    row("mesh size, infinite", "action_MeshSize", "lineEdit_MeshSize", "pushButton", "1e999",
        "The mesh size: \"1e999\" is neither a number nor an expression with a value: ");
    row("frequency, infinite", "action_FrequencyRange", "lineEdit_MaxFreq", "pushButton_OK",
        "1e999", "The frequency range stays as it was: inf Hz is not a finite number");
    row("force, word", "action_LoadForce", "lied_FX", "okButton", "none",
        "The force FX: \"none\" is neither a number nor an expression with a value: ");
    row("force, nothing", "action_LoadForce", "lied_FZ", "okButton", "",
        "The force FZ: \"\" is neither a number nor an expression with a value: ");
    row("local mesh, word", "action_SubShapeMesh", "lineEdit_MeshSize", "pushButton_OK", "small",
        "The size: \"small\" is neither a number nor an expression with a value: ");
    row("local mesh, nothing", "action_SubShapeMesh", "lineEdit_MeshSize", "pushButton_OK", "",
        "A local mesh has either a size in mm or a number of elements along each edge");
}

void tst_AnalysisActions::ATextWithoutValueIsReportedAndNotStored()
{
    QFETCH(QByteArray, action);
    QFETCH(QByteArray, field);
    QFETCH(QByteArray, button);
    QFETCH(QString, text);
    QFETCH(QString, message);
    AnalysisHost host(*this);
    host.Run(action, [&](QDialog& dialog) {
        Type(dialog, field, text);
        Click(dialog, button);
    });
    QVERIFY(host.model.Definition() == AnalysisDefinition());
    QCOMPARE(FrequencyPref::m_MaxFreq, AnalysisDefinition().frequencies.max);
    QCOMPARE(host.posted.size(), 1);
    QCOMPARE(host.posted[0][0].toInt(), int(ErrorLevel));
    QVERIFY2(host.posted[0][1].toString().startsWith(message),
             qPrintable(host.posted[0][1].toString()));
}

void tst_AnalysisActions::SeveralLocalMeshesAreStored()
{
    AnalysisHost host(*this);
    host.Run("action_SubShapeMesh", [](QDialog& dialog) {
        Type(dialog, "lineEdit_MeshSize", "0.05123456789");
        Click(dialog, "pushButton_OK");
    });
    host.Run("action_SubShapeMesh", [](QDialog& dialog) {
        QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_MeshSize").text(), QString());
        Type(dialog, "lineEdit_MeshNumber", "12");
        Click(dialog, "pushButton_OK");
    });
    host.Run("action_SubShapeMesh", [](QDialog& dialog) {
        Type(dialog, "lineEdit_MeshSize", "3");
        Click(dialog, "pushButton_Cancel");
    });
    QCOMPARE(host.Shown("Local meshes"),
             QStringList({"Local mesh 1: size 0.05123456789 mm; nothing is picked yet",
                          "Local mesh 2: 12 elements along each; nothing is picked yet"}));
    QCOMPARE(host.posted.size(), 0);
}

void tst_AnalysisActions::AnEntryIsEditedInItsDialog()
{
    AnalysisHost host(*this);
    AnalysisDefinition analysis;
    analysis.constraints = {Constraint("foot", "plate.zmin")};
    analysis.loads = {Load("pull", "2 * 50", "3", "4")};
    host.model.SetDefinition(analysis);
    Choose(host, {AnalysisEntry::Constraint, 0});
    host.Run("action_EditAnalysis", [](QDialog& dialog) {
        QCOMPARE(Find<QLineEdit>(dialog, "lied_Name").text(), QString("foot"));
        QVERIFY(Find<QCheckBox>(dialog, "chb_ZD").isChecked());
        QVERIFY(!Find<QCheckBox>(dialog, "chb_XR").isChecked());
        Type(dialog, "lied_Name", "base");
        Click(dialog, "okButton");
    });
    Choose(host, {AnalysisEntry::Load, 0});
    host.Run("action_EditAnalysis", [](QDialog& dialog) {
        QCOMPARE(Find<QLineEdit>(dialog, "lied_FX").text(), QString("100"));
        Type(dialog, "lied_FY", "7.5");
        // The name of the entry itself is not a second one.
        Click(dialog, "okButton");
    });
    QCOMPARE(host.user.Boxes(), QVector<ShownBox>());
    QCOMPARE(host.Shown("Boundary conditions"),
             QStringList("base: fixes X_D, Y_D, Z_D on plate.zmin"));
    QCOMPARE(host.Shown("Loads"),
             QStringList("pull: FX = 2 * 50 N, FY = 7.5 N, FZ = 4 N on box.zmax"));
    QVERIFY(IsTaken("base") && IsTaken("pull") && !IsTaken("foot"));
}

void tst_AnalysisActions::ACancelledEditKeepsTheEntry()
{
    AnalysisHost host(*this);
    AnalysisDefinition analysis;
    analysis.constraints = {Constraint("foot")};
    host.model.SetDefinition(analysis);
    Choose(host, {AnalysisEntry::Constraint, 0});
    host.Run("action_EditAnalysis", [](QDialog& dialog) {
        Type(dialog, "lied_Name", "base");
        Click(dialog, "cancelButton");
    });
    QVERIFY(host.model.Definition() == analysis);
    QVERIFY(IsTaken("foot"));
}

TARN_TEST_MAIN(tst_AnalysisActions)
#include "FrequencyPref.h"
#include "tst_AnalysisActions.moc"
