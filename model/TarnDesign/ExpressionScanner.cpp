#include "ExpressionScanner.h"

#include <charconv>
#include <system_error>

namespace {

using Kind = ExpressionScanner::Kind;

struct Piece
{
    Kind kind;
    std::size_t length;
};

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

Piece Name(std::string_view rest)
{
    std::size_t length = 1;
    while (length < rest.size() && (IsLetter(rest[length]) || IsDigit(rest[length])))
        ++length;
    return {Kind::Name, length};
}

Piece Number(std::string_view rest)
{
    double number = 0.0;
    // Unlike the C library it reads a full stop as decimal sign under every locale.
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
    if (error == std::errc::invalid_argument)
        return {Kind::Unknown, 1};
    return {error == std::errc() ? Kind::Number : Kind::NumberOutOfRange,
            std::size_t(end - rest.data())};
}

// The first piece of what is left, which does not begin with a blank.
Piece FirstPiece(std::string_view rest)
{
    if (rest.empty())
        return {Kind::End, 0};
    const char first = rest[0];
    const char second = rest.size() > 1 ? rest[1] : '\0';
    switch (first) {
    case '(':
        return {Kind::Open, 1};
    case ')':
        return {Kind::Close, 1};
    case '+':
    case '-':
    case '*':
    case '/':
    case '^':
        return {Kind::Operator, 1};
    case '<':
    case '>':
        return {Kind::Operator, second == '=' ? std::size_t(2) : std::size_t(1)};
    case '=':
    case '!':
        return second == '=' ? Piece{Kind::Operator, 2} : Piece{Kind::Unknown, 1};
    case '&':
    case '|':
        return second == first ? Piece{Kind::Operator, 2} : Piece{Kind::Unknown, 1};
    case '?':
        return {Kind::Condition, 1};
    case ':':
        return {Kind::Otherwise, 1};
    case ',':
        return {Kind::Comma, 1};
    default:
        break;
    }
    if (IsLetter(first))
        return Name(rest);
    return IsDigit(first) || first == '.' ? Number(rest) : Piece{Kind::Unknown, 1};
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
    std::size_t begin = m_offset;
    while (begin < m_text.size() && IsBlank(m_text[begin]))
        ++begin;
    const Piece piece = FirstPiece(m_text.substr(begin));
    return {piece.kind, begin, piece.length};
}
