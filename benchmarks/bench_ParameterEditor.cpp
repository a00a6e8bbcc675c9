#include "GlobalParaMeterMgr.h"
#include "LocalText.h"
#include "ParameterEditor.h"
#include "RunBenchmarks.h"

#include <QComboBox>
#include <QTableWidget>
#include <QVBoxLayout>

#include <benchmark/benchmark.h>

#include <memory>

// Apply, where half of the parameters have expressions, compared with clearing and refilling a full
// bare table of the same size with the same items and combo boxes. Both windows are visible, and
// destroying old combo boxes is part of the measured time.
//
// Close is OK in the dialog loop, until the editor is destroyed.

namespace {

void FillStore(int count)
{
    GlobalParaMeterMgr::m_nameMapParameters.clear();
    for (int i = 0; i < count; ++i) {
        ParametersDef record;
        record.m_strName = QStringLiteral("p%1").arg(i);
        record.m_nType = ParametersDef::ScalarType;
        record.m_strValue = QString::number(i % 97 + 1);
        record.m_dValue = i % 97 + 1;
        record.m_strDescription = QStringLiteral("parameter %1").arg(i);
        if (i % 2 == 1) {
            record.m_strExpressPara = QStringLiteral("p%1").arg(i - 1);
            record.m_strExpression =
                record.m_strExpressPara.toStdString() + "*" + std::to_string(i % 7 + 2);
        }
        GlobalParaMeterMgr::AddParameter(record.m_strName, record);
    }
}

void DestroyOldCombos()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Refill(QTableWidget& table)
{
    table.clearContents();
    table.setRowCount(int(GlobalParaMeterMgr::m_nameMapParameters.size()));
    int row = 0;
    for (const auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters) {
        table.setItem(row, 0, new QTableWidgetItem(name));
        table.setItem(row, 1, new QTableWidgetItem(record.m_strValue));
        auto* const combo = new QComboBox;
        combo->addItem(QStringLiteral("Scalar"));
        combo->addItem(QStringLiteral("Vector"));
        combo->addItem(QStringLiteral("Tensor"));
        combo->addItem(QStringLiteral("Bool"));
        table.setCellWidget(row, 2, combo);
        table.setItem(row, 3, new QTableWidgetItem(tarn::FromLocal8Bit(record.m_strExpression)));
        table.setItem(row, 4, new QTableWidgetItem(record.m_strExpressPara));
        table.setItem(row, 5, new QTableWidgetItem(record.m_strDescription));
        ++row;
    }
}

void CountParameters(benchmark::State& state)
{
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void Apply(benchmark::State& state)
{
    FillStore(int(state.range(0)));
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    editor.show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        editor.m_Slot_Apply();
        DestroyOldCombos();
    }
    CountParameters(state);
}

void RefillBareTable(benchmark::State& state)
{
    FillStore(int(state.range(0)));
    QWidget window;
    window.resize(651, 300);
    auto* const table = new QTableWidget(0, 6);
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(table);
    Refill(*table);
    window.show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        Refill(*table);
        DestroyOldCombos();
    }
    CountParameters(state);
}

void Close(benchmark::State& state)
{
    FillStore(int(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        auto editor = std::make_unique<ParameterEditor>(nullptr);
        editor->m_Slot_RefreshGUI();
        editor->show();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        editor->m_Slot_OK();
        editor.reset();
    }
    CountParameters(state);
}

BENCHMARK(Apply)
    ->Name("Apply/ours")
    ->Arg(1000)
    ->Arg(5000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(RefillBareTable)
    ->Name("Apply/reference")
    ->Arg(1000)
    ->Arg(5000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Close)->Name("Close/ours")->Arg(5000)->Arg(40000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks(argc, argv);
}
