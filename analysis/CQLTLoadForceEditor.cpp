#include "CQLTLoadForceEditor.h"

#include "AttributeCommonMgr.h"
#include "ElidedTexts.h"
#include "LocalText.h"
#include "Notice.h"
#include "NumberText.h"

#include <utility>

CQLTLoadForceEditor::CQLTLoadForceEditor(QWidget* parent)
    : QDialog(parent)
{
    // The form connects okButton by the name of on_okButton_clicked().
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);
}

CQLTLoadForceEditor::~CQLTLoadForceEditor() = default;

void CQLTLoadForceEditor::InitData(sLoadForceData record)
{
    m_data = std::move(record);
    m_ui.lied_Name->setText(tarn::FromLocal8Bit(m_data.m_strName));

    // The two buttons exclude each other: checking one unchecks the other.
    if (m_data.m_nKind == sLoadForceData::NormalToFaceKind)
        m_ui.rab_Normal2Face->setChecked(true);
    else
        m_ui.rab_Component->setChecked(true);
    if (m_data.m_nKind == sLoadForceData::ComponentKind) {
        m_ui.lied_FX->setText(tarn::NumberText(m_data.m_dFX));
        m_ui.lied_FY->setText(tarn::NumberText(m_data.m_dFY));
        m_ui.lied_FZ->setText(tarn::NumberText(m_data.m_dFZ));
    }
}

sLoadForceData CQLTLoadForceEditor::GetLoadForceData() const
{
    return m_data;
}

void CQLTLoadForceEditor::on_okButton_clicked()
{
    std::string name = tarn::ToLocal8Bit(m_ui.lied_Name->text());
    if (AttributeCommonMgr::GetInstance()->FindName(name)) {
        tarn::ShowNotice(tr("Warning"), tr("Duplicated Attribute Name"));
        return;
    }

    m_data.m_strName = name;
    if (m_ui.rab_Component->isChecked()) {
        m_data.m_nKind = sLoadForceData::ComponentKind;
        m_data.m_dFX = m_ui.lied_FX->text().toDouble();
        m_data.m_dFY = m_ui.lied_FY->text().toDouble();
        m_data.m_dFZ = m_ui.lied_FZ->text().toDouble();
    } else {
        m_data.m_nKind = sLoadForceData::NormalToFaceKind;
    }
    accept();
}
