#pragma once

class QTableWidget;

namespace tarn {

/// Selects @p row of @p table and gives the selection the cyan ground that shows it while the table
/// has no focus. A row that is not there selects nothing.
void SelectRow(QTableWidget& table, int row);

} // namespace tarn
