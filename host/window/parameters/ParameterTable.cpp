#include "ParameterTable.h"

#include "CompactTable.h"
#include "DesignModel.h"
#include "ExpressionNames.h"
#include "JsonSection.h"
#include "MessageLevel.h"
#include "NumberTexts.h"

#include <QComboBox>
#include <QHeaderView>
#include <QSet>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cmath>

namespace {

constexpr int CodeRole = Qt::UserRole; // The stored name or type of the cell's row.
constexpr int LeastCharacters = 10;    // Of a column.
const QColor WrongColor(Qt::red);

QString TypeWord(int code)
{
    switch (code) {
    case ParametersDef::BoolType:
        return ParameterTable::tr("Bool");
    case ParametersDef::ScalarType:
        return ParameterTable::tr("Scalar");
    case ParametersDef::VectorType:
        return ParameterTable::tr("Vector");
    case ParametersDef::TensorType:
        return ParameterTable::tr("Tensor");
    default:
        return ParameterTable::tr("unknown (%1)").arg(code);
    }
}

/// Chooses the type in a list.
class TypeDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex&) const override
    {
        auto* const combo = new QComboBox(parent);
        combo->setAccessibleName(ParameterTable::tr("Type"));
        for (const int code : {ParametersDef::ScalarType, ParametersDef::VectorType,
                               ParametersDef::BoolType, ParametersDef::TensorType})
            combo->addItem(TypeWord(code), code);
        auto* const self = const_cast<TypeDelegate*>(this);
        connect(combo, QOverload<int>::of(&QComboBox::activated), self, [self, combo] {
            Q_EMIT self->commitData(combo);
            Q_EMIT self->closeEditor(combo);
        });
        return combo;
    }

    void setEditorData(QWidget* editor, const QModelIndex& index) const override
    {
        auto* const combo = qobject_cast<QComboBox*>(editor);
        combo->setCurrentIndex(combo->findData(index.data(CodeRole)));
    }

    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override
    {
        const auto* const combo = qobject_cast<QComboBox*>(editor);
        if (combo->currentIndex() >= 0 && combo->currentData() != index.data(CodeRole))
            model->setData(index, combo->currentData(), CodeRole);
    }
};

bool IsVector(const ParameterEntry& entry)
{
    return entry.record.m_nType == ParametersDef::VectorType;
}

} // namespace

ParameterTable::ParameterTable(DesignModel& model, QWidget* parent)
    : QTableWidget(0, DescriptionColumn + 1, parent)
    , m_model(model)
{
    setObjectName(QStringLiteral("parameterTable"));
    setAccessibleName(tr("Parameters"));
    setHorizontalHeaderLabels({tr("Name"), tr("Type"), tr("Number or expression"), tr("y"), tr("z"),
                               tr("Unit"), tr("Result"), tr("Description")});
    // A narrow panel leaves the last column less than its title.
    for (int column = NameColumn; column <= DescriptionColumn; ++column)
        horizontalHeaderItem(column)->setToolTip(horizontalHeaderItem(column)->text());
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::AnyKeyPressed);
    MakeCompact(*this);
    setItemDelegateForColumn(TypeColumn, new TypeDelegate(this));
    horizontalHeader()->setStretchLastSection(true);

    connect(this, &QTableWidget::itemChanged, this,
            [this](QTableWidgetItem* item) { Take(*item); });
    connect(&m_model, &DesignModel::Changed, this, &ParameterTable::Refresh);
    Refresh();
}

ParameterTable::~ParameterTable() = default;

QTableWidgetItem& ParameterTable::Show(int row, int column, const QString& text, bool isEditable)
{
    if (item(row, column) == nullptr)
        setItem(row, column, new QTableWidgetItem);
    QTableWidgetItem& cell = *item(row, column);
    cell.setData(Qt::CheckStateRole, QVariant());
    cell.setText(text);
    cell.setToolTip(text);
    cell.setForeground(QBrush());
    cell.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable |
                  (isEditable ? Qt::ItemIsEditable : Qt::NoItemFlags));
    return cell;
}

void ParameterTable::Refresh()
{
    const QSignalBlocker silent(this);
    const ParameterEntries entries = m_model.Stored();
    setRowCount(int(entries.size()));
    for (int row = 0; row < rowCount(); ++row)
        ShowRow(row, entries[std::size_t(row)]);
    const bool hasVectors = std::any_of(entries.begin(), entries.end(), IsVector);
    for (const int column : {YColumn, ZColumn})
        setColumnHidden(column, !hasVectors);
    // The last column takes what is left. The others leave room for a name that is typed and for
    // the list of the types.
    const int least = fontMetrics().averageCharWidth() * LeastCharacters;
    for (int column = NameColumn; column < DescriptionColumn; ++column) {
        if (!isColumnHidden(column))
            setColumnWidth(column, qMax(qMax(sizeHintForColumn(column), least),
                                        horizontalHeader()->sectionSizeHint(column)));
    }
}

void ParameterTable::ShowRow(int row, const ParameterEntry& entry)
{
    QTableWidgetItem& name = Show(row, NameColumn, entry.Name());
    name.setData(CodeRole, entry.Name());
    if (!tarn::IsExpressionName(entry.Name())) {
        name.setForeground(WrongColor);
        name.setToolTip(tr("No expression can use a parameter of this name"));
    }
    Show(row, TypeColumn, TypeWord(entry.record.m_nType)).setData(CodeRole, entry.record.m_nType);
    ShowValue(row, entry);
    Show(row, UnitColumn, entry.unit);
    ShowResult(row, entry);
    Show(row, DescriptionColumn, entry.record.m_strDescription);
}

void ParameterTable::ShowValue(int row, const ParameterEntry& entry)
{
    const bool isVector = IsVector(entry);
    Show(row, YColumn, isVector ? ExactText(entry.record.m_dY) : QString(), isVector);
    Show(row, ZColumn, isVector ? ExactText(entry.record.m_dZ) : QString(), isVector);
    if (entry.record.m_nType == ParametersDef::BoolType && entry.record.m_strExpression.empty()) {
        QTableWidgetItem& tick = Show(row, ValueColumn, QString(), false);
        tick.setFlags(tick.flags() | Qt::ItemIsUserCheckable);
        tick.setCheckState(entry.Number() != 0.0 ? Qt::Checked : Qt::Unchecked);
        return;
    }
    Show(row, ValueColumn, isVector ? ExactText(entry.record.m_dX) : entry.ValueText());
}

void ParameterTable::ShowResult(int row, const ParameterEntry& entry)
{
    const QString reason = m_model.ReasonFor(entry.Name());
    QString text = reason;
    if (reason.isEmpty() && IsVector(entry))
        text = QStringLiteral("(%1, %2, %3)")
                   .arg(ShortText(entry.record.m_dX), ShortText(entry.record.m_dY),
                        ShortText(entry.record.m_dZ));
    else if (reason.isEmpty() && entry.record.m_nType == ParametersDef::ScalarType)
        text = ShortText(entry.Number());
    else if (reason.isEmpty())
        text = entry.ValueText();
    if (reason.isEmpty() && !entry.unit.isEmpty())
        text += QLatin1Char(' ') + entry.unit;
    QTableWidgetItem& cell = Show(row, ResultColumn, text, false);
    if (!reason.isEmpty())
        cell.setForeground(WrongColor);
}

QStringList ParameterTable::SelectedNames() const
{
    QModelIndexList rows = selectionModel()->selectedRows(NameColumn);
    std::sort(rows.begin(), rows.end());
    QStringList names;
    for (const QModelIndex& row : qAsConst(rows))
        names << row.data(CodeRole).toString();
    return names;
}

void ParameterTable::SelectNames(const QStringList& names)
{
    const QSet<QString> selected(names.begin(), names.end());
    clearSelection();
    for (int row = 0; row < rowCount(); ++row) {
        if (selected.contains(item(row, NameColumn)->data(CodeRole).toString()))
            selectionModel()->select(model()->index(row, NameColumn),
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

void ParameterTable::StartNaming(const QString& name)
{
    for (int row = 0; row < rowCount(); ++row) {
        if (item(row, NameColumn)->data(CodeRole).toString() != name)
            continue;
        setCurrentCell(row, NameColumn);
        scrollToItem(item(row, NameColumn));
        editItem(item(row, NameColumn));
    }
}

void ParameterTable::Take(QTableWidgetItem& item)
{
    try {
        Apply(item);
    } catch (const ParameterError& error) {
        ShowRefusal(item, error.Reason());
    }
}

void ParameterTable::Apply(const QTableWidgetItem& item)
{
    const QString name = this->item(item.row(), NameColumn)->data(CodeRole).toString();
    const QString text = item.text().trimmed();
    if (item.column() == NameColumn) {
        m_model.Rename(name, text);
        return;
    }
    ParameterEntries entries = m_model.Design();
    const int index = FindParameter(entries, name);
    if (index < 0)
        return;
    ParameterEntry& entry = entries[std::size_t(index)];
    switch (item.column()) {
    case TypeColumn:
        entry.SetType(item.data(CodeRole).toInt());
        break;
    case ValueColumn:
        if ((item.flags() & Qt::ItemIsUserCheckable) != 0)
            entry.SetNumber(item.checkState() == Qt::Checked ? 1.0 : 0.0);
        else if (IsVector(entry))
            entry.SetComponent(0, text);
        else
            entry.SetValueText(text);
        break;
    case YColumn:
    case ZColumn:
        entry.SetComponent(item.column() - ValueColumn, text);
        break;
    case UnitColumn:
        entry.unit = text;
        break;
    case DescriptionColumn:
        entry.record.m_strDescription = text;
        break;
    default:
        return;
    }
    m_model.Edit(entries, tr("Change %1").arg(Quoted(name)));
}

void ParameterTable::ShowRefusal(QTableWidgetItem& item, const QString& reason)
{
    const QSignalBlocker silent(this);
    item.setForeground(WrongColor);
    item.setToolTip(reason);
    QTableWidgetItem& result =
        Show(item.row(), ResultColumn, tr("not taken: %1").arg(reason), false);
    result.setForeground(WrongColor);
    PostMessageToChannel(ErrorLevel, tr("The parameter was not changed: %1").arg(reason));
}
