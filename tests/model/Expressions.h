#pragma once

#include "ExpressionEngine.h"

#include <QString>
#include <QStringList>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>

/// Shared by the tests of expressions.
namespace expressions {

using Variables = std::map<std::string, double>;

inline const QStringList& Functions()
{
    static const QStringList functions =
        QString("sin cos tan asin acos atan atan2 sinh cosh tanh asinh acosh atanh exp ln log log2 "
                "log10 sqrt cbrt abs sign floor ceil round rint mod pow hypot min max sum avg")
            .split(' ');
    return functions;
}

inline double Calculate(const std::string& expression, Variables variables = {})
{
    return ExpressionEngine::CalculateExpress(expression, variables);
}

inline double Calculate(const QString& expression, const Variables& variables = {})
{
    return Calculate(expression.toLocal8Bit().toStdString(), variables);
}

inline double Calculate(const char* expression, const Variables& variables = {})
{
    return Calculate(std::string(expression), variables);
}

/// True if @p actual is @p expected up to the last digit, which depends on the C library.
inline bool IsNear(double actual, double expected)
{
    return std::abs(actual - expected) <= 1e-14 * std::max(1.0, std::abs(expected));
}

} // namespace expressions

#define COMPARE_VALUE(expression, expected)                                                        \
    QVERIFY2(expressions::IsNear(expression, expected),                                            \
             qPrintable(QString("%1 instead of %2; %3")                                            \
                            .arg(expression, 0, 'g', 17)                                           \
                            .arg(expected, 0, 'g', 17)                                             \
                            .arg(ExpressionEngine::LastError())))
