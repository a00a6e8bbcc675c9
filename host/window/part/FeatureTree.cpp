#include "FeatureTree.h"

#include "FeatureKind.h"
#include "FeatureTexts.h"
#include "PartModel.h"

#include <QAction>
#include <QFileInfo>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QStyle>
#include <QTreeWidget>

namespace {

// Such as "Radius = 10, Height = thickness".
QString FieldsText(const Feature& feature)
{
    QStringList texts;
    if (!feature.inputs.isEmpty())
        texts << FeatureTree::tr("of %1").arg(feature.inputs.join(QStringLiteral(", ")));
    if (!feature.file.isEmpty())
        texts << QFileInfo(feature.file).fileName();
    if (feature.face)
        texts << FeatureTree::tr("at %1").arg(feature.face->Text());
    if (!feature.edges.empty())
        texts << FeatureTree::tr("at %1").arg(TextOf(feature.edges));
    for (int i = 0; i < feature.fields.size(); ++i) {
        const FieldDefinition& field = feature.kind->fields[std::size_t(i)];
        const bool isReplaced = feature.HasReferences() && feature.kind->IsPosition(field);
        const bool isOmitted = field.isOptional && feature.fields[i] == field.defaultText;
        if (!isReplaced && !isOmitted)
            texts << QStringLiteral("%1 = %2").arg(field.Label(), feature.fields[i]);
    }
    return texts.join(QStringLiteral(", "));
}

} // namespace

FeatureTree::FeatureTree(PartModel& model, QWidget* parent)
    : QDockWidget(tr("Features"), parent)
    , m_model(model)
    , m_tree(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("featureDock"));
    setWidget(m_tree);

    m_tree->setObjectName(QStringLiteral("featureTree"));
    m_tree->setAccessibleName(windowTitle());
    m_tree->setHeaderLabels({tr("Feature"), tr("Kind"), tr("Made from")});
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->setContextMenuPolicy(Qt::ActionsContextMenu);

    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &FeatureTree::NoteSelection);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, &FeatureTree::EditWanted);
    connect(&m_model, &PartModel::Changed, this, &FeatureTree::Refresh);
    connect(&m_model, &PartModel::BuildFailed, this, &FeatureTree::Refresh);
    Refresh();
}

FeatureTree::~FeatureTree() = default;

void FeatureTree::OfferActions(const QList<QAction*>& actions)
{
    for (QAction* const action : actions)
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_tree->addActions(actions);
}

void FeatureTree::Select(const QString& name)
{
    const int index = m_model.Features().Find(name);
    if (index < 0)
        return;
    m_tree->clearSelection();
    m_tree->setCurrentItem(m_tree->topLevelItem(index));
}

void FeatureTree::Refresh()
{
    const FeatureList& features = m_model.Features();
    const bool sameSize = features.Size() == m_tree->topLevelItemCount();
    const QSignalBlocker silent(m_tree);
    // Rows are reused, so that the scroll position and the current row stay.
    while (m_tree->topLevelItemCount() > features.Size())
        delete m_tree->takeTopLevelItem(m_tree->topLevelItemCount() - 1);
    while (m_tree->topLevelItemCount() < features.Size())
        m_tree->addTopLevelItem(new QTreeWidgetItem);

    QStringList selected;
    for (const QString& name : qAsConst(m_selected)) {
        if (features.Find(name) >= 0)
            selected << name;
    }
    for (int row = 0; row < features.Size(); ++row) {
        const Feature& feature = features.At(row);
        QTreeWidgetItem& item = *m_tree->topLevelItem(row);
        const QString former = item.text(NameColumn);
        // A name that is missing in a list of the same length was changed.
        if (sameSize && m_selected.contains(former) && features.Find(former) < 0)
            selected << feature.name;
        ShowFeature(item, feature);
        item.setSelected(selected.contains(feature.name));
    }
    m_selected = selected;
    for (const int column : {NameColumn, KindColumn})
        m_tree->resizeColumnToContents(column);
    Q_EMIT SelectionChanged();
}

void FeatureTree::ShowFeature(QTreeWidgetItem& item, const Feature& feature) const
{
    const bool hasFailed = feature.name == m_model.FailedFeature();
    const QString fields = FieldsText(feature);
    item.setText(NameColumn, feature.name);
    item.setText(KindColumn, feature.kind->Title());
    item.setText(FieldsColumn, fields);
    item.setToolTip(NameColumn, hasFailed ? m_model.Failure() : QString());
    item.setToolTip(FieldsColumn, fields);
    item.setIcon(NameColumn,
                 hasFailed ? style()->standardIcon(QStyle::SP_MessageBoxWarning) : QIcon());

    QFont font = m_tree->font();
    font.setStrikeOut(feature.suppressed);
    const QBrush brush =
        feature.suppressed ? palette().brush(QPalette::Disabled, QPalette::Text) : QBrush();
    for (const int column : {NameColumn, KindColumn, FieldsColumn}) {
        item.setFont(column, font);
        item.setForeground(column, brush);
    }
}

void FeatureTree::NoteSelection()
{
    QStringList names;
    for (int row = 0; row < m_tree->topLevelItemCount(); ++row) {
        const QTreeWidgetItem* const item = m_tree->topLevelItem(row);
        if (item->isSelected())
            names << item->text(NameColumn);
    }
    QStringList selected;
    for (const QString& name : qAsConst(m_selected)) {
        if (names.removeOne(name))
            selected << name;
    }
    m_selected = selected + names;
    Q_EMIT SelectionChanged();
}
