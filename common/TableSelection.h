#pragma once

#include <QString>

class QTableWidget;
class QTableWidgetItem;

namespace tarn {

/// Selects @p row of @p table, and no other, and gives the selection a cyan ground with black text,
/// which is seen while the table has no focus and under every palette. A row that is not there
/// leaves the selection as it is.
void SelectRow(QTableWidget& table, int row);

/// A new cell of @p text that shows in full in its tool tip what the column cuts off. The table
/// owns it as soon as it is set.
QTableWidgetItem* NewTextItem(const QString& text);

} // namespace tarn
