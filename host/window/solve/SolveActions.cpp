#include "SolveActions.h"

#include "DesignModel.h"
#include "MenuActions.h"
#include "MessageLevel.h"
#include "NumberTexts.h"
#include "PartModel.h"
#include "ProjectSession.h"
#include "ResultsDock.h"
#include "SolveDock.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>

namespace {

QString TitleOf(SolveKind kind)
{
    switch (kind) {
    case SolveKind::Mesh:
        return SolveActions::tr("Mesh");
    case SolveKind::Vibration:
        return SolveActions::tr("Vibration");
    default:
        return SolveActions::tr("Static analysis");
    }
}

QString SuccessText(const SolveReport& report)
{
    switch (report.kind) {
    case SolveKind::Vibration:
        return report.modes.empty()
                   ? SolveActions::tr("The solver found no modes in the range of frequencies")
                   : SolveActions::tr("Modes found: %1, the lowest at %2 Hz")
                         .arg(report.modes.size())
                         .arg(ShortText(report.modes.front().frequency));
    case SolveKind::Static:
        return SolveActions::tr("Greatest displacement %1 mm, greatest von Mises stress %2 MPa")
            .arg(ShortText(report.displacement.value), ShortText(report.stress.value));
    default:
        return SolveActions::tr("The part was meshed: %1 elements").arg(report.elements);
    }
}

} // namespace

bool SolveActions::Input::operator==(const Input& other) const
{
    return project.HasSameContent(other.project) && stores == other.stores;
}

SolveActions::SolveActions(ProjectSession& session, const DesignModel& design,
                           const PartModel& part, PartView* view, QWidget* window)
    : QObject(window)
    , m_session(session)
    , m_progress(new SolveDock(m_process, window))
    , m_results(new ResultsDock(view, window))
{
    connect(&m_process, &SolveProcess::Finished, this, &SolveActions::TakeEnd);
    connect(&m_watch, &ResultWatch::Appeared, this, &SolveActions::OfferResults);
    connect(m_progress, &SolveDock::ResultsWanted, this, &SolveActions::ReadResults);
    connect(&session, &ProjectSession::Opened, this, &SolveActions::Forget);
    connect(&session, &ProjectSession::StateChanged, this, &SolveActions::CompareWithResults);
    connect(&design, &DesignModel::Changed, this, &SolveActions::CompareWithResults);
    connect(&part, &PartModel::Changed, this, &SolveActions::CompareWithResults);
}

SolveActions::~SolveActions() = default;

void SolveActions::FillMenu(QMenu& menu)
{
    menu.addSeparator();
    menu.addActions(
        {NewAction(tr("Mes&h"), "action_Mesh", this, &SolveActions::Mesh),
         NewAction(tr("Solve &vibration"), "action_SolveVibration", this,
                   &SolveActions::SolveVibration),
         NewAction(tr("Solve s&tatic"), "action_SolveStatic", this, &SolveActions::SolveStatic),
         NewAction(tr("Read results of a s&olver"), "action_ReadResults", this,
                   &SolveActions::ReadResults)});
}

SolveActions::Input SolveActions::CurrentInput() const
{
    Input input{m_session.Shown(), AnalysisStores::Current()};
    // Results do not depend on these.
    input.project.SetTitle({});
    input.project.SetStudy({});
    input.project.SetSampleLists({});
    AnalysisDefinition analysis = input.project.Analysis();
    analysis.type = {};
    input.project.SetAnalysis(analysis);
    return input;
}

void SolveActions::ReadResults()
{
    try {
        const SolveFolder folder(QDir::currentPath());
        if (!QFileInfo::exists(folder.PathOf(SolveFolder::InJob(".frd"))))
            throw HostError(tr("No solver has left results in the folder of the project."));
        const QByteArray deck = folder.ContentOf(SolveFolder::InJob(".inp"));
        Start(deck.contains("*STATIC") ? SolveKind::Static : SolveKind::Vibration, true);
    } catch (const HostError& error) {
        PostMessageToChannel(ErrorLevel, error.Reason());
    }
}

void SolveActions::OfferResults()
{
    m_progress->OfferResults();
    PostMessageToChannel(InfoLevel, tr("A solver has left results in the folder of the project"));
}

void SolveActions::Start(SolveKind kind, bool hasResults)
{
    m_next = Job{kind, hasResults};
    if (!m_process.IsBusy()) {
        Begin();
        return;
    }
    m_progress->SetNext(TitleOf(kind));
    PostMessageToChannel(InfoLevel,
                         tr("%1 begins when the running analysis has ended").arg(TitleOf(kind)));
}

void SolveActions::Begin()
{
    const Job job = *m_next;
    m_next.reset();
    try {
        m_running = CurrentInput();
        m_process.Start(m_running.project, job.kind, QDir::currentPath(), job.hasResults);
        m_progress->Begin(TitleOf(job.kind));
    } catch (const HostError& error) {
        PostMessageToChannel(ErrorLevel, error.Reason());
    }
}

void SolveActions::Stop()
{
    m_next.reset();
    m_process.Cancel();
}

void SolveActions::TakeEnd(SolveProcess::Outcome outcome, const QString& problem)
{
    if (m_process.Report() != nullptr) {
        m_results->ShowReport(m_process.Report());
        m_shown = m_running;
        CompareWithResults();
    }
    if (outcome == SolveProcess::Done && m_process.Report() != nullptr)
        PostMessageToChannel(InfoLevel, SuccessText(*m_process.Report()));
    else
        PostMessageToChannel(outcome == SolveProcess::Cancelled ? WarningLevel : ErrorLevel,
                             problem);
    if (outcome == SolveProcess::Cancelled)
        m_next.reset();
    if (m_next)
        Begin();
}

void SolveActions::CompareWithResults()
{
    // A project may be saved in another folder.
    m_watch.Follow(QDir::currentPath());
    m_results->SetOld(m_shown && !(CurrentInput() == *m_shown));
}

void SolveActions::Forget()
{
    Stop();
    m_watch.Follow(QDir::currentPath());
    m_shown.reset();
    m_results->Clear();
}
