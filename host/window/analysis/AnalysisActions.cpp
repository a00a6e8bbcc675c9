#include "AnalysisActions.h"

#include "AnalysisFiles.h"
#include "AnalysisRecords.h"
#include "AnalysisTree.h"
#include "CAnalysisTypeGUI.h"
#include "CQLTConstrainEditor.h"
#include "CQLTElePropertyEditor.h"
#include "CQLTElemPropDef.h"
#include "CQLTLoadForceEditor.h"
#include "ELementPropGUI.h"
#include "KVMaterialData.h"
#include "KVMaterialLibrary.h"
#include "KVPropertyData.h"
#include "MenuActions.h"
#include "MeshSizeInput.h"
#include "MessageLevel.h"
#include "NumberTexts.h"
#include "PartModel.h"
#include "SetupCheck.h"
#include "SubShapeMeshParameterDlg.h"
#include "frequencySetting.h"

#include <QMenu>

#include <memory>
#include <optional>

namespace {

std::unique_ptr<MeshSizeInput> NewMeshSizeInput(const std::optional<double>& size, QWidget* parent)
{
    if (size.has_value())
        return std::make_unique<MeshSizeInput>(*size, parent);
    return std::make_unique<MeshSizeInput>(parent);
}

} // namespace

AnalysisActions::AnalysisActions(AnalysisRecords& model, AnalysisTree& tree, const PartModel& part,
                                 QWidget* window)
    : QObject(window)
    , m_model(model)
    , m_tree(tree)
    , m_part(part)
    , m_window(window)
{
}

AnalysisActions::~AnalysisActions() = default;

void AnalysisActions::FillMenu(QMenu& menu)
{
    const auto add = [this, &menu](const QString& text, const char* name,
                                   void (AnalysisActions::*run)()) {
        menu.addAction(NewAction(text, name, this, run));
    };
    add(tr("&Analysis type"), "action_AnalysisType", &AnalysisActions::ChooseType);
    add(tr("&Boundary condition"), "action_BoundaryCondition",
        &AnalysisActions::AddBoundaryCondition);
    add(tr("&Load force"), "action_LoadForce", &AnalysisActions::AddLoad);
    menu.addAction(m_tree.DeleteAction());
    menu.addSeparator();
    add(tr("&New element property"), "action_NewElementProperty", &AnalysisActions::AddProperty);
    add(tr("Element &properties"), "action_ElementProperties", &AnalysisActions::ManageProperties);
    add(tr("&Material library"), "action_MaterialLibrary", &AnalysisActions::BrowseMaterials);
    menu.addSeparator();
    add(tr("&Frequency range"), "action_FrequencyRange", &AnalysisActions::SetFrequencies);
    add(tr("Mesh &size"), "action_MeshSize", &AnalysisActions::SetMeshSize);
    add(tr("S&ub-shape mesh"), "action_SubShapeMesh", &AnalysisActions::SetSubShapeMesh);
    menu.addSeparator();
    add(tr("&Check Set-up"), "action_CheckSetup", &AnalysisActions::CheckSetupNow);
}

void AnalysisActions::ChooseType()
{
    int family = m_model.Family();
    int kind = m_model.Kind();
    CAnalysisTypeGUI dialog(m_window);
    dialog.InitData(family, kind);
    // OK only hides the dialog, so the result of exec() has no meaning; Cancel restores the pair.
    dialog.exec();
    dialog.getSolverType(family, kind);
    m_model.SetSolverType(family, kind);
}

void AnalysisActions::AddBoundaryCondition()
{
    CQLTConstrainEditor editor(m_window);
    if (editor.exec() == QDialog::Accepted)
        m_model.AddConstraint(editor.GetConstrainData());
}

void AnalysisActions::AddLoad()
{
    CQLTLoadForceEditor editor(m_window);
    if (editor.exec() == QDialog::Accepted)
        m_model.AddLoad(editor.GetLoadForceData());
}

void AnalysisActions::ReadFiles()
{
    const QString warning = ReadAnalysisFiles();
    if (!warning.isEmpty())
        PostMessageToChannel(WarningLevel, warning);
}

void AnalysisActions::AddProperty()
{
    ReadFiles();
    CQLTElePropertyEditor editor(m_window);
    const bool isAccepted = editor.exec() == QDialog::Accepted;
    // OK allocates the record even if it refuses it, and Cancel may follow.
    std::unique_ptr<CQLTElemPropDef> property(editor.GetPropData());
    if (isAccepted)
        KVPropertyData::GetInstance()->AddPropInfo(property.release());
    m_tree.Refresh();
}

void AnalysisActions::ManageProperties()
{
    ReadFiles();
    ELementPropGUI manager(m_window);
    // OK and Cancel both keep added and edited records in the store.
    manager.exec();
    m_tree.Refresh();
}

void AnalysisActions::BrowseMaterials()
{
    ReadFiles();
    KVMaterialLibrary library(m_window);
    library.SetComToItemData(KVMaterialData::GetInstance()->CurrentMaterialName());
    library.Reset();
    if (library.exec() == QDialog::Accepted && !library.selectedMaterialName().isEmpty())
        PostMessageToChannel(InfoLevel,
                             tr("Chosen material: %1").arg(library.selectedMaterialName()));
}

void AnalysisActions::SetFrequencies()
{
    frequencySetting dialog(m_window);
    if (dialog.exec() == QDialog::Accepted)
        m_tree.Refresh();
}

void AnalysisActions::SetMeshSize()
{
    const std::unique_ptr<MeshSizeInput> dialog = NewMeshSizeInput(m_model.MeshSize(), m_window);
    if (dialog->exec() == QDialog::Accepted)
        m_model.SetMeshSize(dialog->GetMeshSize());
}

void AnalysisActions::SetSubShapeMesh()
{
    SubShapeMeshParameterDlg dialog(m_window);
    if (m_model.SubShape().has_value()) {
        dialog.ui.lineEdit_MeshSize->setText(ExactText(m_model.SubShape()->size));
        dialog.ui.lineEdit_MeshNumber->setText(QString::number(m_model.SubShape()->number));
    }
    // The dialog leaves its buttons to the host.
    connect(dialog.ui.pushButton_OK, &QPushButton::clicked, &dialog, &QDialog::accept);
    connect(dialog.ui.pushButton_Cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    if (dialog.exec() != QDialog::Accepted)
        return;

    bool hasSize = false;
    bool hasNumber = false;
    AnalysisRecords::SubShapeMesh mesh;
    mesh.size = dialog.ui.lineEdit_MeshSize->text().toDouble(&hasSize);
    mesh.number = dialog.ui.lineEdit_MeshNumber->text().toInt(&hasNumber);
    if (hasSize && hasNumber)
        m_model.SetSubShape(mesh);
    else
        PostMessageToChannel(WarningLevel,
                             tr("The sub-shape mesh was not applied: size and number must be "
                                "numeric"));
}

void AnalysisActions::CheckSetupNow()
{
    ReadFiles();
    m_tree.Refresh();
    AnalysisSetup setup = CurrentSetup(m_model);
    setup.overlaps = m_part.Measures().overlaps;
    const QStringList problems = CheckSetup(setup);
    for (const QString& problem : problems)
        PostMessageToChannel(WarningLevel, problem);
    if (problems.isEmpty())
        PostMessageToChannel(InfoLevel, tr("The set-up is complete"));
}
