#include "Tables.h"

#include "TestCase.h"

#include <QLineEdit>

#include <algorithm>

namespace {

QString CellText(const QTableWidget& table, int row, int column)
{
    const QTableWidgetItem* const item = table.item(row, column);
    return item != nullptr ? item->text() : QStringLiteral("-");
}

QPoint CellCenter(QTableWidget& table, int row, int column)
{
    QTableWidgetItem& cell = Cell(table, row, column);
    table.scrollToItem(&cell);
    return table.visualItemRect(&cell).center();
}

} // namespace

QTableWidgetItem& Cell(const QTableWidget& table, int row, int column)
{
    return Require(table.item(row, column),
                   QStringLiteral("%1 has no cell %2, %3")
                       .arg(table.objectName(), QString::number(row), QString::number(column)));
}

QStringList RowTexts(const QTableWidget& table, int row)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column)
        texts << CellText(table, row, column);
    return texts;
}

QStringList ColumnTexts(const QTableWidget& table, int column)
{
    QStringList texts;
    for (int row = 0; row < table.rowCount(); ++row)
        texts << CellText(table, row, column);
    return texts;
}

QStringList HeaderTexts(const QTableWidget& table)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column)
        texts << table.model()->headerData(column, Qt::Horizontal).toString();
    return texts;
}

QVector<int> SelectedRows(const QTableWidget& table)
{
    QVector<int> rows;
    const QModelIndexList indexes = table.selectionModel()->selectedRows();
    for (const QModelIndex& index : indexes)
        rows << index.row();
    return rows;
}

void ClickRow(QTableWidget& table, int row)
{
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, CellCenter(table, row, 0));
}

void DoubleClickCell(QTableWidget& table, int row, int column)
{
    const QPoint place = CellCenter(table, row, column);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, place);
}

QWidget& TypeInCell(QTableWidget& table, int row, int column, const QString& text)
{
    QApplication::setActiveWindow(table.window());
    DoubleClickCell(table, row, column);
    const QList<QLineEdit*> fields = table.viewport()->findChildren<QLineEdit*>();
    // A finished editor is hidden first and deleted later.
    const auto open = std::find_if(fields.cbegin(), fields.cend(),
                                   [](const QLineEdit* field) { return field->isVisible(); });
    QWidget& field = Require<QWidget>(open != fields.cend() ? *open : nullptr,
                                      QStringLiteral("the cell cannot be edited"));
    TypeText(field, text);
    return field;
}

void TypeIntoCell(QTableWidget& table, int row, int column, const QString& text)
{
    QTest::keyClick(&TypeInCell(table, row, column, text), Qt::Key_Return);
    DeliverEvents(); // The table takes the text over when its turn comes.
}
