#include "PolygonNumInputDlg.h"

#include "ElidedTexts.h"

PolygonNumInputDlg::PolygonNumInputDlg(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.pushButton_OK, SIGNAL(clicked()), this, SLOT(m_Slot_OK()));
}

PolygonNumInputDlg::~PolygonNumInputDlg() = default;

int PolygonNumInputDlg::GetEdgeNumber() const
{
    return m_nEdgeNumber;
}

void PolygonNumInputDlg::m_Slot_OK()
{
    m_nEdgeNumber = m_ui.lineEdit_EdgeNumber->text().toInt();
    accept();
}
