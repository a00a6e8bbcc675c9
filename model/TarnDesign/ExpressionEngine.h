#pragma once

#include "tarndesign_export.h"

#include <QString>

#include <map>
#include <string>

/// Evaluates the expressions of design parameters; docs/expressions.md describes their language.
///
/// Texts are in the local 8-bit code page. The decimal sign is the full stop under every locale.
class TARNDESIGN_EXPORT ExpressionEngine
{
public:
    ExpressionEngine() = delete;

    /// Returns the value of @p expression with @p variables, which are not changed. Never throws.
    ///
    /// A variable hides a function or constant of the same name; entries whose name is not an
    /// identifier are ignored. If there is no finite value, returns NaN; LastError() gives the
    /// reason.
    static double CalculateExpress(const std::string& expression,
                                   std::map<std::string, double>& variables);

    /// Returns why the last CalculateExpress() gave NaN, in the language of the installed
    /// translators and with the position in characters from 1, or an empty text if it gave a
    /// number.
    static QString LastError();
};
