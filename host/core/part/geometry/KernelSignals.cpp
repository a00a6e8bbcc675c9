#include "KernelSignals.h"

#include <OSD.hxx>

#include <array>
#include <csignal>

namespace {

volatile std::sig_atomic_t s_hasCrashed = 0;

struct CrashSignal
{
    int number;
    struct sigaction action; // The kernel's.
};
std::array<CrashSignal, 3> s_crashSignals = {{{SIGSEGV, {}}, {SIGBUS, {}}, {SIGILL, {}}}};

void NoteCrash(int number, siginfo_t* info, void* context)
{
    s_hasCrashed = 1;
    for (const CrashSignal& signal : s_crashSignals) {
        if (signal.number == number)
            signal.action.sa_sigaction(number, info, context);
    }
}

// The kernel catches some of its own crashes. Before it learns of one, note it.
void NoteCrashes()
{
    for (CrashSignal& signal : s_crashSignals) {
        struct sigaction action = {};
        sigaction(signal.number, nullptr, &action);
        if (action.sa_sigaction == NoteCrash)
            continue;
        signal.action = action;
        action.sa_sigaction = NoteCrash;
        action.sa_flags |= SA_SIGINFO;
        sigaction(signal.number, &action, nullptr);
    }
}

} // namespace

void InstallKernelSignalHandlers()
{
    // The kernel would also turn these into exceptions, and a study would count them as failed
    // runs.
    struct UserSignal
    {
        int number;
        struct sigaction action;
    };
    std::array<UserSignal, 3> signals = {{{SIGINT, {}}, {SIGHUP, {}}, {SIGQUIT, {}}}};
    for (UserSignal& signal : signals)
        sigaction(signal.number, nullptr, &signal.action);
    constexpr bool TrapFloatingPoint = false;
    OSD::SetSignal(TrapFloatingPoint);
    for (const UserSignal& signal : signals)
        sigaction(signal.number, &signal.action, nullptr);
    NoteCrashes();
}

bool HasKernelCrashed()
{
    return s_hasCrashed != 0;
}
