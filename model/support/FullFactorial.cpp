#include "FullFactorial.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

std::size_t CountRuns(const std::vector<std::vector<double>>& lists)
{
    constexpr std::size_t greatest = std::numeric_limits<std::size_t>::max();
    // First of all, since an empty list outweighs all that overflows before it.
    if (lists.empty() ||
        std::any_of(lists.begin(), lists.end(), [](const auto& list) { return list.empty(); }))
        return 0;
    std::size_t runs = 1;
    for (const auto& list : lists) {
        if (list.size() > greatest / runs)
            return greatest;
        runs *= list.size();
    }
    return runs;
}

} // namespace

FullFactorial::FullFactorial(std::vector<std::vector<double>> lists)
    : m_lists(std::move(lists))
    , m_runCount(CountRuns(m_lists))
{
}

bool FullFactorial::IsTooLarge() const
{
    return m_runCount > MaximumRuns || m_runCount * m_lists.size() > MaximumValues;
}

std::vector<double> FullFactorial::Run(std::size_t index) const
{
    std::vector<double> run(m_lists.size());
    for (std::size_t column = m_lists.size(); column-- > 0;) {
        const std::vector<double>& list = m_lists[column];
        run[column] = list[index % list.size()];
        index /= list.size();
    }
    return run;
}
