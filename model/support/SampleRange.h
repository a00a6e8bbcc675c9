#pragma once

/// @file
/// The samples of a range: the rule of the sampling dialog, without the dialog.

#include <cstddef>
#include <vector>

/// A range of samples, as the sampling dialog asks for it.
///
/// The samples start at the minimum and end at or before the maximum. They come from repeated
/// addition, so rounding decides whether the maximum itself is a sample. The logarithmic spacings
/// take the logarithm of each sample: -inf for 0, NaN for negative numbers.
struct SampleRange
{
    static constexpr std::size_t MaximumSamples = 1000000; ///< In one range.

    /// Why a range has no samples. If there are several faults, the first in this order counts.
    enum class Fault
    {
        None,
        NotFinite,            ///< Minimum, maximum or step is infinite or not a number.
        Empty,                ///< The maximum is not above the minimum.
        StepNotAbove0,        ///< The step is 0 or less.
        StepTooWide,          ///< The step is greater than the range.
        TooManySamples,       ///< There would be more than MaximumSamples.
        SpacingNotImplemented ///< Gauss, or an unknown code.
    };

    double min = 0.0;
    double max = 1.0;
    double step = 1.0;
    int spacing = 0; ///< A SampleSpacing::Code.

    /// Why Samples() is empty, or Fault::None.
    Fault FindFault() const;

    /// The samples in full precision, in ascending order; empty if the range has a fault.
    std::vector<double> Samples() const;
};
