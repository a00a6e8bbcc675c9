#pragma once

#include <malloc.h>

#include <cstddef>

/// The bytes that the process has allocated and not freed.
inline std::size_t HeapInUse()
{
    return mallinfo2().uordblks;
}

/// How much the heap grows while @p run is called 1,000 times, after it has been called often
/// enough for whatever the toolkit makes once.
template<class Run>
std::ptrdiff_t HeapGrowth(const Run& run)
{
    for (int i = 0; i < 100; ++i)
        run();
    const std::size_t before = HeapInUse();
    for (int i = 0; i < 1000; ++i)
        run();
    return std::ptrdiff_t(HeapInUse()) - std::ptrdiff_t(before);
}
