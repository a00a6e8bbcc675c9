#include "OneParameterDlg.h"
#include "RunBenchmarks.h"
#include "sParaArrayData.h"

#include <QTableWidget>

#include <benchmark/benchmark.h>

#include <cmath>

// Regenerating the samples, compared with a loop that inserts a row and sets its item. Both tables
// are visible, and emptying them is part of the measured time.

namespace {

constexpr double Step = 0.37;

void RefreshTableData(benchmark::State& state)
{
    const int samples = int(state.range(0));
    sParaArrayData& record = g_mapParaArrays[QStringLiteral("a")];
    record.dMin = 1.0;
    record.dMax = 1.0 + Step * (samples - 0.5);
    record.dDelta = Step;
    record.nSampleType = SampleSpacing::Ln;
    OneParameterDlg dialog(nullptr, QStringLiteral("a"));
    dialog.show();
    QCoreApplication::processEvents();
    for (auto _ : state)
        dialog.RefreshTableData();
    if (dialog.findChild<QTableWidget*>()->rowCount() != samples)
        state.SkipWithError("not the samples that were asked for");
}

void InsertRows(benchmark::State& state)
{
    const int samples = int(state.range(0));
    QTableWidget table(0, 1);
    table.show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        table.setRowCount(0);
        double x = 1.0;
        for (int row = 0; row < samples; ++row) {
            table.insertRow(row);
            const QString text = QString::number(std::log(x), 'g', 6);
            table.setItem(row, 0, new QTableWidgetItem(text));
            x += Step;
        }
    }
}

BENCHMARK(RefreshTableData)
    ->Name("Samples/ours")
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(InsertRows)
    ->Name("Samples/reference")
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks(argc, argv);
}
