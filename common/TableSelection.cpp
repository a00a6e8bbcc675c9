#include "TableSelection.h"

#include <QTableWidget>
#include <QTextDocument>

void tarn::SelectRow(QTableWidget& table, int row)
{
    const QString sheet = QStringLiteral("selection-background-color:cyan");
    // Setting the same sheet again would parse it again.
    if (table.styleSheet() != sheet) {
        // The sheet only sets the background; a palette's text colour may be illegible on it.
        QPalette palette;
        palette.setColor(QPalette::HighlightedText, Qt::black);
        table.setPalette(palette);
        table.setStyleSheet(sheet);
    }

    const QModelIndex cell = table.model()->index(row, 0);
    if (!cell.isValid())
        return;
    // The view would extend the selection while the user holds Shift or Control, so bypass it.
    // Make the row current before the selection signals the change.
    QItemSelectionModel& selection = *table.selectionModel();
    selection.setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    selection.select(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (table.isVisible())
        table.scrollTo(cell);
}

QTableWidgetItem* tarn::NewTextItem(const QString& text)
{
    auto* const item = new QTableWidgetItem(text);
    // As plain text: a name may look like markup.
    item->setToolTip(Qt::convertFromPlainText(text));
    return item;
}
