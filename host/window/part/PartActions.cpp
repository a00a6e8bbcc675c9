#include "PartActions.h"

#include "BuildLimitsDialog.h"
#include "FeatureCopy.h"
#include "FeatureDialog.h"
#include "FeatureFields.h"
#include "FeatureKinds.h"
#include "FeaturePlacing.h"
#include "FeatureTree.h"
#include "JsonSection.h"
#include "MenuActions.h"
#include "MessageLevel.h"
#include "PartModel.h"
#include "StepFileDialogs.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

#include <algorithm>

PartActions::PartActions(PartModel& model, FeatureTree& tree, FeatureFields& fields,
                         FeaturePlacing& placing, QWidget* window)
    : QObject(window)
    , m_model(model)
    , m_tree(tree)
    , m_fields(fields)
    , m_placing(placing)
    , m_window(window)
    , m_dialogs(window)
    , m_edit(NewAction(tr("&Edit feature"), "action_EditFeature", this, &PartActions::Edit,
                       QKeySequence(QStringLiteral("Ctrl+E"))))
    , m_up(NewAction(
          tr("Move &up"), "action_MoveUp", this, [this] { MoveSelected(-1); },
          QKeySequence(QStringLiteral("Ctrl+Up"))))
    , m_down(NewAction(
          tr("Move do&wn"), "action_MoveDown", this, [this] { MoveSelected(1); },
          QKeySequence(QStringLiteral("Ctrl+Down"))))
    , m_suppress(NewAction(tr("&Suppress"), "action_Suppress", this, &PartActions::SuppressSelected,
                           QKeySequence(QStringLiteral("Ctrl+U"))))
    , m_delete(NewAction(tr("&Delete feature"), "action_DeleteFeature", this,
                         &PartActions::DeleteSelected, QKeySequence::Delete))
    , m_copy(NewAction(tr("&Copy features"), "action_CopyFeatures", this,
                       &PartActions::CopySelected, QKeySequence::Copy))
    , m_paste(NewAction(tr("&Paste features"), "action_PasteFeatures", this, &PartActions::Paste,
                        QKeySequence::Paste))
    , m_export(NewAction(tr("E&xport STEP"), "action_ExportStep", this, &PartActions::ExportStep))
{
    m_suppress->setCheckable(true);
    tree.OfferActions({m_edit, m_up, m_down, m_suppress, m_delete, m_copy, m_paste});

    connect(&tree, &FeatureTree::SelectionChanged, this, &PartActions::UpdateActions);
    connect(&tree, &FeatureTree::EditWanted, this, &PartActions::Edit);
    connect(&model, &PartModel::Exported, this,
            [](const QString& path) { PostMessageToChannel(InfoLevel, tr("Wrote %1").arg(path)); });
    connect(&model, &PartModel::ExportFailed, this,
            [](const QString& reason) { PostMessageToChannel(ErrorLevel, reason); });
    connect(&placing, &FeaturePlacing::Placed, this, &PartActions::AddOrChange);
    UpdateActions();
}

PartActions::~PartActions() = default;

void PartActions::FillMenu(QMenu& menu)
{
    QMenu& bodies = *menu.addMenu(tr("Add &body"));
    OfferKinds(bodies, FeatureGroup::Body);
    bodies.addSeparator();
    bodies.addAction(NewAction(tr("&Import STEP"), "action_ImportStep", this,
                               [this] { Add(*FeatureKinds::Find(QStringLiteral("import"))); }));
    QMenu& transforms = *menu.addMenu(tr("&Transform"));
    OfferKinds(transforms, FeatureGroup::Transform);
    transforms.addSeparator();
    OfferKinds(transforms, FeatureGroup::Array);
    transforms.addSeparator();
    OfferKinds(transforms, FeatureGroup::Edge);
    OfferKinds(*menu.addMenu(tr("&Combine")), FeatureGroup::Combination);
    menu.addSeparator();
    menu.addActions({m_edit, m_up, m_down, m_suppress, m_delete, m_copy, m_paste});
    menu.addSeparator();
    QAction* const undo = m_model.UndoStack().createUndoAction(this, tr("&Undo"));
    undo->setObjectName(QStringLiteral("action_Undo"));
    undo->setShortcut(QKeySequence::Undo);
    QAction* const redo = m_model.UndoStack().createRedoAction(this, tr("&Redo"));
    redo->setObjectName(QStringLiteral("action_Redo"));
    // Both that desktops use.
    redo->setShortcuts(
        {QKeySequence(QStringLiteral("Ctrl+Shift+Z")), QKeySequence(QStringLiteral("Ctrl+Y"))});
    menu.addActions({undo, redo});
    menu.addSeparator();
    menu.addAction(m_export);
    menu.addSeparator();
    menu.addAction(NewAction(tr("&Limits of building"), "action_BuildLimits", this,
                             &PartActions::AskForLimits));
}

void PartActions::OfferKinds(QMenu& menu, FeatureGroup group)
{
    for (const FeatureKind& kind : FeatureKinds::All()) {
        if (kind.group != group)
            continue;
        QLatin1String name = kind.word;
        QString title = kind.Title();
        const FeatureDialog* const dialog = FeatureDialogs::Find(kind);
        if (dialog != nullptr && dialog->kinds.size() > 1) {
            // One action for all of them: the user chooses in the dialog.
            if (kind.word != dialog->kinds.front())
                continue;
            name = dialog->name;
            title = tr(dialog->title);
        }
        const QByteArray objectName = QByteArrayLiteral("action_Add_") + name.data();
        menu.addAction(
            NewAction(title, objectName.constData(), this, [this, &kind] { Add(kind); }));
    }
}

void PartActions::UpdateActions()
{
    const QStringList& selected = m_tree.Selected();
    const FeatureList& features = m_model.Features();
    const bool isOne = selected.size() == 1;
    m_edit->setEnabled(isOne);
    m_up->setEnabled(isOne && selected.first() != features.At(0).name);
    m_down->setEnabled(isOne && selected.first() != features.At(features.Size() - 1).name);
    m_suppress->setEnabled(!selected.isEmpty());
    m_suppress->setChecked(std::any_of(selected.begin(), selected.end(), [&](const QString& name) {
        return features.At(features.Find(name)).suppressed;
    }));
    m_delete->setEnabled(!selected.isEmpty());
    m_copy->setEnabled(!selected.isEmpty());
}

void PartActions::Try(const std::function<void()>& change)
{
    try {
        change();
    } catch (const HostError& error) {
        PostMessageToChannel(ErrorLevel, error.Reason());
    }
}

void PartActions::Add(const FeatureKind& kind)
{
    m_placing.Cancel();
    Try([this, &kind] {
        Feature feature(kind);
        feature.inputs = InputsFor(kind);
        if (const std::optional<Feature> asked = Asked(feature, true)) {
            if (m_placing.CanPlace(*asked->kind))
                m_placing.Place(*asked);
            else
                AddNamed(*asked);
        }
    });
}

std::optional<Feature> PartActions::Asked(const Feature& feature, bool isNew)
{
    if (!feature.kind->readsFile)
        return isNew ? m_dialogs.AskNew(feature) : m_dialogs.AskChanges(feature);
    Feature asked = feature;
    asked.file = AskForStepFile(m_window, m_model.Folder());
    return asked.file.isEmpty() ? std::nullopt : std::make_optional(asked);
}

QStringList PartActions::InputsFor(const FeatureKind& kind) const
{
    if (kind.maxInputs == 0)
        return {};
    QStringList inputs = m_tree.Selected();
    if (kind.maxInputs != FeatureKind::Unlimited && inputs.size() > kind.maxInputs)
        throw ModellingError(tr("%1 takes one body, but %2 features are selected")
                                 .arg(kind.Title())
                                 .arg(inputs.size()));
    // If too few are selected, the last bodies of the part are inserted after them.
    const int first = inputs.size();
    QStringList bodies = m_model.Bodies();
    while (inputs.size() < kind.minInputs && !bodies.isEmpty()) {
        const QString body = bodies.takeLast();
        if (!inputs.contains(body))
            inputs.insert(first, body);
    }
    if (inputs.size() < kind.minInputs)
        throw ModellingError(
            kind.minInputs == 1
                ? tr("%1 needs a body, but there is none").arg(kind.Title())
                : tr("%1 needs two bodies, but there are not enough").arg(kind.Title()));
    return inputs;
}

void PartActions::AddNamed(Feature feature)
{
    feature.name = m_model.Features().UniqueName(feature.kind->word);
    m_model.Add(feature);
    m_tree.Select(feature.name);
    if (feature.kind->isAtFace && !m_placing.HasView()) {
        PostMessageToChannel(WarningLevel, tr("The 3D view is not available: type a point on the "
                                              "face into the fields of %1")
                                               .arg(Quoted(feature.name)));
        m_fields.StartEditing();
    }
}

void PartActions::Edit()
{
    if (m_tree.Selected().size() != 1)
        return;
    m_placing.Cancel();
    const Feature feature =
        m_model.Features().At(m_model.Features().Find(m_tree.Selected().first()));
    const FeatureKind& kind = *feature.kind;
    if (kind.isAtEdges && m_placing.HasView())
        m_placing.Place(feature);
    else if (!kind.readsFile && FeatureDialogs::Find(kind) == nullptr)
        m_fields.StartEditing();
    else if (const std::optional<Feature> changed = Asked(feature, false))
        Apply(*changed);
}

void PartActions::Apply(const Feature& feature)
{
    if (m_placing.CanPlace(*feature.kind))
        m_placing.Place(feature);
    else
        AddOrChange(feature);
}

void PartActions::AddOrChange(const Feature& feature)
{
    Try([this, &feature] {
        if (feature.name.isEmpty())
            AddNamed(feature);
        else
            m_model.Change(feature.name, feature);
    });
}

void PartActions::MoveSelected(int steps)
{
    Try([this, steps] { m_model.Move(m_tree.Selected().value(0), steps); });
}

void PartActions::SuppressSelected()
{
    Try([this] { m_model.SetSuppressed(m_tree.Selected(), m_suppress->isChecked()); });
    UpdateActions();
}

void PartActions::DeleteSelected()
{
    Try([this] { m_model.Remove(m_tree.Selected()); });
}

void PartActions::CopySelected()
{
    QGuiApplication::clipboard()->setText(CopiedFeatures(m_model.Features(), m_tree.Selected()));
}

void PartActions::Paste()
{
    Try([this] {
        const QStringList names = m_model.Paste(QGuiApplication::clipboard()->text());
        if (!names.isEmpty())
            m_tree.Select(names.last());
    });
}

void PartActions::ExportStep()
{
    const QStringList& selected = m_tree.Selected();
    const QString feature = selected.size() == 1 ? selected.first() : QString();
    const TopoDS_Shape shape = feature.isEmpty() ? m_model.Shape() : m_model.ShapeOf(feature);
    if (shape.IsNull() && !m_model.IsBusy()) {
        PostMessageToChannel(WarningLevel,
                             tr("The part has no shape to export. Add or correct a body first."));
        return;
    }
    const QString path = AskForStepTarget(m_window, m_model.Folder());
    if (!path.isEmpty())
        m_model.ExportStep(feature, path);
}

void PartActions::AskForLimits()
{
    BuildLimitsDialog dialog(BuildLimits::Stored(), m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    dialog.Limits().Store();
    m_model.SetLimits(dialog.Limits());
}
