#pragma once

#include "AnalysisTools.h"
#include "ModesTable.h"
#include "NodeResults.h"
#include "ResultFile.h"
#include "SolverDeck.h"
#include "SolverVerdict.h"
#include "TestFiles.h"

#include <QDir>
#include <QEventLoop>

#include <stdexcept>

/// What the solver left of a deck.
struct SolverRun
{
    QString problem; ///< Empty if it did its work.
    QByteArray log;
};

/// Solves the deck in the file "job.inp" of the working directory.
inline SolverRun RunSolver()
{
    ToolProcess process;
    ToolCall call;
    call.program = AnalysisTools().solver.Executable();
    call.arguments = QStringList("job");
    call.folder = QDir::currentPath();
    call.logFile = QDir::current().absoluteFilePath("job.log");
    call.seconds = 100;
    ToolEnd end;
    QEventLoop loop;
    QObject::connect(&process, &ToolProcess::Finished, &loop, [&](const ToolEnd& ended) {
        end = ended;
        loop.quit();
    });
    process.Start(call);
    loop.exec();
    SolverRun run;
    run.log = ContentOf("job.log");
    run.problem = SolverProblem(end, run.log);
    return run;
}

inline void Solve(const FiniteElementModel& model, const DeckStep& step)
{
    Put("job.inp", SolverDeck(model, step));
    const SolverRun run = RunSolver();
    if (!run.problem.isEmpty())
        throw std::runtime_error(run.problem.toStdString());
}

/// The lowest modes of a model, solved in the working directory.
inline ModesTable SolvedModes(const FiniteElementModel& model, int modes)
{
    Solve(model, {false, modes});
    return ReadModesTable(ContentOf("job.dat"));
}

inline StaticResult SolvedStatic(const FiniteElementModel& model)
{
    Solve(model, {true, 0});
    return StaticResults(ReadResultFile(ContentOf("job.frd")), model.mesh);
}
