#include "ResultsDock.h"

#include "ui_ResultsPanel.h"

#include "CompactTable.h"
#include "MessageLevel.h"
#include "ResultDisplay.h"
#include "ResultTable.h"
#include "WholeFile.h"

#include <QDir>
#include <QFileDialog>
#include <QHeaderView>

namespace {

constexpr int MaximumFileSize = 16 * 1024 * 1024;

QString TitleOf(const SolveReport& report)
{
    switch (report.kind) {
    case SolveKind::Vibration:
        return report.modes.empty()
                   ? ResultsDock::tr("Natural frequencies: none in the range of frequencies")
                   : ResultsDock::tr("Natural frequencies");
    case SolveKind::Static:
        return ResultsDock::tr("Displacements and stresses under the loads");
    default:
        return ResultsDock::tr("Mesh");
    }
}

} // namespace

ResultsDock::ResultsDock(PartView* view, QWidget* parent)
    : QDockWidget(tr("Results"), parent)
    , m_ui(std::make_unique<Ui::ResultsPanel>())
{
    setObjectName(QStringLiteral("resultsDock"));
    auto* const content = new QWidget(this);
    m_ui->setupUi(content);
    setWidget(content);
    m_display = new ResultDisplay(view, content);
    m_ui->layout->insertWidget(m_ui->layout->indexOf(m_ui->meshLabel), m_display);
    MakeCompact(*m_ui->table);
    connect(m_ui->table, &QTableWidget::itemSelectionChanged, this, &ResultsDock::ChooseMode);
    connect(m_ui->exportButton, &QPushButton::clicked, this, &ResultsDock::ExportTable);
    Clear();
}

ResultsDock::~ResultsDock() = default;

void ResultsDock::Clear()
{
    m_report.reset();
    m_display->SetReport({});
    m_ui->titleLabel->setText(tr("No results yet"));
    m_ui->meshLabel->clear();
    m_ui->oldLabel->hide();
    m_ui->table->setRowCount(0);
    m_ui->table->setColumnCount(0);
    m_ui->exportButton->setEnabled(false);
}

void ResultsDock::ShowReport(const std::shared_ptr<const SolveReport>& report)
{
    Clear();
    m_report = report;
    m_ui->titleLabel->setText(TitleOf(*report));
    m_ui->meshLabel->setText(MeshText(*report));
    m_ui->exportButton->setEnabled(true);
    const ResultTable table(*report);
    m_ui->table->setColumnCount(table.headings.size());
    m_ui->table->setHorizontalHeaderLabels(table.headings);
    for (int column = 0; column < table.hints.size(); ++column)
        m_ui->table->horizontalHeaderItem(column)->setToolTip(table.hints[column]);
    m_ui->table->setRowCount(int(table.rows.size()));
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        const QStringList& cells = table.rows[row];
        for (int column = 0; column < cells.size(); ++column)
            m_ui->table->setItem(int(row), column, new QTableWidgetItem(cells[column]));
    }
    m_ui->table->resizeColumnsToContents();
    m_display->SetReport(report);
    if (report->kind == SolveKind::Vibration)
        m_ui->table->selectRow(0);
    show();
    raise();
}

void ResultsDock::SetOld(bool isOld)
{
    if (m_report == nullptr || m_ui->oldLabel->isHidden() != isOld)
        return;
    m_ui->oldLabel->setVisible(isOld);
    // Whoever changes the part wants to see it.
    if (isOld)
        m_display->ShowPart();
}

void ResultsDock::ChooseMode()
{
    if (m_report != nullptr && m_report->kind == SolveKind::Vibration)
        m_display->SetMode(m_ui->table->currentRow());
}

void ResultsDock::ExportTable()
{
    QFileDialog dialog(this, tr("Export table"), QDir::currentPath(),
                       tr("Tables (*.csv);;All files (*)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    if (dialog.exec() != QDialog::Accepted || m_report == nullptr)
        return;
    const QString path = dialog.selectedFiles().value(0);
    tarn::WholeFile file(path, MaximumFileSize);
    if (file.Write(ResultTable(*m_report).csv.toUtf8()))
        PostMessageToChannel(InfoLevel, tr("Exported to %1").arg(QDir::toNativeSeparators(path)));
    else
        PostMessageToChannel(ErrorLevel, QStringLiteral("%1: %2").arg(path, file.Error()));
}
