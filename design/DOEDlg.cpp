#include "DOEDlg.h"

#include "ChildDialog.h"
#include "ElidedTexts.h"
#include "FullFactorial.h"
#include "GlobalParaMeterMgr.h"
#include "Notice.h"
#include "NumberItem.h"
#include "NumberText.h"
#include "OneParameterDlg.h"
#include "sParaArrayData.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidgetItem>
#include <QVariant>

#include <stdexcept>
#include <utility>

namespace {

enum Column
{
    NameColumn,
    StatusColumn,
    SetColumn
};

// The property of a cell widget that holds its row.
const char* const RowProperty = "Line";

static_assert(DOEDlg::MaximumRuns == FullFactorial::MaximumRuns);

// When it is polished, a button asks for a new layout of its parent. For many buttons that are
// shown at once this takes quadratic time, and a table needs no layout.
class CellButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

private:
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::PolishRequest)
            return QPushButton::event(event);
        ensurePolished();
        return true;
    }
};

// Checked access: inconsistent data cause this exception.
const QString& At(const std::map<int, QString>& names, int key)
{
    const auto entry = names.find(key);
    if (entry == names.end())
        throw std::out_of_range("invalid map<K, T> key");
    return entry->second;
}

void ShowRuns(QTableWidget& table, const FullFactorial& design, const std::map<int, QString>& names)
{
    table.clearContents();
    table.setRowCount(0);
    table.setColumnCount(0);
    table.reset();
    if (design.IsTooLarge() || design.RunCount() == 0)
        return;

    const int columns = int(design.ListCount());
    const int runs = int(design.RunCount());
    table.setColumnCount(columns);
    table.setRowCount(runs);
    for (int column = 0; column < columns; ++column)
        table.setHorizontalHeaderItem(column, new QTableWidgetItem(At(names, column + 1)));

    // The views already know the new size; a signal for each cell would only cost time.
    const QSignalBlocker silence(table.model());
    for (int row = 0; row < runs; ++row) {
        int column = 0;
        for (const double value : design.Run(std::size_t(row)))
            table.setItem(row, column++, new NumberItem(value));
    }
}

} // namespace

DOEDlg::DOEDlg(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);
    InitGUI();
    InitGUIData();
    CollectAllRecord();

    connect(m_ui.pushButton_RefreshData, SIGNAL(clicked()), this, SLOT(m_Refresh_Final_Table()));
    connect(m_ui.pushButton_GenGeo, SIGNAL(clicked()), this, SLOT(m_Slot_UpdateGeoemtry()));
    connect(m_ui.pushButton_Add, SIGNAL(clicked()), this, SLOT(m_Slot_Add()));
    connect(m_ui.pushButton_Delete, SIGNAL(clicked()), this, SLOT(m_Slot_Delete()));

    QHeaderView* const header = m_ui.tableWidget_Parameters->horizontalHeader();
    header->setStretchLastSection(true);
    header->resizeSection(NameColumn, 70);
}

DOEDlg::~DOEDlg() = default;

void DOEDlg::InitGUI()
{
    QTableWidget& table = *m_ui.tableWidget_Parameters;
    const ParameterMap parameters = GlobalParaMeterMgr::m_nameMapParameters;
    // All rows at once: inserting one row visits the cell widgets of all earlier rows.
    table.setRowCount(int(parameters.size()));
    int row = 0;
    for (const auto& entry : parameters) {
        auto* const name = new QTableWidgetItem(entry.second.m_strName);
        // An edited name would leave a tick in the registry that no row can remove.
        name->setFlags(name->flags() & ~Qt::ItemIsEditable);
        table.setItem(row, NameColumn, name);

        auto* const check = new QCheckBox;
        check->setAccessibleName(entry.second.m_strName);
        check->setProperty(RowProperty, row);
        table.setCellWidget(row, StatusColumn, check);

        auto* const button = new CellButton(tr("Set Array"));
        button->setProperty(RowProperty, row);
        button->setAutoDefault(false);
        button->setEnabled(false);
        table.setCellWidget(row, SetColumn, button);

        connect(check, SIGNAL(clicked()), this, SLOT(m_slot_ProcessCheck()));
        connect(button, SIGNAL(clicked()), this, SLOT(m_slot_ProcessButton()));
        ++row;
    }
}

void DOEDlg::InitGUIData()
{
    // Deliberately by position: the i-th record in name order belongs to the i-th row.
    int row = 0;
    for (const auto& entry : g_mapParaArrays) {
        QCheckBox* const check = GetCurrentCheck(row);
        QPushButton* const button = GetCurrentButton(row);
        if (check == nullptr || button == nullptr)
            return;
        check->setChecked(entry.second.bChecked != 0);
        button->setEnabled(entry.second.bChecked != 0);
        ++row;
    }
}

QString DOEDlg::GetCurrentParaName(int row) const
{
    const QTableWidgetItem* const item = m_ui.tableWidget_Parameters->item(row, NameColumn);
    return item != nullptr ? item->text() : QString();
}

QPushButton* DOEDlg::GetCurrentButton(int row) const
{
    return qobject_cast<QPushButton*>(m_ui.tableWidget_Parameters->cellWidget(row, SetColumn));
}

QCheckBox* DOEDlg::GetCurrentCheck(int row) const
{
    return qobject_cast<QCheckBox*>(m_ui.tableWidget_Parameters->cellWidget(row, StatusColumn));
}

void DOEDlg::m_slot_ProcessCheck()
{
    const auto* const check = qobject_cast<QCheckBox*>(sender());
    if (check == nullptr)
        return;
    const int row = check->property(RowProperty).toInt();
    if (QPushButton* const button = GetCurrentButton(row))
        button->setEnabled(check->isChecked());
    g_mapParaArrays[GetCurrentParaName(row)].bChecked = check->isChecked() ? 1 : 0;
    CollectAllRecord();
}

void DOEDlg::m_slot_ProcessButton()
{
    if (sender() == nullptr)
        return;
    const int row = sender()->property(RowProperty).toInt();
    OneParameterDlg dialog(nullptr, GetCurrentParaName(row));
    dialog.exec();
}

void DOEDlg::m_Slot_Add()
{
    m_ui.tableWidget_Final->insertRow(m_ui.tableWidget_Final->rowCount());
}

void DOEDlg::m_Slot_Delete()
{
    const int row = m_ui.tableWidget_Final->currentRow();
    if (row < 0) {
        tarn::ShowNotice(tr("Notify"), tr("Select one row first!"));
        return;
    }
    m_ui.tableWidget_Final->removeRow(row);
}

void DOEDlg::m_Refresh_Final_Table()
{
    CollectAllRecord();
}

void DOEDlg::CollectAllRecord()
{
    std::vector<std::vector<double>> lists;
    for (const auto& entry : g_mapParaArrays) {
        const sParaArrayData& record = entry.second;
        if (record.bChecked == 0)
            continue;
        lists.push_back(record.vecValues);
        // The names of an earlier build with more columns stay: "Generate" compares their number
        // with the number of columns.
        m_mapColumnNames[int(lists.size())] = record.strName;
    }
    const FullFactorial design(std::move(lists));
    ShowRuns(*m_ui.tableWidget_Final, design, m_mapColumnNames);
    if (design.IsTooLarge())
        tarn::ShowNotice(tr("Notify"), tr("Too many runs"));
}

void DOEDlg::m_Slot_UpdateGeoemtry()
{
    const QTableWidget& table = *m_ui.tableWidget_Final;
    const int row = table.currentRow();
    if (row < 0) {
        const tarn::ChildDialog<QMessageBox> box(QMessageBox::Information, tr("Warning"),
                                                 tr("Select one row first"), QMessageBox::Ok, this);
        box->exec();
        return;
    }

    const int columns = table.columnCount();
    m_mapChosenValues.clear();
    if (int(m_mapColumnNames.size()) != columns) {
        tarn::ShowNotice(tr("Notify"), tr("Number not equal"));
        return;
    }
    for (int column = 0; column < columns; ++column) {
        const QTableWidgetItem* const item = table.item(row, column);
        const QString text = item != nullptr ? item->text() : QString();
        m_mapChosenValues[At(m_mapColumnNames, column + 1)] = text.toDouble();
    }

    // A parameter without a column is deliberately set to 0.
    for (auto& entry : GlobalParaMeterMgr::m_nameMapParameters) {
        const double value = m_mapChosenValues[entry.first];
        entry.second.m_dValue = value;
        entry.second.m_varRawValue = value;
        entry.second.m_strValue = tarn::NumberText(value);
    }
    Q_EMIT m_Signal_RegenerateGeo();
}
