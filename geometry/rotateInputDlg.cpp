#include "rotateInputDlg.h"

#include "Angles.h"
#include "CoordinateInput.h"
#include "ElidedTexts.h"
#include "ModalLoop.h"

rotateInputDlg::rotateInputDlg(QWidget* parent)
    : QDialog(parent)
    , m_axis(gp_Pnt(0.0, 0.0, 0.0), gp_Dir(0.0, 0.0, 1.0))
    , m_direction(1.0, 0.0, 0.0)
    , m_basePoint(0.0, 0.0, 0.0)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.pushButton_OK, SIGNAL(clicked()), this, SLOT(m_Slot_OK()));
}

rotateInputDlg::~rotateInputDlg() = default;

gp_Pnt rotateInputDlg::GetBasePt() const
{
    return m_basePoint;
}

gp_Dir rotateInputDlg::GetRotateDir() const
{
    return m_direction;
}

gp_Ax1 rotateInputDlg::GetRotateAxis() const
{
    return m_axis;
}

double rotateInputDlg::GetAngle() const
{
    return m_dAngle;
}

int rotateInputDlg::exec()
{
    return tarn::RunModalLoop(*this);
}

void rotateInputDlg::m_Slot_OK()
{
    m_dAngle = m_ui.lineEdit_Degree->text().toDouble() * tarn::Pi / 180;
    const gp_XYZ direction =
        tarn::Coordinates(*m_ui.lineEdit_xDir, *m_ui.lineEdit_yDir, *m_ui.lineEdit_zDir);
    m_basePoint = tarn::Coordinates(*m_ui.lineEdit_xPt, *m_ui.lineEdit_yPt, *m_ui.lineEdit_zPt);
    // The kernel throws here for a zero vector, so the rest is skipped.
    m_direction = gp_Dir(direction);
    m_axis = gp_Ax1(m_basePoint, m_direction);
    accept();
}
