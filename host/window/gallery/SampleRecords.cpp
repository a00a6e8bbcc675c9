#include "SampleRecords.h"

QString SampleMaterial()
{
    return QStringLiteral("Steel S355");
}

CQLTElemPropDef SampleProperty(const QString& name, double thickness)
{
    CQLTElemPropDef property;
    property.m_strName = name;
    property.m_strMaterialName = SampleMaterial();
    property.m_dThickness = thickness;
    property.m_strTypeName = QStringLiteral("Shell");
    property.m_nTypeCode = CQLTElemPropDef::ShellType;
    return property;
}

sLoadForceData SampleLoad()
{
    sLoadForceData load;
    load.m_strName = "boltPull";
    load.m_nKind = sLoadForceData::ComponentKind;
    load.m_dFX = 1000.0;
    load.m_dFZ = -250.5;
    return load;
}
