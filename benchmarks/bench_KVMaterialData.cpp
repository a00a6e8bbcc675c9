#include "KVMaterialData.h"
#include "StoreFiles.h"

#include <benchmark/benchmark.h>

namespace {

const std::string UserFile = "UserMaterial.xml";

void Fill(int count)
{
    KVMaterialData* const store = KVMaterialData::GetInstance();
    store->ClearInfo();
    for (int i = 0; i < count; ++i) {
        auto* const record = new KVMaterialInfo;
        record->m_nType = MATERIAL_USER;
        record->m_strName = QStringLiteral("Structural steel S355 no. %1").arg(i);
        record->m_strElasticModulus = QStringLiteral("2.1e11");
        record->m_strPoisson = QStringLiteral("0.3");
        record->m_strDensity = QString::number(7800 + i % 100);
        store->AddMaterialInfo(record);
    }
}

void Read(benchmark::State& state)
{
    const Directory directory;
    Fill(int(state.range(0)));
    KVMaterialData* const store = KVMaterialData::GetInstance();
    store->WriteXML(UserFile);
    for (auto _ : state) {
        state.PauseTiming();
        store->ClearInfo();
        state.ResumeTiming();
        if (store->ReadXML(UserFile, MATERIAL_USER) != 0)
            state.SkipWithError("the file was not read");
    }
}

void BareRead(benchmark::State& state)
{
    const Directory directory;
    Fill(int(state.range(0)));
    KVMaterialData::GetInstance()->WriteXML(UserFile);
    for (auto _ : state)
        ReadBare(QString::fromStdString(UserFile));
}

void Write(benchmark::State& state)
{
    const Directory directory;
    Fill(int(state.range(0)));
    for (auto _ : state) {
        if (KVMaterialData::GetInstance()->WriteXML(UserFile) != 0)
            state.SkipWithError("the file was not written");
    }
}

void BareWrite(benchmark::State& state)
{
    const Directory directory;
    Fill(int(state.range(0)));
    KVMaterialData::GetInstance()->WriteXML(UserFile);
    const BareTokens tokens = LoadTokens(QString::fromStdString(UserFile));
    for (auto _ : state)
        WriteBare(QStringLiteral("bare.xml"), tokens);
}

void LookUp(benchmark::State& state)
{
    Fill(int(state.range(0)));
    const KVMaterialData* const store = KVMaterialData::GetInstance();
    for (auto _ : state) {
        const QStringList names = store->GetMaterialNameList();
        for (const QString& name : names)
            benchmark::DoNotOptimize(store->GetMaterialInfo(name));
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
