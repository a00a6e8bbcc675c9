#pragma once

#include <string_view>

namespace mu {
class ParserBase;
}

/// A function of the expression language.
struct ExpressionFunction
{
    static constexpr int AnyNumber = -1;

    const char* name;
    int arguments; ///< How many values it takes; AnyNumber stands for one or more.
    void (*define)(mu::ParserBase& parser, const char* name);

    /// The function named @p name, or null.
    static const ExpressionFunction* Find(std::string_view name);
};
