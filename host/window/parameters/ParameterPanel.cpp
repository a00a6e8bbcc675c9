#include "ParameterPanel.h"

#include "DesignModel.h"
#include "MenuActions.h"
#include "MessageLevel.h"
#include "ParameterCsv.h"
#include "ParameterTable.h"
#include "WholeFile.h"

#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QIcon>
#include <QSet>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int MaximumFileSize = 16 * 1024 * 1024;
const QLatin1Char Tab('\t');

QString CsvFilter()
{
    return ParameterPanel::tr("Tables (*.csv);;All files (*)");
}

QString FreeName(const ParameterEntries& entries)
{
    for (int number = int(entries.size()) + 1;; ++number) {
        QString name = QStringLiteral("parameter_%1").arg(number);
        if (FindParameter(entries, name) < 0)
            return name;
    }
}

} // namespace

ParameterPanel::ParameterPanel(DesignModel& model, QWidget* parent)
    : QDockWidget(tr("Parameters"), parent)
    , m_model(model)
    , m_table(new ParameterTable(model, this))
{
    setObjectName(QStringLiteral("parameterDock"));
    CreateActions();
    auto* const content = new QWidget(this);
    auto* const bar = new QToolBar(content);
    bar->setIconSize(QSize(16, 16));
    bar->addActions(m_table->actions());
    auto* const layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(m_table);
    setWidget(content);

    connect(m_table, &QTableWidget::itemSelectionChanged, this, &ParameterPanel::UpdateActions);
    connect(&m_model, &DesignModel::Changed, this, &ParameterPanel::UpdateActions);
    UpdateActions();
}

ParameterPanel::~ParameterPanel() = default;

QAction* ParameterPanel::Add(const QString& text, const char* name, const char* icon,
                             void (ParameterPanel::*act)(), const QKeySequence& shortcut)
{
    QAction* const action = NewAction(text, name, this, act, shortcut);
    action->setIcon(QIcon::fromTheme(QString::fromLatin1(icon)));
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_table->addAction(action);
    return action;
}

void ParameterPanel::CreateActions()
{
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
    Add(tr("&New parameter"), "action_AddParameter", "list-add", &ParameterPanel::AddParameter,
        QKeySequence(Qt::Key_Insert));
    m_remove = Add(tr("&Remove parameters"), "action_RemoveParameters", "list-remove",
                   &ParameterPanel::AskForRemoval, QKeySequence::Delete);
    m_up = Add(tr("Move &up"), "action_ParametersUp", "go-up", &ParameterPanel::MoveUp,
               QKeySequence(QStringLiteral("Ctrl+Up")));
    m_down = Add(tr("Move &down"), "action_ParametersDown", "go-down", &ParameterPanel::MoveDown,
                 QKeySequence(QStringLiteral("Ctrl+Down")));
    Add(tr("&Copy"), "action_CopyParameters", "edit-copy", &ParameterPanel::Copy,
        QKeySequence::Copy);
    Add(tr("&Paste"), "action_PasteParameters", "edit-paste", &ParameterPanel::Paste,
        QKeySequence::Paste);
    Add(tr("&Import CSV"), "action_ImportParameters", "document-import", &ParameterPanel::Import);
    Add(tr("&Export CSV"), "action_ExportParameters", "document-export", &ParameterPanel::Export);
}

void ParameterPanel::UpdateActions()
{
    const bool isAny = !m_table->SelectedNames().isEmpty();
    for (QAction* const action : {m_remove, m_up, m_down})
        action->setEnabled(isAny);
}

void ParameterPanel::AddParameter()
{
    ParameterEntries entries = m_model.Design();
    const QString name = FreeName(entries);
    entries.push_back(NewParameter(name));
    m_model.Edit(entries, tr("New parameter"));
    m_table->StartNaming(name);
}

void ParameterPanel::AskForRemoval()
{
    const QStringList names = m_table->SelectedNames();
    if (!names.isEmpty())
        Q_EMIT RemovalWanted(names);
}

void ParameterPanel::Move(int step)
{
    const QStringList names = m_table->SelectedNames();
    const QSet<QString> selected(names.begin(), names.end());
    ParameterEntries entries = m_model.Design();
    const int size = int(entries.size());
    const auto isMoved = [&](int index) {
        return selected.contains(entries[std::size_t(index)].Name());
    };
    // From the end that they move to, so that a group stays together and stops at the end.
    bool hasMoved = false;
    for (int i = 1; i < size; ++i) {
        const int from = step < 0 ? i : size - 1 - i;
        const int to = from + step;
        if (isMoved(from) && !isMoved(to)) {
            std::swap(entries[std::size_t(from)], entries[std::size_t(to)]);
            hasMoved = true;
        }
    }
    if (!hasMoved)
        return;
    m_model.Edit(entries, tr("Move parameters"));
    m_table->SelectNames(names);
}

void ParameterPanel::Copy()
{
    const QStringList names = m_table->SelectedNames();
    const QSet<QString> selected(names.begin(), names.end());
    ParameterEntries copied;
    for (const ParameterEntry& entry : m_model.Stored()) {
        if (selected.isEmpty() || selected.contains(entry.Name()))
            copied.push_back(entry);
    }
    QGuiApplication::clipboard()->setText(ParametersToText(copied, Tab));
}

void ParameterPanel::Paste()
{
    Take(QGuiApplication::clipboard()->text(), tr("Paste parameters"));
}

void ParameterPanel::Take(const QString& text, const QString& undoText)
{
    try {
        const ParameterEntries added = ParametersFromText(text);
        m_model.Edit(Merged(m_model.Design(), added), undoText);
        QStringList names;
        for (const ParameterEntry& entry : added)
            names << entry.Name();
        m_table->SelectNames(names);
    } catch (const ParameterError& error) {
        PostMessageToChannel(ErrorLevel, tr("No parameters were taken: %1").arg(error.Reason()));
    }
}

void ParameterPanel::Import()
{
    const QString path =
        QFileDialog::getOpenFileName(window(), tr("Import parameters"), QString(), CsvFilter());
    if (path.isEmpty())
        return;
    tarn::WholeFile file(path, MaximumFileSize);
    QByteArray bytes;
    if (file.Read(bytes))
        Take(QString::fromUtf8(bytes), tr("Import parameters"));
    else
        PostMessageToChannel(ErrorLevel, QStringLiteral("%1: %2").arg(path, file.Error()));
}

void ParameterPanel::Export()
{
    QFileDialog dialog(window(), tr("Export parameters"), QString(), CsvFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString path = dialog.selectedFiles().value(0);
    tarn::WholeFile file(path, MaximumFileSize);
    if (file.Write(ParametersToText(m_model.Design(), QLatin1Char(',')).toUtf8()))
        PostMessageToChannel(InfoLevel, tr("Wrote %1").arg(QDir::toNativeSeparators(path)));
    else
        PostMessageToChannel(ErrorLevel, QStringLiteral("%1: %2").arg(path, file.Error()));
}
