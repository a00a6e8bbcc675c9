#include "torusParaInputDlg.h"

#include "ElidedTexts.h"

torusParaInputDlg::torusParaInputDlg(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.pushButton_OK, SIGNAL(clicked()), this, SLOT(m_OK_Pushed()));
}

torusParaInputDlg::~torusParaInputDlg() = default;

double torusParaInputDlg::GetSweepRadius() const
{
    return m_dSweepRadius;
}

double torusParaInputDlg::GetAngle1() const
{
    return m_dAngle1;
}

double torusParaInputDlg::GetAngle2() const
{
    return m_dAngle2;
}

double torusParaInputDlg::GetAngle3() const
{
    return m_dAngle3;
}

void torusParaInputDlg::DisableAngleUI()
{
    m_ui.lineEdit_Angle1->setEnabled(false);
    m_ui.lineEdit_Angle2->setEnabled(false);
    m_ui.lineEdit_Angle3->setEnabled(false);
}

void torusParaInputDlg::m_OK_Pushed()
{
    m_dSweepRadius = m_ui.lineEdit_RadiusSweep->text().toDouble();
    m_dAngle1 = m_ui.lineEdit_Angle1->text().toDouble();
    m_dAngle2 = m_ui.lineEdit_Angle2->text().toDouble();
    m_dAngle3 = m_ui.lineEdit_Angle3->text().toDouble();
    accept();
}
