#include "sphereParaInputdlg.h"

#include "ElidedTexts.h"

#include <QDoubleValidator>

sphereParaInputdlg::sphereParaInputdlg(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);
    auto* const latitude = new QDoubleValidator(-90.0, 0.0, 2, m_ui.lineEdit_Angle1);
    latitude->setNotation(QDoubleValidator::StandardNotation);
    // With a decimal comma it would accept numbers that later read as 0.
    latitude->setLocale(QLocale::c());
    m_ui.lineEdit_Angle1->setValidator(latitude);

    connect(m_ui.pushButton_OK, SIGNAL(clicked()), this, SLOT(m_Slot_OKPushed()));
}

sphereParaInputdlg::~sphereParaInputdlg() = default;

double sphereParaInputdlg::GetAngle1() const
{
    return m_dAngle1;
}

double sphereParaInputdlg::GetAngle2() const
{
    return m_dAngle2;
}

double sphereParaInputdlg::GetAngle3() const
{
    return m_dAngle3;
}

void sphereParaInputdlg::m_Slot_OKPushed()
{
    m_dAngle1 = m_ui.lineEdit_Angle1->text().toDouble();
    m_dAngle2 = m_ui.lineEdit_Angle2->text().toDouble();
    m_dAngle3 = m_ui.lineEdit_Angle3->text().toDouble();
    accept();
}
