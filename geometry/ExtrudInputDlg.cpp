#include "ExtrudInputDlg.h"

#include "CoordinateInput.h"
#include "ElidedTexts.h"
#include "ModalLoop.h"

ExtrudInputDlg::ExtrudInputDlg(QWidget* parent)
    : QDialog(parent)
    , m_direction(1.0, 0.0, 0.0)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.pushButton_OK, SIGNAL(clicked()), this, SLOT(m_Slot_OK_Pushed()));
}

ExtrudInputDlg::~ExtrudInputDlg() = default;

double ExtrudInputDlg::GetHeightValue() const
{
    return m_dHeight;
}

gp_Dir ExtrudInputDlg::GetExtrudeDirection() const
{
    return m_direction;
}

int ExtrudInputDlg::exec()
{
    return tarn::RunModalLoop(*this);
}

void ExtrudInputDlg::m_Slot_OK_Pushed()
{
    m_dHeight = m_ui.lineEdit_Height->text().toDouble();
    // The kernel throws here for a zero vector, so the rest is skipped.
    m_direction =
        gp_Dir(tarn::Coordinates(*m_ui.lineEdit_XDir, *m_ui.lineEdit_YDir, *m_ui.lineEdit_ZDir));
    accept();
}
