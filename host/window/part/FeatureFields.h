#pragma once

#include <QDockWidget>

#include <vector>

class FieldValues;
class PartModel;
struct Feature;
struct ProfileCorner;
class QStackedWidget;
class QTableWidget;

/// Shows and edits one feature: name, inputs, the texts of its fields with their values, its faces
/// and edges, and the corners of its profile. Says what to do while no feature is selected.
///
/// A text in the last row of a profile adds a corner; a corner without text is removed.
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
    struct Row
    {
        enum Kind
        {
            Name,
            Inputs,
            File,
            Field,
            Face,
            Edges,
            Corner,
            NewCorner
        };

        Kind kind;
        int index = 0; ///< Of the field or corner.
    };

    static std::vector<Row> RowsOf(const Feature& feature);
    void Refresh();
    void ShowRows(const Feature& feature);
    void ShowRow(const Feature& feature, int row, FieldValues& values);
    void TakeText(int row);
    static Feature Edited(Feature feature, const Row& row, const QString& text);

    PartModel& m_model;
    QStackedWidget* m_pages; ///< The table, or what to do without a feature.
    QTableWidget* m_table;
    QString m_name;
    std::vector<Row> m_rows;
};
