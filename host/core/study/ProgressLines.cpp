#include "ProgressLines.h"

#include <utility>

ProgressLines::ProgressLines(std::function<void(const QString&)> tell, int limit)
    : m_tell(std::move(tell))
    , m_limit(std::size_t(limit))
{
}

void ProgressLines::Add(int place, const QStringList& lines)
{
    if (place < m_told)
        return Tell(lines);
    m_waiting.emplace(place, lines);
    while (!m_waiting.empty()) {
        const auto first = m_waiting.begin();
        if (first->first != m_told && m_waiting.size() <= m_limit)
            break;
        Tell(first->second);
        m_told = first->first + 1;
        m_waiting.erase(first);
    }
}

void ProgressLines::Flush()
{
    for (const auto& entry : m_waiting)
        Tell(entry.second);
    m_waiting.clear();
}

void ProgressLines::Tell(const QStringList& lines) const
{
    for (const QString& line : lines)
        m_tell(line);
}
