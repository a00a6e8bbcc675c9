#include "FeatureFields.h"

#include "CompactTable.h"
#include "ExpressionEngine.h"
#include "FeatureKind.h"
#include "FieldValues.h"
#include "MessageLevel.h"
#include "PartModel.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableWidget>

#include <cmath>

namespace {

// The rows before the fields. A file is in the row of the first field: an import has no fields.
enum Row
{
    NameRow,
    InputsRow,
    FirstFieldRow
};

const QColor WrongColor(Qt::red);

struct FieldValue
{
    QString text;
    QString problem; // Empty if the value is allowed.
};

FieldValue ValueOf(const FieldDefinition& field, const QString& text, FieldValues& values)
{
    const double value = values.Evaluate(text);
    if (std::isnan(value))
        return {FeatureFields::tr("no value"), ExpressionEngine::LastError()};
    if (!field.rule.Allows(value))
        return {field.rule.ValueText(value),
                FeatureFields::tr("Has to be %1").arg(field.rule.Text())};
    return {field.rule.ValueText(value), QString()};
}

QTableWidgetItem& Cell(QTableWidget& table, int row, int column)
{
    if (table.item(row, column) == nullptr) {
        auto* const item = new QTableWidgetItem;
        if (column != FeatureFields::TextColumn)
            item->setFlags(Qt::ItemIsEnabled);
        table.setItem(row, column, item);
    }
    return *table.item(row, column);
}

void ShowRow(QTableWidget& table, int row, const QString& label, const QString& text,
             const FieldValue& value = {})
{
    Cell(table, row, FeatureFields::LabelColumn).setText(label);
    const QBrush brush = value.problem.isEmpty() ? QBrush() : QBrush(WrongColor);
    for (const int column : {FeatureFields::TextColumn, FeatureFields::ValueColumn}) {
        QTableWidgetItem& item = Cell(table, row, column);
        item.setText(column == FeatureFields::TextColumn ? text : value.text);
        item.setForeground(brush);
        item.setToolTip(value.problem.isEmpty() ? item.text() : value.problem);
    }
    Cell(table, row, FeatureFields::TextColumn)
        .setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable);
}

void ForbidEditing(QTableWidget& table, int row)
{
    Cell(table, row, FeatureFields::TextColumn).setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
}

QStringList Names(const QString& text)
{
    QStringList names;
    const QStringList parts = text.split(QLatin1Char(','));
    for (const QString& part : parts)
        names << part.trimmed();
    return names;
}

} // namespace

FeatureFields::FeatureFields(PartModel& model, QWidget* parent)
    : QDockWidget(tr("Fields of the feature"), parent)
    , m_model(model)
    , m_table(new QTableWidget(0, ValueColumn + 1, this))
{
    setObjectName(QStringLiteral("fieldsDock"));
    setWidget(m_table);

    m_table->setObjectName(QStringLiteral("fieldTable"));
    m_table->setAccessibleName(windowTitle());
    m_table->setHorizontalHeaderLabels({tr("Field"), tr("Number or expression"), tr("Value")});
    MakeCompact(*m_table);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::AllEditTriggers);
    m_table->horizontalHeader()->setSectionResizeMode(LabelColumn, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(TextColumn, QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(ValueColumn, QHeaderView::ResizeToContents);

    connect(m_table, &QTableWidget::itemChanged, this,
            [this](const QTableWidgetItem* item) { TakeText(item->row()); });
    connect(&m_model, &PartModel::Changed, this, &FeatureFields::Refresh);
    Refresh();
}

FeatureFields::~FeatureFields() = default;

void FeatureFields::ShowFeature(const QString& name)
{
    if (name == m_name)
        return;
    // A cell that is being edited still belongs to the former feature.
    m_table->setCurrentItem(nullptr);
    m_name = name;
    Refresh();
}

void FeatureFields::StartEditing()
{
    const bool hasFields = m_table->rowCount() > FirstFieldRow;
    m_table->setFocus();
    m_table->setCurrentCell(hasFields ? int(FirstFieldRow) : int(InputsRow), TextColumn);
}

void FeatureFields::Refresh()
{
    const QSignalBlocker silent(m_table);
    const int index = m_model.Features().Find(m_name);
    if (index < 0)
        m_table->setRowCount(0);
    else
        ShowRows(m_model.Features().At(index));
}

void FeatureFields::ShowRows(const Feature& feature)
{
    const FeatureKind& kind = *feature.kind;
    m_table->setRowCount(FirstFieldRow + (kind.readsFile ? 1 : int(kind.fields.size())));

    ShowRow(*m_table, NameRow, tr("Name"), feature.name);
    ShowRow(*m_table, InputsRow, tr("Inputs"), feature.inputs.join(QStringLiteral(", ")));
    if (kind.maxInputs == 0)
        ForbidEditing(*m_table, InputsRow);
    if (kind.readsFile)
        ShowRow(*m_table, FirstFieldRow, tr("File"), feature.file);
    FieldValues values;
    int row = FirstFieldRow;
    for (const FieldDefinition& field : kind.fields) {
        const QString& text = feature.fields[row - FirstFieldRow];
        ShowRow(*m_table, row, field.Label(), text, ValueOf(field, text, values));
        ++row;
    }
}

Feature FeatureFields::Edited(const Feature& feature, int row, const QString& text) const
{
    Feature edited = feature;
    if (row == NameRow)
        edited.name = text.trimmed();
    else if (row == InputsRow)
        edited.inputs = Names(text);
    else if (feature.kind->readsFile)
        edited.file = text.trimmed();
    else {
        const int field = row - FirstFieldRow;
        edited.fields[field] = text.trimmed();
        // A point takes the place of faces and edges.
        if (feature.kind->IsPosition(feature.kind->fields[std::size_t(field)])) {
            edited.edges.clear();
            edited.face.reset();
        }
    }
    return edited;
}

void FeatureFields::TakeText(int row)
{
    const int index = m_model.Features().Find(m_name);
    if (index < 0)
        return;
    const Feature feature = m_model.Features().At(index);
    const Feature edited = Edited(feature, row, Cell(*m_table, row, TextColumn).text());
    try {
        // Before the change, which shows the feature under its new name.
        m_name = edited.name;
        m_model.Change(feature.name, edited);
        Refresh();
    } catch (const ModellingError& error) {
        m_name = feature.name;
        const QSignalBlocker silent(m_table);
        QTableWidgetItem& item = Cell(*m_table, row, TextColumn);
        item.setForeground(WrongColor);
        item.setToolTip(error.Reason());
        PostMessageToChannel(ErrorLevel, error.Reason());
    }
}
