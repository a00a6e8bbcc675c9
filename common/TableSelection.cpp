#include "TableSelection.h"

#include <QTableWidget>
#include <QTextDocument>

void tarn::SelectRow(QTableWidget& table, int row)
{
    const QString sheet = QStringLiteral("selection-background-color:cyan");
    // A sheet that is set already would be parsed again.
    if (table.styleSheet() != sheet) {
        // The sheet colours the ground only; no palette's own text colour is sure to be seen on it.
        QPalette palette;
        palette.setColor(QPalette::HighlightedText, Qt::black);
        table.setPalette(palette);
        table.setStyleSheet(sheet);
    }

    const QModelIndex cell = table.model()->index(row, 0);
    if (!cell.isValid())
        return;
    // Not through the view, which would extend the selection while the user holds Shift or Control.
    // The row is current before the selection tells of it.
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
