#include "KVMaterialData.h"

#include <list>
#include <unordered_map>
#include <utility>

namespace {

struct Entry
{
    QString name; ///< What the store knows the record by, whatever a caller writes into it.
    KVMaterialInfo* record;
};

using Entries = std::list<Entry>;

} // namespace

struct KVMaterialData::Private
{
    Entries entries;
    std::unordered_map<QString, Entries::iterator> index;
    /// Every record of the store, with its entry; the end stands for one that has none any more.
    std::unordered_map<KVMaterialInfo*, Entries::iterator> owned;
    QString current;

    Private() = default;
    Private(const Private&) = delete;
    Private& operator=(const Private&) = delete;
    ~Private() { Clear(); }

    void Clear()
    {
        index.clear();
        entries.clear();
        for (const auto& record : owned)
            delete record.first;
        owned.clear();
    }

    void Remove(Entries::iterator entry)
    {
        owned[entry->record] = entries.end();
        index.erase(entry->name);
        entries.erase(entry);
    }

    void Add(KVMaterialInfo* record);
};

void KVMaterialData::Private::Add(KVMaterialInfo* record)
{
    const auto own = owned.emplace(record, entries.end()).first;
    const auto found = index.find(record->m_strName);
    const auto old = own->second;
    if (found == index.end()) {
        if (old == entries.end()) {
            own->second = entries.insert(entries.end(), {record->m_strName, record});
        } else {
            index.erase(old->name);
            old->name = record->m_strName;
        }
        index.emplace(record->m_strName, own->second);
        return;
    }

    const auto place = found->second;
    if (place == old)
        return;
    const bool isRefused =
        place->record->m_nType == MATERIAL_USER && record->m_nType != MATERIAL_USER;
    if (old != entries.end())
        Remove(old);
    if (isRefused)
        return;
    owned[place->record] = entries.end();
    place->record = record;
    owned[record] = place;
}

KVMaterialData::KVMaterialData()
    : m_d(std::make_unique<Private>())
{
}

KVMaterialData::~KVMaterialData() = default;

KVMaterialData* KVMaterialData::GetInstance()
{
    static auto* const instance = new KVMaterialData;
    return instance;
}

void KVMaterialData::ClearInfo()
{
    m_d->Clear();
}

int KVMaterialData::MapDataRow() const
{
    return int(m_d->entries.size());
}

QStringList KVMaterialData::GetMaterialNameList() const
{
    QStringList names;
    names.reserve(MapDataRow());
    for (const Entry& entry : m_d->entries)
        names << entry.name;
    return names;
}

KVMaterialInfo* KVMaterialData::GetMaterialInfo(const QString& name) const
{
    const auto found = m_d->index.find(name);
    return found == m_d->index.end() ? nullptr : found->second->record;
}

void KVMaterialData::AddMaterialInfo(KVMaterialInfo* material)
{
    if (material != nullptr)
        m_d->Add(material);
}

void KVMaterialData::RemoveItem(const QString& name)
{
    const auto found = m_d->index.find(name);
    if (found != m_d->index.end())
        m_d->Remove(found->second);
}

void KVMaterialData::setCurrentMaterialName(const QString& name)
{
    m_d->current = name;
}

QString KVMaterialData::CurrentMaterialName() const
{
    return m_d->current;
}

int KVMaterialData::ReadXML(const std::string& /*path*/, MATERIAL_TYPE /*type*/)
{
    return 1;
}

int KVMaterialData::WriteXML(const std::string& /*path*/)
{
    return 1;
}
