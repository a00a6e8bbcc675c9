#include "TableSelection.h"

#include <QTableWidget>

void tarn::SelectRow(QTableWidget& table, int row)
{
    if (row < 0 || row >= table.rowCount())
        return;
    table.selectRow(row);
    table.setStyleSheet(QStringLiteral("selection-background-color:cyan"));
}
