#include "OptimumTable.h"

#include "CompactTable.h"
#include "HostError.h"
#include "JsonSection.h"
#include "NumberTexts.h"

#include <QHash>
#include <QSignalBlocker>

#include <cmath>

OptimumTable::OptimumTable(QWidget* parent)
    : QTableWidget(0, RunColumn + 1, parent)
{
    setObjectName(QStringLiteral("optimumTable"));
    setAccessibleName(tr("Limits and optimum"));
    setHorizontalHeaderLabels({tr("Column"), tr("At least"), tr("At most"), tr("Whole"),
                               tr("Predicted"), tr("Error"), tr("Run")});
    horizontalHeaderItem(WholeColumn)->setToolTip(tr("Whole numbers only"));
    horizontalHeaderItem(ErrorColumn)
        ->setToolTip(tr("The usual error of predictions for runs that the surface has not seen"));
    MakeCompact(*this);
    connect(this, &QTableWidget::itemChanged, this, &OptimumTable::LimitsEdited);
}

OptimumTable::~OptimumTable() = default;

void OptimumTable::ShowRows(const QStringList& parameters, const QStringList& results)
{
    QStringList names;
    for (int row = 0; row < rowCount(); ++row)
        names << item(row, NameColumn)->text();
    if (names == parameters + results)
        return;
    const QSignalBlocker silent(this);
    QHash<QString, QTableWidgetItem*> kept[WholeColumn + 1];
    for (const int column : {LeastColumn, GreatestColumn, WholeColumn}) {
        for (int row = 0; row < rowCount(); ++row)
            kept[column].insert(names[row], takeItem(row, column));
    }
    setRowCount(0);
    for (const QString& name : parameters)
        AddRow(name, true);
    for (const QString& name : results)
        AddRow(name, false);
    for (const int column : {LeastColumn, GreatestColumn, WholeColumn}) {
        for (int row = 0; row < rowCount(); ++row) {
            if (QTableWidgetItem* const cell = kept[column].take(item(row, NameColumn)->text()))
                setItem(row, column, cell);
        }
        qDeleteAll(kept[column]);
    }
    ShowRun(0, {});
    resizeColumnsToContents();
}

void OptimumTable::AddRow(const QString& name, bool isParameter)
{
    const int row = rowCount();
    setRowCount(row + 1);
    for (int column = NameColumn; column <= RunColumn; ++column) {
        auto* const cell = new QTableWidgetItem(column == NameColumn ? name : QString());
        Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
        if (column == LeastColumn || column == GreatestColumn)
            flags |= Qt::ItemIsEditable;
        cell->setFlags(flags);
        if (column != NameColumn)
            cell->setTextAlignment(int(Qt::AlignVCenter | Qt::AlignRight));
        setItem(row, column, cell);
    }
    if (isParameter) {
        item(row, WholeColumn)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        item(row, WholeColumn)->setCheckState(Qt::Unchecked);
    }
}

ParameterChoice OptimumTable::Choice(int row) const
{
    ParameterChoice choice;
    choice.least = LimitAt(row, LeastColumn, choice.least);
    choice.greatest = LimitAt(row, GreatestColumn, choice.greatest);
    choice.isWhole = item(row, WholeColumn)->checkState() == Qt::Checked;
    return choice;
}

double OptimumTable::LimitAt(int row, Column column, double otherwise) const
{
    const QString text = item(row, column)->text().trimmed();
    if (text.isEmpty())
        return otherwise;
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value))
        throw HostError(tr("the limit %1 of %2 is not a number; type a number or nothing")
                            .arg(Quoted(text), Quoted(item(row, NameColumn)->text())));
    return value;
}

void OptimumTable::Put(int row, Column column, double value)
{
    item(row, column)->setText(std::isfinite(value) ? ShortText(value) : QString());
}

void OptimumTable::ShowPrediction(int row, double value, double error)
{
    const QSignalBlocker silent(this);
    Put(row, PredictedColumn, value);
    Put(row, ErrorColumn, error);
}

void OptimumTable::ShowRun(int run, const std::vector<double>& values)
{
    const QSignalBlocker silent(this);
    horizontalHeaderItem(RunColumn)->setText(run > 0 ? tr("Run %1").arg(run) : tr("Run"));
    for (int row = 0; row < rowCount(); ++row)
        Put(row, RunColumn,
            std::size_t(row) < values.size() ? values[std::size_t(row)] : std::nan(""));
    resizeColumnToContents(RunColumn);
}

void OptimumTable::Forget()
{
    for (int row = 0; row < rowCount(); ++row)
        ShowPrediction(row, std::nan(""), std::nan(""));
    ShowRun(0, {});
}
