#pragma once

#include "ExpressionError.h"
#include "ExpressionFormula.h"
#include "ExpressionScanner.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class ExpressionText;
struct ExpressionFunction;

/// Checks the syntax of an expression and writes it down as a formula.
///
/// The parser accepts more than the language has (assignments, several values, names of its own),
/// and says less exactly where something is wrong; so nothing reaches it that was not checked here.
/// Works from left to right with a stack of its own, so that deep nesting costs no call stack.
class ExpressionTranslator
{
public:
    /// Keeps every formula, with its made-up names, below the parser's own limit of 20,000 bytes.
    static constexpr int MaxCharacters = 10000;

    /// What is said of a longer expression.
    static ExpressionError TooLong();

    /// @p text must outlive the translator.
    explicit ExpressionTranslator(const ExpressionText& text);

    /// The formula, or nothing; then Error() says why. To be called once.
    std::optional<ExpressionFormula> Translate();

    const ExpressionError& Error() const { return m_error; }

private:
    using Kind = ExpressionScanner::Kind;
    using Token = ExpressionScanner::Token;

    // What is open: a bracket, a call, or a question mark that waits for its colon.
    struct Frame
    {
        Kind kind;
        std::size_t begin;
        const ExpressionFunction* function; // Null unless it is a call.
        int arguments;
    };

    bool TakeValue(const Token& token);
    bool TakeOperator(const Token& token);
    bool TakeName(const Token& token);
    bool TakeCall(const Token& token);
    bool TakeOtherwise(const Token& token);
    bool TakeComma(const Token& token);
    bool TakeClose(const Token& token);
    bool Finish(const Token& end);
    bool CheckArguments(const Frame& call);

    void Open(Kind kind, const Token& token, const ExpressionFunction* function = nullptr);
    void Write(std::string_view text);
    bool Refuse(std::size_t offset, const QString& reason);
    bool RefuseUnclosed(const Frame& frame);
    QString Shown(const Token& token) const;

    const ExpressionText& m_text;
    ExpressionScanner m_scanner;
    ExpressionFormula m_formula;
    ExpressionError m_error;
    std::vector<Frame> m_open;
    std::map<std::string, std::size_t> m_variableOfName;
    bool m_isEmpty = true;
    bool m_needsValue = true;
    bool m_isNegated = false;
};
