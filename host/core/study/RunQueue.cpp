#include "RunQueue.h"

#include <algorithm>
#include <utility>

RunQueue::RunQueue(StudyFolder& folder, int first, int last, int workers, bool withStep,
                   std::function<void(int run, Settlement)> settle)
    : m_folder(folder)
    , m_locks(folder.LocksPath())
    , m_workers(workers)
    , m_withStep(withStep)
    , m_settle(std::move(settle))
{
    for (int run = 1; run <= last; ++run)
        m_earlierEnds.push_back(folder.Records().Of(run).ends);
    for (int run = first; run <= last; ++run)
        m_open.push_back(run);
}

std::optional<int> RunQueue::Next()
{
    if (m_open.empty() && m_taken.empty())
        m_open.swap(m_elsewhere);
    while (m_taken.empty() && !m_open.empty())
        TakeBlock();
    if (m_taken.empty())
        return std::nullopt;
    const int run = m_taken.front();
    m_taken.pop_front();
    return run;
}

// Looking into the journals for each run would take long in a folder of many programs. Towards the
// end the blocks are small, so that no program is left without work.
void RunQueue::TakeBlock()
{
    constexpr std::size_t LargestBlock = 64;
    constexpr std::size_t Share = 8;
    const std::size_t block =
        std::min(m_open.size() / (Share * std::size_t(m_workers)) + 1, LargestBlock);
    std::vector<int> locked;
    while (!m_open.empty() && locked.size() < block) {
        const int run = m_open.front();
        m_open.pop_front();
        if (Settle(run))
            continue;
        if (m_locks.Take(run))
            locked.push_back(run);
        else
            m_elsewhere.push_back(run);
    }
    if (locked.empty())
        return;
    // Another program may have done them until just now.
    m_folder.Records().Refresh();
    for (const int run : locked) {
        if (Settle(run))
            m_locks.Release(run);
        else
            m_taken.push_back(run);
    }
}

bool RunQueue::Settle(int run)
{
    if (m_folder.IsDone(run, m_withStep)) {
        m_settle(run, DoneBefore);
        return true;
    }
    const RunRecord& record = m_folder.Records().Of(run);
    const bool hasFailedElsewhere =
        record.state == RunRecord::Failed && record.ends > m_earlierEnds[std::size_t(run) - 1];
    if (hasFailedElsewhere)
        m_settle(run, FailedElsewhere);
    return hasFailedElsewhere;
}
