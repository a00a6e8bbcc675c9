// Plays an outside solver or viewer: writes its arguments and its working directory to "run.txt"
// there, then does what OUTSIDE_PROGRAM_ACTION says.
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>

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
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
    if (action == "wait long")
        std::this_thread::sleep_for(std::chrono::seconds(31));
    if (action == "write") {
        const std::string block(1 << 20, 'x');
        for (int i = 0; i < 20; ++i) {
            std::fwrite(block.data(), 1, block.size(), stdout);
            std::fwrite(block.data(), 1, block.size(), stderr);
        }
    }
    record << "ended\n";
    return 0;
}
