#include "AnalysisRecords.h"

#include "AttributeCommonMgr.h"
#include "AttributeRecords.h"
#include "FrequencyPref.h"

namespace {

template<class Visit>
void VisitNames(const AnalysisDefinition& definition, const Visit& visit)
{
    for (const ConstraintDefinition& constraint : definition.constraints)
        visit(constraint.name.toLocal8Bit().toStdString());
    for (const LoadDefinition& load : definition.loads)
        visit(load.name.toLocal8Bit().toStdString());
}

} // namespace

void StoreFrequencies(const FrequencyRange& range)
{
    FrequencyPref::m_MinFreq = range.min;
    FrequencyPref::m_MaxFreq = range.max;
    FrequencyPref::m_NumFreq = range.number;
}

AnalysisRecords::AnalysisRecords(QObject* parent)
    : QObject(parent)
{
}

AnalysisRecords::~AnalysisRecords()
{
    FreeNames();
}

void AnalysisRecords::SetDefinition(const AnalysisDefinition& definition)
{
    FreeNames();
    m_definition = definition;
    RegisterNames();
    StoreFrequencies(definition.frequencies);
    StoreProperties(definition.properties);
    RemoveOtherProperties(definition.properties);
    Q_EMIT Changed();
}

void AnalysisRecords::TakeStores()
{
    m_definition.frequencies = {FrequencyPref::m_MinFreq, FrequencyPref::m_MaxFreq,
                                FrequencyPref::m_NumFreq};
    m_definition.properties = StoredProperties(m_definition.properties);
    Q_EMIT Changed();
}

void AnalysisRecords::Start(const AnalysisDefinition& definition)
{
    FreeNames();
    m_definition = definition;
    RegisterNames();
    StoreFrequencies(definition.frequencies);
    StoreProperties(definition.properties);
    TakeStores();
}

void AnalysisRecords::FreeNames()
{
    VisitNames(m_definition, [](const std::string& name) {
        AttributeCommonMgr::GetInstance()->RemoveName(name);
    });
}

void AnalysisRecords::RegisterNames()
{
    VisitNames(m_definition,
               [](const std::string& name) { AttributeCommonMgr::GetInstance()->AddName(name); });
}
