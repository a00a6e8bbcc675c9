#pragma once

#include <QString>

class QTableWidget;
class QTableWidgetItem;

namespace tarn {

/// Selects only @p row of @p table and shows the selection as black text on cyan, which is visible
/// without focus and under every palette. A row that does not exist leaves the selection unchanged.
void SelectRow(QTableWidget& table, int row);

/// A new cell with @p text, whose tool tip shows the full text in case the column truncates it. The
/// caller owns it until it is set in a table.
QTableWidgetItem* NewTextItem(const QString& text);

} // namespace tarn
