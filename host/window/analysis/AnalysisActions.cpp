#include "AnalysisActions.h"

#include "AnalysisDialogs.h"
#include "AnalysisFiles.h"
#include "AnalysisRecords.h"
#include "AnalysisTree.h"
#include "CAnalysisTypeGUI.h"
#include "ELementPropGUI.h"
#include "HostError.h"
#include "KVMaterialData.h"
#include "KVMaterialLibrary.h"
#include "MaterialLibrary.h"
#include "MenuActions.h"
#include "MessageLevel.h"
#include "PartModel.h"
#include "SetupCheckDock.h"

#include <QMenu>

#include <algorithm>

namespace {

// Replaces the entry at @p index by the edited one, if there is one.
template<class Entry>
bool Replace(std::vector<Entry>& entries, int index, const std::optional<Entry>& edited)
{
    if (edited)
        entries.at(std::size_t(index)) = *edited;
    return edited.has_value();
}

// Adds the entry, if there is one.
template<class Entry>
bool Append(std::vector<Entry>& entries, const std::optional<Entry>& entry)
{
    if (entry)
        entries.push_back(*entry);
    return entry.has_value();
}

template<class Entry>
AnalysisEntry LastOf(AnalysisEntry::Kind kind, const std::vector<Entry>& entries)
{
    return {kind, int(entries.size()) - 1};
}

double LongestSide(const ShapeMeasures& measures)
{
    const std::array<double, 6>& box = measures.boundingBox;
    return std::max({box[3] - box[0], box[4] - box[1], box[5] - box[2]});
}

} // namespace

AnalysisActions::AnalysisActions(AnalysisRecords& model, AnalysisTree& tree, SetupCheckDock& check,
                                 const PartModel& part, QWidget* window)
    : QObject(window)
    , m_model(model)
    , m_tree(tree)
    , m_check(check)
    , m_part(part)
    , m_window(window)
{
    connect(&tree, &AnalysisTree::EditWanted, this, &AnalysisActions::Edit);
    connect(&check, &SetupCheckDock::EntryChosen, &tree, [&tree](const AnalysisEntry& entry) {
        tree.Select(entry);
        tree.show();
        tree.raise();
    });
    connect(&model, &AnalysisRecords::Changed, &check, &SetupCheckDock::MarkAsOld);
    connect(&part, &PartModel::Changed, &check, &SetupCheckDock::MarkAsOld);
    connect(&part, &PartModel::PartBuilt, &check, &SetupCheckDock::MarkAsOld);
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
    menu.addSeparator();
    menu.addActions({m_tree.EditAction(), m_tree.PickAction(), m_tree.DeleteAction()});
    menu.addSeparator();
    add(tr("&New element property"), "action_NewElementProperty", &AnalysisActions::AddProperty);
    add(tr("Element p&roperties"), "action_ElementProperties", &AnalysisActions::ManageProperties);
    add(tr("&Material library"), "action_MaterialLibrary", &AnalysisActions::BrowseMaterials);
    menu.addSeparator();
    add(tr("&Frequency range"), "action_FrequencyRange", &AnalysisActions::SetFrequencies);
    add(tr("Mesh &size"), "action_MeshSize", &AnalysisActions::SetMeshSize);
    add(tr("S&ub-shape mesh"), "action_SubShapeMesh", &AnalysisActions::AddLocalMesh);
    menu.addSeparator();
    add(tr("&Check Set-up"), "action_CheckSetup", &AnalysisActions::CheckSetupNow);
}

bool AnalysisActions::Change(const std::function<bool(AnalysisDefinition&)>& edit)
{
    try {
        AnalysisDefinition analysis = m_model.Definition();
        if (edit(analysis) && analysis != m_model.Definition()) {
            m_model.SetDefinition(analysis);
            return true;
        }
    } catch (const HostError& error) {
        PostMessageToChannel(ErrorLevel, error.Reason());
    }
    return false;
}

void AnalysisActions::ChooseType()
{
    Change([this](AnalysisDefinition& analysis) {
        SolverType& type = analysis.type;
        CAnalysisTypeGUI dialog(m_window);
        dialog.InitData(type.family, type.kind);
        // OK only hides the dialog, so the result of exec() has no meaning; Cancel restores the
        // pair.
        dialog.exec();
        dialog.getSolverType(type.family, type.kind);
        return true;
    });
}

void AnalysisActions::AddBoundaryCondition()
{
    const auto add = [this](AnalysisDefinition& analysis) {
        return Append(analysis.constraints, AskConstraint(m_window, {}));
    };
    if (Change(add))
        Q_EMIT EntryAdded(LastOf(AnalysisEntry::Constraint, m_model.Definition().constraints));
}

void AnalysisActions::AddLoad()
{
    const auto add = [this](AnalysisDefinition& analysis) {
        return Append(analysis.loads, AskLoad(m_window, {}));
    };
    if (Change(add))
        Q_EMIT EntryAdded(LastOf(AnalysisEntry::Load, m_model.Definition().loads));
}

void AnalysisActions::ReadFiles()
{
    const QString warning = ReadAnalysisFiles();
    if (!warning.isEmpty())
        PostMessageToChannel(WarningLevel, warning);
    m_model.TakeStores();
}

void AnalysisActions::AddProperty()
{
    ReadFiles();
    Change([this](AnalysisDefinition& analysis) {
        const std::optional<PropertyDefinition> property = AskProperty(m_window, {});
        if (!property)
            return false;
        // A property of the same name is replaced, as in the dialogs.
        const auto same = std::find_if(
            analysis.properties.begin(), analysis.properties.end(),
            [&](const PropertyDefinition& other) { return other.name == property->name; });
        if (same == analysis.properties.end())
            analysis.properties.push_back(*property);
        else
            *same = *property;
        return true;
    });
}

void AnalysisActions::ManageProperties()
{
    ReadFiles();
    ELementPropGUI manager(m_window);
    // OK and Cancel both keep added and edited records in the store.
    manager.exec();
    m_model.TakeStores();
}

void AnalysisActions::BrowseMaterials()
{
    ReadFiles();
    KVMaterialLibrary library(m_window);
    library.SetComToItemData(KVMaterialData::GetInstance()->CurrentMaterialName());
    library.Reset();
    if (library.exec() == QDialog::Accepted && !library.selectedMaterialName().isEmpty())
        PostMessageToChannel(InfoLevel, tr("Chosen material: %1; source: %2")
                                            .arg(library.selectedMaterialName(),
                                                 SourceOf(library.selectedMaterialName())));
}

void AnalysisActions::SetFrequencies()
{
    Change([this](AnalysisDefinition& analysis) {
        const auto range = AskFrequencies(m_window, analysis.frequencies);
        analysis.frequencies = range.value_or(analysis.frequencies);
        return range.has_value();
    });
}

void AnalysisActions::SetMeshSize()
{
    Change([this](AnalysisDefinition& analysis) {
        const std::optional<QString> size = AskMeshSize(m_window, analysis.meshSize);
        analysis.meshSize = size.value_or(analysis.meshSize);
        return size.has_value();
    });
}

void AnalysisActions::AddLocalMesh()
{
    const auto add = [this](AnalysisDefinition& analysis) {
        return Append(analysis.localMeshes, AskLocalMesh(m_window, {}));
    };
    if (Change(add))
        Q_EMIT EntryAdded(LastOf(AnalysisEntry::LocalMesh, m_model.Definition().localMeshes));
}

void AnalysisActions::Edit(const AnalysisEntry& entry)
{
    const auto index = std::size_t(entry.index);
    switch (entry.kind) {
    case AnalysisEntry::SolverType:
        ChooseType();
        break;
    case AnalysisEntry::Frequencies:
        SetFrequencies();
        break;
    case AnalysisEntry::MeshSize:
        SetMeshSize();
        break;
    case AnalysisEntry::Constraint:
        Change([&](AnalysisDefinition& analysis) {
            return Replace(analysis.constraints, entry.index,
                           AskConstraint(m_window, analysis.constraints.at(index)));
        });
        break;
    case AnalysisEntry::Load:
        Change([&](AnalysisDefinition& analysis) {
            return Replace(analysis.loads, entry.index,
                           AskLoad(m_window, analysis.loads.at(index)));
        });
        break;
    case AnalysisEntry::Property:
        Change([&](AnalysisDefinition& analysis) {
            return Replace(analysis.properties, entry.index,
                           AskProperty(m_window, analysis.properties.at(index)));
        });
        break;
    case AnalysisEntry::LocalMesh:
        Change([&](AnalysisDefinition& analysis) {
            return Replace(analysis.localMeshes, entry.index,
                           AskLocalMesh(m_window, analysis.localMeshes.at(index)));
        });
        break;
    default:
        break;
    }
}

void AnalysisActions::CheckSetupNow()
{
    ReadFiles();
    SetupContext context;
    context.partMaterial = m_material();
    context.overlaps = m_part.Measures().overlaps;
    context.longestSide = LongestSide(m_part.Measures());
    context.failure = m_part.Failure();
    context.part = &m_part.Built();
    m_check.ShowProblems(CheckSetup(m_model.Definition(), context));
}
