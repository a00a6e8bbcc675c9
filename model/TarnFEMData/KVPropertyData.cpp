#include "KVPropertyData.h"

#include "SafeFile.h"
#include "WholeFile.h"
#include "XmlRecords.h"

#include <optional>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

namespace {

enum Field
{
    FIELD_NAME,
    FIELD_MATERIAL,
    FIELD_THICKNESS,
    FIELD_TYPE_NAME,
    FIELD_TYPE_CODE,
    FIELD_RESERVED
};

const tarn::XmlFormat& Format()
{
    static const tarn::XmlFormat format = {
        QStringLiteral("ElementProperties"),
        QStringLiteral("model"),
        QStringLiteral("ElementProperty"),
        {QStringLiteral("name"), QStringLiteral("material"), QStringLiteral("thickness"),
         QStringLiteral("typeName"), QStringLiteral("typeCode"), QStringLiteral("reserved")}};
    return format;
}

/// The record of those texts; null when one that should be a number is none. What is missing has
/// its default.
std::unique_ptr<CQLTElemPropDef> MakeRecord(std::vector<QString>& texts)
{
    auto record = std::make_unique<CQLTElemPropDef>();
    record->m_strName.swap(texts[FIELD_NAME]);
    record->m_strMaterialName.swap(texts[FIELD_MATERIAL]);
    record->m_strTypeName.swap(texts[FIELD_TYPE_NAME]);
    bool isThickness = true;
    bool isCode = true;
    bool isReserved = true;
    if (!texts[FIELD_THICKNESS].isNull())
        isThickness = tarn::ToNumber(texts[FIELD_THICKNESS], record->m_dThickness);
    if (!texts[FIELD_TYPE_CODE].isNull())
        record->m_nTypeCode = texts[FIELD_TYPE_CODE].toInt(&isCode);
    if (!texts[FIELD_RESERVED].isNull())
        record->m_nReserved = texts[FIELD_RESERVED].toLongLong(&isReserved);
    if (!isThickness || !isCode || !isReserved)
        record.reset();
    return record;
}

bool IsSame(const CQLTElemPropDef& one, const CQLTElemPropDef& other)
{
    const auto fields = [](const CQLTElemPropDef& record) {
        return std::tie(record.m_strName, record.m_nReserved, record.m_strMaterialName,
                        record.m_dThickness, record.m_strTypeName, record.m_nTypeCode);
    };
    return fields(one) == fields(other);
}

} // namespace

struct KVPropertyData::Private
{
    std::map<QString, CQLTElemPropDef*> records;
    /// Every record of the store with its key, or none if it was replaced.
    std::unordered_map<CQLTElemPropDef*, std::optional<QString>> owned;
    tarn::SafeFile files;

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
    /// Enters what was read unless its name is in the store. Returns whether the store then has
    /// exactly these values.
    bool TakeOver(std::unique_ptr<CQLTElemPropDef> record);
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

bool KVPropertyData::Private::TakeOver(std::unique_ptr<CQLTElemPropDef> record)
{
    // Files are written in the order of the map, so the place is usually the end.
    const auto count = records.size();
    const auto place = records.emplace_hint(records.end(), record->m_strName, record.get());
    if (records.size() == count)
        return IsSame(*place->second, *record);
    owned.emplace(record.release(), place->first);
    return true;
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

void KVPropertyData::RemovePropInfo(const QString& name)
{
    const auto found = m_d->records.find(name);
    if (found == m_d->records.end())
        return;
    m_d->owned[found->second].reset();
    m_d->records.erase(found);
}

std::map<QString, CQLTElemPropDef*> KVPropertyData::GetProptyDataMap() const
{
    return m_d->records;
}

CQLTElemPropDef* KVPropertyData::GetPropertyInfo(QString name) const
{
    const auto found = m_d->records.find(name);
    return found == m_d->records.end() ? nullptr : found->second;
}

void KVPropertyData::Clear()
{
    m_d->Clear();
    m_d->files.Clear();
}

int KVPropertyData::ReadXML(const std::string& path)
{
    const QString file = QString::fromLocal8Bit(path.c_str());
    QByteArray content;
    if (!tarn::WholeFile(file).Read(content))
        return -1;
    std::vector<std::unique_ptr<CQLTElemPropDef>> records;
    const tarn::XmlReading reading =
        tarn::ReadRecords(Format(), content, [&records](std::vector<QString>& texts) {
            records.push_back(MakeRecord(texts));
            return records.back() != nullptr;
        });
    if (reading == tarn::XmlReading::Refused)
        return -1;

    m_d->owned.reserve(m_d->owned.size() + records.size());
    bool isEachHeld = true;
    for (auto& record : records)
        isEachHeld = m_d->TakeOver(std::move(record)) && isEachHeld;
    // Values that differ from the store's would not be written again. If the user has edited the
    // store since, the file was remembered when it was read before.
    if (reading == tarn::XmlReading::Fully && isEachHeld)
        m_d->files.Remember(file, content);
    return 0;
}

int KVPropertyData::WriteXML(const std::string& path)
{
    auto entry = m_d->records.cbegin();
    const auto next = [this, &entry](std::vector<QString>& texts) {
        if (entry == m_d->records.cend())
            return false;
        const CQLTElemPropDef& record = *entry->second;
        // The key and not the record's name, which a refused edit may have emptied.
        texts[FIELD_NAME] = entry->first;
        texts[FIELD_MATERIAL] = record.m_strMaterialName;
        texts[FIELD_THICKNESS] = tarn::ToText(record.m_dThickness);
        texts[FIELD_TYPE_NAME] = record.m_strTypeName;
        texts[FIELD_TYPE_CODE] = QString::number(record.m_nTypeCode);
        texts[FIELD_RESERVED] = QString::number(record.m_nReserved);
        ++entry;
        return true;
    };
    QByteArray content;
    const bool isDone = tarn::WriteRecords(Format(), content, next) &&
                        m_d->files.Write(QString::fromLocal8Bit(path.c_str()), content);
    return isDone ? 0 : -1;
}
