#include "KVMaterialLibrary.h"

#include "ChildDialog.h"
#include "ElidedTexts.h"
#include "KVMaterialData.h"
#include "MaterialEditer.h"
#include "Notice.h"
#include "TableSelection.h"

#include <QMessageBox>
#include <QPersistentModelIndex>
#include <QTableWidgetItem>

#include <array>
#include <utility>
#include <vector>

namespace {

enum Column
{
    NameColumn,
    ElasticModulusColumn,
    PoissonColumn,
    DensityColumn,
    ColumnCount
};

const char* const SystemFile = "SysMaterial.xml";
const char* const SystemFileHere = "./SysMaterial.xml";
const char* const UserFile = "./UserMaterial.xml";

// The number of clones made in this process, by all dialogs and of all materials.
int s_nCloneCount = 0;
constexpr int LastCloneCount = 100;

using RowTexts = std::array<QString, ColumnCount>;

RowTexts UserTexts(const KVMaterialInfo& material)
{
    return {material.m_strName, material.m_strElasticModulus, material.m_strPoisson,
            material.m_strDensity};
}

RowTexts SystemTexts(const KVMaterialInfo& material)
{
    return {material.m_strName, material.m_strLibElasticModulus, material.m_strLibPoisson,
            material.m_strLibDensity};
}

void FillRow(QTableWidget& table, int row, const RowTexts& texts)
{
    if (row < 0 || row >= table.rowCount())
        return;
    for (int column = 0; column < ColumnCount; ++column)
        table.setItem(row, column, tarn::NewTextItem(texts[std::size_t(column)]));
}

// Replaces the end of the name with the count. If each clone is cloned again, this gives Steel,
// Steel0, Steel1, ..., Steel10.
QString CloneName(const QString& name, int count)
{
    const QString digits = QString::number(count);
    int position = int(name.size());
    if (count > 10)
        position -= 2;
    else if (count > 0)
        position -= 1;
    if (position < 0)
        return name;
    return QString(name).replace(position, digits.size(), digits);
}

} // namespace

KVMaterialLibrary::KVMaterialLibrary(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    SetLayerTablePropertyConductors();
    if (KVMaterialData::GetInstance()->ReadXML(SystemFile, MATERIAL_SYSTEM) == 0)
        ShowMaterial();
    m_ui.frame->setFrameStyle(int(QFrame::WinPanel) | int(QFrame::Sunken));
    m_ui.frame->setLineWidth(2);

    connect(m_ui.pushButton_7, SIGNAL(clicked()), this, SLOT(SearchValue()));
    connect(m_ui.textEdit, SIGNAL(textChanged()), this, SLOT(TextStrChanged()));
    connect(m_ui.pushButton, SIGNAL(clicked()), this, SLOT(EditMaterial()));
    connect(m_ui.pushButton_2, SIGNAL(clicked()), this, SLOT(InsertMaterial()));
    connect(m_ui.pushButton_3, SIGNAL(clicked()), this, SLOT(ClonMaterial()));
    connect(m_ui.pushButton_4, SIGNAL(clicked()), this, SLOT(RemoveMaterial()));
    connect(m_ui.pushButton_6, SIGNAL(clicked()), this, SLOT(accept()));
    connect(m_ui.pushButton_8, SIGNAL(clicked()), this, SLOT(reject()));
    connect(m_ui.checkBox_2, SIGNAL(clicked()), this, SLOT(ShowMaterial()));
    connect(m_ui.checkBox_3, SIGNAL(clicked()), this, SLOT(ShowMaterial()));
    connect(m_ui.tableWidget, SIGNAL(itemDoubleClicked(QTableWidgetItem*)), this,
            SLOT(RecTableItemData()));
    connect(m_ui.tableWidget, SIGNAL(itemSelectionChanged()), this, SLOT(setCurrentMaterialName()));
}

KVMaterialLibrary::~KVMaterialLibrary() = default;

void KVMaterialLibrary::Reset()
{
    KVMaterialData& store = *KVMaterialData::GetInstance();
    store.ClearInfo();
    const bool userRead = store.ReadXML(UserFile, MATERIAL_USER) == 0;
    const bool systemRead = store.ReadXML(SystemFileHere, MATERIAL_SYSTEM) == 0;
    if (userRead || systemRead)
        ShowMaterial();
    // The position among all names of the store, even if the table shows fewer.
    tarn::SelectRow(*m_ui.tableWidget, ItemRow(GetComData()));
}

void KVMaterialLibrary::WriteData()
{
    KVMaterialData::GetInstance()->WriteXML(UserFile);
}

QString KVMaterialLibrary::selectedMaterialName() const
{
    return CellText(m_ui.tableWidget->currentRow(), NameColumn);
}

void KVMaterialLibrary::SetComToItemData(QString name)
{
    m_strComData = std::move(name);
}

QString KVMaterialLibrary::GetComData() const
{
    return m_strComData;
}

void KVMaterialLibrary::SearchValue()
{
    GetSearchValue();
}

void KVMaterialLibrary::TextStrChanged()
{
    GetSearchValue();
}

void KVMaterialLibrary::EditMaterial()
{
    if (HasCurrentRow())
        RecTableItemData();
}

void KVMaterialLibrary::InsertMaterial()
{
    tarn::ChildDialog<MaterialEditer> editor(this);
    if (editor.RunToAccept())
        AppendNewMaterial(*editor.Get());
}

void KVMaterialLibrary::ClonMaterial()
{
    if (!HasCurrentRow())
        return;
    if (s_nCloneCount > LastCloneCount) {
        tarn::ShowNotice(tr("Warning"), tr("Too many add"));
        return;
    }

    const int row = m_ui.tableWidget->currentRow();
    tarn::ChildDialog<MaterialEditer> editor(this);
    editor->SetMaterialData(CloneName(CellText(row, NameColumn), s_nCloneCount), ValuesOfRow(row));
    if (!editor.RunToAccept())
        return;
    AppendNewMaterial(*editor.Get());
    ++s_nCloneCount;
}

void KVMaterialLibrary::RemoveMaterial()
{
    if (!HasCurrentRow())
        return;
    QTableWidget& table = *m_ui.tableWidget;
    const QString name = CellText(table.currentRow(), NameColumn);
    if (name.isEmpty()) {
        tarn::ShowNotice(QStringLiteral("Warning"), QStringLiteral("Remove the project is empty"));
        return;
    }

    // The host may change the table while the box is open. The box only informs: its answer is
    // ignored.
    const QPersistentModelIndex cell = table.model()->index(table.currentRow(), NameColumn);
    QMessageBox::information(nullptr, tr("Warning"), tr("Confirm to delete current material?"),
                             QMessageBox::Yes | QMessageBox::Abort);
    KVMaterialData::GetInstance()->RemoveItem(name);
    if (!cell.isValid())
        return;
    const int row = cell.row();
    table.removeRow(row);
    tarn::SelectRow(table, row);
}

void KVMaterialLibrary::RecTableItemData()
{
    QTableWidget& table = *m_ui.tableWidget;
    const int row = table.currentRow();
    const QPersistentModelIndex cell = table.model()->index(row, NameColumn);
    tarn::ChildDialog<MaterialEditer> editor(this);
    editor->SetMaterialData(CellText(row, NameColumn), ValuesOfRow(row));
    if (!editor.RunToAccept())
        return;

    KVMaterialInfo* const material = editor->CreateMaterialInfo();
    const RowTexts texts = UserTexts(*material);
    KVMaterialData::GetInstance()->AddMaterialInfo(material);
    if (cell.isValid())
        FillRow(table, cell.row(), texts);
}

void KVMaterialLibrary::ShowProject(bool) {}

void KVMaterialLibrary::ShowALL(bool) {}

void KVMaterialLibrary::ShowMaterial()
{
    const bool project = m_ui.checkBox_2->isChecked();
    const bool libraries = m_ui.checkBox_3->isChecked();
    const KVMaterialData& store = *KVMaterialData::GetInstance();
    QTableWidget& table = *m_ui.tableWidget;
    table.clearContents();
    table.setRowCount(0);

    std::vector<RowTexts> shown;
    const QStringList names = store.GetMaterialNameList();
    for (const QString& name : names) {
        const KVMaterialInfo* const material = store.GetMaterialInfo(name);
        if (material == nullptr)
            break;
        if (material->m_nType == MATERIAL_USER && project)
            shown.push_back(UserTexts(*material));
        else if (material->m_nType == MATERIAL_SYSTEM && libraries)
            shown.push_back(SystemTexts(*material));
    }

    // All rows at once: a table that grows row by row is laid out again for each row.
    table.setRowCount(int(shown.size()));
    for (int row = 0; row < table.rowCount(); ++row)
        FillRow(table, row, shown[std::size_t(row)]);
}

void KVMaterialLibrary::accept()
{
    WriteData();
    QDialog::accept();
}

void KVMaterialLibrary::reject()
{
    QDialog::reject();
}

void KVMaterialLibrary::setCurrentMaterialName()
{
    KVMaterialData::GetInstance()->setCurrentMaterialName(selectedMaterialName());
}

void KVMaterialLibrary::GetSearchValue()
{
    const QString key = m_ui.textEdit->toPlainText().toUpper();
    for (int row = 0; row < m_ui.tableWidget->rowCount(); ++row) {
        if (CellText(row, NameColumn).toUpper().left(key.size()) == key) {
            tarn::SelectRow(*m_ui.tableWidget, row);
            return;
        }
    }
}

// An older way to fill the table: it shows the first triple of every material.
void KVMaterialLibrary::SetDataToItem()
{
    const KVMaterialData& store = *KVMaterialData::GetInstance();
    m_ui.tableWidget->setRowCount(store.MapDataRow());
    int row = 0;
    const QStringList names = store.GetMaterialNameList();
    for (const QString& name : names) {
        if (const KVMaterialInfo* const material = store.GetMaterialInfo(name))
            FillRow(*m_ui.tableWidget, row, UserTexts(*material));
        ++row;
    }
}

void KVMaterialLibrary::SetLayerTablePropertyConductors()
{
    constexpr int SectionWidth = 150;
    QTableWidget& table = *m_ui.tableWidget;
    table.setColumnCount(ColumnCount);
    table.setHorizontalHeaderLabels(
        {tr("Name"), tr("Elastic Modulus"), tr("Poisson"), tr("Density")});
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.horizontalHeader()->setDefaultSectionSize(SectionWidth);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    table.verticalHeader()->hide();
}

void KVMaterialLibrary::UserName()
{
    if (KVMaterialData::GetInstance()->ReadXML(SystemFile, MATERIAL_SYSTEM) == 0)
        ShowMaterial();
}

int KVMaterialLibrary::ItemRow(QString name) const
{
    return int(KVMaterialData::GetInstance()->GetMaterialNameList().indexOf(name));
}

// Shows a notice if there is no current row.
bool KVMaterialLibrary::HasCurrentRow()
{
    if (m_ui.tableWidget->currentRow() >= 0)
        return true;
    tarn::ShowNotice(tr("Warning"), tr("No material is selected"));
    return false;
}

QString KVMaterialLibrary::CellText(int row, int column) const
{
    const QTableWidgetItem* const item = m_ui.tableWidget->item(row, column);
    return item != nullptr ? item->text() : QString();
}

QStringList KVMaterialLibrary::ValuesOfRow(int row) const
{
    QStringList values;
    for (int column = NameColumn + 1; column < m_ui.tableWidget->columnCount(); ++column)
        values << CellText(row, column);
    return values;
}

void KVMaterialLibrary::AppendNewMaterial(const MaterialEditer& editor)
{
    KVMaterialData& store = *KVMaterialData::GetInstance();
    QTableWidget& table = *m_ui.tableWidget;
    const int row = store.MapDataRow();
    KVMaterialInfo* const material = editor.CreateMaterialInfo();
    const RowTexts texts = UserTexts(*material);
    store.AddMaterialInfo(material);
    // A filtered table is shorter than the store and rejects the row.
    table.insertRow(row);
    FillRow(table, row, texts);
    tarn::SelectRow(table, row);
}
