// Plays an external solver or viewer: writes its arguments and its working directory to "run.txt"
// there, then does what OUTSIDE_PROGRAM_ACTION says.
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

// Until a byte comes through the pipe "go".
void Wait()
{
    std::puts("waiting");
    std::fflush(stdout);
    std::ifstream("go").get();
}

void WriteMuch()
{
    const std::string block(1 << 20, 'x');
    for (int i = 0; i < 20; ++i) {
        std::fwrite(block.data(), 1, block.size(), stdout);
        std::fwrite(block.data(), 1, block.size(), stderr);
    }
}

// To the end of the standard input.
void Read()
{
    while (std::getchar() != EOF) {
    }
}

} // namespace

int main(int argc, char** argv)
{
    const char* const wish = std::getenv("OUTSIDE_PROGRAM_ACTION");
    const std::string action = wish != nullptr ? wish : "";

    std::ofstream record("run.txt", std::ios::app);
    char directory[4096];
    record << "in " << (getcwd(directory, sizeof directory) != nullptr ? directory : "?") << '\n';
    for (int i = 1; i < argc; ++i)
        record << "argument " << argv[i] << '\n';
    record.flush();

    if (action == "exit 3")
        return 3;
    if (action == "crash")
        std::raise(SIGKILL);
    if (action == "wait")
        Wait();
    if (action == "write")
        WriteMuch();
    if (action == "read")
        Read();
    record << "ended\n";
    return 0;
}
