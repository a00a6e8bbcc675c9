#pragma once

#include <QDockWidget>

class PartModel;
struct Feature;
class QTableWidget;

/// Shows and edits one feature: name, inputs, and the texts of its fields with their values.
///
/// A field takes any text; one without a usable value is marked and says why, and the part is not
/// built. A name or an input that cannot be is refused in the message channel; its text stays in
/// its cell, marked, until the feature changes or another one is shown.
class FeatureFields : public QDockWidget
{
    Q_OBJECT

public:
    enum Column
    {
        LabelColumn,
        TextColumn,
        ValueColumn
    };

    /// The model must outlive the fields.
    FeatureFields(PartModel& model, QWidget* parent);
    ~FeatureFields() override;

    /// Shows the feature called @p name; an empty name shows none.
    void ShowFeature(const QString& name);
    /// Puts the keyboard into the first field.
    void StartEditing();

private:
    void Refresh();
    void ShowRows(const Feature& feature);
    void TakeText(int row);
    Feature Edited(const Feature& feature, int row, const QString& text) const;

    PartModel& m_model;
    QTableWidget* m_table;
    QString m_name;
};
