#include "CQLTConstrainEditor.h"

#include "AttributeCommonMgr.h"
#include "ElidedTexts.h"
#include "LocalText.h"
#include "Notice.h"

#include <utility>

CQLTConstrainEditor::CQLTConstrainEditor(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.okButton, SIGNAL(clicked()), this, SLOT(m_OK_ButtonPushed()));
}

CQLTConstrainEditor::~CQLTConstrainEditor() = default;

void CQLTConstrainEditor::InitData(sConstrainData record)
{
    m_data = std::move(record);
}

sConstrainData CQLTConstrainEditor::GetConstrainData() const
{
    return m_data;
}

void CQLTConstrainEditor::m_OK_ButtonPushed()
{
    std::string name = tarn::ToLocal8Bit(m_ui.lied_Name->text());
    if (AttributeCommonMgr::GetInstance()->FindName(name)) {
        tarn::ShowNotice(tr("Warning"), tr("CQLTConstrainEditor: Duplicated Attribute Name"));
        return;
    }

    m_data.m_strName = name;
    m_data.m_bXD = m_ui.chb_XD->isChecked();
    m_data.m_bYD = m_ui.chb_YD->isChecked();
    m_data.m_bZD = m_ui.chb_ZD->isChecked();
    m_data.m_bXR = m_ui.chb_XR->isChecked();
    m_data.m_bYR = m_ui.chb_YR->isChecked();
    m_data.m_bZR = m_ui.chb_ZR->isChecked();
    accept();
}
