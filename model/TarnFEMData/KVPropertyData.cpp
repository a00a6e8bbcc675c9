#include "KVPropertyData.h"

#include <optional>
#include <unordered_map>

struct KVPropertyData::Private
{
    std::map<QString, CQLTElemPropDef*> records;
    /// Every record of the store, with its key; none for one that was replaced.
    std::unordered_map<CQLTElemPropDef*, std::optional<QString>> owned;

    Private() = default;
    Private(const Private&) = delete;
    Private& operator=(const Private&) = delete;
    ~Private() { Clear(); }

    void Clear()
    {
        records.clear();
        for (const auto& record : owned)
            delete record.first;
        owned.clear();
    }

    void Add(CQLTElemPropDef* record);
};

void KVPropertyData::Private::Add(CQLTElemPropDef* record)
{
    std::optional<QString>& key = owned[record];
    if (key)
        records.erase(*key);
    key = record->m_strName;

    CQLTElemPropDef*& place = records[*key];
    if (place != nullptr)
        owned[place].reset();
    place = record;
}

KVPropertyData::KVPropertyData()
    : m_d(std::make_unique<Private>())
{
}

KVPropertyData::~KVPropertyData() = default;

KVPropertyData* KVPropertyData::GetInstance()
{
    static auto* const instance = new KVPropertyData;
    return instance;
}

void KVPropertyData::AddPropInfo(CQLTElemPropDef* property)
{
    if (property != nullptr)
        m_d->Add(property);
}

std::map<QString, CQLTElemPropDef*> KVPropertyData::GetProptyDataMap() const
{
    return m_d->records;
}

CQLTElemPropDef* KVPropertyData::GetPropertyInfo(QString& name) const
{
    const auto found = m_d->records.find(name);
    return found == m_d->records.end() ? nullptr : found->second;
}

void KVPropertyData::Clear()
{
    m_d->Clear();
}

int KVPropertyData::ReadXML(const std::string& /*path*/)
{
    return 1;
}

int KVPropertyData::WriteXML(const std::string& /*path*/)
{
    return 1;
}
