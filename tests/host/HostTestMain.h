#pragma once

#include "SolveChild.h"
#include "TestCase.h"
#include "WorkerProcess.h"

/// The main function of a test that builds or solves parts. The child processes are the test
/// program itself, like those of the host are the host.
#define TARN_HOST_TEST_MAIN(...)                                                                   \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        if (IsWorker(argc, argv))                                                                  \
            return RunWorker(argc, argv);                                                          \
        if (IsSolveChild(argc, argv))                                                              \
            return RunSolveChild(argc, argv);                                                      \
        return RunTest<__VA_ARGS__>(argc, argv);                                                   \
    }
