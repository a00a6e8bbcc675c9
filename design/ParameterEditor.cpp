#include "ParameterEditor.h"

#include "ElidedTexts.h"
#include "ExpressionEngine.h"
#include "GlobalParaMeterMgr.h"
#include "LocalText.h"
#include "Notice.h"
#include "NumberText.h"
#include "TypeCombo.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTableWidgetItem>

#include <algorithm>
#include <map>

namespace {

enum Column
{
    NameColumn,
    ValueColumn,
    TypeColumn,
    ExpressionColumn,
    ExpressionParaColumn,
    DescriptionColumn
};

constexpr QLatin1Char Separator(',');

class CellDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // The table uses a cell's field until this returns. If this opens a notice and the host
    // refills the table meanwhile, the field must not be destroyed.
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override
    {
        m_inUse = editor;
        QStyledItemDelegate::setModelData(editor, model, index);
        m_inUse = nullptr;
        if (m_isDropped)
            editor->deleteLater();
        m_isDropped = false;
    }

    // Keeps combo boxes for the next refill. Each deleted one would leave an event, and with many
    // such events destroying the editor takes quadratic time.
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override
    {
        auto* const combo = dynamic_cast<TypeCombo*>(editor);
        if (editor == m_inUse)
            m_isDropped = true;
        else if (combo != nullptr)
            m_spareCombos.emplace(combo->Number(), combo);
        else
            QStyledItemDelegate::destroyEditor(editor, index);
    }

    // Returns the oldest kept combo box, because the Tab key follows the age. Null if there is
    // none.
    TypeCombo* TakeSpareCombo()
    {
        if (m_spareCombos.empty())
            return nullptr;
        TypeCombo* const combo = m_spareCombos.begin()->second;
        m_spareCombos.erase(m_spareCombos.begin());
        return combo;
    }

private:
    mutable QWidget* m_inUse = nullptr;
    mutable bool m_isDropped = false;
    mutable std::map<quint64, QPointer<TypeCombo>> m_spareCombos;
};

void ShowType(QTableWidget& table, int row, TypeCombo* spare, int code)
{
    auto* const combo = spare != nullptr ? spare : new TypeCombo(table, TypeColumn);
    combo->Offer(code);
    table.setCellWidget(row, TypeColumn, combo);
}

QString CellText(const QTableWidget& table, int row, int column)
{
    const QTableWidgetItem* const item = table.item(row, column);
    return item != nullptr ? item->text() : QString();
}

double StoredNumber(const QString& name)
{
    return GlobalParaMeterMgr::GetParameterRawValue(name).toDouble();
}

// A vector component: a number or the name of a parameter.
double ComponentValue(const QString& text)
{
    return tarn::IsNumberText(text) ? text.toDouble() : StoredNumber(text);
}

// Whether the record is still as it was checked before a box opened, and the parameters that it
// names still exist.
bool StandsAsChecked(const ParametersDef& record, const ParametersDef& checked)
{
    if (record.m_strExpression != checked.m_strExpression ||
        record.m_strExpressPara != checked.m_strExpressPara)
        return false;
    const QStringList names = record.m_strExpressPara.split(Separator, Qt::SkipEmptyParts);
    return std::all_of(names.begin(), names.end(), [](const QString& name) {
        return GlobalParaMeterMgr::m_nameMapParameters.count(name) != 0;
    });
}

} // namespace

ParameterEditor::ParameterEditor(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);
    m_ui.tableWidget->setItemDelegate(new CellDelegate(m_ui.tableWidget));

    connect(m_ui.pushButton_Apply, SIGNAL(clicked()), this, SLOT(m_Slot_Apply()));
    connect(m_ui.pushButton_Add, SIGNAL(clicked()), this, SLOT(m_Slot_Add()));
    connect(m_ui.pushButton_Del, SIGNAL(clicked()), this, SLOT(m_Slot_Delete()));
    connect(m_ui.pushButton_OK, SIGNAL(clicked()), this, SLOT(m_Slot_OK()));
    connect(m_ui.pushButton_Cancel, SIGNAL(clicked()), this, SLOT(m_Slot_Cancel()));
    connect(m_ui.tableWidget, SIGNAL(itemPressed(QTableWidgetItem*)), this,
            SLOT(m_Slot_ProcessExp()));
    connect(m_ui.tableWidget, SIGNAL(itemChanged(QTableWidgetItem*)), this,
            SLOT(m_Slot_NoNumber(QTableWidgetItem*)));
}

ParameterEditor::~ParameterEditor()
{
    // Each combo box that was shown a moment ago waits for such an event. To cancel it, its
    // destructor would search the whole queue.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
}

void ParameterEditor::m_Slot_Apply()
{
    // The host may destroy the editor while a box is open.
    const QPointer<ParameterEditor> self = this;
    UpdateAllParameterDef();
    if (self != nullptr)
        RefreshParameterData();
    if (self == nullptr)
        return;
    m_Slot_RefreshGUI();
    Q_EMIT m_Signal_Apply();
}

void ParameterEditor::m_Slot_Delete()
{
    m_ui.tableWidget->removeRow(m_ui.tableWidget->currentRow());
}

void ParameterEditor::m_Slot_Add()
{
    QTableWidget& table = *m_ui.tableWidget;
    const QSignalBlocker quiet(table); // filling must not reach m_Slot_NoNumber()
    const int row = table.rowCount();
    table.setRowCount(row + 1);
    for (const int column :
         {NameColumn, ValueColumn, ExpressionColumn, ExpressionParaColumn, DescriptionColumn})
        table.setItem(row, column, new QTableWidgetItem(QString()));
    ShowType(table, row, nullptr, ParametersDef::ScalarType);
}

void ParameterEditor::m_Slot_OK()
{
    const QPointer<ParameterEditor> self = this;
    m_Slot_Apply();
    if (self != nullptr)
        accept();
}

void ParameterEditor::m_Slot_Cancel()
{
    const QPointer<ParameterEditor> self = this;
    Q_EMIT rejected();
    if (self != nullptr)
        close();
}

void ParameterEditor::m_Slot_ProcessExp() {}

void ParameterEditor::m_Slot_RefreshGUI()
{
    QTableWidget& table = *m_ui.tableWidget;
    const QSignalBlocker quiet(table); // filling must not reach m_Slot_NoNumber()
    table.clearContents();
    const ParameterMap parameters = GlobalParaMeterMgr::m_nameMapParameters;
    table.setRowCount(int(parameters.size()));

    // New combo boxes ask for a layout when they are shown, and each one searches the queue for an
    // earlier request: put one to the front.
    QCoreApplication::postEvent(table.viewport(), new QEvent(QEvent::LayoutRequest));
    auto* const delegate = dynamic_cast<CellDelegate*>(table.itemDelegate());
    int row = 0;
    for (const auto& [name, record] : parameters) {
        table.setItem(row, NameColumn, new QTableWidgetItem(name));
        table.setItem(row, ValueColumn, new QTableWidgetItem(record.m_strValue));
        ShowType(table, row, delegate != nullptr ? delegate->TakeSpareCombo() : nullptr,
                 record.m_nType);
        table.setItem(row, ExpressionColumn,
                      new QTableWidgetItem(tarn::FromLocal8Bit(record.m_strExpression)));
        table.setItem(row, ExpressionParaColumn, new QTableWidgetItem(record.m_strExpressPara));
        table.setItem(row, DescriptionColumn, new QTableWidgetItem(record.m_strDescription));
        ++row;
    }
    // Until they are laid out, the new combo boxes overlap and are slow to paint.
    table.doItemsLayout();
}

void ParameterEditor::m_Slot_NoNumber(QTableWidgetItem* item)
{
    const QTableWidget& table = *m_ui.tableWidget;
    if (item == nullptr || table.currentColumn() != ValueColumn || tarn::IsNumberText(item->text()))
        return;

    // The host may rebuild the table while the box is open, so look up the cell again afterwards.
    const QPersistentModelIndex cell = table.model()->index(item->row(), item->column());
    tarn::ShowNotice(tr("Notify"), tr("Please Input a digital number"));
    if (!cell.isValid())
        return;
    if (QTableWidgetItem* const refused = table.item(cell.row(), cell.column()))
        refused->setText(QString());
}

void ParameterEditor::UpdateAllParameterDef()
{
    const QTableWidget& table = *m_ui.tableWidget;
    const int rows = table.rowCount();
    for (int row = 0; row < rows; ++row) {
        ParametersDef record;
        const QString name = CellText(table, row, NameColumn);
        record.m_strValue = CellText(table, row, ValueColumn);

        const auto* const combo = qobject_cast<QComboBox*>(table.cellWidget(row, TypeColumn));
        const int type = combo != nullptr ? TypeCombo::TypeCode(combo->currentIndex())
                                          : int(ParametersDef::ScalarType);
        if (combo != nullptr && combo->currentIndex() == 0) {
            record.m_dValue = record.m_strValue.toDouble();
        } else if (type == ParametersDef::VectorType) {
            const QStringList parts = record.m_strValue.split(Separator);
            if (parts.size() != 3) {
                tarn::ShowNotice(tr("Error"), tr("invalid coordinate type"));
                return;
            }
            record.m_dX = ComponentValue(parts[0]);
            record.m_dY = ComponentValue(parts[1]);
            record.m_dZ = ComponentValue(parts[2]);
        }

        record.m_strExpression = tarn::ToLocal8Bit(CellText(table, row, ExpressionColumn));
        record.m_strExpressPara = CellText(table, row, ExpressionParaColumn);
        record.m_strDescription = CellText(table, row, DescriptionColumn);
        record.m_strName = name;
        record.m_nType = type;
        GlobalParaMeterMgr::AddParameter(name, record);
    }
}

void ParameterEditor::RefreshParameterData()
{
    // By name, not by iterator: the host may change the store while a box is open.
    const std::vector<QString> names = GlobalParaMeterMgr::GetAllParametersName();
    ParameterMap& store = GlobalParaMeterMgr::m_nameMapParameters;
    for (const QString& name : names) {
        const auto found = store.find(name);
        if (found == store.end() || found->second.m_strExpression.empty())
            continue;
        const ParametersDef checked = found->second;
        if (!IsValidExpressPara(checked.m_strExpressPara))
            continue;

        const auto entry = store.find(name);
        if (entry == store.end() || !StandsAsChecked(entry->second, checked))
            continue;
        ParametersDef& record = entry->second;
        const double value = GetCurrParaValueByExprsion(record);
        record.m_dValue = value;
        record.m_strValue = tarn::NumberText(value);
        record.m_varRawValue = value;
    }
}

bool ParameterEditor::IsValidExpressPara(QString names)
{
    // Deliberately not translated.
    const QString error = QStringLiteral("Error");
    const QStringList parts = names.split(Separator);
    for (const QString& name : parts) {
        if (name.isEmpty()) {
            tarn::ShowNotice(error, QStringLiteral("Please input parameters name for expression"));
        } else if (GlobalParaMeterMgr::m_nameMapParameters.count(name) == 0) {
            tarn::ShowNotice(error, QStringLiteral("Not find parameter: ") + name);
            return false;
        } else if (tarn::IsNumberText(name)) {
            tarn::ShowNotice(error, QStringLiteral("Digital is not allowed as paramter"));
            return false;
        }
    }
    return true;
}

double ParameterEditor::GetCurrParaValueByExprsion(ParametersDef def)
{
    std::map<std::string, double> variables;
    const QStringList names = def.m_strExpressPara.split(Separator);
    for (const QString& name : names)
        variables[tarn::ToLocal8Bit(name)] = StoredNumber(name);
    return ExpressionEngine::CalculateExpress(def.m_strExpression, variables);
}

void ParameterEditor::AddOneRecord(ParametersDef&) {}
