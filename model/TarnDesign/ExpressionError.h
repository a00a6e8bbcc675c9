#pragma once

#include <QCoreApplication>
#include <QString>

#include <string_view>

/// Why an expression has no value.
struct ExpressionError
{
    Q_DECLARE_TR_FUNCTIONS(ExpressionError)

public:
    int position = 1; ///< In characters of the expression, from 1.
    QString reason;

    /// Position and reason in one line.
    QString Text() const;

    /// A part of an expression, in UTF-8, as messages quote it: shortened; a single character that
    /// cannot be printed is named by its code.
    static QString Shown(std::string_view part);
};
