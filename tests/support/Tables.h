#pragma once

#include "GuardedTest.h"

#include <QStringList>
#include <QTableWidget>
#include <QVector>

/// The cell, which must exist.
QTableWidgetItem& Cell(const QTableWidget& table, int row, int column);

/// The widget of a cell, which must exist.
template<class Widget>
Widget& CellWidget(const QTableWidget& table, int row, int column)
{
    return Require(qobject_cast<Widget*>(table.cellWidget(row, column)),
                   QStringLiteral("The cell %1, %2 has no such widget").arg(row).arg(column));
}

/// The texts of a row; a missing cell is "-".
QStringList RowTexts(const QTableWidget& table, int row);

/// The texts of a column; a missing cell is "-".
QStringList ColumnTexts(const QTableWidget& table, int column = 0);

/// The texts of the horizontal header.
QStringList HeaderTexts(const QTableWidget& table);

/// The rows that are selected as a whole.
QVector<int> SelectedRows(const QTableWidget& table);

/// Clicks into the first cell of a row.
void ClickRow(QTableWidget& table, int row);

/// Double-clicks a cell as a user does.
void DoubleClickCell(QTableWidget& table, int row, int column);

/// Opens the editor of a cell with a double-click and replaces its text. The editor stays open.
QWidget& TypeInCell(QTableWidget& table, int row, int column, const QString& text);

/// Replaces the text of a cell as a user does, and leaves it with Enter.
void TypeIntoCell(QTableWidget& table, int row, int column, const QString& text);
