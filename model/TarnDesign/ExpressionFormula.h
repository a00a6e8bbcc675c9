#pragma once

#include <cstddef>
#include <string>
#include <vector>

struct ExpressionFunction;

/// An expression whose syntax is right, written down for the parser.
///
/// In its text every number, constant and variable bears a made-up name that stands for an entry of
/// `values`; functions keep their own. So the parser sees only ASCII, and never reads a number.
struct ExpressionFormula
{
    /// A name in the expression, outside of calls.
    struct Variable
    {
        std::string name; ///< In UTF-8.
        std::string key;  ///< In the local code page, as the table of variables has it.
        int position;     ///< Of its first use in the expression.
        std::size_t value;
        bool isConstant; ///< Then the entry of values holds while no variable bears the name.
        double constant;
    };

    /// A function that is called.
    struct Call
    {
        std::string name;
        const ExpressionFunction* function;
        int position; ///< Of the first call in the expression.
    };

    std::string text;
    std::vector<double> values;
    std::vector<Variable> variables;
    std::vector<Call> calls;

    /// The name in `text` of the entry @p index of values.
    static std::string NameOfValue(std::size_t index);
};
