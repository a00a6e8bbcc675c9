#include "TruncatedConeInputDlg.h"

#include "ElidedTexts.h"

TruncatedConeInputDlg::TruncatedConeInputDlg(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.pushButton_OK, SIGNAL(clicked()), this, SLOT(m_Slot_OK()));
}

TruncatedConeInputDlg::~TruncatedConeInputDlg() = default;

double TruncatedConeInputDlg::GetHeightValue() const
{
    return m_dHeight;
}

double TruncatedConeInputDlg::GetTopRadius() const
{
    return m_dTopRadius;
}

double TruncatedConeInputDlg::GetAngle() const
{
    return m_dAngle;
}

void TruncatedConeInputDlg::DisableAngleInput()
{
    m_ui.lineEdit_Angle->setEnabled(false);
}

void TruncatedConeInputDlg::CollectData()
{
    m_dHeight = m_ui.lineEdit_Height->text().toDouble();
    m_dTopRadius = m_ui.lineEdit_TopRadius->text().toDouble();
    m_dAngle = m_ui.lineEdit_Angle->text().toDouble();
}

void TruncatedConeInputDlg::m_Slot_OK()
{
    CollectData();
    accept();
}
