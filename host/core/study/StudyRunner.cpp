#include "StudyRunner.h"

#include "BuildError.h"
#include "GlobalParaMeterMgr.h"
#include "MaterialLibrary.h"
#include "NumberTexts.h"
#include "Project.h"
#include "StopSignal.h"
#include "Study.h"
#include "StudyFingerprint.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

// The table is for who looks on; the journal holds the runs anyway. It takes time with the number
// of runs, which must stay a small part of all.
constexpr qint64 LeastSavePause = 1000; // ms
constexpr qint64 SavePauseFactor = 50;  // Of the time that saving takes.

constexpr int OtherProgramsPause = 200; // ms, between two looks at what they do.
constexpr int SyncPause = 1000;         // ms

std::vector<double> ParameterValues()
{
    std::vector<double> values;
    for (const auto& entry : GlobalParaMeterMgr::m_nameMapParameters)
        values.push_back(GlobalParaMeterMgr::GetParameterRawValue(entry.first).toDouble());
    return values;
}

// Of the part, in kg/m3.
double PartDensity(const Project& project)
{
    if (project.Material().isEmpty())
        return project.Density();
    try {
        return DensityOf(project.Material());
    } catch (const MaterialError& error) {
        throw HostError(QStringLiteral("%1: %2").arg(project.Path(), error.Reason()));
    }
}

} // namespace

StudyRunner::StudyRunner(const Project& project, Options options,
                         std::function<void(const QString&)> tell)
    : m_project(project)
    , m_options(std::move(options))
    , m_tell(std::move(tell))
    , m_columns(project)
{
}

StudyRunner::~StudyRunner() = default;

StudyRunner::Summary StudyRunner::Run()
{
    const auto [first, last] = Prepare();
    PrepareWorkers(first, last);
    // Also while the results are written, which a signal must not cut short.
    const StopSignal stop;
    Work(stop);
    m_places.clear(); // Ends the workers.
    m_queue.reset();
    m_lines->Flush();
    if (m_error) {
        try {
            Merge();
        } catch (const HostError&) {
            // What stops the study has to be said, and may be the reason for this, too.
        }
        std::rethrow_exception(m_error);
    }
    m_journal->Sync();
    Merge();
    m_summary.signal = stop.Number();
    m_tell(QStringLiteral("%1 ok, %2 failed, %3 done before; see %4")
               .arg(m_summary.ok)
               .arg(m_summary.failed)
               .arg(m_summary.skipped)
               .arg(QDir::toNativeSeparators(m_folder->ResultsPath())));
    return m_summary;
}

int StudyRunner::CreateFolder()
{
    Prepare();
    return m_folder->Runs().Count();
}

// Returns the first and the last of the runs to do.
std::pair<int, int> StudyRunner::Prepare()
{
    m_study = std::make_unique<Study>(m_project);
    const RunList runs = PrepareRuns(*m_study);
    if (!QFileInfo::exists(m_options.directory))
        RequestedRuns(runs.Count());
    ReadMaterials(m_project.Folder());
    m_density = PartDensity(m_project);
    for (const auto& entry : m_study->Parameters())
        m_parameters << entry.first;
    m_folder = StudyFolder::Prepare(m_options.directory,
                                    StudyFingerprint(m_project, runs.Inputs(), m_density), runs);
    return RequestedRuns(m_folder->Runs().Count());
}

void StudyRunner::PrepareWorkers(int first, int last)
{
    // Before the first part is built: a folder that cannot be written is reported at once.
    Merge();
    m_journal = std::make_unique<Journal>(m_options.directory);

    const int workers = std::max(1, std::min(m_options.jobs, last - first + 1));
    constexpr int LinesPerWorker = 4;
    m_lines = std::make_unique<ProgressLines>(m_tell, LinesPerWorker * workers);
    m_queue = std::make_unique<RunQueue>(
        *m_folder, first, last, workers, m_options.hasSteps,
        [this](int run, RunQueue::Settlement settlement) { Skip(run, settlement); });
    m_places.resize(std::size_t(workers));
}

RunList StudyRunner::PrepareRuns(const Study& study) const
{
    const QStringList inputs = study.Inputs();
    std::vector<double> values;
    std::vector<std::size_t> places(std::size_t(study.Names().size()));
    for (const QString& name : inputs) {
        const int column = study.Names().indexOf(name);
        if (column >= 0)
            places[std::size_t(column)] = values.size();
        values.push_back(GlobalParaMeterMgr::GetParameterRawValue(name).toDouble());
    }
    RunList runs(inputs);
    for (int run = 1; run <= study.RunCount(); ++run) {
        const std::vector<double> chosen = study.Values(run);
        for (std::size_t column = 0; column < chosen.size(); ++column)
            values[places[column]] = chosen[column];
        runs.Add(values);
    }
    return runs;
}

std::pair<int, int> StudyRunner::RequestedRuns(int runs) const
{
    if (runs == 0)
        throw HostError(QStringLiteral("%1: the study has no runs; it needs a parameter that is "
                                       "ticked and has samples")
                            .arg(m_project.Path()));
    const int first = m_options.firstRun > 0 ? m_options.firstRun : 1;
    const int last = m_options.lastRun > 0 ? m_options.lastRun : runs;
    if (first > last || last > runs)
        throw HostError(QStringLiteral("%1: the study has the runs 1 to %2, so %3-%4 cannot be run")
                            .arg(m_project.Path())
                            .arg(runs)
                            .arg(first)
                            .arg(last));
    return {first, last};
}

void StudyRunner::Work(const StopSignal& stop)
{
    QEventLoop loop;
    m_loop = &loop;
    QObject::connect(&stop, &StopSignal::Came, &loop, &QEventLoop::quit);
    QTimer sync;
    QObject::connect(&sync, &QTimer::timeout, &loop,
                     [this] { Try([this] { m_journal->Sync(); }); });
    sync.start(SyncPause);
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [this] {
        if (m_queue->IsWaiting())
            Try([this] { FeedAll(); });
    });
    look.start(OtherProgramsPause);

    // In the loop, which quit() would otherwise not end.
    QTimer::singleShot(0, &loop, [this] { Try([this] { FeedAll(); }); });
    loop.exec();
    m_loop = nullptr;
}

// An exception must not leave through the event loop.
void StudyRunner::Try(const std::function<void()>& step)
{
    if (m_error)
        return;
    try {
        step();
    } catch (const HostError&) {
        m_error = std::current_exception();
        m_loop->quit();
    }
}

void StudyRunner::FeedAll()
{
    for (Place& place : m_places) {
        if (place.run == 0)
            Feed(place);
    }
}

void StudyRunner::Feed(Place& place)
{
    while (const std::optional<int> run = m_queue->Next()) {
        if (Begin(place, *run))
            return;
    }
    const bool isIdle = std::all_of(m_places.begin(), m_places.end(),
                                    [](const Place& other) { return other.run == 0; });
    if (isIdle && !m_queue->IsWaiting())
        m_loop->quit();
}

// Whether the run goes on in the worker; otherwise it has ended.
bool StudyRunner::Begin(Place& place, int run)
{
    place.run = run;
    place.line = m_lines->Next();
    place.result = RunResult();
    m_journal->Begin(run);
    StudyTask task;
    task.part.wantsShapes = false;
    if (m_options.hasSteps) {
        const QString stepPath = m_folder->StepPath(run);
        // An existing file is not the part of this run. A pipe or a folder stays, and is refused.
        if (QFileInfo(stepPath).isFile())
            QFile::remove(stepPath);
        task.part.stepPath = QFileInfo(stepPath).absoluteFilePath();
    }
    const RunList& runs = m_folder->Runs();
    place.result.error = m_study->Choose(runs.Inputs(), runs.Values(run));
    place.result.values = ParameterValues();
    if (place.result.error.isEmpty()) {
        try {
            task.part.plan = m_project.Plan();
            task.hasVibration = m_project.Study().hasVibration;
            task.hasStatic = m_project.Study().hasStatic;
            if (task.hasVibration || task.hasStatic)
                task.analysis.emplace(m_project.Analysis(), m_project.Material());
        } catch (const HostError& error) {
            place.result.error = error.Reason();
        }
    }
    if (!place.result.error.isEmpty()) {
        End(place);
        return false;
    }
    task.folder = m_options.directory;
    if (place.worker == nullptr) {
        place.worker = std::make_unique<StudyWorker>();
        BuildLimits limits = BuildLimits::Stored();
        if (m_options.seconds > 0) {
            limits.seconds = m_options.seconds;
            place.worker->SetLimits(limits);
        }
        QObject::connect(place.worker.get(), &StudyWorker::Finished, m_loop,
                         [this, &place](const StudyOutcome& outcome) {
                             Try([&] { HandleEnd(place, outcome); });
                         });
    }
    place.worker->Start(task);
    return true;
}

void StudyRunner::HandleEnd(Place& place, const StudyOutcome& outcome)
{
    if (outcome.isFolderBad)
        throw FolderError(outcome.error);
    RunResult& result = place.result;
    result.ok = outcome.ok;
    result.error = outcome.error;
    QStringList warnings;
    if (result.ok) {
        result.measures = outcome.measures;
        result.mass = outcome.measures.Mass(m_density);
        result.more = m_columns.Values(result, m_parameters, outcome.vibration, outcome.statics);
        const QString warning = result.measures.overlaps.Warning();
        if (!warning.isEmpty())
            warnings << QStringLiteral("%1: warning: %2").arg(NameOf(place.run), warning);
    }
    End(place, warnings);
    SaveSometimes();
    FeedAll();
}

void StudyRunner::End(Place& place, const QStringList& warnings)
{
    const RunResult& result = place.result;
    RunRecord record;
    record.state = result.ok ? RunRecord::Ok : RunRecord::Failed;
    record.row = m_folder->Table().Row(place.run, result);
    if (result.ok && m_options.hasSteps)
        record.step = StepStamp::Of(m_folder->StepPath(place.run));
    m_journal->End(place.run, record);
    m_queue->Release(place.run);

    const QString name = NameOf(place.run);
    QString line = QStringLiteral("%1: failed: %2").arg(name, result.error);
    if (result.ok)
        line = QStringLiteral("%1: ok, volume %2 mm3, mass %3 kg")
                   .arg(name, ShortText(result.measures.volume), ShortText(result.mass));
    ++(result.ok ? m_summary.ok : m_summary.failed);
    place.run = 0;
    m_lines->Add(place.line, QStringList(line) + warnings);
}

void StudyRunner::Skip(int run, RunQueue::Settlement settlement)
{
    const bool isDone = settlement == RunQueue::DoneBefore;
    ++(isDone ? m_summary.skipped : m_summary.failed);
    m_lines->Add(m_lines->Next(),
                 {isDone ? QStringLiteral("%1: done before").arg(NameOf(run))
                         : QStringLiteral("%1: failed in another program").arg(NameOf(run))});
}

void StudyRunner::SaveSometimes()
{
    if (m_sinceSaved.elapsed() >= m_savePause)
        Merge();
}

void StudyRunner::Merge()
{
    if (!m_options.hasTable)
        return;
    m_sinceSaved.start();
    m_folder->Merge();
    m_savePause = std::max(LeastSavePause, SavePauseFactor * m_sinceSaved.restart());
}

QString StudyRunner::NameOf(int run) const
{
    return QStringLiteral("run %1 of %2").arg(run).arg(m_folder->Runs().Count());
}
