#include "ConvergencePlot.h"
#include "MainEffectsPlot.h"
#include "ParallelPlot.h"
#include "ResultColumns.h"
#include "RunBenchmarks.h"
#include "ScatterMatrix.h"
#include "ScatterPlot.h"
#include "StudySelection.h"
#include "StudyTable.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

// Brings the plots of a study up to date after a change of the selection, or of the runs; and
// filters and sorts its table.

namespace {

constexpr QSize PlotSize(1000, 500);

/// Runs of three parameters and three results.
ResultColumns Runs(int count)
{
    ResultColumns columns({"a", "b", "c"}, {"mass_kg", "f1_hz", "ratio"});
    std::mt19937 random(1);
    const auto next = [&random] {
        return double(random()) / double(std::mt19937::max());
    };
    for (int run = 1; run <= count; ++run) {
        const double a = next();
        const double b = next();
        const double c = next();
        std::vector<QByteArray> cells = {QByteArray::number(run)};
        for (const double number : {a, b, c, a * b, a + c, b * b - c})
            cells.push_back(QByteArray::number(number, 'g', 17));
        cells.emplace_back("ok");
        cells.emplace_back("");
        columns.Take(cells);
    }
    return columns;
}

std::vector<int> Every(int step, int count)
{
    std::vector<int> rows;
    for (int row = 0; row < count; row += step)
        rows.push_back(row);
    return rows;
}

/// Another selection, until it is painted.
template<class Plot>
void Redraw(benchmark::State& state)
{
    StudySelection selection;
    StudyTable table(selection);
    const int count = int(state.range(0));
    table.Take(Runs(count));
    Plot plot(table, selection, nullptr);
    plot.resize(PlotSize);
    plot.show();
    QApplication::processEvents();
    bool isFirst = false;
    constexpr int Tenth = 10;
    for (auto _ : state) {
        isFirst = !isFirst;
        selection.Set(Every(isFirst ? Tenth : Tenth + 1, count));
        benchmark::DoNotOptimize(plot.grab());
    }
}

/// Other runs, until they are painted.
template<class Plot>
void Update(benchmark::State& state)
{
    StudySelection selection;
    StudyTable table(selection);
    table.Take(Runs(int(state.range(0))));
    Plot plot(table, selection, nullptr);
    plot.resize(PlotSize);
    plot.show();
    QApplication::processEvents();
    for (auto _ : state) {
        table.sort(1);
        QApplication::processEvents();
        benchmark::DoNotOptimize(plot.grab());
    }
}

void Filter(benchmark::State& state)
{
    StudySelection selection;
    StudyTable table(selection);
    table.Take(Runs(int(state.range(0))));
    for (auto _ : state)
        table.SetFilter(QStringLiteral("mass_kg < 0.5 && f1_hz > 0.5"));
}

void Sort(benchmark::State& state)
{
    StudySelection selection;
    StudyTable table(selection);
    table.Take(Runs(int(state.range(0))));
    int column = 0;
    constexpr int Columns = 6;
    for (auto _ : state)
        table.sort(1 + column++ % Columns);
}

template<class Plot>
void Register(const std::string& name)
{
    constexpr int Points = 10000;
    benchmark::RegisterBenchmark((name + "Select/ours").c_str(), Redraw<Plot>)
        ->Arg(Points)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark((name + "Update/ours").c_str(), Update<Plot>)
        ->Arg(Points)
        ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks(argc, argv, [] {
        Register<ScatterPlot>("Scatter");
        Register<ScatterMatrix>("Matrix");
        Register<ParallelPlot>("Parallel");
        Register<ConvergencePlot>("Convergence");
        Register<MainEffectsPlot>("MainEffects");
        constexpr int ManyRuns = 200000;
        benchmark::RegisterBenchmark("Filter/ours", Filter)
            ->Arg(ManyRuns)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark("Sort/ours", Sort)
            ->Arg(ManyRuns)
            ->Unit(benchmark::kMillisecond);
    });
}
