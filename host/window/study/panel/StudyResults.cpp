#include "StudyResults.h"

#include "ui_StudyResults.h"

#include "ConvergencePlot.h"
#include "MainEffectsPlot.h"
#include "OptimumPage.h"
#include "ParallelPlot.h"
#include "ScatterMatrix.h"
#include "ScatterPlot.h"
#include "StatisticsPage.h"
#include "StudySelection.h"
#include "StudyTable.h"
#include "StudyTableView.h"

#include <QMenu>

StudyResults::StudyResults(StudyTable& table, StudySelection& selection, QWidget* parent)
    : QDockWidget(tr("Study results"), parent)
    , m_table(table)
    , m_selection(selection)
    , m_form(std::make_unique<Ui::StudyResults>())
    , m_view(new StudyTableView(table, selection, this))
    , m_optimum(new OptimumPage(table, selection, this))
{
    setObjectName(QStringLiteral("studyResultsDock"));
    auto* const content = new QWidget(this);
    m_form->setupUi(content);
    setWidget(content);
    m_form->label_Problem->hide();
    m_form->tabWidget->addTab(m_view, tr("Table"));
    AddPlots();
    connect(m_form->tabWidget, &QTabWidget::currentChanged, this,
            &StudyResults::CurrentPlotChanged);
    connect(m_form->lineEdit_Filter, &QLineEdit::editingFinished, this, &StudyResults::ApplyFilter);
    connect(m_form->lineEdit_Filter, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.isEmpty())
            ApplyFilter();
    });
    connect(&m_table, &StudyTable::RowsChanged, this, &StudyResults::ShowCount);
    connect(&m_table, &QAbstractItemModel::modelReset, this, [this] {
        m_form->lineEdit_Filter->clear();
        m_view->resizeColumnsToContents();
    });
    connect(&m_selection, &StudySelection::Changed, this, &StudyResults::ShowCount);
    ShowCount();
}

StudyResults::~StudyResults() = default;

void StudyResults::SetActions(const QList<QAction*>& actions)
{
    m_view->addActions(actions);
    auto* const menu = new QMenu(this);
    menu->addActions(actions);
    m_form->toolButton_Actions->setMenu(menu);
}

void StudyResults::AddPlots()
{
    const auto add = [this](QWidget* plot, const QString& title) {
        m_form->tabWidget->addTab(plot, title);
    };
    add(new ScatterPlot(m_table, m_selection, this), tr("Scatter"));
    add(new ScatterMatrix(m_table, m_selection, this), tr("Matrix"));
    add(new ParallelPlot(m_table, m_selection, this), tr("Parallel"));
    add(new MainEffectsPlot(m_table, m_selection, this), tr("Main effects"));
    add(new ConvergencePlot(m_table, m_selection, this), tr("Convergence"));
    add(new StatisticsPage(m_table, m_selection, this), tr("Statistics"));
    add(m_optimum, tr("Optimum"));
}

StudyPlot* StudyResults::CurrentPlot() const
{
    return qobject_cast<StudyPlot*>(m_form->tabWidget->currentWidget());
}

void StudyResults::ApplyFilter()
{
    const QString fault = m_table.SetFilter(m_form->lineEdit_Filter->text());
    m_form->label_Problem->setText(tr("The filter cannot be used: %1").arg(fault));
    m_form->label_Problem->setVisible(!fault.isEmpty());
}

void StudyResults::ShowCount()
{
    QString text = tr("%1 of %2 runs").arg(m_table.Rows().size()).arg(m_table.Columns().Count());
    if (m_table.FailedCount() > 0)
        text += tr(", %1 failed").arg(m_table.FailedCount());
    if (!m_selection.Rows().empty())
        text += tr(", %1 selected").arg(m_selection.Rows().size());
    m_form->label_Count->setText(text);
}
