#include "ExpressionEngine.h"

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <cmath>
#include <map>
#include <string>
#include <vector>

// Expressions as in a parameter table, each with the variables that the parameter editor passes for
// it. The reference is the straightforward code without the engine: a new parser for every
// expression.

namespace {

struct Sample
{
    std::string text;
    std::map<std::string, double> variables;
};

// The number makes every text distinct.
Sample MakeSample(int number)
{
    const std::string n = std::to_string(number);
    switch (number % 5) {
    case 0:
        return {"outer_diameter-2*wall-" + n, {{"outer_diameter", 120.0}, {"wall", 4.5}}};
    case 1:
        return {"bolt_circle*sin(3.14159265/bolt_count)+" + n,
                {{"bolt_circle", 90.0}, {"bolt_count", 8.0}}};
    case 2:
        return {"p" + n + "*1.25", {{"p" + n, 3.5}}};
    case 3:
        return {"hub > bore + " + n + " ? hub : bore + 2*thickness",
                {{"hub", 60.0}, {"bore", 40.0}, {"thickness", 12.0}}};
    default:
        return {"sqrt((outer^2-inner^2)/4)*max(height, width, 1.5)-" + n,
                {{"outer", 80.0}, {"inner", 30.0}, {"height", 20.0}, {"width", 35.0}}};
    }
}

std::vector<Sample> MakeSamples(int count, int first = 0)
{
    std::vector<Sample> samples;
    samples.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i)
        samples.push_back(MakeSample(first + i));
    return samples;
}

double CalculateByReference(const Sample& sample)
{
    std::map<std::string, double> values = sample.variables;
    mu::Parser parser;
    for (auto& [name, value] : values)
        parser.DefineVar(name, &value);
    parser.SetExpr(sample.text);
    return parser.Eval();
}

bool IsSame(double ours, double reference)
{
    return std::abs(ours - reference) <= 1e-9 * (1.0 + std::abs(reference));
}

// Comparing speed makes sense only if both calculate the same values.
bool ResultsAgree(benchmark::State& state, std::vector<Sample> samples)
{
    for (Sample& sample : samples) {
        if (!IsSame(ExpressionEngine::CalculateExpress(sample.text, sample.variables),
                    CalculateByReference(sample))) {
            state.SkipWithError(("different results: " + sample.text).c_str());
            return false;
        }
    }
    return true;
}

// Every text is new to the engine, because each round uses its own numbers.
void DistinctOurs(benchmark::State& state)
{
    const int count = int(state.range(0));
    static int next = 1000000;
    while (state.KeepRunning()) {
        state.PauseTiming();
        std::vector<Sample> samples = MakeSamples(count, next);
        next += count;
        state.ResumeTiming();
        for (Sample& sample : samples)
            benchmark::DoNotOptimize(
                ExpressionEngine::CalculateExpress(sample.text, sample.variables));
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void DistinctReference(benchmark::State& state)
{
    const int count = int(state.range(0));
    static int next = 1000000;
    while (state.KeepRunning()) {
        state.PauseTiming();
        const std::vector<Sample> samples = MakeSamples(count, next);
        next += count;
        state.ResumeTiming();
        for (const Sample& sample : samples)
            benchmark::DoNotOptimize(CalculateByReference(sample));
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void RepeatedOurs(benchmark::State& state)
{
    std::vector<Sample> samples = MakeSamples(int(state.range(0)));
    if (!ResultsAgree(state, samples))
        return;
    while (state.KeepRunning()) {
        for (Sample& sample : samples)
            benchmark::DoNotOptimize(
                ExpressionEngine::CalculateExpress(sample.text, sample.variables));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void RepeatedReference(benchmark::State& state)
{
    const std::vector<Sample> samples = MakeSamples(int(state.range(0)));
    while (state.KeepRunning()) {
        for (const Sample& sample : samples)
            benchmark::DoNotOptimize(CalculateByReference(sample));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

} // namespace

BENCHMARK(DistinctOurs)->Name("distinct/ours")->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(DistinctReference)
    ->Name("distinct/reference")
    ->Arg(1000)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(RepeatedOurs)
    ->Name("repeated/ours")
    ->Arg(10)
    ->Arg(1000)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(RepeatedReference)
    ->Name("repeated/reference")
    ->Arg(10)
    ->Arg(1000)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
