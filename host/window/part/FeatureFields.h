#pragma once

#include <QDockWidget>

class PartModel;
struct Feature;
class QTableWidget;

/// Shows and edits one feature: name, inputs, and the texts of its fields with their values.
///
/// A field takes any text. If it has no allowed value, its cell is marked, its tool tip has the
/// reason, and the part is not built. The message channel reports an invalid name or input; its
/// text stays in its cell, marked, until the feature changes or another one is shown.
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

    /// Shows the feature called @p name, or none for an empty name.
    void ShowFeature(const QString& name);
    /// Puts the keyboard focus into the first field.
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
