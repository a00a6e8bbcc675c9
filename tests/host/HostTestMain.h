#pragma once

#include "TestCase.h"
#include "WorkerProcess.h"

/// The main function of a test that builds parts. The worker process is the test program itself,
/// like that of the host is the host.
#define TARN_HOST_TEST_MAIN(...)                                                                   \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        if (IsWorker(argc, argv))                                                                  \
            return RunWorker(argc, argv);                                                          \
        return RunTest<__VA_ARGS__>(argc, argv);                                                   \
    }
