#pragma once

#include "KVMaterialData.h"
#include "TestCase.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The base of the tests of KVMaterialData: each test function begins with an empty store in an
/// empty directory.
class MaterialStoreTest : public TestCase
{
protected:
    static constexpr const char* UserFile = "./UserMaterial.xml";
    static constexpr const char* SystemFile = "./SysMaterial.xml";

    void init() override
    {
        TestCase::init();
        EnterTemporaryDirectory();
        Store().ClearInfo();
        Store().setCurrentMaterialName({});
    }

    static KVMaterialData& Store() { return *KVMaterialData::GetInstance(); }

    static KVMaterialInfo* Record(const QString& name, int type = MATERIAL_USER,
                                  const QString& modulus = QStringLiteral("1"))
    {
        auto* const record = new KVMaterialInfo;
        record->m_nType = type;
        record->m_strName = name;
        (type == MATERIAL_SYSTEM ? record->m_strLibElasticModulus : record->m_strElasticModulus) =
            modulus;
        return record;
    }

    static QByteArray File(const QByteArray& records)
    {
        return "<Materials version=\"1\" units=\"SI\">" + records + "</Materials>";
    }

    static QByteArray Line(const QByteArray& name, const QByteArray& modulus)
    {
        return "<Material name=\"" + name + "\" elasticModulus=\"" + modulus + "\"/>";
    }

    /// All materials as "name:type:first modulus:second modulus".
    static QStringList Contents()
    {
        QStringList contents;
        const QStringList names = Store().GetMaterialNameList();
        for (const QString& name : names) {
            const KVMaterialInfo& record = *Store().GetMaterialInfo(name);
            contents << QStringLiteral("%1:%2:%3:%4")
                            .arg(record.m_strName, QString::number(record.m_nType),
                                 record.m_strElasticModulus, record.m_strLibElasticModulus);
        }
        return contents;
    }
};
