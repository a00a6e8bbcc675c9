#include "DOEDlg.h"

#include "ChildDialog.h"
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

#include <algorithm>
#include <stdexcept>

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

// Keeps the run table at some 2 GB at most. Only parameters with a single sample can bring so many
// columns that this limit is reached before that of the runs.
constexpr std::size_t MaximumCells = 20 * std::size_t(DOEDlg::MaximumRuns);

// Whether the product of the lists' lengths is more than can be built; it may fit no number.
bool IsTooMany(const std::map<int, std::vector<double>>& levels)
{
    if (std::any_of(levels.begin(), levels.end(), [](const auto& l) { return l.second.empty(); }))
        return false;
    std::size_t runs = 1;
    for (const auto& level : levels) {
        if (level.second.size() > DOEDlg::MaximumRuns / runs)
            return true;
        runs *= level.second.size();
    }
    return runs * levels.size() > MaximumCells;
}

// Checked access: data that do not fit together end in these faults.
double& At(std::vector<double>& values, std::size_t index)
{
    if (index >= values.size())
        throw std::out_of_range("invalid vector<T> subscript");
    return values[index];
}

double At(const std::vector<double>& values, std::size_t index)
{
    if (index >= values.size())
        throw std::out_of_range("invalid vector<T> subscript");
    return values[index];
}

const QString& At(const std::map<int, QString>& names, int key)
{
    const auto entry = names.find(key);
    if (entry == names.end())
        throw std::out_of_range("invalid map<K, T> key");
    return entry->second;
}

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
        check->setAccessibleName(entry.second.m_strName);
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
    const bool tooMany = IsTooMany(g_mapLevelValues);
    if (!tooMany)
        CollectData(1, g_mapLevelValues[1]);
    FillFinalTable();
    if (tooMany)
        tarn::ShowNotice(tr("Notify"), tr("Too many runs"));
}

void DOEDlg::CollectData(int level, const std::vector<double>& values)
{
    // An odometer with a wheel per level. A recursion would be as deep as there are ticked
    // parameters, and nothing bounds their number.
    std::vector<const std::vector<double>*> wheels = {&values};
    for (int next = level + 1; next <= m_nCheckedCount; ++next)
        wheels.push_back(&g_mapLevelValues[next]);
    if (std::any_of(wheels.begin(), wheels.end(), [](const auto* w) { return w->empty(); }))
        return;

    const std::size_t offset = std::size_t(level) - 1;
    std::vector<std::size_t> positions(wheels.size(), 0);
    std::size_t turned = 0;
    for (;;) {
        for (std::size_t wheel = turned; wheel < wheels.size(); ++wheel)
            At(g_vecCurrentRun, offset + wheel) = (*wheels[wheel])[positions[wheel]];
        m_mapRuns.emplace_hint(m_mapRuns.end(), g_nRunCounter++, g_vecCurrentRun);

        // The last wheel turns on; each one that comes full circle takes along the one before it.
        std::size_t wheel = wheels.size();
        while (wheel > 0 && ++positions[wheel - 1] == wheels[wheel - 1]->size())
            positions[--wheel] = 0;
        if (wheel == 0)
            return;
        turned = wheel - 1;
    }
}

void DOEDlg::FillFinalTable()
{
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

    // The views know the new size by now; a signal for each cell would only cost time.
    const QSignalBlocker silence(table.model());
    int row = 0;
    for (const auto& run : m_mapRuns) {
        for (int column = 0; column < columns; ++column)
            table.setItem(row, column, new NumberItem(At(run.second, std::size_t(column))));
        ++row;
    }
    // From here on the items hold the numbers.
    m_mapRuns.clear();
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

    // A parameter that is no column of the run is set to 0 on purpose.
    for (auto& entry : GlobalParaMeterMgr::m_nameMapParameters) {
        const double value = m_mapChosenValues[entry.first];
        entry.second.m_dValue = value;
        entry.second.m_varRawValue = value;
        entry.second.m_strValue = tarn::NumberText(value);
    }
    Q_EMIT m_Signal_RegenerateGeo();
}
