#include "ProjectProperties.h"

#include "ui_ProjectProperties.h"

#include "CompactTable.h"
#include "JsonSection.h"
#include "KVMaterialData.h"
#include "NumberTexts.h"

#include <QPushButton>

#include <cmath>

namespace {

enum Column
{
    ExpressionColumn,
    MessageColumn
};

} // namespace

ProjectProperties::ProjectProperties(const Project& project, QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::ProjectProperties>())
    , m_project(project)
{
    m_ui->setupUi(this);
    MakeCompact(*m_ui->tableWidget_Conditions);
    m_ui->tableWidget_Conditions->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_ui->label_Problem->hide();

    m_ui->lineEdit_Title->setText(project.Title());
    m_ui->lineEdit_Density->setText(ExactText(project.Density()));
    m_ui->comboBox_Material->addItem(tr("none"), QString());
    QStringList materials = KVMaterialData::GetInstance()->GetMaterialNameList();
    if (!project.Material().isEmpty() && !materials.contains(project.Material()))
        materials.prepend(project.Material());
    for (const QString& material : qAsConst(materials))
        m_ui->comboBox_Material->addItem(material, material);
    m_ui->comboBox_Material->setCurrentIndex(m_ui->comboBox_Material->findData(project.Material()));
    for (const Condition& condition : project.Conditions())
        AddRow(condition);

    connect(m_ui->pushButton_AddCondition, &QPushButton::clicked, this, [this] {
        AddRow({});
        m_ui->tableWidget_Conditions->setCurrentCell(m_ui->tableWidget_Conditions->rowCount() - 1,
                                                     ExpressionColumn);
        m_ui->tableWidget_Conditions->editItem(m_ui->tableWidget_Conditions->currentItem());
    });
    connect(m_ui->pushButton_RemoveCondition, &QPushButton::clicked, this,
            &ProjectProperties::RemoveRow);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &ProjectProperties::accept);
}

ProjectProperties::~ProjectProperties() = default;

void ProjectProperties::AddRow(const Condition& condition)
{
    QTableWidget& table = *m_ui->tableWidget_Conditions;
    const int row = table.rowCount();
    table.insertRow(row);
    table.setItem(row, ExpressionColumn, new QTableWidgetItem(condition.expression));
    table.setItem(row, MessageColumn, new QTableWidgetItem(condition.message));
}

void ProjectProperties::RemoveRow()
{
    m_ui->tableWidget_Conditions->removeRow(m_ui->tableWidget_Conditions->currentRow());
}

std::vector<Condition> ProjectProperties::Conditions() const
{
    const QTableWidget& table = *m_ui->tableWidget_Conditions;
    std::vector<Condition> conditions;
    for (int row = 0; row < table.rowCount(); ++row) {
        const Condition condition = {table.item(row, ExpressionColumn)->text().trimmed(),
                                     table.item(row, MessageColumn)->text().trimmed()};
        if (!condition.expression.isEmpty() || !condition.message.isEmpty())
            conditions.push_back(condition);
    }
    return conditions;
}

void ProjectProperties::accept()
{
    bool isNumber = false;
    const double density = m_ui->lineEdit_Density->text().trimmed().toDouble(&isNumber);
    std::vector<Condition> conditions = Conditions();
    QString problem;
    if (!isNumber || !std::isfinite(density) || density <= 0.0)
        problem = tr("The density %1 is not a number above 0.")
                      .arg(Quoted(m_ui->lineEdit_Density->text()));
    for (Condition& condition : conditions) {
        if (condition.expression.isEmpty())
            problem = tr("The condition with the message %1 has no expression.")
                          .arg(Quoted(condition.message));
        if (condition.message.isEmpty())
            condition.message = tr("The condition %1 does not hold.").arg(condition.expression);
    }
    m_ui->label_Problem->setText(problem);
    m_ui->label_Problem->setVisible(!problem.isEmpty());
    if (!problem.isEmpty())
        return;
    m_project.SetTitle(m_ui->lineEdit_Title->text().trimmed());
    m_project.SetDensity(density);
    m_project.SetMaterial(m_ui->comboBox_Material->currentData().toString());
    m_project.SetConditions(std::move(conditions));
    QDialog::accept();
}
