#include "ExpressionFunction.h"

#include <algorithm>
#include <array>
#include <cfenv>
#include <cmath>
#include <numeric>

namespace {

double Sign(double value)
{
    return double(value > 0.0) - double(value < 0.0);
}

// The angle between two values that are both too large is not known.
double Angle(double y, double x)
{
    if (std::isinf(y) && std::isinf(x))
        std::feraiseexcept(FE_INVALID);
    return std::atan2(y, x);
}

double Sum(const double* values, int count)
{
    return std::accumulate(values, values + count, 0.0);
}

double Average(const double* values, int count)
{
    return Sum(values, count) / count;
}

double Smallest(const double* values, int count)
{
    return *std::min_element(values, values + count);
}

double Largest(const double* values, int count)
{
    return *std::max_element(values, values + count);
}

template<ExpressionFunction::Unary Function>
constexpr ExpressionFunction One(const char* name)
{
    return {name, Function};
}

template<ExpressionFunction::Binary Function>
constexpr ExpressionFunction Two(const char* name)
{
    return {name, Function};
}

template<ExpressionFunction::Multiple Function>
constexpr ExpressionFunction Many(const char* name)
{
    return {name, Function};
}

// In alphabetical order, for the search.
constexpr std::array Functions = {
    One<std::fabs>("abs"),    One<std::acos>("acos"),   One<std::acosh>("acosh"),
    One<std::asin>("asin"),   One<std::asinh>("asinh"), One<std::atan>("atan"),
    Two<Angle>("atan2"),      One<std::atanh>("atanh"), Many<Average>("avg"),
    One<std::cbrt>("cbrt"),   One<std::ceil>("ceil"),   One<std::cos>("cos"),
    One<std::cosh>("cosh"),   One<std::exp>("exp"),     One<std::floor>("floor"),
    Two<std::hypot>("hypot"), One<std::log>("ln"),      One<std::log>("log"),
    One<std::log10>("log10"), One<std::log2>("log2"),   Many<Largest>("max"),
    Many<Smallest>("min"),    Two<std::fmod>("mod"),    Two<std::pow>("pow"),
    One<std::rint>("rint"),   One<std::round>("round"), One<Sign>("sign"),
    One<std::sin>("sin"),     One<std::sinh>("sinh"),   One<std::sqrt>("sqrt"),
    Many<Sum>("sum"),         One<std::tan>("tan"),     One<std::tanh>("tanh"),
};

} // namespace

int ExpressionFunction::Arguments() const
{
    if (std::holds_alternative<Multiple>(calculation))
        return AnyNumber;
    return std::holds_alternative<Unary>(calculation) ? 1 : 2;
}

const ExpressionFunction* ExpressionFunction::Find(std::string_view name)
{
    const auto* const found =
        std::lower_bound(Functions.begin(), Functions.end(), name,
                         [](const ExpressionFunction& function, std::string_view wanted) {
                             return wanted.compare(function.name) > 0;
                         });
    return found != Functions.end() && name == found->name ? found : nullptr;
}
