// Counts what is allocated. The C library's own statistics count the blocks in its caches as used,
// which hides small leaks. The linker takes this file only into programs that ask for the count.
#include "Heap.h"

#ifdef __SANITIZE_ADDRESS__

// Of the sanitizer's library; the compiler does not bring its header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

std::size_t HeapInUse()
{
    return __sanitizer_get_current_allocated_bytes();
}

#else

#include <malloc.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>

namespace {

std::atomic<std::size_t> g_inUse{0};

void* Counted(void* block)
{
    g_inUse += malloc_usable_size(block);
    return block;
}

} // namespace

std::size_t HeapInUse()
{
    return g_inUse;
}

extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);

#define TARN_EXPORT __attribute__((visibility("default")))

TARN_EXPORT void* malloc(std::size_t size) noexcept
{
    return Counted(__libc_malloc(size));
}

TARN_EXPORT void* calloc(std::size_t count, std::size_t size) noexcept
{
    return Counted(__libc_calloc(count, size));
}

TARN_EXPORT void* realloc(void* block, std::size_t size) noexcept
{
    const std::size_t before = malloc_usable_size(block);
    void* const moved = __libc_realloc(block, size);
    if (moved == nullptr && size != 0)
        return nullptr;
    g_inUse -= before;
    return Counted(moved);
}

TARN_EXPORT void* memalign(std::size_t alignment, std::size_t size) noexcept
{
    return Counted(__libc_memalign(alignment, size));
}

TARN_EXPORT void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept
{
    return memalign(alignment, size);
}

TARN_EXPORT int posix_memalign(void** block, std::size_t alignment, std::size_t size) noexcept
{
    *block = memalign(alignment, size);
    return *block != nullptr ? 0 : ENOMEM;
}

TARN_EXPORT void free(void* block) noexcept
{
    g_inUse -= malloc_usable_size(block);
    __libc_free(block);
}

} // extern "C"

#endif
