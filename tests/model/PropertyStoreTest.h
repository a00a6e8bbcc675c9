#pragma once

#include "KVPropertyData.h"
#include "TestCase.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The base of the tests of KVPropertyData: each test function begins with an empty store in an
/// empty directory.
class PropertyStoreTest : public TestCase
{
protected:
    static constexpr const char* PropertyFile = "./ElementProperty.xml";

    void init() override
    {
        TestCase::init();
        EnterTemporaryDirectory();
        Store().Clear();
    }

    static KVPropertyData& Store() { return *KVPropertyData::GetInstance(); }

    static CQLTElemPropDef* Record(const QString& name, double thickness = 1.0)
    {
        auto* const record = new CQLTElemPropDef;
        record->m_strName = name;
        record->m_dThickness = thickness;
        return record;
    }

    static CQLTElemPropDef* Find(const QString& name) { return Store().GetPropertyInfo(name); }

    static QStringList Keys()
    {
        QStringList keys;
        for (const auto& entry : Store().GetProptyDataMap())
            keys << entry.first;
        return keys;
    }

    /// All properties as "key:name:thickness".
    static QStringList Contents()
    {
        QStringList contents;
        for (const auto& entry : Store().GetProptyDataMap())
            contents << QStringLiteral("%1:%2:%3")
                            .arg(entry.first, entry.second->m_strName)
                            .arg(entry.second->m_dThickness);
        return contents;
    }

    static QByteArray File(const QByteArray& records)
    {
        return "<ElementProperties version=\"1\" units=\"model\">" + records +
               "</ElementProperties>";
    }

    static QByteArray Line(const QByteArray& name, const QByteArray& thickness)
    {
        return "<ElementProperty name=\"" + name + "\" thickness=\"" + thickness + "\"/>";
    }
};
