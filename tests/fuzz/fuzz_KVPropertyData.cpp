#include "InputFile.h"
#include "KVPropertyData.h"

// A file is read completely or not at all, and reading it again changes nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const InputFile input(data, size);
    KVPropertyData* const store = KVPropertyData::GetInstance();
    store->Clear();
    const int result = store->ReadXML(input.Path());
    const auto properties = store->GetProptyDataMap();
    if (result != 0 && !properties.empty())
        __builtin_trap();
    if (store->ReadXML(input.Path()) != result || store->GetProptyDataMap() != properties)
        __builtin_trap();
    for (const auto& entry : properties) {
        if (entry.second == nullptr || entry.second->m_strName != entry.first)
            __builtin_trap();
    }
    return 0;
}
