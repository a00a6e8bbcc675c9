#include "EditorSession.h"

#include "DesignModel.h"
#include "GlobalParaMeterMgr.h"
#include "JsonSection.h"
#include "MessageLevel.h"
#include "ParameterEditor.h"

#include <QComboBox>
#include <QHash>
#include <QPushButton>
#include <QTableWidget>

namespace {

enum Column
{
    NameColumn,
    ValueColumn,
    TypeColumn,
    ExpressionColumn,
    UsesColumn,
    DescriptionColumn
};

// The codes of the entries of the dialog's combo boxes.
constexpr std::array<int, 4> TypeCodes = {ParametersDef::ScalarType, ParametersDef::VectorType,
                                          ParametersDef::TensorType, ParametersDef::BoolType};

QString CellText(const QTableWidget& table, int row, int column)
{
    const QTableWidgetItem* const item = table.item(row, column);
    return item != nullptr ? item->text() : QString();
}

int TypeIn(const QTableWidget& table, int row)
{
    const auto* const combo = qobject_cast<QComboBox*>(table.cellWidget(row, TypeColumn));
    const int index = combo != nullptr ? combo->currentIndex() : 0;
    return index >= 0 && index < int(TypeCodes.size()) ? TypeCodes[std::size_t(index)]
                                                       : int(ParametersDef::ScalarType);
}

QHash<QString, std::size_t> PlacesOf(const ParameterEntries& entries)
{
    QHash<QString, std::size_t> places;
    for (const ParameterEntry& entry : entries)
        places.insert(entry.Name(), std::size_t(places.size()));
    return places;
}

// A component may be the name of a parameter.
QString WithValues(const QString& vector)
{
    QStringList parts = vector.split(QLatin1Char(','));
    for (QString& part : parts) {
        part = part.trimmed();
        if (GlobalParaMeterMgr::m_nameMapParameters.count(part) != 0)
            part =
                QString::number(GlobalParaMeterMgr::GetParameterRawValue(part).toDouble(), 'g', 17);
    }
    return parts.join(QLatin1Char(','));
}

} // namespace

EditorSession::EditorSession(ParameterEditor& dialog, DesignModel& model, QObject* parent)
    : QObject(parent)
    , m_dialog(dialog)
    , m_model(model)
    , m_before(model.Stored())
{
    // The dialog rebuilds its table before it says that it has written.
    for (const char* const name : {"pushButton_Apply", "pushButton_OK"}) {
        if (auto* const button = dialog.findChild<QPushButton*>(QLatin1String(name)))
            connect(button, &QPushButton::pressed, this, &EditorSession::RememberRows);
    }
    connect(&dialog, &ParameterEditor::m_Signal_Apply, this, &EditorSession::TakeRows);
}

EditorSession::~EditorSession() = default;

void EditorSession::RememberRows()
{
    m_rows.clear();
    const auto* const table = m_dialog.findChild<QTableWidget*>(QStringLiteral("tableWidget"));
    for (int row = 0; table != nullptr && row < table->rowCount(); ++row) {
        ParametersDef record;
        record.m_strName = CellText(*table, row, NameColumn);
        record.m_nType = TypeIn(*table, row);
        record.m_strValue = CellText(*table, row, ValueColumn);
        record.m_strExpression =
            CellText(*table, row, ExpressionColumn).toLocal8Bit().toStdString();
        record.m_strDescription = CellText(*table, row, DescriptionColumn);
        m_rows.push_back(record);
    }
}

void EditorSession::TakeRows()
{
    ParameterEntries entries = m_model.Stored();
    QHash<QString, std::size_t> places = PlacesOf(entries);
    const QHash<QString, std::size_t> former = PlacesOf(m_before);
    for (const ParametersDef& row : m_rows) {
        const auto place = former.constFind(row.m_strName);
        const ParameterEntry* const before =
            place == former.constEnd() ? nullptr : &m_before[*place];
        try {
            ParameterEntry entry = NewParameter(row.m_strName);
            Correct(entry, row, before);
            const auto stored = places.constFind(row.m_strName);
            if (stored != places.constEnd()) {
                entries[*stored] = entry;
                continue;
            }
            places.insert(row.m_strName, entries.size());
            entries.push_back(entry);
        } catch (const ParameterError& error) {
            PostMessageToChannel(WarningLevel, tr("The parameter %1 was not changed: %2")
                                                   .arg(Quoted(row.m_strName), error.Reason()));
        }
    }
    m_rows.clear();
    m_model.Edit(entries, tr("Edit parameters"));
    m_before = m_model.Stored();
    m_dialog.m_Slot_RefreshGUI();
}

void EditorSession::Correct(ParameterEntry& entry, const ParametersDef& row,
                            const ParameterEntry* before) const
{
    const bool isSame = before != nullptr && before->record.m_nType == row.m_nType &&
                        before->record.m_strValue == row.m_strValue;
    if (before != nullptr)
        entry.unit = before->unit;
    entry.record.m_nType = row.m_nType;
    if (isSame)
        entry.record = before->record;
    else if (row.m_nType == ParametersDef::VectorType)
        entry.SetValueText(WithValues(row.m_strValue));
    else if (row.m_nType == ParametersDef::BoolType && !row.m_strValue.isEmpty())
        entry.SetValueText(row.m_strValue);
    else
        entry.SetNumber(row.m_nType == ParametersDef::ScalarType ? row.m_strValue.toDouble() : 0.0);
    if (!isSame && row.m_nType != ParametersDef::VectorType &&
        row.m_nType != ParametersDef::BoolType)
        entry.record.m_strValue = row.m_strValue;
    if (isSame && entry.record.m_strExpression != row.m_strExpression)
        entry.record.m_varRawValue = QVariant();
    entry.record.m_strExpression = row.m_strExpression;
    entry.record.m_strDescription = row.m_strDescription;
}
