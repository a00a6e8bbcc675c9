#include "MaterialEditer.h"

#include "ElidedTexts.h"
#include "KVMaterialData.h"
#include "Notice.h"

#include <QTableWidgetItem>

#include <algorithm>

namespace {

enum Column
{
    PropertyColumn,
    ValueColumn,
    ColumnCount
};

enum Row
{
    ElasticModulusRow,
    PoissonRow,
    DensityRow,
    RowCount
};

} // namespace

MaterialEditer::MaterialEditer(QWidget* parent)
    : QDialog(parent)
{
    m_ui.setupUi(this);
    tarn::ElideTexts(*this);

    m_ui.frame_2->setFrameStyle(int(QFrame::WinPanel) | int(QFrame::Sunken));
    m_ui.frame_2->setLineWidth(2);
    InitTable();
    InitDefaultValues();
    m_ui.lineEditName->setText(QStringLiteral("Material"));

    connect(m_ui.pushButton, SIGNAL(clicked()), this, SLOT(onOkButtonClicked()));
    connect(m_ui.pushButton_2, SIGNAL(clicked()), this, SLOT(onCancelButtonClicked()));
}

MaterialEditer::~MaterialEditer() = default;

void MaterialEditer::InitTable()
{
    constexpr int SectionWidth = 270;
    QTableWidget& table = *m_ui.tableWidget;
    table.setColumnCount(ColumnCount);
    table.setRowCount(RowCount);
    table.setHorizontalHeaderLabels({QStringLiteral("Name"), QStringLiteral("Value")});
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft);
    table.horizontalHeader()->setStretchLastSection(true);
    table.horizontalHeader()->setDefaultSectionSize(SectionWidth);
    table.verticalHeader()->hide();
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setEditTriggers(QAbstractItemView::DoubleClicked);
    table.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void MaterialEditer::InitDefaultValues()
{
    const auto fill = [this](int row, const QString& property, const QString& value) {
        m_ui.tableWidget->setItem(row, PropertyColumn, new QTableWidgetItem(property));
        m_ui.tableWidget->setItem(row, ValueColumn, new QTableWidgetItem(value));
    };
    fill(ElasticModulusRow, QStringLiteral("Elastic Modulus"), QStringLiteral("58000000"));
    fill(PoissonRow, QStringLiteral("Poisson"), QStringLiteral("1"));
    fill(DensityRow, QStringLiteral("Density"), QStringLiteral("0"));
}

void MaterialEditer::SetMaterialData(const QString& name, const QStringList& values)
{
    // In release builds the list does not assert, and reading past its end is undefined.
    if (values.size() < RowCount)
        qFatal("MaterialEditer::SetMaterialData: index out of range");
    m_ui.lineEditName->setText(name);
    for (int row = 0; row < RowCount; ++row)
        m_ui.tableWidget->setItem(row, ValueColumn, new QTableWidgetItem(values[row]));
}

KVMaterialInfo* MaterialEditer::CreateMaterialInfo() const
{
    auto* const material = new KVMaterialInfo;
    material->m_nType = MATERIAL_USER;
    material->m_strName = m_ui.lineEditName->text();
    material->m_strElasticModulus = Value(ElasticModulusRow);
    material->m_strPoisson = Value(PoissonRow);
    material->m_strDensity = Value(DensityRow);
    return material;
}

QString MaterialEditer::Value(int row) const
{
    const QTableWidgetItem* const item = m_ui.tableWidget->item(row, ValueColumn);
    return item != nullptr ? item->text() : QString();
}

void MaterialEditer::onOkButtonClicked()
{
    const QStringList names = KVMaterialData::GetInstance()->GetMaterialNameList();
    const QString typed = m_ui.lineEditName->text();
    m_ui.lineEditName->clear();
    m_ui.lineEditName->setText(typed);
    const QString name = m_ui.lineEditName->text();
    if (std::find(names.rbegin(), names.rend(), name) != names.rend()) {
        tarn::ShowNotice(QStringLiteral("Warning"), QStringLiteral("Material rename!"));
        return;
    }
    accept();
}

void MaterialEditer::onCancelButtonClicked()
{
    reject();
}
