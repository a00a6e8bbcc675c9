#include "MoveInput.h"

#include "ElidedTexts.h"

MoveInput::MoveInput(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.pushButton_OK, SIGNAL(clicked()), this, SLOT(m_Slot_OK()));
    connect(m_ui.pushButton_Cancel, SIGNAL(clicked()), this, SLOT(m_Slot_Cancel()));
}

MoveInput::~MoveInput() = default;

void MoveInput::GetMoveData(double& dx, double& dy, double& dz) const
{
    dx = m_ui.lineEdit_Dx->text().toDouble();
    dy = m_ui.lineEdit_Dy->text().toDouble();
    dz = m_ui.lineEdit_Dz->text().toDouble();
}

void MoveInput::m_Slot_OK()
{
    accept();
}

void MoveInput::m_Slot_Cancel() {}
