#include "SampleAnalysis.h"

#include "AnalysisFiles.h"
#include "AnalysisRecords.h"
#include "AttributeRecords.h"
#include "KVMaterialData.h"
#include "KVPropertyData.h"
#include "SampleRecords.h"

#include <QDir>

namespace {

void FillSampleStores()
{
    KVPropertyData& properties = *KVPropertyData::GetInstance();
    properties.Clear();
    properties.AddPropInfo(new CQLTElemPropDef(SampleProperty(QStringLiteral("flange"), 20.0)));
    properties.AddPropInfo(new CQLTElemPropDef(SampleProperty(QStringLiteral("hub"), 12.0)));
    KVMaterialData::GetInstance()->ClearInfo();
    ReadAnalysisFiles();
}

} // namespace

void FillSampleAnalysis(AnalysisRecords& records)
{
    FillSampleStores();
    records.TakeStores();
    AnalysisDefinition analysis = records.Definition();
    ConstraintDefinition bore;
    bore.name = QStringLiteral("bore");
    bore.held = {true, true, true, false, false, false};
    bore.faces = {{QStringLiteral("bore.side"), {}}};
    analysis.constraints = {bore};
    LoadDefinition load = FromRecord(SampleLoad());
    load.faces = {{QStringLiteral("hub.top"), {}}};
    analysis.loads = {load};
    analysis.meshSize = QStringLiteral("8");
    LocalMeshDefinition local;
    local.size = QStringLiteral("2");
    local.faces = {{QStringLiteral("hole.side"), {}}};
    analysis.localMeshes = {local};
    records.SetDefinition(analysis);
}

SampleAnalysisFiles::SampleAnalysisFiles()
    : m_before(QDir::currentPath())
{
    QDir::setCurrent(m_directory.path());
    FillSampleStores();
}

SampleAnalysisFiles::~SampleAnalysisFiles()
{
    KVPropertyData::GetInstance()->Clear();
    KVMaterialData::GetInstance()->ClearInfo();
    QDir::setCurrent(m_before);
}
