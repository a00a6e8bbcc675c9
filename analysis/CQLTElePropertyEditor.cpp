#include "CQLTElePropertyEditor.h"

#include "CQLTElemPropDef.h"
#include "ElidedTexts.h"
#include "KVMaterialLibrary.h"
#include "Notice.h"
#include "NumberText.h"

#include <QButtonGroup>
#include <QDebug>
#include <QPointer>

namespace {

enum Page
{
    BarPage,
    BeamPage,
    ShellPage,
    MembranePage,
    SolidPage
};

} // namespace

CQLTElePropertyEditor::CQLTElePropertyEditor(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    connect(m_ui.pshbuton_Material, SIGNAL(clicked()), this, SLOT(on_getMat_brower()));
    connect(m_ui.pubut_Cancel, SIGNAL(clicked()), this, SLOT(on_CancelButton_clicked()));
    connect(m_ui.pushbu_OK, SIGNAL(clicked()), this, SLOT(on_okButton_clicked()));
    connect(m_ui.element_buttonGroup, SIGNAL(buttonClicked(QAbstractButton*)), this,
            SLOT(onButtonClicked(QAbstractButton*)));

    // The types by the words that the form shows in the language of the user.
    m_mapTypePages = {{m_ui.rad_Bar->text(), BarPage},
                      {m_ui.rad_Beam->text(), BeamPage},
                      {m_ui.rad_Shell->text(), ShellPage},
                      {m_ui.radioButton_7->text(), MembranePage},
                      {m_ui.radb_Solid->text(), SolidPage}};
    m_ui.rad_Shell->setChecked(true);
}

CQLTElePropertyEditor::~CQLTElePropertyEditor() = default;

void CQLTElePropertyEditor::SetPropData(CQLTElemPropDef* property)
{
    m_pPropData = property;
    if (property == nullptr)
        return;
    if (property->m_nTypeCode == CQLTElemPropDef::ShellType) {
        m_ui.stackedWidget->setCurrentIndex(ShellPage);
        m_ui.lineEdit_thickness->setText(tarn::NumberText(property->m_dThickness));
    }
    m_ui.lineEdit_PropName->setText(property->m_strName);
    m_ui.lineEdit_mat->setText(property->m_strMaterialName);
}

CQLTElemPropDef* CQLTElePropertyEditor::GetPropData() const
{
    return m_pPropData;
}

QString CQLTElePropertyEditor::selectedPropName() const
{
    return m_strMaterialName;
}

int CQLTElePropertyEditor::ApplyOk()
{
    if (m_pPropData == nullptr)
        m_pPropData = new CQLTElemPropDef;
    if (m_ui.radb_Solid->isChecked())
        m_pPropData->m_nTypeCode = CQLTElemPropDef::SolidType;
    if (m_ui.rad_Shell->isChecked()) {
        m_pPropData->m_nTypeCode = CQLTElemPropDef::ShellType;
        m_pPropData->m_strTypeName = QStringLiteral("Shell");
        m_pPropData->m_dThickness = m_ui.lineEdit_thickness->text().toDouble();
    }
    m_strPropName = m_ui.lineEdit_PropName->text();
    m_strMaterialName = m_ui.lineEdit_mat->text();
    m_pPropData->m_strName = m_strPropName;
    if (m_strPropName.isEmpty()) {
        tarn::ShowNotice(tr("Error"), tr("Property name is empty"));
        return -1;
    }
    m_pPropData->m_strMaterialName = m_strMaterialName;
    return 0;
}

void CQLTElePropertyEditor::on_okButton_clicked()
{
    if (ApplyOk() == 0)
        accept();
}

void CQLTElePropertyEditor::on_CancelButton_clicked()
{
    reject();
}

void CQLTElePropertyEditor::on_getMat_brower()
{
    KVMaterialLibrary library;
    library.Reset();
    // The host may destroy the editor while the library, which has no parent, is open.
    const QPointer<CQLTElePropertyEditor> self = this;
    if (library.exec() != QDialog::Accepted || self == nullptr)
        return;
    m_strMaterialName = library.selectedMaterialName();
    m_ui.lineEdit_mat->setText(m_strMaterialName);
}

void CQLTElePropertyEditor::onButtonClicked(QAbstractButton* button)
{
    qDebug() << QStringLiteral("Clicked Button : %1").arg(button->text());
    const QList<QAbstractButton*> buttons = m_ui.element_buttonGroup->buttons();
    for (const QAbstractButton* const each : buttons) {
        if (!each->isChecked())
            continue;
        const auto page = m_mapTypePages.find(each->text());
        m_ui.stackedWidget->setCurrentIndex(page != m_mapTypePages.end() ? page->second : BarPage);
        m_strTypeName = each->text();
    }
}

void CQLTElePropertyEditor::on_ApplyOk() {}
