#include "KVPropertyData.h"
#include "StoreFiles.h"

#include <benchmark/benchmark.h>

namespace {

const std::string PropertyFile = "ElementProperty.xml";

void Fill(int count)
{
    KVPropertyData* const store = KVPropertyData::GetInstance();
    store->Clear();
    for (int i = 0; i < count; ++i) {
        auto* const record = new CQLTElemPropDef;
        record->m_strName = QStringLiteral("Flange plate no. %1").arg(i);
        record->m_strMaterialName = QStringLiteral("Structural steel S355");
        record->m_dThickness = 0.001 * i;
        record->m_strTypeName = QStringLiteral("Shell");
        record->m_nTypeCode = 2;
        store->AddPropInfo(record);
    }
}

void Read(benchmark::State& state)
{
    const Directory directory;
    Fill(int(state.range(0)));
    KVPropertyData* const store = KVPropertyData::GetInstance();
    store->WriteXML(PropertyFile);
    for (auto _ : state) {
        state.PauseTiming();
        store->Clear();
        state.ResumeTiming();
        if (store->ReadXML(PropertyFile) != 0)
            state.SkipWithError("the file was not read");
    }
}

void BareRead(benchmark::State& state)
{
    const Directory directory;
    Fill(int(state.range(0)));
    KVPropertyData::GetInstance()->WriteXML(PropertyFile);
    for (auto _ : state)
        ReadBare(QString::fromStdString(PropertyFile));
}

void Write(benchmark::State& state)
{
    const Directory directory;
    Fill(int(state.range(0)));
    for (auto _ : state) {
        if (KVPropertyData::GetInstance()->WriteXML(PropertyFile) != 0)
            state.SkipWithError("the file was not written");
    }
}

void BareWrite(benchmark::State& state)
{
    const Directory directory;
    Fill(int(state.range(0)));
    KVPropertyData::GetInstance()->WriteXML(PropertyFile);
    const BareTokens tokens = LoadTokens(QString::fromStdString(PropertyFile));
    for (auto _ : state)
        WriteBare(QStringLiteral("bare.xml"), tokens);
}

void LookUp(benchmark::State& state)
{
    Fill(int(state.range(0)));
    const KVPropertyData* const store = KVPropertyData::GetInstance();
    for (auto _ : state) {
        for (const auto& entry : store->GetProptyDataMap()) {
            QString name = entry.first;
            benchmark::DoNotOptimize(store->GetPropertyInfo(name));
        }
    }
}

// NOLINTBEGIN
BENCHMARK(Read)
    ->Name("read/ours")
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(BareRead)
    ->Name("read/reference")
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(Write)
    ->Name("write/ours")
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(BareWrite)
    ->Name("write/reference")
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(LookUp)->Name("look up all")->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
// NOLINTEND

} // namespace

BENCHMARK_MAIN();
