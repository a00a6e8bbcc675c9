#include <dlfcn.h>
#include <valgrind/callgrind.h>

#include <chrono>
#include <cstdio>

// Loads libraries one after the other, as a program linked with them would. The arguments are pairs
// of a label and a path. Prints the time of each in microseconds; under callgrind, dumps its
// instruction count.
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
