#include "FeatureBuilder.h"
#include "ParameterEvaluator.h"
#include "Project.h"
#include "RunBenchmarks.h"
#include "StepFile.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <QTemporaryDir>
#include <STEPControl_Writer.hxx>
#include <TopoDS_Shape.hxx>

#include <benchmark/benchmark.h>

// Exporting the sample flange, which reads the file back and compares, compared with the kernel's
// writer alone.

namespace {

template<class Export>
void Run(benchmark::State& state, const Export& write)
{
    const QTemporaryDir directory;
    for (auto _ : state)
        write(directory.filePath(QStringLiteral("flange.step")));
}

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks(argc, argv, [] {
        Message::DefaultMessenger()->ChangePrinters().Clear();
        const Project project = Project::Load(Project::SamplePath());
        project.FillParameterStore();
        ParameterEvaluator::Evaluate();
        const auto add = [](const char* name, auto write) {
            const auto run = [write](benchmark::State& state) {
                Run(state, write);
            };
            benchmark::RegisterBenchmark(name, run)->Arg(1)->Unit(benchmark::kMillisecond);
        };
        const TopoDS_Shape flange = FeatureBuilder::Build(project.Features()).shape;
        add("Export/ours", [flange](const QString& path) { WriteStepFile(flange, path); });
        add("Export/reference", [flange](const QString& path) {
            STEPControl_Writer writer;
            writer.Transfer(flange, STEPControl_AsIs);
            writer.Write(path.toUtf8().constData());
        });
    });
}
