#include "Bodies.h"
#include "FeatureBuilder.h"
#include "FlangeByHand.h"
#include "ParameterEvaluator.h"
#include "Project.h"
#include "RunBenchmarks.h"
#include "ShapeMeasures.h"

#include <TopoDS_Shape.hxx>
#include <gp_Ax1.hxx>
#include <gp_Trsf.hxx>

#include <benchmark/benchmark.h>

#include <vector>

// Measuring the sample flange and arrays of it, compared with the kernel's functions for the whole
// part.

namespace {

// Around a circle, far enough from each other.
TopoDS_Shape Copies(const TopoDS_Shape& body, int count)
{
    std::vector<TopoDS_Shape> copies;
    copies.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        gp_Trsf rotation;
        rotation.SetRotation(gp_Ax1(gp_Pnt(100.0 * count, 0.0, 0.0), gp_Dir(0.0, 0.0, 1.0)),
                             6.28 * i / count);
        copies.push_back(body.Moved(TopLoc_Location(rotation)));
    }
    return Compound(copies);
}

template<class Measuring>
void Run(benchmark::State& state, const TopoDS_Shape& flange, const Measuring& measuring)
{
    const TopoDS_Shape shape = Copies(flange, int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(measuring(shape));
}

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks(argc, argv, [] {
        const Project project = Project::Load(Project::SamplePath());
        project.FillParameterStore();
        ParameterEvaluator::Evaluate();
        const auto add = [flange = FeatureBuilder::Build(project.Features()).shape](
                             const char* name, auto measuring) {
            const auto run = [flange, measuring](benchmark::State& state) {
                Run(state, flange, measuring);
            };
            benchmark::RegisterBenchmark(name, run)->Arg(1)->Arg(100)->Unit(
                benchmark::kMillisecond);
        };
        add("Flange/ours", [](const TopoDS_Shape& shape) { return Measure(shape).volume; });
        add("Flange/reference", MeasureByHand);
    });
}
