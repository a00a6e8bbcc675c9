#pragma once

/// How a range gives samples.
///
///     record.nSampleType = SampleSpacing::Log10;
namespace SampleSpacing {

/// The codes of sParaArrayData::nSampleType.
enum Code
{
    Linear = 0, ///< The steps of the range.
    Log10 = 1,  ///< The common logarithms of the steps.
    Ln = 2,     ///< The natural logarithms of the steps.
    Gauss = 3   ///< Offered by the sampling dialog, but not implemented.
};

} // namespace SampleSpacing
