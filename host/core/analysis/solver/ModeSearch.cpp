#include "ModeSearch.h"

#include "ModelBuilder.h"
#include "ResultError.h"

#include <algorithm>

namespace {

// The solver iterates with four vectors for each mode that it is asked for. If these are few, it
// misses one of two modes that lie close together, so it computes more modes than are wanted.
constexpr int SpareModes = 4;
constexpr int FreedomsPerMode = 4;
constexpr int Growth = 3;

int FreeDisplacements(const FiniteElementModel& model)
{
    int count = 0;
    for (const std::uint8_t held : model.held) {
        for (unsigned axis = 0; axis < 3; ++axis)
            count += (held & (1u << axis)) == 0 ? 1 : 0;
    }
    return count;
}

} // namespace

ModeSearch::ModeSearch(const FiniteElementModel& model, const FrequencyRange& range)
    : m_range(range)
    , m_rigid(range.min > 0.0 ? CountRigidModes(model) : 0)
    , m_most((FreeDisplacements(model) - 1) / FreedomsPerMode)
    , m_asked(std::min(range.number + m_rigid + SpareModes, m_most))
{
    if (m_asked <= m_rigid)
        throw ModelError(ModelError::tr("The mesh has too few nodes for a mode: make it finer."));
}

void ModeSearch::GoOnFrom(int number)
{
    m_asked = std::clamp(number, m_asked, m_most);
}

bool ModeSearch::Take(const ModesTable& table)
{
    if (int(table.modes.size()) != m_asked)
        throw ResultError(ResultError::tr("The solver found %1 of %2 modes.")
                              .arg(table.modes.size())
                              .arg(m_asked));
    std::vector<std::size_t> order(table.modes.size());
    for (std::size_t place = 0; place < order.size(); ++place)
        order[place] = place;
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return table.modes[a].frequency < table.modes[b].frequency;
    });
    m_found.clear();
    for (std::size_t place = std::size_t(m_rigid); place < order.size(); ++place) {
        const double frequency = table.modes[order[place]].frequency;
        if (frequency >= m_range.min && frequency <= m_range.max &&
            int(m_found.size()) < m_range.number)
            m_found.push_back(order[place]);
    }
    const bool isOver = int(m_found.size()) == m_range.number || m_asked == m_most ||
                        table.modes[order.back()].frequency > m_range.max;
    if (!isOver)
        m_asked = std::min(m_asked > m_most / Growth ? m_most : Growth * m_asked, m_most);
    return isOver;
}
