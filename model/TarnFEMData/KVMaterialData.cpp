#include "KVMaterialData.h"

#include "SafeFile.h"
#include "WholeFile.h"
#include "XmlRecords.h"

#include <QSet>
#include <QVector>

#include <list>
#include <unordered_map>
#include <utility>
#include <vector>

namespace {

struct Entry
{
    QString name; ///< The record's name in the store, whatever a caller writes into the record.
    KVMaterialInfo* record;
};

using Entries = std::list<Entry>;

enum Field
{
    FIELD_NAME,
    FIELD_ELASTIC_MODULUS,
    FIELD_POISSON,
    FIELD_DENSITY,
    FIELD_LIB_ELASTIC_MODULUS,
    FIELD_LIB_POISSON,
    FIELD_LIB_DENSITY
};

const tarn::XmlFormat& Format()
{
    static const tarn::XmlFormat format = {
        QStringLiteral("Materials"),
        QStringLiteral("SI"),
        QStringLiteral("Material"),
        {QStringLiteral("name"), QStringLiteral("elasticModulus"), QStringLiteral("poisson"),
         QStringLiteral("density")},
        {QStringLiteral("libElasticModulus"), QStringLiteral("libPoisson"),
         QStringLiteral("libDensity")}};
    return format;
}

std::unique_ptr<KVMaterialInfo> MakeRecord(std::vector<QString>& texts, MATERIAL_TYPE type)
{
    auto record = std::make_unique<KVMaterialInfo>();
    record->m_nType = type;
    record->m_strName.swap(texts[FIELD_NAME]);
    if (type == MATERIAL_SYSTEM) {
        record->m_strLibElasticModulus.swap(texts[FIELD_ELASTIC_MODULUS]);
        record->m_strLibPoisson.swap(texts[FIELD_POISSON]);
        record->m_strLibDensity.swap(texts[FIELD_DENSITY]);
        return record;
    }
    record->m_strElasticModulus.swap(texts[FIELD_ELASTIC_MODULUS]);
    record->m_strPoisson.swap(texts[FIELD_POISSON]);
    record->m_strDensity.swap(texts[FIELD_DENSITY]);
    record->m_strLibElasticModulus.swap(texts[FIELD_LIB_ELASTIC_MODULUS]);
    record->m_strLibPoisson.swap(texts[FIELD_LIB_POISSON]);
    record->m_strLibDensity.swap(texts[FIELD_LIB_DENSITY]);
    return record;
}

bool AreDistinct(const QVector<QString>& names)
{
    QSet<QString> distinct;
    distinct.reserve(names.size());
    for (const QString& name : names)
        distinct.insert(name);
    return distinct.size() == names.size();
}

} // namespace

struct KVMaterialData::Private
{
    Entries entries;
    std::unordered_map<QString, Entries::iterator> index;
    /// Every record of the store with its entry, or the end if it no longer has one.
    std::unordered_map<KVMaterialInfo*, Entries::iterator> owned;
    tarn::SafeFile files;
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
    /// Enters what was read. Returns whether its name is new.
    bool TakeOver(std::unique_ptr<KVMaterialInfo> record);
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

// A record already in the store keeps its object, so that reading a file repeatedly takes no more
// memory.
bool KVMaterialData::Private::TakeOver(std::unique_ptr<KVMaterialInfo> record)
{
    const auto found = index.find(record->m_strName);
    if (found == index.end()) {
        Add(record.release());
        return true;
    }
    KVMaterialInfo& held = *found->second->record;
    if (held.m_nType != MATERIAL_USER || record->m_nType == MATERIAL_USER)
        held = std::move(*record);
    return false;
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
    m_d->files.Clear();
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

int KVMaterialData::ReadXML(const std::string& path, MATERIAL_TYPE type)
{
    const QString file = QString::fromLocal8Bit(path.c_str());
    QByteArray content;
    if (!tarn::WholeFile(file).Read(content))
        return -1;
    std::vector<std::unique_ptr<KVMaterialInfo>> records;
    const tarn::XmlReading reading =
        tarn::ReadRecords(Format(), content, [&records, type](std::vector<QString>& texts) {
            records.push_back(MakeRecord(texts, type));
            return true;
        });
    if (reading == tarn::XmlReading::Refused)
        return -1;

    QVector<QString> names;
    names.reserve(int(records.size()));
    m_d->index.reserve(m_d->index.size() + records.size());
    m_d->owned.reserve(m_d->owned.size() + records.size());
    bool isEachNew = true;
    for (auto& record : records) {
        names << record->m_strName;
        isEachNew = m_d->TakeOver(std::move(record)) && isEachNew;
    }
    // Content that the store would not write again is not remembered: a system library, or the
    // earlier of two materials of one name.
    if (type == MATERIAL_USER && reading == tarn::XmlReading::Fully &&
        (isEachNew || AreDistinct(names)))
        m_d->files.Remember(file, content);
    return 0;
}

int KVMaterialData::WriteXML(const std::string& path)
{
    auto entry = m_d->entries.cbegin();
    const auto next = [this, &entry](std::vector<QString>& texts) {
        while (entry != m_d->entries.cend() && entry->record->m_nType != MATERIAL_USER)
            ++entry;
        if (entry == m_d->entries.cend())
            return false;
        texts[FIELD_NAME] = entry->name;
        texts[FIELD_ELASTIC_MODULUS] = entry->record->m_strElasticModulus;
        texts[FIELD_POISSON] = entry->record->m_strPoisson;
        texts[FIELD_DENSITY] = entry->record->m_strDensity;
        texts[FIELD_LIB_ELASTIC_MODULUS] = entry->record->m_strLibElasticModulus;
        texts[FIELD_LIB_POISSON] = entry->record->m_strLibPoisson;
        texts[FIELD_LIB_DENSITY] = entry->record->m_strLibDensity;
        ++entry;
        return true;
    };
    QByteArray content;
    const bool isDone = tarn::WriteRecords(Format(), content, next) &&
                        m_d->files.Write(QString::fromLocal8Bit(path.c_str()), content);
    return isDone ? 0 : -1;
}
