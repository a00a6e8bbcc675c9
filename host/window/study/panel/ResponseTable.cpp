#include "ResponseTable.h"

#include "CompactTable.h"

#include <QHeaderView>
#include <QSignalBlocker>

namespace {

enum Column
{
    NameColumn,
    ExpressionColumn
};

} // namespace

ResponseTable::ResponseTable(QWidget* parent)
    : QTableWidget(0, ExpressionColumn + 1, parent)
{
    setHorizontalHeaderLabels({tr("Name"), tr("Expression")});
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::AnyKeyPressed);
    MakeCompact(*this);
    horizontalHeader()->setStretchLastSection(true);
    connect(this, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* changed) {
        const QTableWidgetItem* const other =
            item(changed->row(), changed->column() == NameColumn ? ExpressionColumn : NameColumn);
        // The rest of a new row is still to come.
        if (other != nullptr && !other->text().trimmed().isEmpty())
            Q_EMIT Edited(tr("Responses"));
    });
}

ResponseTable::~ResponseTable() = default;

void ResponseTable::Show(const std::vector<StudyResponse>& responses)
{
    // A row that is being filled in stays.
    if (responses == Responses())
        return;
    const QSignalBlocker silent(this);
    setRowCount(0);
    for (const StudyResponse& response : responses)
        AddRow(response);
}

void ResponseTable::AddRow(const StudyResponse& response)
{
    const int row = rowCount();
    setRowCount(row + 1);
    setItem(row, NameColumn, new QTableWidgetItem(response.name));
    setItem(row, ExpressionColumn, new QTableWidgetItem(response.expression));
}

std::vector<StudyResponse> ResponseTable::Responses() const
{
    std::vector<StudyResponse> responses;
    for (int row = 0; row < rowCount(); ++row) {
        const StudyResponse response{item(row, NameColumn)->text().trimmed(),
                                     item(row, ExpressionColumn)->text().trimmed()};
        if (!response.name.isEmpty() && !response.expression.isEmpty())
            responses.push_back(response);
    }
    return responses;
}

void ResponseTable::Add()
{
    {
        const QSignalBlocker silent(this);
        AddRow({});
    }
    setCurrentCell(rowCount() - 1, NameColumn);
    editItem(item(rowCount() - 1, NameColumn));
}

void ResponseTable::RemoveSelected()
{
    const int row = currentRow();
    if (row < 0)
        return;
    removeRow(row);
    Q_EMIT Edited(tr("Remove a response"));
}
