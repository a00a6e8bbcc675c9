#pragma once

#include "ResultColumns.h"

#include <QAbstractTableModel>

#include <vector>

class StudySelection;

/// The results of a study as a table: which runs a filter leaves, in which order. Takes hundreds of
/// thousands of runs, also while they come in.
///
/// "Rows" are those of Columns(); a view's rows are places in Rows().
class StudyTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Shows the runs of @p selection as selected; it must outlive the table.
    explicit StudyTable(StudySelection& selection, QObject* parent = nullptr);
    ~StudyTable() override;

    /// Forgets all runs.
    void Clear();
    /// Adds runs, or replaces those of the same number.
    void Take(const ResultColumns& news);

    const ResultColumns& Columns() const { return m_columns; }
    /// Which parameters the runs give values to; the others are calculated from them.
    void SetInputs(const QStringList& names);
    /// All parameters until SetInputs() is called.
    QStringList Inputs() const;
    /// The rows that are shown, in the order of the table.
    const std::vector<int>& Rows() const { return m_rows; }
    int FailedCount() const { return m_failed; }

    /// Shows only runs for which @p expression over run and the number columns is not 0; all if it
    /// is empty. Returns why it cannot be used, and then changes nothing.
    QString SetFilter(const QString& expression);

    /// The rows that are shown as CSV text, like results.csv.
    QByteArray ToCsv() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

Q_SIGNALS:
    /// Rows() or their values have changed.
    void RowsChanged();

private:
    QString TextOf(int row, int column) const;
    QString ShownText(int row, int column) const;
    std::vector<int> FilteredRows() const;
    void SortRows(std::vector<int>& rows) const;
    void Show(std::vector<int> rows);
    void ShowSelection();

    StudySelection& m_selection;
    ResultColumns m_columns;
    QStringList m_inputs;
    std::vector<int> m_rows;
    QString m_filter;
    int m_sortColumn = 0;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    int m_failed = 0;
};
