#pragma once

#include "KVMaterialData.h"
#include "TestCase.h"

#include <QStringList>
#include <QVector>

/// The files of materials in the working directory.

inline const char* const SystemFile = "./SysMaterial.xml";
inline const char* const UserFile = "./UserMaterial.xml";

/// Enters a material into the store, which owns it.
inline KVMaterialInfo* HoldMaterial(const QString& name, int type = MATERIAL_USER)
{
    auto* const material = new KVMaterialInfo;
    material->m_nType = type;
    material->m_strName = name;
    KVMaterialData::GetInstance()->AddMaterialInfo(material);
    return material;
}

/// Writes a file of materials, each as name, elastic modulus, Poisson's ratio and density, through
/// the store, which is empty afterwards.
inline void WriteMaterials(const std::string& path, const QVector<QStringList>& materials)
{
    KVMaterialData& store = *KVMaterialData::GetInstance();
    store.ClearInfo();
    for (const QStringList& texts : materials) {
        KVMaterialInfo& material = *HoldMaterial(texts.value(0));
        material.m_strElasticModulus = texts.value(1);
        material.m_strPoisson = texts.value(2);
        material.m_strDensity = texts.value(3);
    }
    if (store.WriteXML(path) != 0)
        FailTest("The file of materials cannot be written");
    store.ClearInfo();
}

/// Two materials of the user's and two of the system's; Reset() lists them in this order.
inline const QStringList AllNames = {"Bronze", "steam", "Glass", "Steel"};

/// Writes both files.
inline void WriteBothFiles()
{
    WriteMaterials(SystemFile,
                   {{"Glass", "7e10", "0.22", "2500"}, {"Steel", "2e11", "0.3", "7850"}});
    WriteMaterials(UserFile, {{"Bronze", "1e11", "0.34", "8800"}, {"steam", "1", "2", "3"}});
}
