#include "DialogList.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <string>

namespace {

void Register(const std::string& name, void (*construct)())
{
    const auto run = [construct](benchmark::State& state) {
        for (auto _ : state)
            construct();
    };
    benchmark::RegisterBenchmark(name.c_str(), run)->Unit(benchmark::kMicrosecond);
}

} // namespace

int main(int argc, char** argv)
{
    RunOffscreen();
    QApplication application(argc, argv);
    const QTemporaryDir directory;
    QDir::setCurrent(directory.path());
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    ForEachDialog([](const std::string& name, void (*dialog)(), void (*form)()) {
        Register(name + "/ours/1", dialog);
        Register(name + "/reference/1", form);
    });
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
