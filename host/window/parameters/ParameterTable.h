#pragma once

#include <QTableWidget>

class DesignModel;
struct ParameterEntry;

/// Shows the parameters of a DesignModel, one row each, and lets the user edit them in place.
///
/// The cell "Result" has the value with its unit, or in red why there is none. A text that is
/// refused stays in its cell, in red with the reason, until the parameters change.
class ParameterTable : public QTableWidget
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn,
        TypeColumn,
        ValueColumn, ///< A number or an expression; the x of a Vector; the tick box of a Bool.
        YColumn,     ///< Of a Vector; hidden without one.
        ZColumn,
        UnitColumn,
        ResultColumn,
        DescriptionColumn
    };

    /// The model must outlive the table.
    ParameterTable(DesignModel& model, QWidget* parent);
    ~ParameterTable() override;

    /// The names of the parameters in the selected rows, from top to bottom.
    QStringList SelectedNames() const;
    void SelectNames(const QStringList& names);
    /// Selects the parameter and opens the editor of its name.
    void StartNaming(const QString& name);

private:
    void Refresh();
    void ShowRow(int row, const ParameterEntry& entry);
    void ShowValue(int row, const ParameterEntry& entry);
    void ShowResult(int row, const ParameterEntry& entry);
    QTableWidgetItem& Show(int row, int column, const QString& text, bool isEditable = true);
    void Take(QTableWidgetItem& item);
    void Apply(const QTableWidgetItem& item);
    void ShowRefusal(QTableWidgetItem& item, const QString& reason);

    DesignModel& m_model;
};
