#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <string>

/// A file in memory with the fuzzer's input, so that the readers can open it by path without
/// accessing the disk.
class InputFile
{
public:
    InputFile(const std::uint8_t* data, std::size_t size)
    {
        if (ftruncate(Descriptor(), off_t(size)) != 0 ||
            pwrite(Descriptor(), data, size, 0) != ssize_t(size))
            __builtin_trap();
    }

    std::string Path() const { return "/proc/self/fd/" + std::to_string(Descriptor()); }

private:
    static int Descriptor()
    {
        static const int descriptor = memfd_create("input", 0);
        return descriptor;
    }
};
