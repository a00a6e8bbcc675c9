#include "WedgeInputDlg.h"

#include "ElidedTexts.h"

WedgeInputDlg::WedgeInputDlg(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.pushButton_OK, SIGNAL(clicked()), this, SLOT(m_Slot_OK()));
}

WedgeInputDlg::~WedgeInputDlg() = default;

void WedgeInputDlg::GetWedgeParameter(double& height, double& xMin, double& xMax, double& zMin,
                                      double& zMax) const
{
    height = m_dHeight;
    xMin = m_dXMin;
    xMax = m_dXMax;
    zMin = m_dZMin;
    zMax = m_dZMax;
}

void WedgeInputDlg::m_Slot_OK()
{
    m_dHeight = m_ui.lineEdit_Height->text().toDouble();
    m_dXMin = m_ui.lineEdit_xmin->text().toDouble();
    m_dXMax = m_ui.lineEdit_xmax->text().toDouble();
    m_dZMin = m_ui.lineEdit_zmin->text().toDouble();
    m_dZMax = m_ui.lineEdit_zmax->text().toDouble();
    accept();
}
