#include "SampleList.h"

#include "JsonSection.h"
#include "NumberTexts.h"
#include "SampleSpacing.h"

#include <algorithm>
#include <cmath>

namespace {

// The logarithm of a number below 0 is not a number, which does not equal itself.
bool IsSame(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool AreSame(const std::vector<double>& a, const std::vector<double>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), IsSame);
}

} // namespace

std::vector<double> SampleList::Samples() const
{
    return values.empty() ? range.Samples() : values;
}

QString SampleList::Problem() const
{
    const QString fault = values.empty() ? FaultText(range.FindFault()) : QString();
    return fault.isEmpty()
               ? fault
               : JsonError::tr("the sample list of %1 %2").arg(Quoted(parameter), fault);
}

QString FaultText(SampleRange::Fault fault)
{
    switch (fault) {
    case SampleRange::Fault::None:
        return {};
    case SampleRange::Fault::NotFinite:
        return JsonError::tr("has a range without limits");
    case SampleRange::Fault::Empty:
        return JsonError::tr("has a \"max\" that is not above \"min\"");
    case SampleRange::Fault::StepNotAbove0:
        return JsonError::tr("has a \"delta\" that is not above 0");
    case SampleRange::Fault::StepTooWide:
        return JsonError::tr("has a \"delta\" that is greater than the range");
    case SampleRange::Fault::TooManySamples:
        return JsonError::tr("has more than a million samples");
    case SampleRange::Fault::SpacingNotImplemented:
        return JsonError::tr("has Gauss spacing, which is not implemented");
    }
    return {};
}

bool MatchesRange(const std::vector<double>& values, const SampleRange& range)
{
    const std::vector<double> samples = range.Samples();
    if (samples.empty())
        return false;
    if (AreSame(values, samples))
        return true;
    const double error = std::max(std::abs(range.min), std::abs(range.max)) * 1e-12;
    return std::equal(values.begin(), values.end(), samples.begin(), samples.end(),
                      [&](double value, double sample) {
                          const bool isCut = IsSame(value, ShortText(sample).toDouble());
                          return IsSame(value, sample) ||
                                 (isCut && (range.spacing != SampleSpacing::Linear ||
                                            std::abs(value - sample) <= error));
                      });
}
