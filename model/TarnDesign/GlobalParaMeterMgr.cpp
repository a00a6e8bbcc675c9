#include "GlobalParaMeterMgr.h"

#include <utility>

ParameterMap GlobalParaMeterMgr::m_nameMapParameters;

void GlobalParaMeterMgr::AddParameter(QString name, ParametersDef record)
{
    m_nameMapParameters[name] = std::move(record);
}

QVariant GlobalParaMeterMgr::GetParameterRawValue(QString name)
{
    const auto found = m_nameMapParameters.find(name);
    if (found == m_nameMapParameters.end())
        return 0.0;
    const ParametersDef& record = found->second;
    return record.m_varRawValue.isValid() ? record.m_varRawValue : QVariant(record.m_dValue);
}

std::vector<QString> GlobalParaMeterMgr::GetAllParametersName()
{
    std::vector<QString> names;
    names.reserve(m_nameMapParameters.size());
    for (const auto& entry : m_nameMapParameters)
        names.push_back(entry.first);
    return names;
}
