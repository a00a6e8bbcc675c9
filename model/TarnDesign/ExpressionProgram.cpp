#include "ExpressionProgram.h"

#include "ExpressionFunction.h"

#include <muParserBase.h>

#include <cfenv>
#include <charconv>
#include <cmath>
#include <cstring>
#include <system_error>
#include <utility>
#include <variant>

namespace {

// Takes the place of the parser's own reading of numbers, which is slow.
int ReadNumber(const char* text, int* position, double* number)
{
    if (*text != '.' && (*text < '0' || *text > '9'))
        return 0;
    const auto [end, error] = std::from_chars(text, text + std::strlen(text), *number);
    *position += int(end - text);
    return error == std::errc() ? 1 : 0;
}

double Negative(double value)
{
    return -value;
}

// Lets nothing that happens in a calculation reach the host, and remembers what went wrong on the
// way: an undefined intermediate value can vanish again, as in 1/(1/0).
class FloatingPointWatch
{
public:
    FloatingPointWatch() { std::feholdexcept(&m_before); }
    ~FloatingPointWatch() { std::fesetenv(&m_before); }
    FloatingPointWatch(const FloatingPointWatch&) = delete;
    FloatingPointWatch& operator=(const FloatingPointWatch&) = delete;

    /// What is wrong with @p result or the way to it; empty when nothing is.
    static QString Problem(double result, bool compares)
    {
        if (std::fetestexcept(FE_INVALID) != 0)
            return ExpressionError::tr("an operation has no real result, such as 0/0 or sqrt(-1)");
        if (std::fetestexcept(FE_DIVBYZERO) != 0)
            return ExpressionError::tr("an operation has no finite result, such as 1/0 or ln(0)");
        // A step that is too large for a double counts as infinite, which leads to the right end,
        // as in 1/(1 + exp(1000)). Only two of them cannot be told apart in a comparison.
        if (!std::isfinite(result) || (compares && std::fetestexcept(FE_OVERFLOW) != 0))
            return ExpressionError::tr("a number becomes too large");
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
        AddValIdent(ReadNumber);
        DefineInfixOprt("-", Negative, mu::prINFIX, false);
        for (const ExpressionFormula::Call& call : formula.calls)
            Define(*call.function);
        for (std::size_t i = 0; i < formula.variables.size(); ++i)
            DefineVar(ExpressionFormula::NameInText(i), &formula.variables[i].value);
        SetExpr(formula.text);
    }

private:
    void Define(const ExpressionFunction& function)
    {
        // The parser must not calculate anything while it compiles: what goes wrong then would be
        // missed.
        constexpr bool foldConstants = false;
        const auto define = [this, &function](auto calculation) {
            DefineFun(function.name, calculation, foldConstants);
        };
        std::visit(define, function.calculation);
    }

    void InitCharSets() override {}
    void InitFun() override {}
    void InitConst() override {}
    void InitOprt() override {}
};

ExpressionProgram::ExpressionProgram(ExpressionFormula formula)
    : m_formula(std::move(formula))
    , m_compares(m_formula.text.find_first_of("<>=") != std::string::npos)
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
    const QString problem = watch.Problem(result, m_compares);
    if (problem.isEmpty())
        return result;
    error = {1, problem};
    return std::nullopt;
}

bool ExpressionProgram::Bind(const std::map<std::string, double>& variables, ExpressionError& error)
{
    for (const ExpressionFormula::Call& call : m_formula.calls) {
        if (variables.count(call.function->name) != 0) {
            error = {call.position, ExpressionError::tr("'%1' is a variable here and no function")
                                        .arg(QLatin1String(call.function->name))};
            return false;
        }
    }
    for (ExpressionFormula::Variable& variable : m_formula.variables) {
        const auto found = variables.find(variable.key);
        if (found == variables.end() && !variable.constant) {
            error = {variable.position, ExpressionError::tr("the name %1 is unknown")
                                            .arg(ExpressionError::Shown(variable.name))};
            return false;
        }
        variable.value = found != variables.end() ? found->second : *variable.constant;
        if (!std::isfinite(variable.value)) {
            error = {variable.position, ExpressionError::tr("the value of %1 is not finite")
                                            .arg(ExpressionError::Shown(variable.name))};
            return false;
        }
    }
    return true;
}
