#pragma once

#include <sys/resource.h>

/// Limits the address space of this process and of those that it starts.
inline void LimitMemory(int megabytes)
{
    const rlim_t bytes = rlim_t(megabytes) * 1024 * 1024;
    const rlimit limit = {bytes, bytes};
    setrlimit(RLIMIT_AS, &limit);
}
