#pragma once

#include "SurfaceOptimum.h"

#include <QTableWidget>

#include <vector>

/// A row for each parameter that varies and for each result: its limits, which the user types, what
/// is predicted for the optimum, and what a run there had.
class OptimumTable : public QTableWidget
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn,
        LeastColumn,
        GreatestColumn,
        WholeColumn,
        PredictedColumn,
        ErrorColumn,
        RunColumn
    };

    explicit OptimumTable(QWidget* parent);
    ~OptimumTable() override;

    /// Shows these rows, parameters first. Limits stay.
    void ShowRows(const QStringList& parameters, const QStringList& results);
    /// The limits of a row. @throws HostError if one is not a number
    ParameterChoice Choice(int row) const;

    /// Empty cells where a number is not finite.
    void ShowPrediction(int row, double value, double error);
    /// The values of all rows in the run of this number; without a number, none.
    void ShowRun(int run, const std::vector<double>& values);
    /// Empties the cells of prediction and run.
    void Forget();

Q_SIGNALS:
    void LimitsEdited();

private:
    void AddRow(const QString& name, bool isParameter);
    double LimitAt(int row, Column column, double otherwise) const;
    void Put(int row, Column column, double value);
};
