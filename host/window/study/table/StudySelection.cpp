#include "StudySelection.h"

#include <algorithm>
#include <utility>

StudySelection::StudySelection(QObject* parent)
    : QObject(parent)
{
}

StudySelection::~StudySelection() = default;

void StudySelection::Set(std::vector<int> rows)
{
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (rows == m_rows)
        return;
    m_rows = std::move(rows);
    m_isSelected.assign(m_rows.empty() ? 0 : std::size_t(m_rows.back()) + 1, 0);
    for (const int row : m_rows)
        m_isSelected[std::size_t(row)] = 1;
    Q_EMIT Changed();
}
