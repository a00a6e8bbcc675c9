#include "ELementPropGUI.h"

#include "CQLTElePropertyEditor.h"
#include "CQLTElemPropDef.h"
#include "ChildDialog.h"
#include "ElidedTexts.h"
#include "KVPropertyData.h"
#include "Notice.h"
#include "TableSelection.h"

#include <QMessageBox>
#include <QPersistentModelIndex>
#include <QTableWidgetItem>

namespace {

enum Column
{
    NameColumn,
    TypeColumn,
    MaterialColumn
};

const char* const PropertyFile = "./ElementProperty.xml";

} // namespace

ELementPropGUI::ELementPropGUI(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);
    LoadBuildinProperty();
    ShowProperty();

    connect(m_ui.pushButton_add, SIGNAL(clicked()), this, SLOT(InsertProperty()));
    connect(m_ui.pushButton_Delete, SIGNAL(clicked()), this, SLOT(DeleteProperty()));
    connect(m_ui.pushButton__edit, SIGNAL(clicked()), this, SLOT(EditProperty()));
    connect(m_ui.pushButton_OK, SIGNAL(clicked()), this, SLOT(on_OK_Button()));
    connect(m_ui.pushButton_Cancel, SIGNAL(clicked()), this, SLOT(on_Cancel_Button()));
}

ELementPropGUI::~ELementPropGUI() = default;

QString ELementPropGUI::GetSelectedPropName() const
{
    const QTableWidgetItem* const item =
        m_ui.tabwidget_Prop->item(m_ui.tabwidget_Prop->currentRow(), NameColumn);
    return item != nullptr ? item->text() : QString();
}

CQLTElemPropDef* ELementPropGUI::GetSelectedProp()
{
    return m_mapAddedProps[GetSelectedPropName()];
}

void ELementPropGUI::GetPropData(std::map<QString, CQLTElemPropDef*>& properties) const
{
    properties = m_mapAddedProps;
}

void ELementPropGUI::LoadBuildinProperty()
{
    KVPropertyData::GetInstance()->ReadXML(PropertyFile);
}

void ELementPropGUI::ShowProperty()
{
    const auto properties = KVPropertyData::GetInstance()->GetProptyDataMap();
    m_nRow = 0;
    m_ui.tabwidget_Prop->setRowCount(0);
    // All rows at once: a table that grows row by row is laid out again for each row.
    m_ui.tabwidget_Prop->setRowCount(int(properties.size()));
    for (const auto& entry : properties)
        FillRow(m_nRow++, *entry.second);
    if (m_nRow > 0)
        tarn::SelectRow(*m_ui.tabwidget_Prop, m_nRow - 1);
}

void ELementPropGUI::InsertProperty()
{
    tarn::ChildDialog<CQLTElePropertyEditor> editor(this);
    if (!editor.RunToAccept()) {
        // An earlier, refused OK has allocated a record that nobody else owns.
        if (editor.Get() != nullptr)
            delete editor->GetPropData();
        return;
    }
    CQLTElemPropDef* const property = editor->GetPropData();
    m_mapAddedProps[property->m_strName] = property;
    m_ui.tabwidget_Prop->insertRow(m_nRow);
    FillRow(m_nRow++, *property);
    tarn::SelectRow(*m_ui.tabwidget_Prop, m_nRow - 1);
    m_vecAddedNames.push_back(property->m_strName);
    KVPropertyData::GetInstance()->AddPropInfo(property);
}

void ELementPropGUI::EditProperty()
{
    if (m_ui.tabwidget_Prop->currentRow() < 0) {
        tarn::ShowNotice(tr("Warning"), tr("No Element Property is selected"));
        return;
    }
    QString name = GetSelectedPropName();
    CQLTElemPropDef* const property = KVPropertyData::GetInstance()->GetPropertyInfo(name);
    if (property == nullptr) {
        tarn::ShowNotice(tr("Warning"), tr("Current element property is null"));
        return;
    }

    tarn::ChildDialog<CQLTElePropertyEditor> editor(this);
    editor->SetPropData(property);
    if (!editor.RunToAccept())
        return;
    KVPropertyData::GetInstance()->AddPropInfo(editor->GetPropData());
    // This also clears the header labels: after an edit the columns are numbered.
    m_ui.tabwidget_Prop->clear();
    ShowProperty();
}

void ELementPropGUI::DeleteProperty()
{
    QTableWidget& table = *m_ui.tabwidget_Prop;
    if (table.currentRow() < 0)
        return;
    const QString name = GetSelectedPropName();
    // The host may change the table while the box is open.
    const QPersistentModelIndex cell = table.model()->index(table.currentRow(), NameColumn);
    const auto answer = QMessageBox::information(
        nullptr, tr("Warning"),
        tr("This operation can't be undo, Confirm to delete current property?"),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton);
    if (answer != QMessageBox::Yes)
        return;
    if (name.isEmpty()) {
        tarn::ShowNotice(tr("Warning"), tr("Item is empty"));
        return;
    }
    if (!cell.isValid())
        return;
    const int row = cell.row();
    table.removeRow(row);
    // The table itself would select the next row.
    if (row > 0)
        tarn::SelectRow(table, row - 1);
    else
        table.selectionModel()->clear();
}

void ELementPropGUI::on_OK_Button()
{
    KVPropertyData::GetInstance()->WriteXML(PropertyFile);
    hide();
}

void ELementPropGUI::on_Cancel_Button()
{
    hide();
}

void ELementPropGUI::FillRow(int row, const CQLTElemPropDef& property)
{
    QTableWidget& table = *m_ui.tabwidget_Prop;
    // After a delete, m_nRow is past the end of the table.
    if (row >= table.rowCount())
        return;
    table.setItem(row, NameColumn, tarn::NewTextItem(property.m_strName));
    table.setItem(row, TypeColumn, tarn::NewTextItem(property.m_strTypeName));
    table.setItem(row, MaterialColumn, tarn::NewTextItem(property.m_strMaterialName));
}
