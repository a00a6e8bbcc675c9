#include "StudyRunner.h"

#include "BuildError.h"
#include "GlobalParaMeterMgr.h"
#include "MaterialLibrary.h"
#include "NumberTexts.h"
#include "Project.h"
#include "ResultsTable.h"
#include "Study.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

// A stopped study loses the runs of at most this time. Not after each run: in a large study the
// table would be written far longer than the parts take to build.
constexpr qint64 SavePause = 1000; // ms

QStringList ParameterNames()
{
    QStringList names;
    for (const auto& entry : GlobalParaMeterMgr::m_nameMapParameters)
        names << entry.first;
    return names;
}

std::vector<double> ParameterValues()
{
    std::vector<double> values;
    for (const auto& entry : GlobalParaMeterMgr::m_nameMapParameters)
        values.push_back(GlobalParaMeterMgr::GetParameterRawValue(entry.first).toDouble());
    return values;
}

// As texts: a value that is not a number is not even equal to itself.
bool HaveSameDigits(const std::vector<double>& a, const std::vector<double>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](double x, double y) {
        return QString::number(x, 'g', 17) == QString::number(y, 'g', 17);
    });
}

QString StepPath(const QDir& directory, int run)
{
    return directory.filePath(QStringLiteral("run_%1.step").arg(run, 4, 10, QLatin1Char('0')));
}

// Of the part, in kg/m3.
double PartDensity(const Project& project)
{
    if (project.Material().isEmpty())
        return project.Density();
    ReadMaterials(project.Folder());
    try {
        return DensityOf(project.Material());
    } catch (const MaterialError& error) {
        throw HostError(QStringLiteral("%1: %2").arg(project.Path(), error.Reason()));
    }
}

RunResult BuildRun(const Study& study, int run, const Project& project, double density,
                   KernelWorker& worker, const QString& stepPath)
{
    RunResult result;
    // An existing file is not the part of this run. A pipe or a folder stays, and is refused later.
    if (QFileInfo(stepPath).isFile())
        QFile::remove(stepPath);
    result.error = study.Choose(run);
    result.values = ParameterValues();
    if (!result.error.isEmpty())
        return result;
    PartRequest request;
    request.wantsShapes = false;
    request.stepPath = QFileInfo(stepPath).absoluteFilePath();
    try {
        request.plan = project.Plan();
    } catch (const BuildError& error) {
        result.error = error.Reason();
        return result;
    }
    const PartReply reply = worker.Run(request);
    result.ok = reply.outcome == PartReply::Done;
    if (result.ok) {
        result.measures = reply.measures;
        result.mass = reply.measures.Mass(density);
    } else {
        result.error = reply.Reason();
    }
    return result;
}

// Without this check the results of a study that has changed would mix with the new ones.
void CheckEarlierRuns(const Study& study, const ResultsTable& table, double density,
                      const QString& path)
{
    for (const auto& [run, earlier] : table.Runs()) {
        const bool exists = run <= study.RunCount();
        if (exists)
            study.Choose(run);
        if (!exists || !HaveSameDigits(earlier.values, ParameterValues()) ||
            (earlier.ok && earlier.mass != earlier.measures.Mass(density)))
            throw HostError(
                QStringLiteral(
                    "%1: run %2 in it belongs to a different study; choose another folder")
                    .arg(path)
                    .arg(run));
    }
}

} // namespace

StudyRunner::StudyRunner(const Project& project, Options options,
                         std::function<void(const QString&)> tell)
    : m_project(project)
    , m_options(std::move(options))
    , m_tell(std::move(tell))
{
}

StudyRunner::Summary StudyRunner::Run()
{
    const Study study(m_project);
    const auto [first, last] = RequestedRuns(study.RunCount());
    m_density = PartDensity(m_project);
    const QDir directory(m_options.directory);
    if (!directory.mkpath(QStringLiteral(".")))
        throw HostError(QStringLiteral("%1: cannot create the folder").arg(m_options.directory));
    const QString tablePath = directory.filePath(QStringLiteral("results.csv"));
    ResultsTable table(ParameterNames());
    if (QFileInfo::exists(tablePath))
        table.Read(tablePath);
    CheckEarlierRuns(study, table, m_density, tablePath);
    // Before the first part is built: a folder that cannot be written is reported at once.
    table.Write(tablePath);

    Summary summary;
    QElapsedTimer sinceSaved;
    sinceSaved.start();
    for (int run = first; run <= last; ++run) {
        DoRun(study, run, StepPath(directory, run), table, summary);
        if (sinceSaved.elapsed() >= SavePause) {
            table.Write(tablePath);
            sinceSaved.restart();
        }
    }
    table.Write(tablePath);
    m_tell(QStringLiteral("%1 ok, %2 failed, %3 done before; see %4")
               .arg(summary.ok)
               .arg(summary.failed)
               .arg(summary.skipped)
               .arg(QDir::toNativeSeparators(tablePath)));
    return summary;
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

void StudyRunner::DoRun(const Study& study, int run, const QString& stepPath, ResultsTable& table,
                        Summary& summary)
{
    const QString place = QStringLiteral("run %1 of %2").arg(run).arg(study.RunCount());
    const auto earlier = table.Runs().find(run);
    if (earlier != table.Runs().end() && earlier->second.ok && QFileInfo::exists(stepPath)) {
        ++summary.skipped;
        m_tell(QStringLiteral("%1: done before").arg(place));
        return;
    }
    const RunResult result = BuildRun(study, run, m_project, m_density, m_worker, stepPath);
    table.Set(run, result);
    if (result.ok) {
        ++summary.ok;
        m_tell(QStringLiteral("%1: ok, volume %2 mm3, mass %3 kg")
                   .arg(place, ShortText(result.measures.volume), ShortText(result.mass)));
        const QString warning = result.measures.overlaps.Warning();
        if (!warning.isEmpty())
            m_tell(QStringLiteral("%1: warning: %2").arg(place, warning));
    } else {
        ++summary.failed;
        m_tell(QStringLiteral("%1: failed: %2").arg(place, result.error));
    }
}
