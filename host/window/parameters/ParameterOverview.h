#pragma once

#include <QDockWidget>

class QTableWidget;

/// Shows the records of the parameter store, one row each, read-only, and lets the user remove
/// some.
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

Q_SIGNALS:
    /// The user wants the store to lose the parameters @p names.
    void RemovalWanted(const QStringList& names);

private:
    void AskForRemoval();

    QTableWidget* m_table;
};
