#include "SamplingGuard.h"

#include "GlobalParaMeterMgr.h"
#include "NumberTexts.h"
#include "SampleRange.h"

#include <algorithm>
#include <cmath>

namespace {

// As the fields and cells of the dialog show it.
double Cut(double value)
{
    return ShortText(value).toDouble();
}

SampleRange RangeOf(const sParaArrayData& samples)
{
    return {samples.dMin, samples.dMax, samples.dDelta, samples.nSampleType};
}

SampleRange Cut(const SampleRange& range)
{
    return {Cut(range.min), Cut(range.max), Cut(range.step), range.spacing};
}

bool IsSameRange(const SampleRange& a, const SampleRange& b)
{
    return a.min == b.min && a.max == b.max && a.step == b.step && a.spacing == b.spacing;
}

bool IsSameNumber(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool AreSame(const std::vector<double>& a, const std::vector<double>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), IsSameNumber);
}

// Three samples, the value in the middle; a tenth of it apart, with one digit.
SampleRange RangeAround(double value)
{
    if (!std::isfinite(value))
        return {};
    double step = 1.0;
    if (value != 0.0) {
        step = QString::number(std::abs(value) / 10.0, 'g', 1).toDouble();
        // A number of bolts is followed by the next one.
        if (value == std::rint(value))
            step = std::max(1.0, std::rint(step));
    }
    SampleRange range = {Cut(value - step), Cut(value + step), step, 0};
    // Repeated addition may miss the maximum.
    if (range.Samples().size() < 3)
        range.max = Cut(value + 1.5 * step);
    return range;
}

} // namespace

SamplingGuard::SamplingGuard(const QString& parameter)
    : m_parameter(parameter)
{
    sParaArrayData& samples = g_mapParaArrays[parameter];
    samples.strName = parameter;
    if (samples.vecValues.empty() && IsSameRange(RangeOf(samples), SampleRange())) {
        const SampleRange range =
            RangeAround(GlobalParaMeterMgr::GetParameterRawValue(parameter).toDouble());
        samples.dMin = range.min;
        samples.dMax = range.max;
        samples.dDelta = range.step;
    }
    m_before = samples;
}

bool SamplingGuard::Finish() const
{
    sParaArrayData& samples = g_mapParaArrays[m_parameter];
    const SampleRange shown = Cut(RangeOf(m_before));
    std::vector<double> cells = shown.Samples();
    std::transform(cells.begin(), cells.end(), cells.begin(),
                   [](double value) { return Cut(value); });
    const bool isUntouched =
        IsSameRange(RangeOf(samples), shown) && AreSame(samples.vecValues, cells);
    if (isUntouched && !m_before.vecValues.empty()) {
        const int ticked = samples.bChecked;
        samples = m_before;
        samples.bChecked = ticked;
    }
    return samples.bChecked != m_before.bChecked ||
           !AreSame(samples.vecValues, m_before.vecValues) ||
           !IsSameRange(RangeOf(samples), RangeOf(m_before));
}
