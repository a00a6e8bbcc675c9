#include "AnalysisStores.h"

#include "KVMaterialData.h"
#include "KVPropertyData.h"
#include "MaterialLibrary.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <memory>

namespace {

const char* const UserFile = "./UserMaterial.xml";
const char* const PropertyFile = "./ElementProperty.xml";

bool IsSame(const KVMaterialInfo& a, const KVMaterialInfo& b)
{
    return a.m_strName == b.m_strName && a.m_strElasticModulus == b.m_strElasticModulus &&
           a.m_strPoisson == b.m_strPoisson && a.m_strDensity == b.m_strDensity;
}

// Only a file that exists, unless it is needed.
QString Rewrite(bool isNeeded)
{
    const bool isThere = QFileInfo::exists(QString::fromLatin1(UserFile));
    if ((!isThere && !isNeeded) || KVMaterialData::GetInstance()->WriteXML(UserFile) == 0)
        return {};
    return QCoreApplication::translate("AnalysisFiles", "%1 cannot be written")
        .arg(QString::fromLatin1(UserFile).mid(2));
}

} // namespace

AnalysisStores AnalysisStores::Current()
{
    AnalysisStores stores;
    const KVMaterialData& materials = *KVMaterialData::GetInstance();
    const QStringList names = materials.GetMaterialNameList();
    for (const QString& name : names) {
        const KVMaterialInfo* const record = materials.GetMaterialInfo(name);
        if (record != nullptr && record->m_nType == MATERIAL_USER)
            stores.materials.emplace(name, *record);
    }
    return stores;
}

void AnalysisStores::Open()
{
    KVPropertyData::GetInstance()->Clear();
    KVPropertyData::GetInstance()->ReadXML(PropertyFile);
    KVMaterialData::GetInstance()->setCurrentMaterialName(QString());
    ReadMaterials(QStringLiteral("."));
}

QString AnalysisStores::Write()
{
    return Rewrite(!Current().materials.empty());
}

QString AnalysisStores::Apply() const
{
    const AnalysisStores before = Current();
    if (*this == before)
        return {};
    KVMaterialData& store = *KVMaterialData::GetInstance();
    for (const auto& [name, record] : before.materials) {
        if (materials.count(name) == 0)
            store.RemoveItem(name);
    }
    for (const auto& [name, record] : materials) {
        auto copy = std::make_unique<KVMaterialInfo>(record);
        copy->m_strName = name;
        store.AddMaterialInfo(copy.release());
    }
    return Rewrite(false);
}

bool AnalysisStores::operator==(const AnalysisStores& other) const
{
    return std::equal(materials.begin(), materials.end(), other.materials.begin(),
                      other.materials.end(), [](const auto& a, const auto& b) {
                          return a.first == b.first && IsSame(a.second, b.second);
                      });
}
