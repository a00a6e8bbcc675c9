#include "ArcArrayDlg.h"

#include "CoordinateInput.h"
#include "ElidedTexts.h"
#include "ModalLoop.h"

#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

ArcArrayDlg::ArcArrayDlg(QDialog* parent)
    : QDialog(parent)
{
    m_data.m_axis = gp_Ax1(gp_Pnt(0.0, 0.0, 0.0), gp_Dir(0.0, 0.0, 1.0));
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.pushButton_Cancel, SIGNAL(clicked()), this, SLOT(close()));
    connect(m_ui.pushButtonOK, SIGNAL(clicked()), this, SLOT(m_slot_OkPushed()));
}

ArcArrayDlg::~ArcArrayDlg() = default;

sMatrixArcdata ArcArrayDlg::GetArrayParameter() const
{
    return m_data;
}

int ArcArrayDlg::exec()
{
    return tarn::RunModalLoop(*this);
}

void ArcArrayDlg::m_slot_OkPushed()
{
    m_data.m_dAngle = m_ui.lineEdit_Angle->text().toDouble();
    m_data.m_nNumber = m_ui.lineEdit_Num->text().toInt();
    const gp_Pnt point(
        tarn::Coordinates(*m_ui.lineEdit_AxisPtx, *m_ui.lineEdit_AxisPty, *m_ui.lineEdit_AxisPtz));
    // The kernel throws here for a zero vector, so the rest is skipped.
    const gp_Dir direction(
        tarn::Coordinates(*m_ui.lineEdit_Dirx, *m_ui.lineEdit_Diry, *m_ui.lineEdit_Dirz));
    m_data.m_axis = gp_Ax1(point, direction);
    accept();
}
