#include "DOEDlg.h"

#include "GlobalParaMeterMgr.h"
#include "Notice.h"
#include "NumberText.h"
#include "OneParameterDlg.h"
#include "sParaArrayData.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidgetItem>
#include <QVariant>

namespace {

enum Column
{
    NameColumn,
    StatusColumn,
    SetColumn
};

// The row of a cell widget, kept on the widget itself.
const char* const RowProperty = "Line";

// What the enumeration of the runs works on. One for the library is enough: all of it runs on the
// GUI thread, and every build starts by filling it anew.
std::map<int, std::vector<double>> g_mapLevelValues;
std::vector<double> g_vecCurrentRun;
int g_nRunCounter = 1;

} // namespace

DOEDlg::DOEDlg(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
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
    int row = 0;
    for (const auto& entry : parameters) {
        table.insertRow(row);

        auto* const name = new QTableWidgetItem(entry.second.m_strName);
        // An edited name would leave a tick in the registry that nothing can take back.
        name->setFlags(name->flags() & ~Qt::ItemIsEditable);
        table.setItem(row, NameColumn, name);

        auto* const check = new QCheckBox;
        check->setProperty(RowProperty, row);
        table.setCellWidget(row, StatusColumn, check);

        auto* const button = new QPushButton(tr("Set Array"));
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
    // By position on purpose: the i-th record in name order belongs to the i-th row.
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
    g_mapLevelValues.clear();
    const std::map<QString, sParaArrayData> registry = g_mapParaArrays;
    m_nCheckedCount = 0;
    int level = 1;
    for (const auto& entry : registry) {
        const sParaArrayData& record = entry.second;
        if (record.bChecked == 0)
            continue;
        ++m_nCheckedCount;
        g_mapLevelValues[level] = record.vecValues;
        // Names of an earlier, wider build stay: "Generate" compares their count with the columns.
        m_mapColumnNames[level] = record.strName;
        ++level;
    }

    g_nRunCounter = 1;
    g_vecCurrentRun.resize(std::size_t(m_nCheckedCount));
    m_mapRuns.clear();
    CollectData(1, g_mapLevelValues[1]);

    QTableWidget& table = *m_ui.tableWidget_Final;
    table.clearContents();
    table.setRowCount(0);
    table.setColumnCount(0);
    table.reset();
    if (m_mapRuns.empty())
        return;

    const int columns = int(m_mapRuns.begin()->second.size());
    table.setColumnCount(columns);
    table.setRowCount(int(m_mapRuns.size()));
    for (int column = 0; column < columns; ++column)
        table.setHorizontalHeaderItem(column, new QTableWidgetItem(m_mapColumnNames[column + 1]));

    int row = 0;
    for (const auto& run : m_mapRuns) {
        for (int column = 0; column < columns; ++column) {
            const double value = run.second.at(std::size_t(column));
            table.setItem(row, column, new QTableWidgetItem(tarn::NumberText(value)));
        }
        ++row;
    }
}

void DOEDlg::CollectData(int level, const std::vector<double>& values)
{
    const bool last = level == m_nCheckedCount;
    for (const double value : values) {
        g_vecCurrentRun.at(std::size_t(level - 1)) = value;
        if (last)
            m_mapRuns[g_nRunCounter++] = g_vecCurrentRun;
        else
            CollectData(level + 1, g_mapLevelValues[level + 1]);
    }
}

void DOEDlg::m_Slot_UpdateGeoemtry()
{
    const QTableWidget& table = *m_ui.tableWidget_Final;
    const int row = table.currentRow();
    if (row < 0) {
        QMessageBox::information(this, tr("Warning"), tr("Select one row first"), QMessageBox::Ok);
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
        m_mapChosenValues[m_mapColumnNames.at(column + 1)] = text.toDouble();
    }

    // A parameter that is no column of the run is set to 0 on purpose.
    for (auto& entry : GlobalParaMeterMgr::m_nameMapParameters) {
        const double value = m_mapChosenValues[entry.first];
        entry.second.m_dValue = value;
        entry.second.m_varRawValue = value;
        entry.second.m_strValue = tarn::NumberText(value);
    }
    Q_EMIT m_Signal_RegenerateGeo();
}
