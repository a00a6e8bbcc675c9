#include "ExpressionProgram.h"

#include "ExpressionFunction.h"

#include <muParserBase.h>

#include <cfenv>
#include <cmath>
#include <utility>

namespace {

double Negative(double value)
{
    return -value;
}

// Lets nothing that happens in a calculation reach the host, and remembers what went wrong on the
// way: an infinite or undefined intermediate value can vanish again, as in 1/(1/0).
class FloatingPointWatch
{
public:
    FloatingPointWatch() { std::feholdexcept(&m_before); }
    ~FloatingPointWatch() { std::fesetenv(&m_before); }
    FloatingPointWatch(const FloatingPointWatch&) = delete;
    FloatingPointWatch& operator=(const FloatingPointWatch&) = delete;

    /// What is wrong with @p result or the way to it; empty when nothing is.
    static QString Problem(double result)
    {
        if (std::fetestexcept(FE_INVALID) != 0)
            return QStringLiteral("an operation has no real result, such as 0/0 or sqrt(-1)");
        if (std::fetestexcept(FE_DIVBYZERO) != 0)
            return QStringLiteral("an operation has no finite result, such as 1/0 or ln(0)");
        if (std::fetestexcept(FE_OVERFLOW) != 0 || !std::isfinite(result))
            return QStringLiteral("a number becomes too large");
        return QString();
    }

private:
    std::fenv_t m_before{};
};

} // namespace

// The bare parser: it knows what a formula needs and nothing else.
class ExpressionProgram::Parser : public mu::ParserBase
{
public:
    explicit Parser(ExpressionFormula& formula)
    {
        DefineNameChars("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789");
        DefineOprtChars("+-*/^<>=!&|?:");
        DefineInfixOprtChars("-");
        // Its optimiser regroups sums and products, which changes rounding and range.
        EnableOptimizer(false);
        DefineInfixOprt("-", Negative, mu::prINFIX, false);
        for (const ExpressionFormula::Call& call : formula.calls)
            call.function->define(*this, call.function->name);
        for (std::size_t i = 0; i < formula.values.size(); ++i)
            DefineVar(ExpressionFormula::NameOfValue(i), &formula.values[i]);
        SetExpr(formula.text);
    }

private:
    void InitCharSets() override {}
    void InitFun() override {}
    void InitConst() override {}
    void InitOprt() override {}
};

ExpressionProgram::ExpressionProgram(ExpressionFormula formula)
    : m_formula(std::move(formula))
    , m_parser(std::make_unique<Parser>(m_formula))
{
}

ExpressionProgram::~ExpressionProgram() = default;

std::optional<double> ExpressionProgram::Evaluate(const std::map<std::string, double>& variables,
                                                  ExpressionError& error)
{
    if (!Bind(variables, error))
        return std::nullopt;
    const FloatingPointWatch watch;
    const double result = m_parser->Eval();
    const QString problem = watch.Problem(result);
    if (problem.isEmpty())
        return result;
    error = {1, problem};
    return std::nullopt;
}

bool ExpressionProgram::Bind(const std::map<std::string, double>& variables, ExpressionError& error)
{
    for (const ExpressionFormula::Call& call : m_formula.calls) {
        if (variables.count(call.name) != 0) {
            error = {call.position, QStringLiteral("%1 is a variable here and no function")
                                        .arg(ExpressionError::Shown(call.name))};
            return false;
        }
    }
    for (const ExpressionFormula::Variable& variable : m_formula.variables) {
        const auto found = variables.find(variable.key);
        if (found == variables.end() && !variable.isConstant) {
            error = {variable.position, QStringLiteral("the name %1 is unknown")
                                            .arg(ExpressionError::Shown(variable.name))};
            return false;
        }
        const double value = found == variables.end() ? variable.constant : found->second;
        if (!std::isfinite(value)) {
            error = {variable.position, QStringLiteral("the value of %1 is not finite")
                                            .arg(ExpressionError::Shown(variable.name))};
            return false;
        }
        m_formula.values[variable.value] = value;
    }
    return true;
}
