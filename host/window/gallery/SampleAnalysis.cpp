#include "SampleAnalysis.h"

#include "AnalysisFiles.h"
#include "AnalysisRecords.h"
#include "KVMaterialData.h"
#include "KVPropertyData.h"
#include "SampleRecords.h"

#include <QDir>

void FillSampleAnalysis(AnalysisRecords& records)
{
    sConstrainData bolts;
    bolts.m_strName = "boltCircle";
    bolts.m_bXD = bolts.m_bYD = bolts.m_bZD = true;
    records.AddConstraint(bolts);
    records.AddLoad(SampleLoad());
    records.SetMeshSize(8.0);
    records.SetSubShape({2.0, 12});
}

SampleAnalysisFiles::SampleAnalysisFiles()
    : m_before(QDir::currentPath())
{
    QDir::setCurrent(m_directory.path());
    KVPropertyData& properties = *KVPropertyData::GetInstance();
    properties.Clear();
    properties.AddPropInfo(new CQLTElemPropDef(SampleProperty(QStringLiteral("flange"), 20.0)));
    properties.AddPropInfo(new CQLTElemPropDef(SampleProperty(QStringLiteral("hub"), 12.0)));
    KVMaterialData::GetInstance()->ClearInfo();
    ReadAnalysisFiles();
}

SampleAnalysisFiles::~SampleAnalysisFiles()
{
    KVPropertyData::GetInstance()->Clear();
    KVMaterialData::GetInstance()->ClearInfo();
    QDir::setCurrent(m_before);
}
