#include "FeatureBuilder.h"
#include "FlangeByHand.h"
#include "GlobalParaMeterMgr.h"
#include "ParameterEvaluator.h"
#include "Project.h"
#include "RunBenchmarks.h"

#include <benchmark/benchmark.h>

// Rebuilding the sample flange for the runs of a study from its features and conditions, compared
// with the same kernel calls written by hand for this part.

namespace {

void Store(const char* name, double value)
{
    ParametersDef& record = GlobalParaMeterMgr::m_nameMapParameters[QLatin1String(name)];
    record.m_dValue = value;
    record.m_varRawValue = value;
}

// Each run has another bore and thickness, as in a study.
void ChooseRun(int run)
{
    Store("bore_diameter", 60.0 + 2.0 * (run % 10));
    Store("thickness", 16.0 + run / 10 % 10);
    ParameterEvaluator::Evaluate();
}

template<class Builder>
void Regenerate(benchmark::State& state, const Project& project, const Builder& build)
{
    project.FillParameterStore();
    for (auto _ : state) {
        for (int run = 0; run < int(state.range(0)); ++run) {
            ChooseRun(run);
            if (build().IsNull())
                state.SkipWithError("a part was not built");
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks(argc, argv, [] {
        const auto add = [project = Project::Load(Project::SamplePath())](const char* name,
                                                                          auto build) {
            const auto regenerate = [project, build](benchmark::State& state) {
                Regenerate(state, project, [&] { return build(project); });
            };
            benchmark::RegisterBenchmark(name, regenerate)->Arg(100)->Unit(benchmark::kMillisecond);
        };
        add("Flange/ours", [](const Project& project) {
            ResultCache cache;
            return FeatureBuilder(cache).Build(project.Plan()).shape;
        });
        add("Flange/reference", [](const Project&) { return FlangeByHand(); });
    });
}
