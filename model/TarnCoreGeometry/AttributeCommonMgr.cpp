#include "AttributeCommonMgr.h"

AttributeCommonMgr* AttributeCommonMgr::GetInstance()
{
    static auto* const instance = new AttributeCommonMgr;
    return instance;
}

bool AttributeCommonMgr::FindName(std::string name) const
{
    return m_names.count(name) != 0;
}

void AttributeCommonMgr::AddName(const std::string& name)
{
    m_names.insert(name);
}

void AttributeCommonMgr::RemoveName(const std::string& name)
{
    m_names.erase(name);
}

void AttributeCommonMgr::Clear()
{
    m_names.clear();
}
