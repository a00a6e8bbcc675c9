#include "CompactTable.h"

#include <QHeaderView>
#include <QTableView>

void MakeCompact(QTableView& table)
{
    constexpr int RowMargin = 6;
    table.setTabKeyNavigation(false);
    table.setWordWrap(false);
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + RowMargin);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.horizontalHeader()->setTextElideMode(Qt::ElideRight);
    table.horizontalHeader()->setHighlightSections(false);
}
