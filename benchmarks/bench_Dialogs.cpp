#include "DialogList.h"
#include "RunBenchmarks.h"

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
    const QTemporaryDir directory;
    QDir::setCurrent(directory.path());
    return RunBenchmarks(argc, argv, [] {
        ForEachDialog([](const std::string& name, void (*dialog)(), void (*form)()) {
            Register(name + "/ours/1", dialog);
            Register(name + "/reference/1", form);
        });
    });
}
