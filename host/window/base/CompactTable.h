#pragma once

class QTableView;

/// Gives @p table low rows without numbers, cells of one line, and headers that start at the left.
/// Tab leaves the table.
void MakeCompact(QTableView& table);
