#include "OneParameterDlg.h"

#include "ElidedTexts.h"
#include "Notice.h"
#include "NumberItem.h"
#include "NumberText.h"
#include "SampleRange.h"
#include "sParaArrayData.h"

#include <QPointer>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTableWidgetItem>

#include <optional>
#include <utility>

namespace {

QRadioButton* SpacingButton(const Ui::OneParameterDlg& form, int spacing)
{
    switch (spacing) {
    case SampleSpacing::Linear:
        return form.radioButton_Linear;
    case SampleSpacing::Log10:
        return form.radioButton_Log;
    case SampleSpacing::Ln:
        return form.radioButton_Ln;
    case SampleSpacing::Gauss:
        return form.radioButton_Gauss;
    default:
        return nullptr;
    }
}

std::optional<int> CheckedSpacing(const Ui::OneParameterDlg& form)
{
    for (const int spacing :
         {SampleSpacing::Linear, SampleSpacing::Log10, SampleSpacing::Ln, SampleSpacing::Gauss}) {
        if (SpacingButton(form, spacing)->isChecked())
            return spacing;
    }
    return std::nullopt;
}

} // namespace

OneParameterDlg::OneParameterDlg(QWidget* parent, QString name)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);
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
    // A field reports a finished edit when its window closes, but this is not an edit.
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

    const std::optional<int> spacing = CheckedSpacing(m_ui);
    const SampleRange range = {
        m_ui.lineEdit_Min->text().toDouble(), m_ui.lineEdit_Max->text().toDouble(),
        m_ui.lineEdit_Deta->text().toDouble(), spacing.value_or(m_nSampleType)};
    const SampleRange::Fault fault = range.FindFault();
    if (fault != SampleRange::Fault::None && fault != SampleRange::Fault::SpacingNotImplemented) {
        Refuse(tr("Check input data!"));
        return;
    }
    if (!spacing)
        return;
    m_nSampleType = *spacing;
    if (fault == SampleRange::Fault::SpacingNotImplemented) {
        Refuse(tr("Not implement yet"));
        return;
    }

    const std::vector<double> samples = range.Samples();
    QTableWidget& table = *m_ui.tableWidget;
    table.setRowCount(int(samples.size()));
    // The views already know the new size; a signal for each cell would only cost time.
    const QSignalBlocker silence(table.model());
    int row = 0;
    for (const double sample : samples)
        table.setItem(row++, 0, new NumberItem(sample));
}

void OneParameterDlg::Refuse(const QString& text)
{
    // The box takes the focus from the field, which then reports a finished edit again. The host
    // may destroy the dialog while the box is open.
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
    if (QRadioButton* const button = SpacingButton(m_ui, record.nSampleType))
        button->setChecked(true);
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
