#include <dlfcn.h>
#include <valgrind/callgrind.h>

#include <chrono>
#include <cstdio>

// Loads the libraries that are named as pairs of a label and a path, one after the other, as a
// program that is linked to them would. Prints the microseconds of each; under callgrind, dumps its
// instructions.
int main(int argc, char** argv)
{
    for (int i = 1; i + 1 < argc; i += 2) {
        CALLGRIND_ZERO_STATS;
        const auto start = std::chrono::steady_clock::now();
        const void* const library = dlopen(argv[i + 1], RTLD_LAZY | RTLD_GLOBAL);
        const std::chrono::duration<double, std::micro> time =
            std::chrono::steady_clock::now() - start;
        CALLGRIND_DUMP_STATS_AT(argv[i]);
        if (library == nullptr) {
            std::fprintf(stderr, "%s\n", dlerror());
            return 1;
        }
        std::printf("%s %.1f\n", argv[i], time.count());
    }
    return 0;
}
