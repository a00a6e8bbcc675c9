#include "ModesTable.h"
#include "ResultFile.h"
#include "RunBenchmarks.h"

#include <benchmark/benchmark.h>

#include <random>

// Reads the files of results of the solver: displacements of ten modes, and the table of many.

namespace {

constexpr int Modes = 10;

QByteArray ResultText(int nodes)
{
    std::mt19937 random(1);
    QByteArray text = "    1C\n";
    for (int mode = 1; mode <= Modes; ++mode) {
        text += "  100CL  101" + QByteArray::number(100.0 * mode, 'E', 5).rightJustified(12) +
                QByteArray::number(nodes).rightJustified(12) +
                "                     2    1MODAL       1\n"
                " -4  DISP        4    1\n -5  D1          1    2    1    0\n";
        for (int node = 1; node <= nodes; ++node) {
            text += " -1" + QByteArray::number(node).rightJustified(10);
            for (int axis = 0; axis < 3; ++axis)
                text += QByteArray::number(double(random()) / 1e9 - 2.0, 'E', 5).rightJustified(12);
            text += '\n';
        }
        text += " -3\n";
    }
    return text + " 9999\n";
}

QByteArray TableText(int modes)
{
    QByteArray text = "     E I G E N V A L U E   O U T P U T\n\n MODE NO    EIGENVALUE\n\n";
    for (int mode = 1; mode <= modes; ++mode) {
        const QByteArray value = "   0.1234567E+0" + QByteArray::number(mode % 10);
        text += QByteArray::number(mode).rightJustified(7) + value + value + value +
                "   0.0000000E+00\n";
    }
    return text + "\n";
}

void ReadResults(benchmark::State& state)
{
    const QByteArray text = ResultText(int(state.range(0)));
    for (auto _ : state) {
        if (ReadResultFile(text).fields.size() != Modes)
            state.SkipWithError("fields are missing");
    }
}

void ReadTable(benchmark::State& state)
{
    const QByteArray text = TableText(int(state.range(0)));
    for (auto _ : state) {
        if (ReadModesTable(text).modes.size() != std::size_t(state.range(0)))
            state.SkipWithError("modes are missing");
    }
}

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks(argc, argv, [] {
        benchmark::RegisterBenchmark("Shapes/ours", ReadResults)
            ->Arg(100000)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark("Table/ours", ReadTable)
            ->Arg(1000)
            ->Unit(benchmark::kMillisecond);
    });
}
