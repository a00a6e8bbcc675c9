#include "AttributeRecords.h"

#include "AnalysisFiles.h"
#include "CQLTElemPropDef.h"
#include "FieldValues.h"
#include "KVPropertyData.h"
#include "NumberTexts.h"

#include <cmath>
#include <memory>
#include <set>

namespace {

// No thickness and no value count as 0, which the dialogs show.
double ValueOf(const QString& text)
{
    const double value = text.isEmpty() ? 0.0 : FieldValues().Evaluate(text);
    return std::isfinite(value) ? value : 0.0;
}

// The former text, if @p value is still its value.
QString TextOf(double value, const QString& former)
{
    return value == ValueOf(former) ? former : ExactText(value);
}

std::string LocalText(const QString& text)
{
    return text.toLocal8Bit().toStdString();
}

QString FromLocal(const std::string& text)
{
    return QString::fromLocal8Bit(text.c_str());
}

CQLTElemPropDef* NewRecord(const QString& name)
{
    auto record = std::make_unique<CQLTElemPropDef>();
    record->m_strName = name;
    record->m_strTypeName = QStringLiteral("Shell");
    record->m_nTypeCode = CQLTElemPropDef::ShellType;
    CQLTElemPropDef* const stored = record.release();
    KVPropertyData::GetInstance()->AddPropInfo(stored);
    return stored;
}

PropertyDefinition FromRecord(const CQLTElemPropDef& record, const QString& name,
                              const PropertyDefinition& former)
{
    PropertyDefinition property = former;
    property.name = name;
    property.material = record.m_strMaterialName;
    property.thickness = TextOf(record.m_dThickness, former.thickness);
    return property;
}

} // namespace

sConstrainData ToRecord(const ConstraintDefinition& constraint)
{
    const std::array<bool, ConstraintDefinition::Freedoms>& held = constraint.held;
    sConstrainData record;
    record.m_strName = LocalText(constraint.name);
    record.m_bXD = held[0];
    record.m_bYD = held[1];
    record.m_bZD = held[2];
    record.m_bXR = held[3];
    record.m_bYR = held[4];
    record.m_bZR = held[5];
    return record;
}

ConstraintDefinition FromRecord(const sConstrainData& record, const ConstraintDefinition& former)
{
    ConstraintDefinition constraint = former;
    constraint.name = FromLocal(record.m_strName);
    constraint.held = {record.m_bXD, record.m_bYD, record.m_bZD,
                       record.m_bXR, record.m_bYR, record.m_bZR};
    return constraint;
}

sLoadForceData ToRecord(const LoadDefinition& load)
{
    sLoadForceData record;
    record.m_strName = LocalText(load.name);
    record.m_nKind = sLoadForceData::ComponentKind;
    record.m_dFX = ValueOf(load.force[0]);
    record.m_dFY = ValueOf(load.force[1]);
    record.m_dFZ = ValueOf(load.force[2]);
    return record;
}

LoadDefinition FromRecord(const sLoadForceData& record, const LoadDefinition& former)
{
    LoadDefinition load = former;
    load.name = FromLocal(record.m_strName);
    load.force = {TextOf(record.m_dFX, former.force[0]), TextOf(record.m_dFY, former.force[1]),
                  TextOf(record.m_dFZ, former.force[2])};
    return load;
}

std::vector<PropertyDefinition> StoredProperties(const std::vector<PropertyDefinition>& former)
{
    std::map<QString, CQLTElemPropDef*> stored = KVPropertyData::GetInstance()->GetProptyDataMap();
    std::vector<PropertyDefinition> properties;
    for (const PropertyDefinition& property : former) {
        const auto found = stored.find(property.name);
        if (found == stored.end())
            continue;
        properties.push_back(FromRecord(*found->second, property.name, property));
        stored.erase(found);
    }
    for (const auto& [name, record] : stored)
        properties.push_back(FromRecord(*record, name, {}));
    return properties;
}

void StoreProperties(const std::vector<PropertyDefinition>& properties)
{
    for (const PropertyDefinition& property : properties) {
        CQLTElemPropDef* record = KVPropertyData::GetInstance()->GetPropertyInfo(property.name);
        if (record == nullptr)
            record = NewRecord(property.name);
        record->m_strMaterialName = property.material;
        record->m_dThickness = ValueOf(property.thickness);
    }
}

void RemoveOtherProperties(const std::vector<PropertyDefinition>& properties)
{
    KVPropertyData& store = *KVPropertyData::GetInstance();
    std::set<QString> names;
    for (const PropertyDefinition& property : properties)
        names.insert(property.name);
    bool isRemoved = false;
    const std::map<QString, CQLTElemPropDef*> stored = store.GetProptyDataMap();
    for (const auto& entry : stored) {
        if (names.count(entry.first) > 0)
            continue;
        store.RemovePropInfo(entry.first);
        isRemoved = true;
    }
    if (isRemoved)
        UpdatePropertyFile();
}
