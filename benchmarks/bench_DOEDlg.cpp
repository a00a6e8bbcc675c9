#include "DOEDlg.h"
#include "GlobalParaMeterMgr.h"
#include "RunBenchmarks.h"
#include "sParaArrayData.h"

#include <QPushButton>
#include <QTableWidget>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <array>
#include <cmath>
#include <memory>

// "Refresh Data" with five ticked parameters, compared with filling a plain table with the same
// texts. Both tables are visible and empty when the timer starts. "bytes" is the heap memory of a
// full table.
//
// Open is the dialog for a store of parameters, until it is visible.

namespace {

constexpr int Columns = 5;

// Five sample lists of the same length; their combinations are the runs.
std::array<std::vector<double>, Columns> SampleLists(int runs)
{
    const int length = int(std::lround(std::pow(runs, 1.0 / Columns)));
    std::array<std::vector<double>, Columns> lists;
    for (int column = 0; column < Columns; ++column) {
        for (int i = 0; i < length; ++i)
            lists[std::size_t(column)].push_back(0.173 + 11.37 * column + i / 7.0);
    }
    return lists;
}

double HeapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

void RefreshData(benchmark::State& state)
{
    const int runs = int(state.range(0));
    const auto lists = SampleLists(runs);
    g_mapParaArrays.clear();
    for (int column = 0; column < Columns; ++column) {
        sParaArrayData& record = g_mapParaArrays[QStringLiteral("p%1").arg(column)];
        record.strName = QStringLiteral("p%1").arg(column);
        record.vecValues = lists[std::size_t(column)];
    }
    DOEDlg dialog(nullptr);
    dialog.show();
    QCoreApplication::processEvents();
    auto& table = *dialog.findChild<QTableWidget*>(QStringLiteral("tableWidget_Final"));
    auto& refresh = *dialog.findChild<QPushButton*>(QStringLiteral("pushButton_RefreshData"));
    const auto build = [&refresh](bool ticked) {
        for (auto& entry : g_mapParaArrays)
            entry.second.bChecked = ticked ? 1 : 0;
        refresh.click();
    };

    const double before = HeapBytes();
    build(true);
    state.counters["bytes"] = HeapBytes() - before;
    for (auto _ : state) {
        state.PauseTiming();
        build(false);
        state.ResumeTiming();
        build(true);
    }
    if (table.rowCount() != runs)
        state.SkipWithError("not the runs that were asked for");
    g_mapParaArrays.clear();
}

// A bare item in each cell: the memory of a table of items before they hold any text.
QTableWidgetItem* BareItem(double /*value*/)
{
    return new QTableWidgetItem;
}

QTableWidgetItem* TextItem(double value)
{
    return new QTableWidgetItem(QString::number(value, 'g', 6));
}

template<QTableWidgetItem* (*MakeItem)(double)>
void FillPlainTable(benchmark::State& state)
{
    const int runs = int(state.range(0));
    const auto lists = SampleLists(runs);
    QTableWidget table;
    table.show();
    QCoreApplication::processEvents();
    const auto fill = [&] {
        table.setColumnCount(Columns);
        table.setRowCount(runs);
        for (int column = 0; column < Columns; ++column)
            table.setHorizontalHeaderItem(column,
                                          new QTableWidgetItem(QStringLiteral("p%1").arg(column)));
        for (int row = 0; row < runs; ++row) {
            int position = row;
            for (int column = Columns - 1; column >= 0; --column) {
                const std::vector<double>& list = lists[std::size_t(column)];
                const double value = list[std::size_t(position) % list.size()];
                position /= int(list.size());
                table.setItem(row, column, MakeItem(value));
            }
        }
    };

    const double before = HeapBytes();
    fill();
    state.counters["bytes"] = HeapBytes() - before;
    for (auto _ : state) {
        state.PauseTiming();
        table.clearContents();
        table.setRowCount(0);
        table.setColumnCount(0);
        state.ResumeTiming();
        fill();
    }
}

void Open(benchmark::State& state)
{
    for (int i = 0; i < int(state.range(0)); ++i) {
        ParametersDef record;
        record.m_strName = QStringLiteral("p%1").arg(i);
        GlobalParaMeterMgr::AddParameter(record.m_strName, record);
    }
    for (auto _ : state) {
        auto dialog = std::make_unique<DOEDlg>(nullptr);
        dialog->show();
        QCoreApplication::processEvents();
        state.PauseTiming();
        dialog.reset();
        state.ResumeTiming();
    }
    GlobalParaMeterMgr::m_nameMapParameters.clear();
}

constexpr int Runs = 100000;

BENCHMARK(RefreshData)->Name("RunTable/ours")->Arg(Runs)->Unit(benchmark::kMillisecond);
BENCHMARK(FillPlainTable<TextItem>)
    ->Name("RunTable/reference")
    ->Arg(Runs)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(FillPlainTable<BareItem>)
    ->Name("BareItems/ours")
    ->Arg(Runs)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(FillPlainTable<TextItem>)
    ->Name("BareItems/reference")
    ->Arg(Runs)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Open)->Name("Open/ours")->Arg(5000)->Arg(40000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks(argc, argv);
}
