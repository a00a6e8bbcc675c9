#include "MaterialLibrary.h"
#include "ParameterEvaluator.h"
#include "Project.h"
#include "RunBenchmarks.h"
#include "SolveJob.h"
#include "WorkerProcess.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sys/resource.h>

// Solves the vibration of the sample flange with elements of 5 mm: what is ours of it, compared
// with the whole. Ours is everything but the mesher and the solver.

namespace {

/// Of one analysis, which takes too long to be repeated.
struct Costs
{
    double ours = 0.0; ///< Processor time of this process and of the worker, in s.
    double programs = 0.0;
    double ourBytes = 0.0; ///< The most memory of this process.
    double programBytes = 0.0;
    QString problem;
};

double Seconds(int who)
{
    rusage usage{};
    getrusage(who, &usage);
    const auto of = [](const timeval& time) {
        return double(time.tv_sec) + 1e-6 * double(time.tv_usec);
    };
    return of(usage.ru_utime) + of(usage.ru_stime);
}

double MostBytes(int who)
{
    constexpr double Kilobyte = 1024.0;
    rusage usage{};
    getrusage(who, &usage);
    return Kilobyte * double(usage.ru_maxrss);
}

SolveInput Flange(const QString& folder)
{
    const Project project = Project::Load(Project::SamplePath());
    project.FillParameterStore();
    ParameterEvaluator::Evaluate();
    ReadMaterials(project.Folder());
    AnalysisDefinition analysis = project.Analysis();
    analysis.meshSize = QStringLiteral("5");
    PartRequest part;
    part.plan = project.Plan();
    part.wantsShapes = false;
    SolveInput input{part, AnalysisPlanner(analysis, project.Material()), folder};
    input.tools = AnalysisTools();
    return input;
}

Costs Solve()
{
    const QTemporaryDir folder;
    Costs costs;
    const double before = Seconds(RUSAGE_SELF);
    {
        KernelWorker worker;
        costs.problem = SolveJob(worker).Run(Flange(folder.path()))->problem;
        // The system counts a child when it has ended; the worker is still there.
        costs.programs = Seconds(RUSAGE_CHILDREN);
        costs.programBytes = MostBytes(RUSAGE_CHILDREN);
    }
    costs.ours = Seconds(RUSAGE_SELF) - before + Seconds(RUSAGE_CHILDREN) - costs.programs;
    costs.ourBytes = MostBytes(RUSAGE_SELF);
    return costs;
}

const Costs& Solved()
{
    static const Costs costs = Solve();
    return costs;
}

void Report(benchmark::State& state, double seconds, double bytes)
{
    if (!Solved().problem.isEmpty())
        state.SkipWithError(Solved().problem.toUtf8().constData());
    for (auto _ : state)
        state.SetIterationTime(seconds);
    state.counters["bytes"] = bytes;
}

} // namespace

int main(int argc, char** argv)
{
    if (IsWorker(argc, argv))
        return RunWorker(argc, argv);
    return RunBenchmarks(argc, argv, [] {
        const auto add = [](const char* name, const auto& run) {
            benchmark::RegisterBenchmark(name, run)->Arg(5)->Iterations(1)->UseManualTime();
        };
        add("Flange/ours",
            [](benchmark::State& state) { Report(state, Solved().ours, Solved().ourBytes); });
        add("Flange/reference", [](benchmark::State& state) {
            Report(state, Solved().ours + Solved().programs, Solved().programBytes);
        });
    });
}
