#include "ParameterMap.h"

#include <iterator>

ParameterMap::ParameterMap(const ParameterMap& other)
    : m_entries(other.m_entries)
{
    m_index.reserve(m_entries.size());
    for (auto it = m_entries.begin(); it != m_entries.end(); ++it)
        m_index.emplace(it->first, it);
}

// A moved or swapped list keeps its nodes, so its index stays valid.
ParameterMap::ParameterMap(ParameterMap&& other) noexcept
{
    *this = std::move(other);
}

ParameterMap& ParameterMap::operator=(const ParameterMap& other)
{
    return *this = ParameterMap(other);
}

ParameterMap& ParameterMap::operator=(ParameterMap&& other) noexcept
{
    if (this != &other) {
        clear();
        m_entries.swap(other.m_entries);
        m_index.swap(other.m_index);
    }
    return *this;
}

void ParameterMap::clear()
{
    m_index.clear();
    m_entries.clear();
}

ParameterMap::iterator ParameterMap::find(const QString& name)
{
    const auto found = m_index.find(name);
    return found == m_index.end() ? m_entries.end() : found->second;
}

ParameterMap::const_iterator ParameterMap::find(const QString& name) const
{
    const auto found = m_index.find(name);
    return found == m_index.end() ? m_entries.end() : const_iterator(found->second);
}

ParametersDef& ParameterMap::at(const QString& name)
{
    return m_index.at(name)->second;
}

const ParametersDef& ParameterMap::at(const QString& name) const
{
    return m_index.at(name)->second;
}

ParametersDef& ParameterMap::operator[](const QString& name)
{
    const auto found = m_index.find(name);
    if (found != m_index.end())
        return found->second->second;
    m_entries.emplace_back(name, ParametersDef());
    m_index.emplace(name, std::prev(m_entries.end()));
    return m_entries.back().second;
}

ParameterMap::size_type ParameterMap::erase(const QString& name)
{
    const auto found = m_index.find(name);
    if (found == m_index.end())
        return 0;
    m_entries.erase(found->second);
    m_index.erase(found);
    return 1;
}
