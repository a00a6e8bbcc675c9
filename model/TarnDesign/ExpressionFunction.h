#pragma once

#include <string_view>
#include <variant>

/// A function of the expression language.
struct ExpressionFunction
{
    static constexpr int AnyNumber = -1;

    using Unary = double (*)(double);
    using Binary = double (*)(double, double);
    using Multiple = double (*)(const double* values, int count);

    const char* name;
    std::variant<Unary, Binary, Multiple> calculation;

    /// How many values it takes; AnyNumber stands for one or more.
    int Arguments() const;

    /// The function named @p name, or null.
    static const ExpressionFunction* Find(std::string_view name);
};
