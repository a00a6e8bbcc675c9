#include "DialogTables.h"

#include <QDialog>
#include <QTableWidget>

namespace {

constexpr QSize RoomySize(960, 560);
constexpr int NarrowestColumn = 80;

} // namespace

void FitTables(QDialog& dialog)
{
    dialog.resize(RoomySize);
    const QList<QTableWidget*> tables = dialog.findChildren<QTableWidget*>();
    for (QTableWidget* const table : tables) {
        table->resizeColumnsToContents();
        for (int column = 0; column < table->columnCount(); ++column)
            table->setColumnWidth(column, qMax(table->columnWidth(column), NarrowestColumn));
    }
}
