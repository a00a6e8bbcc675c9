#pragma once

#include <QTableWidget>

class DesignModel;
struct ParameterEntry;

/// The parameters that a study can vary, each with its tick and its samples: those of the registry
/// that the dialog of the experiments shows, too.
class SampleTable : public QTableWidget
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn,
        UnitColumn, ///< Of all numbers in the row.
        FromColumn,
        ToColumn,
        StepColumn,
        ValuesColumn
    };

    explicit SampleTable(QWidget* parent = nullptr);
    ~SampleTable() override;

    /// Shows the parameters of @p design and what the registry holds of them.
    void Refresh(const DesignModel& design);

    /// The samples that @p text lists, such as "60, 65.5, 70". Empty if it is not a list of
    /// numbers.
    static std::vector<double> SamplesIn(const QString& text);

Q_SIGNALS:
    /// The user changed ticks or samples, as @p text says.
    void SamplesEdited(const QString& text);
    /// The user's @p text is not taken for the @p reason.
    void Refused(const QString& reason);

private:
    void ShowRow(int row, const ParameterEntry& entry);
    void Show(int row, int column, const QString& text);
    void Take(const QTableWidgetItem& cell);
    bool TakeTick(const QString& name, bool isTicked);
    bool TakeValues(const QString& name, const QString& text);
    bool TakeRange(int row, const QString& name);

    const DesignModel* m_design = nullptr;
};
