#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

struct ExpressionFunction;

/// An expression whose syntax is right, written down for the parser.
///
/// In its text constants and variables bear made-up names, so that the parser sees only ASCII;
/// functions and numbers stay as they are.
struct ExpressionFormula
{
    /// A name in the expression that is not called.
    struct Variable
    {
        std::string name; ///< In UTF-8.
        std::string key;  ///< In the local code page, as the table of variables has it.
        int position;     ///< Of its first use in the expression.
        std::optional<double> constant; ///< What it stands for while no variable bears the name.
        double value = 0.0;             ///< What it stands for in this evaluation.
    };

    /// A function that is called.
    struct Call
    {
        const ExpressionFunction* function;
        int position; ///< Of the first call in the expression.
    };

    std::string text;
    std::vector<Variable> variables;
    std::vector<Call> calls;

    /// The made-up name of the entry @p index of variables.
    static std::string NameInText(std::size_t index);
};
