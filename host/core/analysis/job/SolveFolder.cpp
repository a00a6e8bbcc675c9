#include "SolveFolder.h"

#include "WholeFile.h"

#include <QDir>
#include <QFile>

#include <limits>

namespace {

const QLatin1String ProbeName("Model_Active.probe");
constexpr int ProbeSize = 1024 * 1024;
constexpr int MaximumFileSize = std::numeric_limits<int>::max() - 64;

} // namespace

const QLatin1String SolveFolder::ShapeName("part.brep");
const QLatin1String SolveFolder::ScriptName("part.geo");
const QLatin1String SolveFolder::MeshName("part.msh");
const QLatin1String SolveFolder::MesherLog("mesher.log");
const QLatin1String SolveFolder::JobName("Model_Active");
const QLatin1String SolveFolder::SolverLog("solver.log");

SolveFolder::SolveFolder(const QString& path)
    : m_path(path)
{
}

void SolveFolder::Clear() const
{
    ClearResults();
    for (const QString& name : {QString(ShapeName), QString(ScriptName), QString(MeshName),
                                QString(MesherLog), InJob(".inp"), InJob(".bdf")})
        QFile::remove(PathOf(name));
}

void SolveFolder::ClearResults() const
{
    for (const char* const suffix : {".dat", ".frd", ".sta", ".cvg", ".12d", ".eig"})
        QFile::remove(PathOf(InJob(suffix)));
    QFile::remove(PathOf(SolverLog));
}

QString SolveFolder::PathOf(const QString& name) const
{
    return QDir(m_path).absoluteFilePath(name);
}

QString SolveFolder::InJob(const char* suffix)
{
    return JobName + QLatin1String(suffix);
}

void SolveFolder::Write(const QString& name, const QByteArray& content) const
{
    tarn::WholeFile file(PathOf(name), MaximumFileSize);
    if (!file.Write(content))
        throw FolderError(QStringLiteral("%1: %2").arg(PathOf(name).simplified(), file.Error()));
}

QByteArray SolveFolder::ContentOf(const QString& name) const
{
    tarn::WholeFile file(PathOf(name), MaximumFileSize);
    QByteArray content;
    if (!file.Read(content))
        throw HostError(QStringLiteral("%1: %2").arg(name, file.Error()));
    return content;
}

void SolveFolder::CheckWritable() const
{
    Write(ProbeName, QByteArray(ProbeSize, '\0'));
    QFile::remove(PathOf(ProbeName));
}
