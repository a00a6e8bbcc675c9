#include "frequencySetting.h"

#include "ElidedTexts.h"
#include "FrequencyPref.h"
#include "Notice.h"
#include "NumberText.h"

namespace {

constexpr int LeastNumFreq = 2;

} // namespace

frequencySetting::frequencySetting(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.pushButton_OK, SIGNAL(clicked()), this, SLOT(m_Slot_OK()));

    const FrequencyPref* const preferences = FrequencyPref::GetInstance();
    m_dMinFreq = preferences->m_MinFreq;
    m_dMaxFreq = preferences->m_MaxFreq;
    m_nNumFreq = preferences->m_NumFreq;
    m_ui.lineEdit_MaxFreq->setText(tarn::NumberText(m_dMaxFreq));
    m_ui.lineEdit_MinFreq->setText(tarn::NumberText(m_dMinFreq));
    m_ui.lineEdit_NumFreq->setText(QString::number(m_nNumFreq));
}

frequencySetting::~frequencySetting() = default;

void frequencySetting::GetFreqParameter(double& min, double& max, int& count) const
{
    min = m_dMinFreq;
    max = m_dMaxFreq;
    count = m_nNumFreq;
}

void frequencySetting::m_Slot_OK()
{
    m_dMaxFreq = m_ui.lineEdit_MaxFreq->text().toDouble();
    m_dMinFreq = m_ui.lineEdit_MinFreq->text().toDouble();
    m_nNumFreq = m_ui.lineEdit_NumFreq->text().toInt();
    if (m_dMinFreq > 0.0 && m_dMaxFreq > 0.0 && m_nNumFreq >= LeastNumFreq) {
        FrequencyPref* const preferences = FrequencyPref::GetInstance();
        preferences->m_MinFreq = m_dMinFreq;
        preferences->m_MaxFreq = m_dMaxFreq;
        preferences->m_NumFreq = m_nNumFreq;
        accept();
    } else {
        tarn::ShowNotice(tr("Warning"), tr("Invalid Parameter"));
    }
}
