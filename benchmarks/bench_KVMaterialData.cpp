#include "KVMaterialData.h"
#include "StoreFiles.h"

namespace {

struct Materials
{
    static constexpr char File[] = "UserMaterial.xml";

    static KVMaterialData& Store() { return *KVMaterialData::GetInstance(); }

    static void Clear() { Store().ClearInfo(); }

    static void Add(int i)
    {
        auto* const record = new KVMaterialInfo;
        record->m_nType = MATERIAL_USER;
        record->m_strName = QStringLiteral("Structural steel S355 no. %1").arg(i);
        record->m_strElasticModulus = QStringLiteral("2.1e11");
        record->m_strPoisson = QStringLiteral("0.3");
        record->m_strDensity = QString::number(7800 + i % 100);
        Store().AddMaterialInfo(record);
    }

    static bool Read() { return Store().ReadXML(File, MATERIAL_USER) == 0; }

    static bool Write() { return Store().WriteXML(File) == 0; }

    static void LookUpAll()
    {
        const QStringList names = Store().GetMaterialNameList();
        for (const QString& name : names)
            benchmark::DoNotOptimize(Store().GetMaterialInfo(name));
    }
};

} // namespace

int main(int argc, char** argv)
{
    return RunStoreBenchmarks<Materials>(argc, argv);
}
