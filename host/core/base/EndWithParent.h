#pragma once

#include <QtGlobal>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>

#include <csignal>
#endif

/// Lets this process end with the one that started it, even if that is killed: nothing goes on
/// computing for a program that is gone.
inline void EndWithParent()
{
#ifdef Q_OS_LINUX
    prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
}
