#include "StudyFolder.h"

#include "SolveFolder.h"
#include "StudyFingerprint.h"
#include "WholeFile.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

namespace {

const QString FingerprintName = QStringLiteral("study.json");
const QString RunsName = QStringLiteral("runs.csv");
const QString ResultsName = QStringLiteral("results.csv");
const QString LocksName = QStringLiteral("study.lock");

} // namespace

StudyFolder::StudyFolder(const QString& path)
    : m_path(path)
    , m_records(std::make_unique<StudyRecords>(path))
{
}

bool StudyFolder::Exists(const QString& path)
{
    return QFileInfo::exists(StudyFolder(path).PathOf(FingerprintName));
}

QString StudyFolder::Difference(const QString& path, const QJsonObject& fingerprint)
{
    const StudyFolder folder(path);
    if (Exists(path))
        return FingerprintDifference(folder.ReadFingerprint(), fingerprint);
    if (QFileInfo::exists(folder.ResultsPath()))
        return tr("its %1 has no %2 beside it, so its study is unknown")
            .arg(ResultsName, FingerprintName);
    return {};
}

std::unique_ptr<StudyFolder> StudyFolder::Open(const QString& path)
{
    std::unique_ptr<StudyFolder> folder(new StudyFolder(path));
    if (!Exists(path))
        throw HostError(tr("%1: is not the folder of a study; there is no %2 in it")
                            .arg(path, FingerprintName));
    folder->ReadRuns(folder->ReadFingerprint());
    return folder;
}

std::unique_ptr<StudyFolder>
StudyFolder::Prepare(const QString& path, const QJsonObject& fingerprint, const RunList& runs)
{
    if (!QDir(path).mkpath(QStringLiteral(".")))
        throw FolderError(tr("%1: cannot create the folder").arg(path));
    std::unique_ptr<StudyFolder> folder(new StudyFolder(path));
    const QString file = folder->PathOf(FingerprintName);
    const auto refuseOther = [&] {
        const QString difference = Difference(path, fingerprint);
        if (!difference.isEmpty())
            throw HostError(tr("%1: holds the results of another study: %2; choose another folder")
                                .arg(path, difference));
    };
    refuseOther();
    RunLocks locks(folder->LocksPath());
    const RunLocks::Common lock(locks);
    refuseOther(); // Another program may have begun one.
    if (!QFileInfo::exists(file)) {
        tarn::WholeFile json(file);
        if (!json.Write(QJsonDocument(fingerprint).toJson()))
            throw FolderError(QStringLiteral("%1: %2").arg(file, json.Error()));
    }
    folder->ReadRuns(fingerprint);
    const int before = folder->m_runs.Count();
    folder->m_runs.AddAll(runs);
    if (folder->m_runs.Count() > before)
        folder->m_runs.Write(folder->PathOf(RunsName));
    return folder;
}

QString StudyFolder::PathOf(const QString& name) const
{
    return QDir(m_path).filePath(name);
}

QString StudyFolder::ResultsPath() const
{
    return PathOf(ResultsName);
}

QString StudyFolder::LocksPath() const
{
    return PathOf(LocksName);
}

QString StudyFolder::StepPath(int run) const
{
    return PathOf(QStringLiteral("run_%1.step").arg(run, 4, 10, QLatin1Char('0')));
}

QJsonObject StudyFolder::ReadFingerprint() const
{
    const QString path = PathOf(FingerprintName);
    tarn::WholeFile file(path);
    QByteArray bytes;
    if (!file.Read(bytes))
        throw HostError(QStringLiteral("%1: %2").arg(path, file.Error()));
    return QJsonDocument::fromJson(bytes).object();
}

void StudyFolder::ReadRuns(const QJsonObject& fingerprint)
{
    try {
        const StudyNames names(fingerprint);
        m_table = ResultsTable(names.parameters, names.columns, names.units);
        m_runs = RunList(names.inputs);
    } catch (const HostError& error) {
        throw HostError(PathOf(FingerprintName) + QStringLiteral(": ") + error.Reason());
    }
    m_runsSize = QFileInfo(PathOf(RunsName)).size();
    if (QFileInfo::exists(PathOf(RunsName)))
        m_runs.Read(PathOf(RunsName));
}

bool StudyFolder::HasMoreRuns() const
{
    return QFileInfo(PathOf(RunsName)).size() != m_runsSize;
}

bool StudyFolder::IsDone(int run, bool withStep) const
{
    const RunRecord& record = m_records->Of(run);
    return record.state == RunRecord::Ok && (!withStep || record.step.IsOf(StepPath(run)));
}

void StudyFolder::Merge()
{
    RunLocks locks(LocksPath());
    const RunLocks::Common lock(locks);
    m_records->Refresh();
    QByteArray rows;
    for (int run = 1; run <= m_runs.Count(); ++run)
        rows += m_records->Of(run).row;
    m_table.WriteRows(ResultsPath(), rows);
}

StudyFolder::Counts StudyFolder::Count() const
{
    Counts counts;
    for (int run = 1; run <= m_runs.Count(); ++run) {
        const RunRecord& record = m_records->Of(run);
        if (record.isBegun && RunLocks::IsTaken(LocksPath(), run))
            ++counts.running;
        else if (IsDone(run, record.step.size >= 0))
            ++counts.done;
        else if (record.state == RunRecord::Failed)
            ++counts.failed;
        else
            ++counts.open;
    }
    return counts;
}
