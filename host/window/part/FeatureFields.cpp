#include "FeatureFields.h"

#include "CompactTable.h"
#include "ExpressionEngine.h"
#include "FeatureKind.h"
#include "FeatureTexts.h"
#include "FieldValues.h"
#include "MessageLevel.h"
#include "NumberTexts.h"
#include "PartModel.h"

#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTableWidget>

#include <cmath>

namespace {

// Names and inputs come first.
constexpr int FirstFieldRow = 2;
constexpr int HintMargin = 12;

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

// Of a corner: of its texts, in their order.
FieldValue ValueOf(const ProfileCorner& corner, FieldValues& values)
{
    QStringList numbers;
    const QStringList texts = corner.IsArc()
                                  ? QStringList{corner.x, corner.y, corner.viaX, corner.viaY}
                                  : QStringList{corner.x, corner.y};
    for (const QString& text : texts) {
        const double value = values.Evaluate(text);
        if (std::isnan(value))
            return {FeatureFields::tr("no value"), ExpressionEngine::LastError()};
        numbers << ShortText(value);
    }
    return {FeatureFields::tr("%1 mm").arg(numbers.join(QStringLiteral("; "))), QString()};
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

void FillRow(QTableWidget& table, int row, const QString& label, const QString& text,
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

QLabel* NewHint(QWidget* parent)
{
    auto* const hint = new QLabel(
        FeatureFields::tr("Select a feature in the tree, or click it in the view, to edit its "
                          "fields here. The menu \"Model\" adds features."),
        parent);
    hint->setObjectName(QStringLiteral("fieldsHint"));
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignTop);
    hint->setMargin(HintMargin);
    return hint;
}

} // namespace

FeatureFields::FeatureFields(PartModel& model, QWidget* parent)
    : QDockWidget(tr("Fields of the feature"), parent)
    , m_model(model)
    , m_pages(new QStackedWidget(this))
    , m_table(new QTableWidget(0, ValueColumn + 1, this))
{
    setObjectName(QStringLiteral("fieldsDock"));
    m_pages->addWidget(m_table);
    m_pages->addWidget(NewHint(m_pages));
    setWidget(m_pages);

    m_table->setObjectName(QStringLiteral("fieldTable"));
    m_table->setAccessibleName(windowTitle());
    m_table->setHorizontalHeaderLabels({tr("Field"), tr("Number or expression"), tr("Value")});
    // In a narrow dock the header is cut.
    for (int column = 0; column < m_table->columnCount(); ++column) {
        QTableWidgetItem& header = *m_table->horizontalHeaderItem(column);
        header.setToolTip(header.text());
    }
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
    m_table->setCurrentCell(hasFields ? FirstFieldRow : FirstFieldRow - 1, TextColumn);
}

std::vector<FeatureFields::Row> FeatureFields::RowsOf(const Feature& feature)
{
    const FeatureKind& kind = *feature.kind;
    std::vector<Row> rows = {{Row::Name}, {Row::Inputs}};
    if (kind.readsFile)
        rows.push_back({Row::File});
    for (int field = 0; field < int(kind.fields.size()); ++field)
        rows.push_back({Row::Field, field});
    if (kind.isAtFace)
        rows.push_back({Row::Face});
    if (kind.isAtEdges)
        rows.push_back({Row::Edges});
    if (kind.hasProfile) {
        for (int corner = 0; corner < int(feature.profile.size()); ++corner)
            rows.push_back({Row::Corner, corner});
        rows.push_back({Row::NewCorner});
    }
    return rows;
}

void FeatureFields::Refresh()
{
    const QSignalBlocker silent(m_table);
    const int index = m_model.Features().Find(m_name);
    m_pages->setCurrentIndex(index < 0 ? 1 : 0);
    if (index < 0)
        m_table->setRowCount(0);
    else
        ShowRows(m_model.Features().At(index));
}

void FeatureFields::ShowRows(const Feature& feature)
{
    m_rows = RowsOf(feature);
    m_table->setRowCount(int(m_rows.size()));
    FieldValues values;
    for (int row = 0; row < int(m_rows.size()); ++row)
        ShowRow(feature, row, values);
}

void FeatureFields::ShowRow(const Feature& feature, int row, FieldValues& values)
{
    QTableWidget& table = *m_table;
    const FeatureKind& kind = *feature.kind;
    const int index = m_rows[std::size_t(row)].index;
    switch (m_rows[std::size_t(row)].kind) {
    case Row::Name:
        FillRow(table, row, tr("Name"), feature.name);
        break;
    case Row::Inputs:
        FillRow(table, row, tr("Inputs"), feature.inputs.join(QStringLiteral(", ")));
        if (kind.maxInputs == 0)
            ForbidEditing(table, row);
        break;
    case Row::File:
        FillRow(table, row, tr("File"), feature.file);
        break;
    case Row::Field: {
        const FieldDefinition& field = kind.fields[std::size_t(index)];
        FillRow(table, row, field.Label(), feature.fields[index],
                ValueOf(field, feature.fields[index], values));
        break;
    }
    case Row::Face:
        FillRow(table, row, tr("At face"), feature.face ? feature.face->Text() : QString());
        break;
    case Row::Edges:
        FillRow(table, row, tr("At edges"), TextOf(feature.edges));
        break;
    case Row::Corner: {
        const ProfileCorner& corner = feature.profile[std::size_t(index)];
        FillRow(table, row, tr("Corner %1").arg(index + 1), TextOf(corner),
                ValueOf(corner, values));
        break;
    }
    case Row::NewCorner:
        FillRow(table, row, tr("New corner"), QString());
        Cell(table, row, TextColumn)
            .setToolTip(tr("x; y, or x; y; via x; via y for an arc that leads to the corner"));
        break;
    }
}

Feature FeatureFields::Edited(Feature feature, const Row& row, const QString& text)
{
    const QString trimmed = text.trimmed();
    switch (row.kind) {
    case Row::Name:
        feature.name = trimmed;
        break;
    case Row::Inputs:
        feature.inputs = Names(text);
        break;
    case Row::File:
        feature.file = trimmed;
        break;
    case Row::Field:
        feature.fields[row.index] = trimmed;
        // A point takes the place of faces and edges.
        if (feature.kind->IsPosition(feature.kind->fields[std::size_t(row.index)])) {
            feature.edges.clear();
            feature.face.reset();
        }
        break;
    case Row::Face:
        feature.face.reset();
        if (!trimmed.isEmpty())
            feature.face = FaceOf(text);
        break;
    case Row::Edges:
        feature.edges = EdgesOf(text);
        break;
    case Row::Corner:
        if (trimmed.isEmpty())
            feature.profile.erase(feature.profile.begin() + row.index);
        else
            feature.profile[std::size_t(row.index)] = CornerOf(text);
        break;
    case Row::NewCorner:
        if (!trimmed.isEmpty())
            feature.profile.push_back(CornerOf(text));
        break;
    }
    return feature;
}

void FeatureFields::TakeText(int row)
{
    const int index = m_model.Features().Find(m_name);
    if (index < 0)
        return;
    const Feature feature = m_model.Features().At(index);
    try {
        const Feature edited =
            Edited(feature, m_rows.at(std::size_t(row)), Cell(*m_table, row, TextColumn).text());
        // Before the change, which shows the feature under its new name.
        m_name = edited.name;
        m_model.Change(feature.name, edited);
        Refresh();
    } catch (const HostError& error) {
        m_name = feature.name;
        const QSignalBlocker silent(m_table);
        QTableWidgetItem& item = Cell(*m_table, row, TextColumn);
        item.setForeground(WrongColor);
        item.setToolTip(error.Reason());
        PostMessageToChannel(ErrorLevel, error.Reason());
    }
}
