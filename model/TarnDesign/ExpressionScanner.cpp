#include "ExpressionScanner.h"

#include <charconv>
#include <string_view>
#include <system_error>

namespace {

bool IsBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

// What is not ASCII is a letter.
bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

ExpressionScanner::Kind KindOfSign(char sign)
{
    using Kind = ExpressionScanner::Kind;
    switch (sign) {
    case '+':
    case '-':
    case '*':
    case '/':
    case '^':
    case '<':
    case '>':
        return Kind::Operator;
    case '?':
        return Kind::Condition;
    case ':':
        return Kind::Otherwise;
    case '(':
        return Kind::Open;
    case ')':
        return Kind::Close;
    case ',':
        return Kind::Comma;
    default:
        return Kind::Unknown;
    }
}

} // namespace

ExpressionScanner::Token ExpressionScanner::Next()
{
    const Token token = Peek();
    m_offset = token.begin + token.length;
    return token;
}

ExpressionScanner::Token ExpressionScanner::Peek() const
{
    ExpressionScanner ahead(*this);
    while (ahead.m_offset < m_text.size() && IsBlank(m_text[ahead.m_offset]))
        ++ahead.m_offset;
    if (ahead.m_offset == m_text.size())
        return {Kind::End, ahead.m_offset, 0};
    const char first = m_text[ahead.m_offset];
    if (IsDigit(first) || first == '.')
        return ahead.ScanNumber();
    return IsLetter(first) ? ahead.ScanName() : ahead.ScanSign();
}

ExpressionScanner::Token ExpressionScanner::ScanNumber() const
{
    const char* const begin = m_text.data() + m_offset;
    double number = 0.0;
    // Unlike the C library it reads a full stop as decimal sign under every locale.
    const auto [end, error] = std::from_chars(begin, m_text.data() + m_text.size(), number);
    if (error == std::errc::invalid_argument)
        return {Kind::Unknown, m_offset, 1};
    return {error == std::errc() ? Kind::Number : Kind::NumberOutOfRange, m_offset,
            std::size_t(end - begin), number};
}

ExpressionScanner::Token ExpressionScanner::ScanName() const
{
    std::size_t end = m_offset;
    while (end < m_text.size() && (IsLetter(m_text[end]) || IsDigit(m_text[end])))
        ++end;
    return {Kind::Name, m_offset, end - m_offset};
}

ExpressionScanner::Token ExpressionScanner::ScanSign() const
{
    using namespace std::string_view_literals;
    const std::string_view two = std::string_view(m_text).substr(m_offset, 2);
    for (const std::string_view sign : {"<="sv, ">="sv, "=="sv, "!="sv, "&&"sv, "||"sv}) {
        if (two == sign)
            return {Kind::Operator, m_offset, 2};
    }
    return {KindOfSign(m_text[m_offset]), m_offset, 1};
}
