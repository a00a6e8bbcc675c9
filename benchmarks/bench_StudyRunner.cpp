#include "FeatureBuilder.h"
#include "FlangeByHand.h"
#include "Project.h"
#include "RunBenchmarks.h"
#include "ShapeMeasures.h"
#include "Study.h"
#include "StudyRunner.h"
#include "WorkerProcess.h"

#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sys/resource.h>

// A study of the sample flange without STEP files, compared with the same parts in this process and
// without folder, journal and table: built from the same features, and with kernel calls written by
// hand.

namespace {

constexpr int Runs = 100;

// Of this process and of all children that have ended, in s.
double ProcessorTime()
{
    double seconds = 0.0;
    for (const auto who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage usage{};
        getrusage(who, &usage);
        for (const timeval& time : {usage.ru_utime, usage.ru_stime})
            seconds += double(time.tv_sec) + 1e-6 * double(time.tv_usec);
    }
    return seconds;
}

Project FlangeStudy()
{
    Project project = Project::Load(Project::SamplePath());
    SampleList bore;
    bore.parameter = QStringLiteral("bore_diameter");
    bore.values = {60.0, 80.0};
    SampleList thickness;
    thickness.parameter = QStringLiteral("thickness");
    thickness.values = {16.0, 24.0};
    project.SetSampleLists({bore, thickness});
    StudyDefinition study;
    study.design = StudyDefinition::LatinHypercube;
    study.runs = Runs;
    project.SetStudy(study);
    return project;
}

bool RunStudy(const Project& project)
{
    const QTemporaryDir folder;
    StudyRunner::Options options;
    options.directory = QDir(folder.path()).filePath(QStringLiteral("out"));
    options.hasSteps = false;
    return StudyRunner(project, options, [](const QString&) {}).Run().ok == Runs;
}

template<class Build>
bool RunHere(const Project& project, const Build& build)
{
    const Study study(project);
    for (int run = 1; run <= study.RunCount(); ++run) {
        if (!study.Choose(run).isEmpty() || !build())
            return false;
    }
    return true;
}

bool BuildFeatures(const Project& project)
{
    ResultCache cache;
    return RunHere(project, [&] {
        const TopoDS_Shape part = FeatureBuilder(cache).Build(project.Plan()).shape;
        return Measure(part).volume > 0.0;
    });
}

bool BuildByHand(const Project& project)
{
    return RunHere(project, [] { return MeasureByHand(FlangeByHand()) > 0.0; });
}

} // namespace

int main(int argc, char** argv)
{
    if (IsWorker(argc, argv))
        return RunWorker(argc, argv);
    return RunBenchmarks(argc, argv, [] {
        const auto add = [project = FlangeStudy()](const char* name, auto work) {
            const auto run = [project, work](benchmark::State& state) {
                for (auto _ : state) {
                    const double before = ProcessorTime();
                    if (!work(project))
                        state.SkipWithError("a run failed");
                    state.SetIterationTime(ProcessorTime() - before);
                }
            };
            benchmark::RegisterBenchmark(name, run)
                ->Arg(Runs)
                ->Unit(benchmark::kMillisecond)
                ->UseManualTime();
        };
        add("OurShare/ours", RunStudy);
        add("OurShare/reference", BuildFeatures);
        add("ByHand/ours", RunStudy);
        add("ByHand/reference", BuildByHand);
    });
}
