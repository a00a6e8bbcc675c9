#pragma once

#include <QDockWidget>

class QTableWidget;

/// Shows the records of the parameter store, one row each, read-only.
class ParameterOverview : public QDockWidget
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn,
        TypeColumn,
        ValueColumn,
        RawValueColumn,
        ExpressionColumn,
        DescriptionColumn
    };

    explicit ParameterOverview(QWidget* parent);
    ~ParameterOverview() override;

public Q_SLOTS:
    /// Shows the current store. To be called after a change of the store, which emits no signals.
    void Refresh();

private:
    QTableWidget* m_table;
};
