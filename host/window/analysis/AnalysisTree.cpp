#include "AnalysisTree.h"

#include "AnalysisRecords.h"
#include "AnalysisType.h"
#include "CQLTElemPropDef.h"
#include "FrequencyPref.h"
#include "KVPropertyData.h"
#include "MenuActions.h"
#include "NumberTexts.h"

#include <QHeaderView>
#include <QTreeWidget>

namespace {

// On the items of boundary conditions and loads: the bytes of the name.
constexpr int AttributeRole = Qt::UserRole;

QString SolverTypeText(int family, int kind)
{
    using namespace AnalysisType;
    const struct
    {
        int family;
        int kind;
        QString text;
    } types[] = {
        {MechanicsFamily, StaticKind, AnalysisTree::tr("Static")},
        {MechanicsFamily, VibrationKind, AnalysisTree::tr("Vibration")},
        {MechanicsFamily, BucklingKind, AnalysisTree::tr("Buckling")},
        {MechanicsFamily, TransientKind, AnalysisTree::tr("Transient")},
        {MechanicsFamily, FrequencyResponseKind, AnalysisTree::tr("Frequency response")},
        {ComplexEigenvalueFamily, ComplexEigenvalueKind, AnalysisTree::tr("Complex eigenvalue")},
    };
    QString text = AnalysisTree::tr("unknown");
    for (const auto& type : types) {
        if (type.family == family && type.kind == kind)
            text = type.text;
    }
    return AnalysisTree::tr("%1 (family %2, kind %3)").arg(text).arg(family).arg(kind);
}

QString HeldText(const sConstrainData& constraint)
{
    const struct
    {
        bool isHeld;
        QString text;
    } freedoms[] = {
        {constraint.m_bXD, QStringLiteral("X_D")}, {constraint.m_bYD, QStringLiteral("Y_D")},
        {constraint.m_bZD, QStringLiteral("Z_D")}, {constraint.m_bXR, QStringLiteral("X_R")},
        {constraint.m_bYR, QStringLiteral("Y_R")}, {constraint.m_bZR, QStringLiteral("Z_R")},
    };
    QStringList held;
    for (const auto& freedom : freedoms) {
        if (freedom.isHeld)
            held << freedom.text;
    }
    if (held.isEmpty())
        return AnalysisTree::tr("fixes nothing");
    return AnalysisTree::tr("fixes %1").arg(held.join(QStringLiteral(", ")));
}

QString ForceText(const sLoadForceData& load)
{
    const QString force =
        AnalysisTree::tr("FX = %1, FY = %2, FZ = %3")
            .arg(ExactText(load.m_dFX), ExactText(load.m_dFY), ExactText(load.m_dFZ));
    return load.m_nKind == sLoadForceData::NormalToFaceKind
               ? AnalysisTree::tr("normal to surface, %1").arg(force)
               : force;
}

QString PropertyText(const CQLTElemPropDef& property)
{
    const QString type =
        property.m_strTypeName.isEmpty() ? AnalysisTree::tr("no type") : property.m_strTypeName;
    const QString material = property.m_strMaterialName.isEmpty()
                                 ? AnalysisTree::tr("no material")
                                 : AnalysisTree::tr("material %1").arg(property.m_strMaterialName);
    return AnalysisTree::tr("%1, %2, thickness %3")
        .arg(type, material, ExactText(property.m_dThickness));
}

QTreeWidgetItem* AddRecord(QTreeWidgetItem& group, const QString& name, const QString& value)
{
    auto* const item = new QTreeWidgetItem(&group, {name, value});
    item->setToolTip(AnalysisTree::NameColumn, name);
    item->setToolTip(AnalysisTree::ValueColumn, value);
    return item;
}

void AddAttribute(QTreeWidgetItem& group, const std::string& name, const QString& value)
{
    QTreeWidgetItem* const item = AddRecord(group, AttributeText(name), value);
    item->setData(AnalysisTree::NameColumn, AttributeRole, QByteArray::fromStdString(name));
}

} // namespace

AnalysisTree::AnalysisTree(AnalysisRecords& model, QWidget* parent)
    : QDockWidget(tr("Analysis model"), parent)
    , m_model(model)
    , m_tree(new QTreeWidget(this))
    , m_delete(NewAction(tr("&Delete boundary condition or load"), "action_DeleteAttribute", this,
                         &AnalysisTree::DeleteSelected, QKeySequence::Delete))
{
    setObjectName(QStringLiteral("modelTreeDock"));
    setWidget(m_tree);

    m_tree->setObjectName(QStringLiteral("modelTree"));
    m_tree->setAccessibleName(windowTitle());
    m_tree->setHeaderLabels({tr("Record"), tr("Stored")});
    m_tree->header()->setStretchLastSection(true);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);

    m_delete->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_tree->addAction(m_delete);
    m_tree->setContextMenuPolicy(Qt::ActionsContextMenu);

    connect(m_tree, &QTreeWidget::itemSelectionChanged, this,
            [this] { m_delete->setEnabled(SelectedAttribute() != nullptr); });
    connect(&m_model, &AnalysisRecords::Changed, this, &AnalysisTree::Refresh);

    Refresh();
}

AnalysisTree::~AnalysisTree() = default;

void AnalysisTree::Refresh()
{
    m_tree->clear();
    ShowSolverType();
    ShowConstraints();
    ShowLoads();
    ShowProperties();
    ShowFrequencies();
    ShowMeshSizes();
    m_tree->expandAll();
    m_tree->resizeColumnToContents(NameColumn);
    m_delete->setEnabled(false);
}

QTreeWidgetItem* AnalysisTree::AddGroup(const QString& title)
{
    return new QTreeWidgetItem(m_tree, {title});
}

void AnalysisTree::ShowSolverType()
{
    QTreeWidgetItem* const group = AddGroup(tr("Analysis type"));
    group->setText(ValueColumn, SolverTypeText(m_model.Family(), m_model.Kind()));
}

void AnalysisTree::ShowConstraints()
{
    QTreeWidgetItem* const group = AddGroup(tr("Boundary conditions"));
    for (const sConstrainData& constraint : m_model.Constraints())
        AddAttribute(*group, constraint.m_strName, HeldText(constraint));
}

void AnalysisTree::ShowLoads()
{
    QTreeWidgetItem* const group = AddGroup(tr("Loads"));
    for (const sLoadForceData& load : m_model.Loads())
        AddAttribute(*group, load.m_strName, ForceText(load));
}

void AnalysisTree::ShowProperties()
{
    QTreeWidgetItem* const group = AddGroup(tr("Element properties"));
    for (const auto& [name, property] : KVPropertyData::GetInstance()->GetProptyDataMap())
        AddRecord(*group, name, PropertyText(*property));
}

void AnalysisTree::ShowFrequencies()
{
    QTreeWidgetItem* const group = AddGroup(tr("Frequency range"));
    group->setText(ValueColumn, tr("%1 to %2, %3 points")
                                    .arg(ExactText(FrequencyPref::m_MinFreq),
                                         ExactText(FrequencyPref::m_MaxFreq))
                                    .arg(FrequencyPref::m_NumFreq));
}

void AnalysisTree::ShowMeshSizes()
{
    QTreeWidgetItem* const size = AddGroup(tr("Mesh size"));
    size->setText(ValueColumn,
                  m_model.MeshSize().has_value() ? ExactText(*m_model.MeshSize()) : tr("not set"));
    QTreeWidgetItem* const part = AddGroup(tr("Sub-shape mesh"));
    part->setText(ValueColumn, m_model.SubShape().has_value()
                                   ? tr("size %1, number %2")
                                         .arg(ExactText(m_model.SubShape()->size))
                                         .arg(m_model.SubShape()->number)
                                   : tr("not set"));
}

QTreeWidgetItem* AnalysisTree::SelectedAttribute() const
{
    const QList<QTreeWidgetItem*> selected = m_tree->selectedItems();
    if (selected.isEmpty() || !selected.first()->data(NameColumn, AttributeRole).isValid())
        return nullptr;
    return selected.first();
}

void AnalysisTree::DeleteSelected()
{
    if (const QTreeWidgetItem* const item = SelectedAttribute())
        m_model.Remove(item->data(NameColumn, AttributeRole).toByteArray().toStdString());
}
