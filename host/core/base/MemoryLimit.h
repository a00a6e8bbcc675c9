#pragma once

#include <sys/resource.h>
#include <unistd.h>

/// Limits the address space of this process and of those that it starts.
inline void LimitMemory(int megabytes)
{
    const rlim_t bytes = rlim_t(megabytes) * 1024 * 1024;
    const rlimit limit = {bytes, bytes};
    setrlimit(RLIMIT_AS, &limit);
}

/// The memory of this computer in MB.
inline int PhysicalMegabytes()
{
    constexpr double BytesPerMegabyte = 1024.0 * 1024.0;
    return int(double(sysconf(_SC_PHYS_PAGES)) * double(sysconf(_SC_PAGE_SIZE)) / BytesPerMegabyte);
}
