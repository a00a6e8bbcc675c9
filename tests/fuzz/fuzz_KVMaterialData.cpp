#include "InputFile.h"
#include "KVMaterialData.h"

// Whatever its type, a file is read completely or not at all.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const InputFile input(data, size);
    KVMaterialData* const store = KVMaterialData::GetInstance();
    store->ClearInfo();
    const int asUser = store->ReadXML(input.Path(), MATERIAL_USER);
    const QStringList names = store->GetMaterialNameList();
    if (asUser != 0 && !names.isEmpty())
        __builtin_trap();
    if (store->ReadXML(input.Path(), MATERIAL_SYSTEM) != asUser ||
        store->GetMaterialNameList() != names)
        __builtin_trap();
    for (const QString& name : names) {
        const KVMaterialInfo* const record = store->GetMaterialInfo(name);
        if (record == nullptr || record->m_strName != name || record->m_nType != MATERIAL_USER)
            __builtin_trap();
    }
    return 0;
}
