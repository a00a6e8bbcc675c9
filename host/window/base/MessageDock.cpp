#include "MessageDock.h"

#include "CompactTable.h"
#include "MenuActions.h"
#include "MessageLevel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QStyle>
#include <QTableView>
#include <QTime>

#include <algorithm>

namespace {

// On the first item of a row: the level, and how often the message came.
enum Role
{
    CodeRole = Qt::UserRole,
    TimesRole
};

QStyle::StandardPixmap LevelIcon(int level)
{
    if (level <= InfoLevel)
        return QStyle::SP_MessageBoxInformation;
    return level == WarningLevel ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxCritical;
}

QString CurrentTime()
{
    return QTime::currentTime().toString(QStringLiteral("HH:mm:ss"));
}

} // namespace

MessageDock::MessageDock(QWidget* parent)
    : QDockWidget(tr("Messages"), parent)
    , m_view(new QTableView(this))
{
    setObjectName(QStringLiteral("messageDock"));
    setWidget(m_view);

    m_model.setHorizontalHeaderLabels({tr("Time"), tr("Level"), tr("Times"), tr("Text")});
    m_view->setObjectName(QStringLiteral("messageView"));
    m_view->setAccessibleName(windowTitle());
    m_view->setModel(&m_model);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setShowGrid(false);
    MakeCompact(*m_view);
    m_view->setWordWrap(true);
    // A bar that comes with taller rows would make them taller still.
    m_view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_view->horizontalHeader()->setSectionResizeMode(TextColumn, QHeaderView::Stretch);
    const int letter = m_view->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    m_view->setColumnWidth(TimeColumn, 11 * letter);
    m_view->setColumnWidth(LevelColumn, 12 * letter);
    m_view->setColumnWidth(CountColumn, 8 * letter);

    QAction* const copy = NewAction(tr("Copy"), "action_CopyMessages", this,
                                    &MessageDock::CopySelection, QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    m_view->addActions(
        {copy, NewAction(tr("Clear"), "action_ClearMessages", this, &MessageDock::Clear)});
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);

    // Queued: the header reports a width before it has it.
    connect(m_view->horizontalHeader(), &QHeaderView::sectionResized, m_view,
            &QTableView::resizeRowsToContents, Qt::QueuedConnection);
    // The dock may be laid out only after the lines have come.
    QScrollBar* const bar = m_view->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, bar, [bar](int, int end) { bar->setValue(end); });
    connect(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage, this,
            &MessageDock::AddMessage);
}

MessageDock::~MessageDock() = default;

QString MessageDock::LevelWord(int level)
{
    if (level <= InfoLevel)
        return tr("Info");
    return level == WarningLevel ? tr("Warning") : tr("Error");
}

void MessageDock::AddMessage(int level, const QString& text)
{
    const Message message(level, text);
    QList<QStandardItem*> row;
    if (QStandardItem* const known = m_timeItems.value(message)) {
        row = m_model.takeRow(known->row());
    } else {
        row = {new QStandardItem, new QStandardItem(LevelWord(level)), new QStandardItem,
               new QStandardItem(text)};
        row[TimeColumn]->setData(level, CodeRole);
        row[LevelColumn]->setIcon(style()->standardIcon(LevelIcon(level)));
        row[CountColumn]->setTextAlignment(Qt::AlignCenter);
        m_timeItems.insert(message, row[TimeColumn]);
    }

    const int times = row[TimeColumn]->data(TimesRole).toInt() + 1;
    row[TimeColumn]->setData(times, TimesRole);
    row[TimeColumn]->setText(CurrentTime());
    if (times > 1)
        row[CountColumn]->setText(QString::number(times));
    ShowPast(row, false);
    m_model.appendRow(row);
    m_view->resizeRowToContents(m_model.rowCount() - 1);

    if (m_model.rowCount() > MaximumLines) {
        m_timeItems.remove({m_model.item(0, TimeColumn)->data(CodeRole).toInt(),
                            m_model.item(0, TextColumn)->text()});
        m_model.removeRow(0);
    }
    m_view->scrollToBottom();
}

void MessageDock::MarkPast(const QString& text)
{
    const QList<QStandardItem*> items = m_model.findItems(text, Qt::MatchExactly, TextColumn);
    for (const QStandardItem* const item : items) {
        QList<QStandardItem*> row;
        for (int column = TimeColumn; column <= TextColumn; ++column)
            row << m_model.item(item->row(), column);
        ShowPast(row, true);
    }
}

void MessageDock::ShowPast(const QList<QStandardItem*>& row, bool isPast)
{
    const QVariant brush =
        isPast ? QVariant(palette().brush(QPalette::Disabled, QPalette::Text)) : QVariant();
    for (QStandardItem* const item : row)
        item->setData(brush, Qt::ForegroundRole);
    const QString text = row[TextColumn]->text().toHtmlEscaped();
    row[TextColumn]->setToolTip(isPast ? tr("No longer so: %1").arg(text) : text);
}

void MessageDock::CopySelection() const
{
    QModelIndexList selected = m_view->selectionModel()->selectedRows();
    if (selected.isEmpty())
        return;
    std::sort(selected.begin(), selected.end());
    QStringList lines;
    for (const QModelIndex& index : qAsConst(selected)) {
        QStringList cells;
        for (int column = TimeColumn; column <= TextColumn; ++column)
            cells << m_model.item(index.row(), column)->text();
        lines << cells.join(QLatin1Char('\t'));
    }
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void MessageDock::Clear()
{
    m_timeItems.clear();
    m_model.removeRows(0, m_model.rowCount());
}
