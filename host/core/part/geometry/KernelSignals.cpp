#include "KernelSignals.h"

#include <OSD.hxx>

#include <array>
#include <csignal>

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
}
