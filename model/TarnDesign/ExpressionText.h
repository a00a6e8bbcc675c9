#pragma once

#include <QCoreApplication>

#include <stdexcept>
#include <string>
#include <vector>

/// The tokens of an expression, checked for their order: the parser's own errors have no exact
/// positions and no translations.
///
/// In some code pages the second byte of a letter looks like an operator or a digit, so the bytes
/// are decoded first. Bytes that the local code page cannot decode, or would not encode back to the
/// same bytes, are read as Latin-1, one letter each.
class ExpressionText
{
    Q_DECLARE_TR_FUNCTIONS(ExpressionText)

public:
    static constexpr int MaxCharacters = 10000;

    /// Any other token has its first character as kind. A call is a name with its bracket.
    enum Kind : char
    {
        End,
        Name,
        Call,
        Number,
        Unknown
    };

    struct Token
    {
        char kind;
        int begin;
        std::string text; ///< With underscores for characters beyond ASCII.
        std::string key;  ///< The text in the code page, in which the variables have their names.
        int values = 1;   ///< How many values the call has so far.
        int wanted = 0;   ///< How many values the function takes; 0 means any number.

        bool IsSame(const Token& other) const { return kind == other.kind && key == other.key; }
    };

    /// All functions throw std::runtime_error; its text is for the user.
    explicit ExpressionText(const QByteArray& bytes);

    /// Returns the next token. A chain of signs is one minus sign or nothing.
    Token Next();

    /// Sets how many values the call takes that Next() returned last.
    void Expect(int values) { m_open.back().wanted = values; }

    /// Throws @p reason with the position of @p token, which replaces %1.
    [[noreturn]] void Refuse(const Token& token, QString reason) const;

private:
    Token Read() const;
    void Check(const Token& token);

    QString m_text;
    bool m_isLocal;      // Rather than Latin-1.
    std::string m_ascii; // As long as m_text.
    std::size_t m_offset = 0;
    bool m_needsValue = true;
    std::vector<Token> m_open; // Brackets, and question marks that wait for their colon.
};
