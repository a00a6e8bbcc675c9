#include "DeckRun.h"

#include "ResultFile.h"
#include "SolverVerdict.h"
#include "ToolProcess.h"

#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <utility>

DeckRun::DeckRun(const QString& deck, AnalysisTools tools)
    : m_folder(QFileInfo(deck).absolutePath())
    , m_name(QFileInfo(deck).completeBaseName())
    , m_tools(std::move(tools))
{
}

void DeckRun::Run() const
{
    const QString deck = NameWith(".inp");
    if (!QFileInfo(m_folder.PathOf(deck)).isFile())
        throw HostError(tr("%1 is missing: let the host mesh or solve the part, which writes it.")
                            .arg(m_folder.PathOf(deck).simplified()));
    for (const char* const suffix : {".frd", ".dat", ".sta", ".cvg"})
        QFile::remove(m_folder.PathOf(NameWith(suffix)));
    QFile::remove(m_folder.PathOf(SolveFolder::SolverLog));
    const QString program = m_tools.solver.Executable();

    // In a folder of its own, so that nobody sees results that are not complete.
    const QTemporaryDir own(m_folder.PathOf(QStringLiteral(".tarn-ccx-XXXXXX")));
    if (!own.isValid())
        throw FolderError(
            QStringLiteral("%1: %2").arg(m_folder.Path().simplified(), own.errorString()));
    const SolveFolder work(own.path());
    if (!QFile::link(m_folder.PathOf(deck), work.PathOf(deck)))
        throw FolderError(tr("%1: the deck cannot be linked").arg(own.path().simplified()));

    ToolEnd end;
    ToolProcess process;
    QEventLoop loop;
    QObject::connect(&process, &ToolProcess::Finished, &loop, [&](const ToolEnd& ended) {
        end = ended;
        loop.quit();
    });
    process.Start({program,
                   {m_name},
                   own.path(),
                   work.PathOf(SolveFolder::SolverLog),
                   m_tools.seconds,
                   m_tools.megabytes});
    loop.exec();
    const QByteArray log = work.ContentOf(SolveFolder::SolverLog);
    Move(work, SolveFolder::SolverLog);
    const QString problem = SolverProblem(end, log);
    if (!problem.isEmpty()) {
        m_folder.CheckWritable();
        throw HostError(problem);
    }
    ReadResultFile(work.ContentOf(NameWith(".frd")));
    for (const char* const suffix : {".dat", ".sta", ".cvg", ".frd"})
        Move(work, NameWith(suffix));
}

void DeckRun::Move(const SolveFolder& from, const QString& name) const
{
    if (!QFile::exists(from.PathOf(name)))
        return;
    const QString target = m_folder.PathOf(name);
    // Unlike Qt's function, this replaces a file at once.
    if (std::rename(QFile::encodeName(from.PathOf(name)).constData(),
                    QFile::encodeName(target).constData()) != 0)
        throw FolderError(tr("%1 cannot be written").arg(target.simplified()));
}
