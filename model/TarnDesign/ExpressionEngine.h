#pragma once

#include "tarndesign_export.h"

#include <QString>

#include <map>
#include <string>

/// Evaluates the expressions of design parameters.
///
/// Texts are in the local 8-bit code page. The language (operators, functions, constants) is told
/// in docs/expressions.md. The decimal sign is the full stop under every locale.
class TARNDESIGN_EXPORT ExpressionEngine
{
public:
    ExpressionEngine() = delete;

    /// The value of @p expression with the given @p variables, which are not changed.
    ///
    /// A variable wins over a function or constant of the same name; entries whose name is no
    /// identifier are passed over. Whatever has no finite value gives NaN, and LastError() says
    /// why. Never throws.
    static double CalculateExpress(const std::string& expression,
                                   std::map<std::string, double>& variables);

    /// Why the last CalculateExpress() gave NaN, with the position in the text counted in
    /// characters from 1; empty after a success. In the language of the installed translators.
    static QString LastError();
};
