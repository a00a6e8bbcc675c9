#pragma once

#include "ExpressionError.h"
#include "ExpressionFormula.h"

#include <map>
#include <memory>
#include <optional>
#include <string>

/// A compiled expression, to be evaluated as often as one likes.
class ExpressionProgram
{
public:
    explicit ExpressionProgram(ExpressionFormula formula);
    ~ExpressionProgram();
    ExpressionProgram(const ExpressionProgram&) = delete;
    ExpressionProgram& operator=(const ExpressionProgram&) = delete;

    /// The finite value with @p variables, or nothing; then @p error says why.
    std::optional<double> Evaluate(const std::map<std::string, double>& variables,
                                   ExpressionError& error);

private:
    class Parser;

    bool Bind(const std::map<std::string, double>& variables, ExpressionError& error);

    ExpressionFormula m_formula;
    bool m_compares;
    std::unique_ptr<Parser> m_parser; // Refers to the variables of the formula.
};
