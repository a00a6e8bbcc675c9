#include "ModesTable.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

static void CheckMasses(const Mode::Masses& masses)
{
    for (const double mass : masses) {
        if (!std::isfinite(mass))
            __builtin_trap();
    }
}

// Every frequency that is read is a number, 0 or above, and every mass is a number.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(data), int(size));
    try {
        const ModesTable table = ReadModesTable(text);
        CheckMasses(table.totalMass);
        for (const Mode& mode : table.modes) {
            if (!std::isfinite(mode.frequency) || mode.frequency < 0.0)
                __builtin_trap();
            CheckMasses(mode.effectiveMass);
        }
    } catch (const ResultError&) {
        return 0;
    }
    return 0;
}
