#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <functional>

/// Helpers for tests in which several processes use the same files.

/// Runs @p work in a process of its own and returns its id. The exit code is 0 if @p work returned
/// true.
inline pid_t Fork(const std::function<bool()>& work)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(work() ? 0 : 1);
    return child;
}

/// The same without the rights of the administrator, whom permissions do not bind.
inline pid_t ForkUnprivileged(const std::function<bool()>& work)
{
    constexpr uid_t Nobody = 65534;
    return Fork([&work] { return (geteuid() != 0 || seteuid(Nobody) == 0) && work(); });
}

/// Waits for the process. -1 if it crashed.
inline int ExitCodeOf(pid_t child)
{
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
