#include "ExpressionTranslator.h"

#include "ExpressionFunction.h"
#include "ExpressionText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

struct Constant
{
    const char* name;
    double value;
};

constexpr std::array<Constant, 2> Constants = {{
    {"e", 2.71828182845904523536},
    {"pi", 3.14159265358979323846},
}};

std::optional<double> FindConstant(std::string_view name)
{
    for (const Constant& constant : Constants) {
        if (name == constant.name)
            return constant.value;
    }
    return std::nullopt;
}

} // namespace

ExpressionTranslator::ExpressionTranslator(const ExpressionText& text)
    : m_text(text)
    , m_scanner(text.Utf8())
{
}

std::optional<ExpressionFormula> ExpressionTranslator::Translate()
{
    if (m_text.PositionOf(m_text.Utf8().size()) > MaxCharacters + 1) {
        m_error = TooLong();
        return std::nullopt;
    }
    for (;;) {
        const Token token = m_scanner.Next();
        if (token.kind == Kind::End) {
            if (!Finish(token))
                return std::nullopt;
            return std::move(m_formula);
        }
        m_isEmpty = false;
        if (!(m_needsValue ? TakeValue(token) : TakeOperator(token)))
            return std::nullopt;
    }
}

ExpressionError ExpressionTranslator::TooLong()
{
    return {MaxCharacters + 1,
            ExpressionError::tr("the expression has more than %1 characters").arg(MaxCharacters)};
}

// Where a value must begin: signs, a number, a name, a bracket.
bool ExpressionTranslator::TakeValue(const Token& token)
{
    switch (token.kind) {
    case Kind::Number:
        Write(m_scanner.TextOf(token));
        m_needsValue = false;
        return true;
    case Kind::Name:
        return m_scanner.Peek().kind == Kind::Open ? TakeCall(token) : TakeName(token);
    case Kind::Open:
        Open(Kind::Open, token);
        return true;
    case Kind::Operator: {
        // The parser takes one sign only, so a chain of them is written as what it comes to.
        const char sign = m_text.Utf8()[token.begin];
        if (sign != '+' && sign != '-')
            break;
        m_isNegated = m_isNegated != (sign == '-');
        return true;
    }
    case Kind::NumberOutOfRange:
        return Refuse(token.begin, ExpressionError::tr("the number is too large or too small"));
    case Kind::Unknown:
        return Refuse(token.begin, ExpressionError::tr("%1 is not allowed here").arg(Shown(token)));
    default:
        break;
    }
    return Refuse(token.begin,
                  ExpressionError::tr("a value is missing before %1").arg(Shown(token)));
}

// Where a value has ended.
bool ExpressionTranslator::TakeOperator(const Token& token)
{
    switch (token.kind) {
    case Kind::Operator:
        Write(m_scanner.TextOf(token));
        m_needsValue = true;
        return true;
    case Kind::Condition:
        Open(Kind::Condition, token);
        return true;
    case Kind::Otherwise:
        return TakeOtherwise(token);
    case Kind::Comma:
        return TakeComma(token);
    case Kind::Close:
        return TakeClose(token);
    case Kind::Unknown:
        if (m_text.Utf8()[token.begin] == '=')
            return Refuse(token.begin, ExpressionError::tr("nothing can be assigned with '='; two "
                                                           "values are compared with '=='"));
        return Refuse(token.begin, ExpressionError::tr("%1 is not allowed here").arg(Shown(token)));
    default:
        return Refuse(token.begin,
                      ExpressionError::tr("an operator is missing before %1").arg(Shown(token)));
    }
}

bool ExpressionTranslator::TakeName(const Token& token)
{
    std::string name(m_scanner.TextOf(token));
    const auto [entry, isNew] = m_variableOfName.emplace(name, m_formula.variables.size());
    if (isNew) {
        std::string key = m_text.LocalName(name);
        const std::optional<double> constant = FindConstant(name);
        m_formula.variables.push_back(
            {std::move(name), std::move(key), m_text.PositionOf(token.begin), constant});
    }
    Write(ExpressionFormula::NameInText(entry->second));
    m_needsValue = false;
    return true;
}

bool ExpressionTranslator::TakeCall(const Token& token)
{
    const std::string_view name = m_scanner.TextOf(token);
    const ExpressionFunction* const function = ExpressionFunction::Find(name);
    if (function == nullptr)
        return Refuse(token.begin,
                      ExpressionError::tr("there is no function %1").arg(Shown(token)));
    auto& calls = m_formula.calls;
    const auto isSame = [function](const auto& call) {
        return call.function == function;
    };
    if (std::none_of(calls.begin(), calls.end(), isSame))
        calls.push_back({function, m_text.PositionOf(token.begin)});
    m_scanner.Next(); // The bracket.
    Write(name);
    Open(Kind::Open, token, function);
    return true;
}

bool ExpressionTranslator::TakeOtherwise(const Token& token)
{
    if (m_open.empty() || m_open.back().kind != Kind::Condition)
        return Refuse(token.begin, ExpressionError::tr("this ':' has no '?' before it"));
    m_open.pop_back();
    Write(":");
    m_needsValue = true;
    return true;
}

bool ExpressionTranslator::TakeComma(const Token& token)
{
    if (!m_open.empty() && m_open.back().kind == Kind::Condition)
        return RefuseUnclosed(m_open.back());
    if (m_open.empty() || m_open.back().function == nullptr)
        return Refuse(
            token.begin,
            ExpressionError::tr("more than one value; ',' stands only between the values of a "
                                "function, and the decimal sign is the full stop"));
    ++m_open.back().arguments;
    Write(",");
    m_needsValue = true;
    return true;
}

bool ExpressionTranslator::TakeClose(const Token& token)
{
    if (m_open.empty())
        return Refuse(token.begin, ExpressionError::tr("this ')' has no '(' before it"));
    const Frame frame = m_open.back();
    if (frame.kind == Kind::Condition)
        return RefuseUnclosed(frame);
    if (frame.function != nullptr && !CheckArguments(frame))
        return false;
    m_open.pop_back();
    Write(")");
    return true;
}

bool ExpressionTranslator::Finish(const Token& end)
{
    if (m_isEmpty)
        return Refuse(0, ExpressionError::tr("the expression is empty"));
    if (m_needsValue)
        return Refuse(end.begin,
                      ExpressionError::tr("the expression ends where a value must follow"));
    return m_open.empty() || RefuseUnclosed(m_open.back());
}

bool ExpressionTranslator::CheckArguments(const Frame& call)
{
    const int wanted = call.function->Arguments();
    if (wanted == ExpressionFunction::AnyNumber || wanted == call.arguments)
        return true;
    return Refuse(call.begin, ExpressionError::tr("the function '%1' takes %2 value(s), not %3")
                                  .arg(QLatin1String(call.function->name))
                                  .arg(wanted)
                                  .arg(call.arguments));
}

void ExpressionTranslator::Open(Kind kind, const Token& token, const ExpressionFunction* function)
{
    Write(kind == Kind::Condition ? "?" : "(");
    m_open.push_back({kind, token.begin, function, 1});
    m_needsValue = true;
}

// A minus sign is held back until its value comes.
void ExpressionTranslator::Write(std::string_view text)
{
    if (m_isNegated)
        m_formula.text += '-';
    m_isNegated = false;
    m_formula.text += text;
}

bool ExpressionTranslator::Refuse(std::size_t offset, const QString& reason)
{
    m_error = {m_text.PositionOf(offset), reason};
    return false;
}

bool ExpressionTranslator::RefuseUnclosed(const Frame& frame)
{
    if (frame.kind == Kind::Condition)
        return Refuse(frame.begin, ExpressionError::tr("this '?' has no ':' after it"));
    if (frame.function == nullptr)
        return Refuse(frame.begin, ExpressionError::tr("this '(' has no ')' after it"));
    return Refuse(frame.begin, ExpressionError::tr("the call of '%1' has no ')' at its end")
                                   .arg(QLatin1String(frame.function->name)));
}

QString ExpressionTranslator::Shown(const Token& token) const
{
    return ExpressionError::Shown(m_scanner.TextOf(token));
}
