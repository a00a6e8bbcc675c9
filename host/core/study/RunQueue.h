#pragma once

#include "RunLocks.h"
#include "StudyFolder.h"

#include <deque>
#include <functional>
#include <optional>
#include <vector>

/// Hands out the runs of a folder that this program is to do. Several programs that work on the
/// same folder get different ones.
class RunQueue
{
public:
    /// What is known of a run without doing it.
    enum Settlement
    {
        DoneBefore,
        FailedElsewhere ///< Another program has just tried it.
    };

    /// Hands out runs from @p first to @p last, for @p workers at a time. Failed runs are tried
    /// again. With @p withStep, a run without its STEP file is done again. Calls @p settle for the
    /// runs that it does not hand out.
    RunQueue(StudyFolder& folder, int first, int last, int workers, bool withStep,
             std::function<void(int run, Settlement)> settle);

    /// The next run, locked until Release(). @throws HostError
    std::optional<int> Next();
    /// When the journal holds the end of the run.
    void Release(int run) { m_locks.Release(run); }

    /// Whether other programs are at work on runs that may come back.
    bool IsWaiting() const { return !m_elsewhere.empty(); }

private:
    void TakeBlock();
    bool Settle(int run);

    StudyFolder& m_folder;
    RunLocks m_locks;
    int m_workers;
    bool m_withStep;
    std::function<void(int run, Settlement)> m_settle;
    std::vector<int> m_earlierEnds; // Of each run, when this program began.
    std::deque<int> m_open;
    std::deque<int> m_taken;
    std::deque<int> m_elsewhere; // Others have them.
};
