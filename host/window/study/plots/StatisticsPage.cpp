#include "StatisticsPage.h"

#include "ColumnBox.h"
#include "ColumnSummary.h"
#include "CompactTable.h"
#include "Correlation.h"
#include "HostError.h"
#include "NumberTexts.h"
#include "ResponseSurface.h"
#include "ResultColumns.h"
#include "SobolIndices.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <cmath>
#include <optional>

namespace {

// More take so long that the user has to ask for them.
constexpr std::size_t FewRuns = 20000;

void Put(QTableWidget& table, int row, int column, const QString& text)
{
    auto* const item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    item->setTextAlignment(int(Qt::AlignVCenter | (column == 0 ? Qt::AlignLeft : Qt::AlignRight)));
    table.setItem(row, column, item);
}

QString NumberText(double value)
{
    return std::isfinite(value) ? ShortText(value) : QString();
}

} // namespace

StatisticsPage::StatisticsPage(StudyTable& table, StudySelection& selection, QWidget* parent)
    : StudyPlot(table, selection, parent)
    , m_response(AddColumnBox(tr("Statistics of"), "comboBox_Response"))
    , m_content(new QWidget(this))
    , m_surface(new QLabel(m_content))
{
    setObjectName(QStringLiteral("statisticsPage"));
    auto* const calculate = new QPushButton(tr("Calculate"), this);
    calculate->setObjectName(QStringLiteral("pushButton_Calculate"));
    Controls().addWidget(calculate);
    connect(calculate, &QPushButton::clicked, this, &StatisticsPage::Calculate);
    m_surface->setObjectName(QStringLiteral("label_Surface"));
    m_surface->setWordWrap(true);
    auto* const layout = new QVBoxLayout(m_content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_surface);
    m_effects = NewTable("effectsTable", tr("Effects of the parameters"),
                         {tr("Parameter"), tr("Correlation"), tr("Rank correlation"),
                          tr("Share of the variance"), tr("Share with others")});
    m_summary = NewTable("summaryTable", tr("Summary of the columns"),
                         {tr("Column"), tr("Runs"), tr("Without"), tr("Mean"), tr("Deviation"),
                          tr("Least"), tr("Median"), tr("Greatest")});
    SetCanvas(*m_content);
}

StatisticsPage::~StatisticsPage() = default;

QTableWidget* StatisticsPage::NewTable(const char* name, const QString& title,
                                       const QStringList& header)
{
    auto* const table = new QTableWidget(0, int(header.size()), m_content);
    table->setObjectName(QString::fromLatin1(name));
    table->setAccessibleName(title);
    table->setHorizontalHeaderLabels(header);
    MakeCompact(*table);
    m_content->layout()->addWidget(table);
    return table;
}

void StatisticsPage::ShowRows()
{
    m_response.Refresh(Columns(), FirstResult(Columns()));
    if (Rows().size() <= FewRuns)
        return Calculate();
    m_effects->setRowCount(0);
    m_summary->setRowCount(0);
    m_surface->setText(tr("Calculate shows the statistics of these runs."));
}

void StatisticsPage::Calculate()
{
    ShowSummary();
    ShowEffects();
    for (QTableWidget* const table : {m_effects, m_summary})
        table->resizeColumnsToContents();
}

void StatisticsPage::ShowSummary()
{
    const QStringList& names = Columns().Names();
    m_summary->setRowCount(int(names.size()));
    for (int column = 0; column < names.size(); ++column) {
        const ColumnSummary summary = Summarize(Shown(column));
        Put(*m_summary, column, 0, Columns().Title(column));
        Put(*m_summary, column, 1, QString::number(summary.count));
        Put(*m_summary, column, 2, QString::number(summary.missing));
        int cell = 2;
        for (const double number :
             {summary.mean, summary.deviation, summary.least, summary.median, summary.greatest})
            Put(*m_summary, column, ++cell, NumberText(number));
    }
}

void StatisticsPage::ShowEffects()
{
    m_effects->setRowCount(0);
    m_surface->clear();
    if (m_response.Column() < 0)
        return;
    QStringList names;
    ::Columns parameters;
    for (const int column : VaryingInputs()) {
        if (column == m_response.Column())
            continue;
        names << Columns().Names()[column];
        parameters.push_back(Shown(column));
    }
    const Column response = Shown(m_response.Column());
    std::optional<SobolIndices> shares;
    try {
        const ResponseSurface surface = ResponseSurface::Fit(names, parameters, response);
        shares = IndicesOf(surface);
        m_surface->setText(
            tr("A quadratic surface over %1 runs explains %2 of the variance, and %3 of runs that "
               "it has not seen; its error there is %4.")
                .arg(surface.RunCount())
                .arg(ShortText(surface.Determination()), NumberText(surface.Prediction()),
                     NumberText(surface.CrossError())));
    } catch (const HostError& error) {
        m_surface->setText(error.Reason());
    }
    m_effects->setRowCount(int(names.size()));
    for (int row = 0; row < names.size(); ++row) {
        const auto place = std::size_t(row);
        Put(*m_effects, row, 0, names[row]);
        Put(*m_effects, row, 1, NumberText(Correlation(parameters[place], response)));
        Put(*m_effects, row, 2, NumberText(RankCorrelation(parameters[place], response)));
        Put(*m_effects, row, 3, shares ? NumberText(shares->first[place]) : QString());
        Put(*m_effects, row, 4, shares ? NumberText(shares->total[place]) : QString());
    }
}
