#include "ModesTable.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

// Every frequency that is read is a number, 0 or above.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(data), int(size));
    try {
        for (const Mode& mode : ReadModesTable(text).modes) {
            if (!std::isfinite(mode.frequency) || mode.frequency < 0.0)
                __builtin_trap();
        }
    } catch (const ResultError&) {
        return 0;
    }
    return 0;
}
