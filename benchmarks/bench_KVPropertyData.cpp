#include "KVPropertyData.h"
#include "StoreFiles.h"

namespace {

struct Properties
{
    static constexpr char File[] = "ElementProperty.xml";

    static KVPropertyData& Store() { return *KVPropertyData::GetInstance(); }

    static void Clear() { Store().Clear(); }

    static void Add(int i)
    {
        auto* const record = new CQLTElemPropDef;
        record->m_strName = QStringLiteral("Flange plate no. %1").arg(i);
        record->m_strMaterialName = QStringLiteral("Structural steel S355");
        record->m_dThickness = 0.001 * i;
        record->m_strTypeName = QStringLiteral("Shell");
        record->m_nTypeCode = CQLTElemPropDef::ShellType;
        Store().AddPropInfo(record);
    }

    static bool Read() { return Store().ReadXML(File) == 0; }

    static bool Write() { return Store().WriteXML(File) == 0; }

    static void LookUpAll()
    {
        for (const auto& entry : Store().GetProptyDataMap()) {
            QString name = entry.first;
            benchmark::DoNotOptimize(Store().GetPropertyInfo(name));
        }
    }
};

} // namespace

int main(int argc, char** argv)
{
    return RunStoreBenchmarks<Properties>(argc, argv);
}
