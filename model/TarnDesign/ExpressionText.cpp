#include "ExpressionText.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstring>

namespace {

constexpr char Blanks[] = " \t\n\v\f\r";

bool IsOneOf(const char* characters, char c)
{
    return c != '\0' && std::strchr(characters, c) != nullptr;
}

} // namespace

ExpressionText::ExpressionText(const QByteArray& bytes)
    : m_text(QString::fromLocal8Bit(bytes.constData(), bytes.size()))
    , m_isLocal(m_text.toLocal8Bit() == bytes)
{
    if (!m_isLocal)
        m_text = QString::fromLatin1(bytes.constData(), bytes.size());
    for (const QChar character : qAsConst(m_text))
        m_ascii += character < QChar(0x80) ? character.toLatin1() : '_';
    const auto characters = m_text.toUcs4();
    if (characters.size() > MaxCharacters) {
        const auto* const first = reinterpret_cast<const char32_t*>(characters.constData());
        Refuse({End, int(QString::fromUcs4(first, MaxCharacters).size()), "", ""},
               tr("the expression has more than %1 characters").arg(MaxCharacters));
    }
    if (Read().kind == End)
        Refuse({}, tr("the expression is empty"));
}

ExpressionText::Token ExpressionText::Next()
{
    bool isNegated = false;
    Token token = Read();
    for (; m_needsValue && (token.kind == '+' || token.kind == '-'); token = Read()) {
        isNegated = isNegated != (token.kind == '-');
        m_offset = std::size_t(token.begin) + 1;
    }
    if (isNegated)
        return {'-', 0, "-", ""};
    Check(token);
    m_offset = std::size_t(token.begin) + token.text.size();
    const QString text = m_text.mid(token.begin, int(token.text.size()));
    if (token.kind == Name || token.kind == Call)
        token.key = (m_isLocal ? text.toLocal8Bit() : text.toLatin1()).toStdString();
    if (token.kind == Call)
        m_offset = m_ascii.find('(', m_offset) + 1;
    return token;
}

ExpressionText::Token ExpressionText::Read() const
{
    const std::size_t begin = std::min(m_ascii.find_first_not_of(Blanks, m_offset), m_ascii.size());
    const char* const text = m_ascii.c_str() + begin;
    const auto token = [&](char kind, std::size_t size) {
        return Token{kind, int(begin), std::string(text, size), ""};
    };
    if (begin == m_ascii.size())
        return token(End, 0);
    if (std::isdigit(text[0]) != 0 || (text[0] == '.' && std::isdigit(text[1]) != 0)) {
        double number = 0.0;
        // Unlike the C library it reads a full stop as decimal sign under every locale.
        const auto [end, error] = std::from_chars(text, text + std::strlen(text), number);
        if (error != std::errc())
            Refuse(token(Number, 0), tr("the number is too large or too small"));
        return token(Number, std::size_t(end - text));
    }
    std::size_t size = 0;
    while (text[size] == '_' || std::isalnum(text[size]) != 0)
        ++size;
    if (size > 0)
        return token(text[size + std::strspn(text + size, Blanks)] == '(' ? Call : Name, size);
    if ((text[1] == '=' && IsOneOf("<>=!", text[0])) ||
        (text[1] == text[0] && IsOneOf("&|", text[0])))
        return token(text[0], 2);
    return token(IsOneOf("+-*/^<>()?:,", text[0]) ? text[0] : char(Unknown), 1);
}

void ExpressionText::Check(const Token& token)
{
    const bool isOperand = token.kind == Name || token.kind == Number;
    const bool beginsValue = isOperand || token.kind == Call || token.kind == '(';
    const Token open = m_open.empty() ? Token{} : m_open.back();
    if (token.text == "=" && !m_needsValue)
        Refuse(token, tr("nothing can be assigned with '='; two values are compared with '=='"));
    if (token.kind == Unknown)
        Refuse(token, tr("%1 is not allowed here"));
    if (token.kind == End && m_needsValue)
        Refuse(token, tr("the expression ends where a value must follow"));
    if (m_needsValue && !beginsValue)
        Refuse(token, tr("a value is missing before %1"));
    if (!m_needsValue && beginsValue)
        Refuse(token, tr("an operator is missing before %1"));
    if (open.kind == '?' && (token.kind == End || token.kind == ')' || token.kind == ','))
        Refuse(open, tr("'?' without a matching ':'"));
    if (token.kind == End && open.kind != End)
        Refuse(open, tr("'(' without a matching ')'"));
    if (token.kind == ')' && open.kind == End)
        Refuse(token, tr("')' without a matching '('"));
    if (token.kind == ':' && open.kind != '?')
        Refuse(token, tr("':' without a matching '?'"));
    if (token.kind == ',' && open.kind != Call)
        Refuse(token, tr("more than one value; ',' is only used between the values of a "
                         "function, and the decimal sign is the full stop"));
    if (token.kind == ')' && open.wanted != 0 && open.wanted != open.values)
        Refuse(open, tr("the function %1 takes %2 value(s), not %3")
                         .arg(QLatin1String("%1"), QString::number(open.wanted),
                              QString::number(open.values)));
    if (token.kind == ',')
        ++m_open.back().values;
    if (token.kind == ')' || token.kind == ':')
        m_open.pop_back();
    if (token.kind == '(' || token.kind == '?' || token.kind == Call)
        m_open.push_back(token);
    m_needsValue = !isOperand && token.kind != ')';
}

void ExpressionText::Refuse(const Token& token, QString reason) const
{
    constexpr std::size_t MaxShown = 40;
    const QString part = m_text.mid(token.begin, int(std::min(token.text.size(), MaxShown)));
    const QLatin1String end(token.text.size() > MaxShown ? "...'" : "'");
    QString shown = QLatin1Char('\'') + part + end;
    if (token.text.size() == 1 && !part.at(0).isPrint())
        shown = tr("the character with code %1").arg(part.at(0).unicode());
    reason.replace(QLatin1String("%1"), shown);
    const int position = int(QStringView(m_text).left(token.begin).toUcs4().size()) + 1;
    throw std::runtime_error(tr("Position %1: %2").arg(position).arg(reason).toStdString());
}
