#pragma once

#include "Offscreen.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <functional>

/// main() of a benchmark of windows: runs what the program has registered, and what @p prepare
/// registers when there is an application, which shows nothing.
inline int RunBenchmarks(
    int argc, char** argv, const std::function<void()>& prepare = [] {})
{
    RunOffscreen();
    const QApplication application(argc, argv);
    prepare();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
