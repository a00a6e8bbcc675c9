#include "StudyExport.h"

#include "MenuActions.h"
#include "MessageLevel.h"
#include "ResultsTable.h"
#include "StudyPlot.h"
#include "StudyResults.h"
#include "StudyTable.h"
#include "WholeFile.h"

#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>

StudyExport::StudyExport(StudyTable& table, StudyResults& results, QWidget* window, QObject* parent)
    : QObject(parent)
    , m_table(table)
    , m_results(results)
    , m_window(window)
    , m_export(NewAction(tr("&Export CSV"), "action_ExportStudy", this, &StudyExport::ExportTable))
    , m_exportPicture(
          NewAction(tr("Export p&icture"), "action_ExportPlot", this, &StudyExport::ExportPicture))
    , m_copyPicture(
          NewAction(tr("&Copy picture"), "action_CopyPlot", this, &StudyExport::CopyPicture))
{
    connect(&m_table, &StudyTable::RowsChanged, this, &StudyExport::UpdateActions);
    connect(&m_results, &StudyResults::CurrentPlotChanged, this, &StudyExport::UpdateActions);
    UpdateActions();
}

StudyExport::~StudyExport() = default;

void StudyExport::UpdateActions()
{
    m_export->setEnabled(!m_table.Rows().empty());
    m_exportPicture->setEnabled(m_results.CurrentPlot() != nullptr);
    m_copyPicture->setEnabled(m_results.CurrentPlot() != nullptr);
}

void StudyExport::ExportTable()
{
    QFileDialog dialog(m_window, tr("Export the runs that are shown"), QString(),
                       tr("Tables (*.csv);;All files (*)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    WriteExport(dialog.selectedFiles().value(0), m_table.ToCsv());
}

void StudyExport::ExportPicture()
{
    QFileDialog dialog(m_window, tr("Export the plot"), QString(),
                       tr("PNG pictures (*.png);;SVG drawings (*.svg)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("png"));
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
        dialog.setDefaultSuffix(filter.contains(QLatin1String("svg")) ? QStringLiteral("svg")
                                                                      : QStringLiteral("png"));
    });
    StudyPlot* const plot = m_results.CurrentPlot();
    if (plot == nullptr || dialog.exec() != QDialog::Accepted)
        return;
    const QString path = dialog.selectedFiles().value(0);
    if (path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive))
        return WriteExport(path, plot->Svg());
    QByteArray bytes;
    QBuffer buffer(&bytes);
    plot->Picture().save(&buffer, "PNG");
    WriteExport(path, bytes);
}

void StudyExport::CopyPicture()
{
    if (StudyPlot* const plot = m_results.CurrentPlot())
        QGuiApplication::clipboard()->setImage(plot->Picture());
}

void StudyExport::WriteExport(const QString& path, const QByteArray& content) const
{
    tarn::WholeFile file(path, ResultsTable::MaximumFileSize);
    if (file.Write(content))
        PostMessageToChannel(InfoLevel, tr("Wrote %1").arg(QDir::toNativeSeparators(path)));
    else
        PostMessageToChannel(ErrorLevel, QStringLiteral("%1: %2").arg(path, file.Error()));
}
