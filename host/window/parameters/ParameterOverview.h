#pragma once

#include <QDockWidget>

class QTableWidget;

/// Shows the records of the parameter store as they are stored, one row each. Nothing is edited
/// here.
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
    /// Shows the store as it is now. The store tells nobody of its changes, so whoever made one
    /// calls this.
    void Refresh();

private:
    QTableWidget* m_table;
};
