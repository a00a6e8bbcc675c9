#include "ExpressionEngine.h"

#include "Angles.h"
#include "ExpressionText.h"

#include <QCache>
#include <QTextCodec>

#include <muParserBase.h>
#include <muParserTemplateMagic.h>

#include <algorithm>
#include <cfenv>
#include <charconv>
#include <cmath>
#include <cstring>
#include <deque>
#include <variant>

namespace {

using Token = ExpressionText::Token;
using Variables = std::map<std::string, double>;
using Math = mu::MathImpl<double>;
using Unary = mu::fun_type1;
using Binary = mu::fun_type2;
using Function = std::variant<Unary, Binary, mu::multfun_type>;

QString lastError;

// An infinite value represents a number that is too large for a double. The hardware raises no flag
// for some operations whose result for such a number is unknown.
double Quotient(double dividend, double divisor)
{
    if (divisor == 0.0)
        std::feraiseexcept(FE_DIVBYZERO);
    return dividend / divisor;
}

double Power(double base, double exponent)
{
    const double result = std::pow(base, exponent);
    if (base == 0.0 && std::isinf(result))
        std::feraiseexcept(FE_DIVBYZERO);
    if (base < 0.0 && !(std::isfinite(exponent) && exponent == std::rint(exponent)))
        std::feraiseexcept(FE_INVALID);
    return result;
}

double Angle(double y, double x)
{
    if (std::isinf(y) && std::isinf(x))
        std::feraiseexcept(FE_INVALID);
    return std::atan2(y, x);
}

// clang-format off
const std::map<std::string, Function>& Functions()
{
    static const std::map<std::string, Function> functions = {
        {"abs", Unary(std::fabs)},    {"acos", Unary(std::acos)},     {"acosh", Unary(std::acosh)},
        {"asin", Unary(std::asin)},   {"asinh", Unary(std::asinh)},   {"atan", Unary(std::atan)},
        {"atan2", Angle},             {"atanh", Unary(std::atanh)},   {"avg", Math::Avg},
        {"cbrt", Unary(std::cbrt)},   {"ceil", Unary(std::ceil)},     {"cos", Unary(std::cos)},
        {"cosh", Unary(std::cosh)},   {"exp", Unary(std::exp)},       {"floor", Unary(std::floor)},
        {"ln", Unary(std::log)},      {"hypot", Binary(std::hypot)},  {"log", Unary(std::log)},
        {"log10", Unary(std::log10)}, {"log2", Unary(std::log2)},     {"max", Math::Max},
        {"min", Math::Min},           {"mod", Binary(std::fmod)},     {"pow", Power},
        {"rint", Unary(std::rint)},   {"round", Unary(std::round)},   {"sign", Math::Sign},
        {"sin", Unary(std::sin)},     {"sinh", Unary(std::sinh)},     {"sqrt", Unary(std::sqrt)},
        {"sum", Math::Sum},           {"tan", Unary(std::tan)},       {"tanh", Unary(std::tanh)}};
    return functions;
}
// clang-format on

// Replaces the parser's own reading of numbers, which is slow.
int ReadNumber(const char* text, int* position, double* number)
{
    const char* const end = std::from_chars(text, text + std::strlen(text), *number).ptr;
    *position += int(end - text);
    return end != text ? 1 : 0;
}

// A compiled expression. What the parser lacks is rewritten for it: names with letters beyond
// ASCII, and / and ^, which it does not let us define.
class Program : public mu::ParserBase
{
    Q_DECLARE_TR_FUNCTIONS(ExpressionText)

public:
    explicit Program(const QByteArray& expression)
        : m_text(expression)
    {
        std::string nameCharacters = "abcdefghijklmnopqrstuvwxyz0123456789";
        for (int byte = 0x80; byte <= 0xFF; ++byte)
            nameCharacters += char(byte);
        DefineNameChars(nameCharacters.c_str());
        DefineOprtChars("%~");
        DefineInfixOprtChars("-");
        DefineInfixOprt("-", Math::UnaryMinus, mu::prINFIX, false);
        DefineOprt("%", Quotient, mu::prMUL_DIV, mu::oaLEFT);
        DefineOprt("~", Power, mu::prPOW, mu::oaRIGHT);
        // Its optimiser regroups sums and products, which changes rounding and range.
        EnableOptimizer(false);
        AddValIdent(ReadNumber);
        std::string text;
        for (auto token = m_text.Next(); token.kind != ExpressionText::End; token = m_text.Next())
            text += Rewritten(token);
        std::replace(text.begin(), text.end(), '/', '%');
        std::replace(text.begin(), text.end(), '^', '~');
        SetExpr(text);
    }

    double Evaluate(const Variables& variables)
    {
        for (auto& [name, value] : m_names)
            value = ValueOf(name, variables);
        std::feclearexcept(FE_ALL_EXCEPT);
        const double result = Eval();
        // An undefined intermediate value can vanish again, as in 1/(1/0).
        if (std::fetestexcept(FE_INVALID) != 0)
            m_text.Refuse({}, tr("an operation has no real result, such as 0/0 or sqrt(-1)"));
        if (std::fetestexcept(FE_DIVBYZERO) != 0)
            m_text.Refuse({}, tr("an operation has no finite result, such as 1/0 or ln(0)"));
        // A step that is too large for a double counts as infinite, which gives the right result,
        // as in 1/(1 + exp(1000)). Only a comparison cannot tell two of them apart.
        const bool compares = GetExpr().find_first_of("<>=") != std::string::npos;
        if (!std::isfinite(result) || (compares && std::fetestexcept(FE_OVERFLOW) != 0))
            m_text.Refuse({}, tr("a number becomes too large"));
        return result;
    }

private:
    void InitCharSets() override {}
    void InitFun() override {}
    void InitConst() override {}
    void InitOprt() override {}

    // Returns the token as the parser understands it.
    std::string Rewritten(const Token& token)
    {
        const bool isCall = token.kind == ExpressionText::Call;
        if (token.kind != ExpressionText::Name && !isCall)
            return token.text;
        const auto function = Functions().find(token.text);
        if (isCall && function == Functions().end())
            m_text.Refuse(token, tr("there is no function %1"));
        std::size_t index = 0;
        while (index < m_names.size() && !m_names[index].first.IsSame(token))
            ++index;
        if (index == m_names.size())
            m_names.emplace_back(token, 0.0);
        if (isCall) {
            m_text.Expect(int(function->second.index() + 1) % 3);
            std::visit([&](auto f) { DefineFun(token.text, f, false); }, function->second);
            return token.text + '(';
        }
        // With two bytes for each variable no expression reaches the parser's limit of 20,000.
        std::string variable = {char(0x80 + index / 0x80), char(0x80 + index % 0x80)};
        DefineVar(variable, &m_names[index].second);
        return variable;
    }

    double ValueOf(const Token& name, const Variables& variables) const
    {
        static const Variables constants = {{"e", 2.718281828459045}, {"pi", tarn::Pi}};
        const bool isCall = name.kind == ExpressionText::Call;
        auto found = variables.find(name.key);
        if (isCall && found != variables.end())
            m_text.Refuse(name, tr("%1 is a variable here, not a function"));
        if (isCall)
            return 0.0;
        if (found == variables.end() && (found = constants.find(name.key)) == constants.end())
            m_text.Refuse(name, tr("the name %1 is unknown"));
        if (!std::isfinite(found->second))
            m_text.Refuse(name, tr("the value of %1 is not finite"));
        return found->second;
    }

    ExpressionText m_text;
    std::deque<std::pair<Token, double>> m_names; // The parser points to their values.
};

Program& Compiled(const std::string& expression)
{
    // There is room for 10,000 of usual length. The cost of one is the length of its text and 64.
    static QCache<QPair<QByteArray, int>, Program> programs(1 << 20);
    // No code page takes more than four bytes for a character: a text cut off here is too long.
    constexpr std::size_t MaxBytes = 4 * ExpressionText::MaxCharacters + 1;
    const QByteArray bytes(expression.data(), int(std::min(expression.size(), MaxBytes)));
    const auto key = qMakePair(bytes, QTextCodec::codecForLocale()->mibEnum());
    if (Program* const program = programs.object(key))
        return *program;
    programs.insert(key, new Program(bytes), bytes.size() + 64);
    return *programs.object(key);
}

} // namespace

double ExpressionEngine::CalculateExpress(const std::string& expression, Variables& variables)
{
    // Nothing that happens in the calculation reaches the host.
    std::fenv_t before;
    std::feholdexcept(&before);
    lastError.clear();
    try {
        const double value = Compiled(expression).Evaluate(variables);
        std::fesetenv(&before);
        return value;
    } catch (const std::runtime_error& error) {
        lastError = QString::fromUtf8(error.what());
    } catch (...) {
        // The parser's own errors, which no expression should cause, and lack of memory.
        lastError = ExpressionText::tr("Position 1: the expression cannot be evaluated");
    }
    std::fesetenv(&before);
    return std::nan("");
}

QString ExpressionEngine::LastError()
{
    return lastError;
}
