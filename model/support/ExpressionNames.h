#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

/// @file
/// The names in an expression, as docs/expressions.md describes them. The expression may be wrong.

namespace tarn {

/// Whether @p text can be used as a name in an expression.
bool IsExpressionName(const QString& text);

/// The names of values in @p expression, each once, in the order of their appearance. Functions are
/// left out; constants are not.
QStringList NamesIn(const QString& expression);

/// The names in @p expression that have to be parameters: those in @p parameters, and those that
/// are not constants either.
QStringList ParametersIn(const QString& expression, const QSet<QString>& parameters);

/// @p expression with @p after in place of each value named @p before.
QString WithRenamed(const QString& expression, const QString& before, const QString& after);

} // namespace tarn
