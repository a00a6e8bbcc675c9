#include "StudyActions.h"

#include "DesignModel.h"
#include "HostError.h"
#include "MenuActions.h"
#include "MessageLevel.h"
#include "OptimumPage.h"
#include "PartModel.h"
#include "Project.h"
#include "ProjectSession.h"
#include "StudyExport.h"
#include "StudyPanel.h"
#include "StudyPreview.h"
#include "StudyProcess.h"
#include "StudyResults.h"
#include "StudySelection.h"
#include "StudyTable.h"
#include "StudyWatch.h"

#include <QDir>
#include <QFileDialog>
#include <QMainWindow>
#include <QMenu>

#include <cmath>

StudyActions::StudyActions(ProjectSession& session, DesignModel& design, PartModel& part,
                           QWidget* window)
    : QObject(window)
    , m_session(session)
    , m_design(design)
    , m_window(window)
    , m_selection(new StudySelection(this))
    , m_table(new StudyTable(*m_selection, this))
    , m_process(new StudyProcess(this))
    , m_watch(new StudyWatch(this))
    , m_panel(new StudyPanel(session, design, part, window))
    , m_results(new StudyResults(*m_table, *m_selection, window))
    , m_export(new StudyExport(*m_table, *m_results, window, this))
{
    CreateActions();
    Connect();
    UpdateActions();
}

StudyActions::~StudyActions() = default;

void StudyActions::CreateActions()
{
    m_start = NewAction(tr("&Start"), "action_StartStudy", this, &StudyActions::Start);
    m_pause = NewAction(tr("&Pause or continue"), "action_PauseStudy", this,
                        &StudyActions::PauseOrContinue);
    m_stop = NewAction(tr("S&top"), "action_StopStudy", m_process, &StudyProcess::Stop);
    m_showRun = NewAction(tr("Show this &run"), "action_ShowRun", this, &StudyActions::ShowRun);
    m_makeDesign = NewAction(tr("&Make this the design"), "action_MakeRunTheDesign", this,
                             &StudyActions::MakeRunDesign);
    m_results->SetActions(QList<QAction*>{m_showRun, m_makeDesign} + m_export->Actions());
}

void StudyActions::FillMenu(QMenu& menu)
{
    menu.addActions({m_panel->toggleViewAction(), m_results->toggleViewAction()});
    menu.addSeparator();
    menu.addActions({m_start, m_pause, m_stop});
    menu.addSeparator();
    menu.addAction(
        NewAction(tr("&Open study folder"), "action_OpenStudy", this, &StudyActions::ChooseFolder));
    menu.addSeparator();
    menu.addActions(QList<QAction*>{m_showRun, m_makeDesign} + m_export->Actions());
}

void StudyActions::Connect()
{
    connect(m_panel, &StudyPanel::StartWanted, this, &StudyActions::Start);
    connect(m_panel, &StudyPanel::PauseWanted, this, &StudyActions::PauseOrContinue);
    connect(m_panel, &StudyPanel::StopWanted, m_process, &StudyProcess::Stop);
    connect(m_process, &StudyProcess::StateChanged, this, &StudyActions::ShowProcessState);
    connect(m_process, &StudyProcess::Finished, this, &StudyActions::ShowEnd);
    connect(m_watch, &StudyWatch::NewsCame, this, &StudyActions::TakeNews);
    connect(m_watch, &StudyWatch::Failed, this, [](const QString& reason) {
        PostMessageToChannel(ErrorLevel, tr("The study cannot be read: %1").arg(reason));
    });
    connect(m_selection, &StudySelection::Changed, this, &StudyActions::UpdateActions);
    connect(&m_results->Optimum(), &OptimumPage::VerifyWanted, this, &StudyActions::VerifyOptimum);
    connect(&m_results->Optimum(), &OptimumPage::DesignWanted, this,
            &StudyActions::MakeOptimumDesign);
}

void StudyActions::Start()
{
    m_panel->show();
    m_panel->raise();
    if (m_panel->Options().directory.isEmpty() && !m_panel->ChooseFolder())
        return;
    try {
        const Project project = m_session.Current();
        const QString differs =
            FolderDifference(project, m_session.Density(), m_panel->Options().directory);
        if (!differs.isEmpty() && !m_panel->OfferNewFolder(differs))
            return;
        StartProcess(project, m_panel->Options());
    } catch (const HostError& error) {
        PostMessageToChannel(ErrorLevel, error.Reason());
        return;
    }
    Follow(m_panel->Options().directory, true);
}

void StudyActions::StartProcess(const Project& project, const StudyProcess::Options& options)
{
    // The child reads the user's materials from the file.
    m_session.SaveStores();
    m_process->Start(project, options);
}

void StudyActions::PauseOrContinue()
{
    if (m_process->CurrentState() == StudyProcess::Paused)
        m_process->Continue();
    else
        m_process->Pause();
}

void StudyActions::ChooseFolder()
{
    const QString path = QFileDialog::getExistingDirectory(m_window, tr("Open study folder"));
    if (!path.isEmpty())
        OpenFolder(path);
}

void StudyActions::OpenFolder(const QString& path)
{
    Follow(QDir(path).absolutePath(), false);
}

void StudyActions::Follow(const QString& path, bool isExpected)
{
    m_folder = path;
    m_table->Clear();
    m_panel->ShowProgressText(QDir::toNativeSeparators(path));
    ShowResults();
    m_watch->Follow(path, isExpected);
}

void StudyActions::ShowResults()
{
    if (!m_results->isVisible()) {
        m_results->show();
        // Room for plots; the other docks beside it need little.
        constexpr double Share = 0.4;
        if (auto* const window = qobject_cast<QMainWindow*>(m_window))
            window->resizeDocks({m_results}, {int(Share * window->height())}, Qt::Vertical);
    }
    m_results->raise();
}

void StudyActions::TakeNews(const StudyFollower::News& news)
{
    if (!news.columns.Names().isEmpty())
        m_table->Take(news.columns);
    m_table->SetInputs(news.inputs.isEmpty() ? PlainParameters() : news.inputs);
    const int ended = m_table->Columns().Count();
    m_panel->ShowProgress(news.runs > 0 ? news.runs : ended, ended, m_table->FailedCount(),
                          news.running);
}

void StudyActions::ShowEnd(const QString& problem)
{
    m_watch->Hurry();
    if (problem.isEmpty())
        PostMessageToChannel(InfoLevel,
                             tr("The study is done: %1").arg(QDir::toNativeSeparators(m_folder)));
    else
        PostMessageToChannel(ErrorLevel, tr("The study has ended: %1").arg(problem));
}

void StudyActions::ShowProcessState()
{
    m_watch->Hurry();
    m_panel->ShowState(m_process->CurrentState());
    UpdateActions();
}

void StudyActions::UpdateActions()
{
    const StudyProcess::State state = m_process->CurrentState();
    m_start->setEnabled(state == StudyProcess::Idle);
    m_pause->setEnabled(state == StudyProcess::Running || state == StudyProcess::Paused);
    m_stop->setEnabled(m_pause->isEnabled());
    const bool isOne = m_selection->Rows().size() == 1;
    m_showRun->setEnabled(isOne);
    m_makeDesign->setEnabled(isOne);
    m_results->Optimum().AllowRun(state == StudyProcess::Idle);
}

// A table alone does not say which of its parameters are calculated.
QStringList StudyActions::PlainParameters() const
{
    QStringList names;
    const ResultColumns& columns = m_table->Columns();
    const ParameterEntries entries = m_design.Design();
    const QStringList parameters = columns.Names().mid(0, columns.ParameterCount());
    for (const QString& name : parameters) {
        const int index = FindParameter(entries, name);
        if (index < 0 || entries[std::size_t(index)].Expression().isEmpty())
            names << name;
    }
    return names;
}

std::vector<double> StudyActions::ValuesOf(int row) const
{
    std::vector<double> values;
    const QStringList names = m_table->Inputs();
    const ResultColumns& columns = m_table->Columns();
    for (const QString& name : names) {
        const int column = columns.Names().indexOf(name);
        const double value = column < 0 ? std::nan("") : columns.Value(column, row);
        if (!std::isfinite(value))
            throw HostError(tr("it has no value of the parameter \"%1\"").arg(name));
        values.push_back(value);
    }
    return values;
}

void StudyActions::ShowRun()
{
    const int row = m_selection->Rows().front();
    const int run = m_table->Columns().Run(row);
    try {
        m_design.ShowRun(m_table->Inputs(), ValuesOf(row));
        PostMessageToChannel(InfoLevel, tr("The part is that of run %1").arg(run));
    } catch (const HostError& error) {
        PostMessageToChannel(ErrorLevel,
                             tr("Run %1 cannot be shown: %2").arg(run).arg(error.Reason()));
    }
}

void StudyActions::MakeRunDesign()
{
    const int row = m_selection->Rows().front();
    const int run = m_table->Columns().Run(row);
    try {
        m_design.Edit(DesignAt(ValuesOf(row)), tr("Make run %1 the design").arg(run));
    } catch (const HostError& error) {
        PostMessageToChannel(
            ErrorLevel, tr("Run %1 cannot be made the design: %2").arg(run).arg(error.Reason()));
    }
}

// The design, with these values of the inputs.
ParameterEntries StudyActions::DesignAt(const std::vector<double>& point) const
{
    ParameterEntries entries = m_design.Design();
    const QStringList names = m_table->Inputs();
    for (int i = 0; i < names.size(); ++i) {
        const int index = FindParameter(entries, names[i]);
        if (index < 0)
            throw HostError(tr("the project has no parameter \"%1\"").arg(names[i]));
        ParameterEntry& entry = entries[std::size_t(index)];
        if (!entry.Expression().isEmpty() || entry.Number() != point[std::size_t(i)])
            entry.SetNumber(point[std::size_t(i)]);
    }
    return entries;
}

void StudyActions::MakeOptimumDesign()
{
    try {
        m_design.Edit(DesignAt(m_results->Optimum().Point()), tr("Make the optimum the design"));
    } catch (const HostError& error) {
        PostMessageToChannel(ErrorLevel,
                             tr("The optimum cannot be made the design: %1").arg(error.Reason()));
    }
}

// A run more in the folder that is shown.
void StudyActions::VerifyOptimum()
{
    StudyProcess::Options options = m_panel->Options();
    options.directory = m_folder;
    options.jobs = 1;
    try {
        Project project = m_session.Current();
        project.SetParameters(DesignAt(m_results->Optimum().Point()));
        project.SetSampleLists({m_results->Optimum().Samples()});
        StudyDefinition study = project.Study();
        study.design = StudyDefinition::FullFactorial;
        project.SetStudy(study);
        const QString differs = FolderDifference(project, m_session.Density(), m_folder);
        if (!differs.isEmpty())
            throw HostError(tr("the project is not that of the study: %1").arg(differs));
        StartProcess(project, options);
    } catch (const HostError& error) {
        PostMessageToChannel(ErrorLevel,
                             tr("The optimum cannot be verified: %1").arg(error.Reason()));
    }
}
