#include "ResultFile.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

// Every field that is read has all components of all its nodes, and they are numbers.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(data), int(size));
    try {
        for (const ResultField& field : ReadResultFile(text).fields) {
            if (field.values.size() != field.components * field.nodes.size())
                __builtin_trap();
            for (const double value : field.values) {
                if (!std::isfinite(value))
                    __builtin_trap();
            }
        }
    } catch (const ResultError&) {
        return 0;
    }
    return 0;
}
