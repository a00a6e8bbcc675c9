#include "SampleRange.h"

#include "SampleSpacing.h"

#include <cmath>

namespace {

// The number of samples of a range without other faults; one more than the limit if there are too
// many. The limit also stops a step that is too small to change x.
std::size_t CountSteps(const SampleRange& range)
{
    std::size_t count = 0;
    for (double x = range.min; x <= range.max && count <= SampleRange::MaximumSamples;
         x += range.step)
        ++count;
    return count;
}

double SampleAt(int spacing, double x)
{
    switch (spacing) {
    case SampleSpacing::Log10:
        return std::log10(x);
    case SampleSpacing::Ln:
        return std::log(x);
    default:
        return x;
    }
}

} // namespace

SampleRange::Fault SampleRange::FindFault() const
{
    if (!std::isfinite(min) || !std::isfinite(max) || !std::isfinite(step))
        return Fault::NotFinite;
    if (min >= max)
        return Fault::Empty;
    if (step <= 0.0)
        return Fault::StepNotAbove0;
    if (step > max - min)
        return Fault::StepTooWide;
    if (CountSteps(*this) > MaximumSamples)
        return Fault::TooManySamples;
    if (spacing < SampleSpacing::Linear || spacing >= SampleSpacing::Gauss)
        return Fault::SpacingNotImplemented;
    return Fault::None;
}

std::vector<double> SampleRange::Samples() const
{
    if (FindFault() != Fault::None)
        return {};
    std::vector<double> samples;
    for (double x = min; x <= max; x += step)
        samples.push_back(SampleAt(spacing, x));
    return samples;
}
