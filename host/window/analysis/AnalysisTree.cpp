#include "AnalysisTree.h"

#include "AnalysisRecords.h"
#include "AnalysisTexts.h"
#include "MaterialLibrary.h"
#include "MenuActions.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTreeWidget>

namespace {

// On all items: the kind of the entry, and its index, or -1 on a list.
constexpr int KindRole = Qt::UserRole;
constexpr int IndexRole = Qt::UserRole + 1;

void SetEntry(QTreeWidgetItem& item, AnalysisEntry::Kind kind, int index)
{
    item.setData(AnalysisTree::NameColumn, KindRole, int(kind));
    item.setData(AnalysisTree::NameColumn, IndexRole, index);
}

AnalysisEntry EntryOf(const QTreeWidgetItem& item)
{
    return {AnalysisEntry::Kind(item.data(AnalysisTree::NameColumn, KindRole).toInt()),
            item.data(AnalysisTree::NameColumn, IndexRole).toInt()};
}

QTreeWidgetItem* NewRow(QTreeWidgetItem& parent, const QString& name, const QString& value)
{
    auto* const item = new QTreeWidgetItem(&parent, {name, value});
    item->setToolTip(AnalysisTree::NameColumn, name);
    item->setToolTip(AnalysisTree::ValueColumn, value);
    return item;
}

bool IsList(AnalysisEntry::Kind kind)
{
    return kind == AnalysisEntry::Property || kind == AnalysisEntry::Constraint ||
           kind == AnalysisEntry::Load || kind == AnalysisEntry::LocalMesh;
}

template<class Entry>
QString NameOf(const Entry& entry, int index)
{
    Q_UNUSED(index)
    return entry.name;
}

QString NameOf(const LocalMeshDefinition& mesh, int index)
{
    Q_UNUSED(mesh)
    return AnalysisTree::tr("Local mesh %1").arg(index + 1);
}

template<class Entry>
QString SourceOfValues(const Entry& entry)
{
    Q_UNUSED(entry)
    return {};
}

QString SourceOfValues(const PropertyDefinition& property)
{
    return SourceOf(property.material);
}

template<class Entry>
void Erase(std::vector<Entry>& entries, int index)
{
    entries.erase(entries.begin() + index);
}

} // namespace

AnalysisTree::AnalysisTree(AnalysisRecords& model, QWidget* parent)
    : QDockWidget(tr("Analysis model"), parent)
    , m_model(model)
    , m_tree(new QTreeWidget(this))
    , m_edit(NewAction(tr("&Edit entry"), "action_EditAnalysis", this, &AnalysisTree::EditSelected))
    , m_pick(NewAction(tr("&Pick faces and edges"), "action_PickTargets", this,
                       &AnalysisTree::PickSelected))
    , m_delete(NewAction(tr("&Delete entry"), "action_DeleteAttribute", this,
                         &AnalysisTree::DeleteSelected, QKeySequence::Delete))
{
    setObjectName(QStringLiteral("modelTreeDock"));
    setWidget(m_tree);

    m_tree->setObjectName(QStringLiteral("modelTree"));
    m_tree->setAccessibleName(windowTitle());
    m_tree->setHeaderLabels({tr("Record"), tr("Stored")});
    m_tree->header()->setStretchLastSection(true);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->setExpandsOnDoubleClick(false);

    m_delete->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_tree->addActions({m_edit, m_pick, m_delete});
    m_tree->setContextMenuPolicy(Qt::ActionsContextMenu);

    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &AnalysisTree::Announce);
    connect(m_tree, &QTreeWidget::itemActivated, this, &AnalysisTree::EditSelected);
    connect(&m_model, &AnalysisRecords::Changed, this, &AnalysisTree::Refresh);

    Refresh();
}

AnalysisTree::~AnalysisTree() = default;

void AnalysisTree::Refresh()
{
    const std::optional<AnalysisEntry> selected = Selected();
    const AnalysisDefinition& analysis = m_model.Definition();
    {
        const QSignalBlocker blocker(m_tree);
        m_tree->clear();
        AddGroup(tr("Analysis type"), AnalysisEntry::SolverType)
            ->setText(ValueColumn, SolverTypeText(m_model.Definition().type));
        ShowEntries(tr("Boundary conditions"), AnalysisEntry::Constraint, analysis.constraints);
        ShowEntries(tr("Loads"), AnalysisEntry::Load, analysis.loads);
        ShowEntries(tr("Element properties"), AnalysisEntry::Property, analysis.properties);
        AddGroup(tr("Frequency range"), AnalysisEntry::Frequencies)
            ->setText(ValueColumn, EntryText(analysis.frequencies));
        AddGroup(tr("Mesh size"), AnalysisEntry::MeshSize)
            ->setText(ValueColumn, analysis.meshSize.isEmpty()
                                       ? tr("not set: a tenth of the longest side")
                                       : tr("%1 mm").arg(analysis.meshSize));
        ShowEntries(tr("Local meshes"), AnalysisEntry::LocalMesh, analysis.localMeshes);
        m_tree->expandAll();
        m_tree->resizeColumnToContents(NameColumn);
        if (selected)
            Select(*selected);
    }
    Announce();
}

QTreeWidgetItem* AnalysisTree::AddGroup(const QString& title, AnalysisEntry::Kind kind)
{
    auto* const group = new QTreeWidgetItem(m_tree, {title});
    SetEntry(*group, kind, IsList(kind) ? -1 : 0);
    return group;
}

template<class Entry>
void AnalysisTree::ShowEntries(const QString& title, AnalysisEntry::Kind kind,
                               const std::vector<Entry>& entries)
{
    QTreeWidgetItem* const group = AddGroup(title, kind);
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const QString name = NameOf(entries[index], int(index));
        const QString value = EntryText(entries[index]);
        const QString source = SourceOfValues(entries[index]);
        auto* const item = NewRow(*group, name, value);
        SetEntry(*item, kind, int(index));
        if (!source.isEmpty())
            SetEntry(*NewRow(*item, AnalysisTree::tr("Source of the material"), source), kind,
                     int(index));
    }
}

QTreeWidgetItem* AnalysisTree::Item(const AnalysisEntry& entry) const
{
    for (int place = 0; place < m_tree->topLevelItemCount(); ++place) {
        QTreeWidgetItem* const group = m_tree->topLevelItem(place);
        if (EntryOf(*group).kind != entry.kind)
            continue;
        const bool isEntryOfList = IsList(entry.kind) && entry.index >= 0;
        return isEntryOfList ? group->child(entry.index) : group;
    }
    return nullptr;
}

std::optional<AnalysisEntry> AnalysisTree::Selected() const
{
    const QList<QTreeWidgetItem*> selected = m_tree->selectedItems();
    if (selected.isEmpty())
        return std::nullopt;
    const AnalysisEntry entry = EntryOf(*selected.first());
    return entry.index < 0 ? std::nullopt : std::make_optional(entry);
}

void AnalysisTree::Select(const AnalysisEntry& entry)
{
    if (QTreeWidgetItem* const item = Item(entry))
        m_tree->setCurrentItem(item);
}

void AnalysisTree::Announce()
{
    const std::optional<AnalysisEntry> selected = Selected();
    const bool isOfList = selected && IsList(selected->kind);
    m_edit->setEnabled(selected.has_value());
    m_pick->setEnabled(isOfList);
    m_delete->setEnabled(isOfList);
    Q_EMIT SelectionChanged();
}

void AnalysisTree::EditSelected()
{
    if (const std::optional<AnalysisEntry> selected = Selected())
        Q_EMIT EditWanted(*selected);
}

void AnalysisTree::PickSelected()
{
    if (const std::optional<AnalysisEntry> selected = Selected())
        Q_EMIT PickWanted(*selected);
}

void AnalysisTree::DeleteSelected()
{
    const std::optional<AnalysisEntry> selected = Selected();
    if (!selected)
        return;
    AnalysisDefinition analysis = m_model.Definition();
    if (selected->kind == AnalysisEntry::Constraint)
        Erase(analysis.constraints, selected->index);
    else if (selected->kind == AnalysisEntry::Load)
        Erase(analysis.loads, selected->index);
    else if (selected->kind == AnalysisEntry::Property)
        Erase(analysis.properties, selected->index);
    else if (selected->kind == AnalysisEntry::LocalMesh)
        Erase(analysis.localMeshes, selected->index);
    m_model.SetDefinition(analysis);
}
