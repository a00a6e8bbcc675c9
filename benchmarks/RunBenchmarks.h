#pragma once

#include "Offscreen.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <functional>

/// main() of a benchmark that needs windows: constructs an offscreen application, calls @p prepare,
/// which may register more benchmarks, and runs all registered benchmarks.
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
