#pragma once

#include <cstddef>
#include <string_view>

/// Cuts the text of an expression, in UTF-8, into tokens.
class ExpressionScanner
{
public:
    enum class Kind
    {
        End,
        Number,
        Name,
        Operator,  ///< One that stands between two values.
        Condition, ///< The question mark.
        Otherwise, ///< The colon.
        Open,
        Close,
        Comma,
        NumberOutOfRange,
        Unknown ///< A character that is no part of the language.
    };

    struct Token
    {
        Kind kind = Kind::End;
        std::size_t begin = 0;
        std::size_t length = 0;
    };

    /// @p text must outlive the scanner.
    explicit ExpressionScanner(std::string_view text)
        : m_text(text)
    {
    }

    /// The token after the one that the last call gave.
    Token Next();

    /// The token after that, without moving on.
    Token Peek() const;

    std::string_view TextOf(const Token& token) const
    {
        return m_text.substr(token.begin, token.length);
    }

private:
    std::string_view m_text;
    std::size_t m_offset = 0;
};
