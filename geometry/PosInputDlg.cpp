#include "PosInputDlg.h"

#include "ElidedTexts.h"

PosInputDlg* PosInputDlg::m_Instance = nullptr;

PosInputDlg* PosInputDlg::GetInstance()
{
    if (m_Instance == nullptr)
        m_Instance = new PosInputDlg(nullptr);
    return m_Instance;
}

PosInputDlg::PosInputDlg(QWidget* parent)
    : QWidget(parent)
{
    ui.setupUi(this);
    tarn::ElideTexts(*this);
}

PosInputDlg::~PosInputDlg() = default;
