#include "OptimumPage.h"

#include "ColumnBox.h"
#include "HostError.h"
#include "OptimumTable.h"
#include "ResultColumns.h"
#include "StudyTable.h"
#include "SurfaceOptimum.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

OptimumPage::OptimumPage(StudyTable& table, StudySelection& selection, QWidget* parent)
    : StudyPlot(table, selection, parent)
    , m_goal(AddColumnBox(tr("Optimum of"), "comboBox_Goal"))
    , m_content(new QWidget(this))
    , m_table(new OptimumTable(m_content))
    , m_text(new QLabel(m_content))
{
    setObjectName(QStringLiteral("optimumPage"));
    AddControls();
    m_text->setObjectName(QStringLiteral("label_Optimum"));
    m_text->setWordWrap(true);
    auto* const layout = new QVBoxLayout(m_content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_table);
    SetCanvas(*m_content);
    connect(&table, &QAbstractItemModel::modelReset, this, &OptimumPage::Forget);
    connect(m_table, &OptimumTable::LimitsEdited, this, &OptimumPage::Forget);
    Forget();
}

OptimumPage::~OptimumPage() = default;

void OptimumPage::AddControls()
{
    m_aim = new QComboBox(this);
    m_aim->setObjectName(QStringLiteral("comboBox_Aim"));
    m_aim->setAccessibleName(tr("Aim"));
    m_aim->addItems({tr("as small as possible"), tr("as large as possible")}); // As Aim.
    Controls().addWidget(m_aim);
    for (QComboBox* const box : {m_aim, static_cast<QComboBox*>(&m_goal)})
        connect(box, QOverload<int>::of(&QComboBox::activated), this, &OptimumPage::Forget);
    connect(AddButton(tr("Find"), "pushButton_FindOptimum"), &QPushButton::clicked, this,
            &OptimumPage::Find);
    m_verify = AddButton(tr("Verify by a run"), "pushButton_VerifyOptimum");
    connect(m_verify, &QPushButton::clicked, this, &OptimumPage::VerifyWanted);
    m_makeDesign = AddButton(tr("Make this the design"), "pushButton_MakeOptimumTheDesign");
    connect(m_makeDesign, &QPushButton::clicked, this, &OptimumPage::DesignWanted);
}

QPushButton* OptimumPage::AddButton(const QString& text, const char* name)
{
    auto* const button = new QPushButton(text, this);
    button->setObjectName(QString::fromLatin1(name));
    Controls().addWidget(button);
    return button;
}

SampleList OptimumPage::Samples() const
{
    SampleList samples;
    samples.parameter = Columns().Names()[VaryingInputs().front()];
    samples.values = {m_point.at(std::size_t(Inputs().indexOf(samples.parameter)))};
    return samples;
}

void OptimumPage::AllowRun(bool isAllowed)
{
    m_isRunAllowed = isAllowed;
    ShowRun();
}

void OptimumPage::ShowRows()
{
    m_goal.Refresh(Columns(), FirstResult(Columns()));
    m_columns = VaryingInputs();
    QStringList parameters;
    for (const int column : m_columns)
        parameters << Columns().Title(column);
    QStringList results;
    for (const int column : VaryingColumns(Columns())) {
        if (column < Columns().ParameterCount())
            continue;
        m_columns.push_back(column);
        results << Columns().Title(column);
    }
    m_table->ShowRows(parameters, results);
    ShowRun();
}

void OptimumPage::Forget()
{
    m_point.clear();
    m_table->Forget();
    m_found = tr("Type limits, and press Find. An optimum is predicted by quadratic surfaces over "
                 "the runs that are shown; a run verifies it.");
    ShowRun();
}

void OptimumPage::Find()
{
    Forget();
    try {
        FindWithin();
    } catch (const HostError& error) {
        m_found = tr("An optimum cannot be found: %1").arg(error.Reason());
    }
    ShowRun();
    m_table->resizeColumnsToContents();
}

void OptimumPage::FindWithin()
{
    QStringList names;
    ::Columns parameters;
    std::vector<ParameterChoice> choices;
    for (const int column : VaryingInputs()) {
        choices.push_back(m_table->Choice(int(parameters.size())));
        names << Columns().Names()[column];
        parameters.push_back(Shown(column));
    }
    if (parameters.empty())
        throw HostError(tr("no parameter varies"));
    std::vector<SurfaceLimit> limits;
    for (int row = int(parameters.size()); row < m_table->rowCount(); ++row) {
        const ParameterChoice limit = m_table->Choice(row);
        if (std::isfinite(limit.least) || std::isfinite(limit.greatest))
            limits.push_back(
                {ResponseSurface::Fit(names, parameters, Shown(m_columns[std::size_t(row)])),
                 limit.least, limit.greatest});
    }
    const ResponseSurface goal = ResponseSurface::Fit(names, parameters, Shown(m_goal.Column()));
    const SurfaceOptimum optimum = FindOptimum(goal, Aim(m_aim->currentIndex()), limits, choices);

    for (int row = 0; row < m_table->rowCount(); ++row) {
        const auto place = std::size_t(row);
        if (place < parameters.size()) {
            m_table->ShowPrediction(row, optimum.point[place], std::nan(""));
            continue;
        }
        try {
            const ResponseSurface surface =
                ResponseSurface::Fit(names, parameters, Shown(m_columns[place]));
            m_table->ShowPrediction(row, surface.ValueAt(optimum.point), surface.CrossError());
        } catch (const HostError&) {
            // A result that too few runs have is not predicted.
        }
    }
    const QStringList inputs = Inputs();
    std::vector<double> point;
    for (const QString& input : inputs) {
        const int varying = names.indexOf(input);
        const int column = Columns().Names().indexOf(input);
        if (column < 0)
            throw HostError(tr("the runs have no value of the parameter \"%1\"").arg(input));
        point.push_back(varying >= 0 ? optimum.point[std::size_t(varying)]
                                     : Columns().Value(column, Rows().front()));
    }
    m_point = std::move(point);
    m_found = tr("Predicted by quadratic surfaces over %1 runs.").arg(goal.RunCount());
}

// The row of a run with the values of the optimum; below 0 for none.
int OptimumPage::RunAtPoint() const
{
    const QStringList inputs = Inputs();
    std::vector<int> columns;
    for (const QString& input : inputs)
        columns.push_back(Columns().Names().indexOf(input));
    for (int row = 0; !m_point.empty() && row < Columns().Count(); ++row) {
        const bool isThere =
            std::equal(columns.begin(), columns.end(), m_point.begin(), m_point.end(),
                       [&](int column, double value) {
                           return column >= 0 && Columns().Value(column, row) == value;
                       });
        if (isThere)
            return row;
    }
    return -1;
}

void OptimumPage::ShowRun()
{
    const int row = RunAtPoint();
    const bool isOk = row >= 0 && Columns().IsOk(row);
    m_makeDesign->setEnabled(!m_point.empty());
    m_verify->setEnabled(!m_point.empty() && !isOk && m_isRunAllowed);
    std::vector<double> values;
    QString text = m_found;
    if (isOk) {
        for (const int column : m_columns)
            values.push_back(Columns().Value(column, row));
        text += QLatin1Char(' ') +
                tr("Run %1 verifies it: compare the last columns.").arg(Columns().Run(row));
    } else if (row >= 0) {
        text += QLatin1Char(' ') +
                tr("Run %1 failed: %2").arg(Columns().Run(row)).arg(Columns().Error(row));
    }
    m_table->ShowRun(row < 0 ? 0 : Columns().Run(row), values);
    m_text->setText(text);
}
