#include "DrilledPlate.h"
#include "FeatureBuilder.h"
#include "GlobalParaMeterMgr.h"
#include "KernelWorker.h"
#include "ParameterEvaluator.h"
#include "Project.h"
#include "RunBenchmarks.h"
#include "Triangles.h"
#include "WorkerProcess.h"

#include <benchmark/benchmark.h>

// Building in the worker process, compared with building in this one; and a change of the last
// feature of a long list, compared with building the whole list.

namespace {

// Each run has another bore and thickness, as in a study.
void ChooseRun(int run)
{
    const auto store = [](const char* name, double value) {
        ParametersDef& record = GlobalParaMeterMgr::m_nameMapParameters[QLatin1String(name)];
        record.m_dValue = value;
        record.m_varRawValue = value;
    };
    store("bore_diameter", 60.0 + 2.0 * (run % 10));
    store("thickness", 16.0 + run / 10 % 10);
    ParameterEvaluator::Evaluate();
}

// The sample flange, as the window wants it: with all shapes, and with triangles.
template<class Build>
void BuildFlanges(benchmark::State& state, const Build& build)
{
    const Project project = Project::Load(Project::SamplePath());
    project.FillParameterStore();
    for (auto _ : state) {
        for (int run = 0; run < int(state.range(0)); ++run) {
            ChooseRun(run);
            PartRequest request;
            request.plan = project.Plan();
            if (build(request).part.shape.IsNull())
                state.SkipWithError("a part was not built");
        }
    }
}

PartReply BuiltHere(const PartRequest& request)
{
    ResultCache cache;
    PartReply reply;
    reply.part = FeatureBuilder(cache).Build(request.plan);
    reply.measures = Measure(reply.part.shape);
    AddTriangles(reply.part.shape);
    return reply;
}

// Each time with another radius of the last hole.
template<class BeforeEach>
void Drill(benchmark::State& state, const BeforeEach& beforeEach)
{
    constexpr int Holes = 66; // 199 features.
    KernelWorker worker;
    PartRequest request;
    request.plan = PlanPart(Drilled(Holes, QStringLiteral("8")));
    BuiltPart known = worker.Run(request).part;
    double radius = 8.0;
    for (auto _ : state) {
        radius += 0.01;
        request.plan = PlanPart(Drilled(Holes, QString::number(radius)));
        beforeEach(worker, known);
        PartReply reply = worker.Run(request, known);
        if (reply.part.shape.IsNull())
            state.SkipWithError("a part was not built");
        known = reply.part;
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (IsWorker(argc, argv))
        return RunWorker(argc, argv);
    return RunBenchmarks(argc, argv, [] {
        const auto add = [](const char* name, int size, const auto& run) {
            benchmark::RegisterBenchmark(name, run)
                ->Arg(size)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime();
        };
        add("Flange/ours", 100, [](benchmark::State& state) {
            KernelWorker worker;
            BuildFlanges(state, [&](const PartRequest& request) { return worker.Run(request); });
        });
        add("Flange/reference", 100,
            [](benchmark::State& state) { BuildFlanges(state, BuiltHere); });
        add("LastFeature/ours", 199,
            [](benchmark::State& state) { Drill(state, [](KernelWorker&, BuiltPart&) {}); });
        add("LastFeature/reference", 199, [](benchmark::State& state) {
            Drill(state, [](KernelWorker& worker, BuiltPart& known) {
                worker.SetLimits({}); // Starts a new process, without results.
                known = {};
            });
        });
    });
}
