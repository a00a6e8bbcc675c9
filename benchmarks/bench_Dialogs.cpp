#include "DialogCatalogue.h"
#include "RunBenchmarks.h"

#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <string>

namespace {

// Constructing and destroying each dialog, and its bare form as the reference. The stores are empty
// and the working directory contains no files, so that only the dialog itself is measured.
template<class Result>
void Register(const std::string& name, Result (*construct)())
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
        for (const CatalogueEntry& entry : DialogCatalogue()) {
            if (entry.makeForm == nullptr)
                continue;
            const std::string name = entry.name;
            Register(name + "/ours/1", entry.make);
            Register(name + "/reference/1", entry.makeForm);
        }
    });
}
