#include "OneParameterDlg.h"

#include "Notice.h"
#include "NumberItem.h"
#include "NumberText.h"
#include "sParaArrayData.h"

#include <QPointer>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTableWidgetItem>

#include <cmath>
#include <utility>

namespace {

enum SampleType
{
    LinearType,
    Log10Type,
    LnType,
    GaussType
};

// The most rows that a range may generate.
constexpr std::size_t MaximumSamples = 1000000;

double SampleValue(int type, double x)
{
    switch (type) {
    case Log10Type:
        return std::log10(x);
    case LnType:
        return std::log(x);
    default:
        return x;
    }
}

// The samples of a range, or nothing when the range is refused.
std::vector<double> Samples(double min, double max, double step)
{
    if (!std::isfinite(min) || !std::isfinite(max) || !std::isfinite(step))
        return {};
    if (step > max - min || min >= max || step <= 0.0)
        return {};

    // Repeated addition decides whether the end is reached. The limit also stops a step that is
    // too small to move x.
    std::vector<double> samples;
    for (double x = min; x <= max; x += step) {
        if (samples.size() == MaximumSamples)
            return {};
        samples.push_back(x);
    }
    return samples;
}

} // namespace

OneParameterDlg::OneParameterDlg(QWidget* parent, QString name)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    if (name.isEmpty()) {
        tarn::ShowNotice(tr("Error"), tr("No parameter input"));
        return;
    }

    m_strName = std::move(name);
    InitGUIData();

    connect(m_ui.lineEdit_Min, SIGNAL(editingFinished()), this, SLOT(RefreshTableData()));
    connect(m_ui.lineEdit_Max, SIGNAL(editingFinished()), this, SLOT(RefreshTableData()));
    connect(m_ui.lineEdit_Deta, SIGNAL(editingFinished()), this, SLOT(RefreshTableData()));
    connect(m_ui.radioButton_Linear, SIGNAL(clicked()), this, SLOT(RefreshTableData()));
    connect(m_ui.radioButton_Log, SIGNAL(clicked()), this, SLOT(RefreshTableData()));
    connect(m_ui.pushButton_OK, SIGNAL(clicked()), this, SLOT(m_Slot_OK()));
    connect(m_ui.pushButton_Cancel, SIGNAL(clicked()), this, SLOT(m_Slot_Cancel()));
    connect(m_ui.pushButton_Add, SIGNAL(clicked()), this, SLOT(m_Slot_Add()));
    connect(m_ui.pushButton_Delete, SIGNAL(clicked()), this, SLOT(m_Slot_Delete()));
}

OneParameterDlg::~OneParameterDlg() = default;

void OneParameterDlg::done(int result)
{
    // A field that loses the focus with its window reports a finished edit; leaving is none.
    const QScopedValueRollback<bool> leaving(m_bKeepTable, true);
    QDialog::done(result);
}

void OneParameterDlg::RefreshTableData()
{
    if (m_bKeepTable)
        return;

    m_vecValues.clear();
    m_ui.tableWidget->setRowCount(0);
    m_ui.tableWidget->clearContents();

    const double step = m_ui.lineEdit_Deta->text().toDouble();
    const double min = m_ui.lineEdit_Min->text().toDouble();
    const double max = m_ui.lineEdit_Max->text().toDouble();
    const std::vector<double> samples = Samples(min, max, step);
    if (samples.empty()) {
        Refuse(tr("Check input data!"));
        return;
    }

    if (m_ui.radioButton_Linear->isChecked()) {
        m_nSampleType = LinearType;
    } else if (m_ui.radioButton_Log->isChecked()) {
        m_nSampleType = Log10Type;
    } else if (m_ui.radioButton_Ln->isChecked()) {
        m_nSampleType = LnType;
    } else if (m_ui.radioButton_Gauss->isChecked()) {
        m_nSampleType = GaussType;
        Refuse(tr("Not implement yet"));
        return;
    } else {
        return;
    }

    QTableWidget& table = *m_ui.tableWidget;
    table.setRowCount(int(samples.size()));
    // The views know the new size by now; a signal for each cell would only cost time.
    const QSignalBlocker silence(table.model());
    int row = 0;
    for (const double x : samples)
        table.setItem(row++, 0, new NumberItem(SampleValue(m_nSampleType, x)));
}

void OneParameterDlg::Refuse(const QString& text)
{
    // The box takes the focus from the field, which then reports a finished edit once more. The
    // host may destroy the dialog behind it.
    const QPointer<OneParameterDlg> self = this;
    m_bKeepTable = true;
    tarn::ShowNotice(tr("Error"), text);
    if (self != nullptr)
        m_bKeepTable = false;
}

void OneParameterDlg::m_Slot_OK()
{
    const double step = m_ui.lineEdit_Deta->text().toDouble();
    const double min = m_ui.lineEdit_Min->text().toDouble();
    const double max = m_ui.lineEdit_Max->text().toDouble();

    m_vecValues.clear();
    const int rows = m_ui.tableWidget->rowCount();
    m_vecValues.reserve(std::size_t(rows));
    for (int row = 0; row < rows; ++row) {
        const QTableWidgetItem* const item = m_ui.tableWidget->item(row, 0);
        m_vecValues.push_back(item != nullptr ? item->text().toDouble() : 0.0);
    }

    sParaArrayData& record = g_mapParaArrays[m_strName];
    record.bChecked = 1;
    record.strName = m_strName;
    record.vecValues = m_vecValues;
    record.dMin = min;
    record.dMax = max;
    record.dDelta = step;
    record.nSampleType = m_nSampleType;
    accept();
}

void OneParameterDlg::m_Slot_Cancel()
{
    reject();
}

void OneParameterDlg::InitGUIData()
{
    const sParaArrayData& record = g_mapParaArrays[m_strName];
    m_ui.lineEdit_Deta->setText(tarn::NumberText(record.dDelta));
    m_ui.lineEdit_Max->setText(tarn::NumberText(record.dMax));
    m_ui.lineEdit_Min->setText(tarn::NumberText(record.dMin));
    switch (record.nSampleType) {
    case LinearType:
        m_ui.radioButton_Linear->setChecked(true);
        break;
    case Log10Type:
        m_ui.radioButton_Log->setChecked(true);
        break;
    case LnType:
        m_ui.radioButton_Ln->setChecked(true);
        break;
    case GaussType:
        m_ui.radioButton_Gauss->setChecked(true);
        break;
    default:
        break;
    }
    RefreshTableData();
}

void OneParameterDlg::m_Slot_Add()
{
    m_ui.tableWidget->insertRow(m_ui.tableWidget->rowCount());
}

void OneParameterDlg::m_Slot_Delete()
{
    const int row = m_ui.tableWidget->currentRow();
    if (row < 0) {
        tarn::ShowNotice(tr("Notify"), tr("Select one row first!"));
        return;
    }
    m_ui.tableWidget->removeRow(row);
}
