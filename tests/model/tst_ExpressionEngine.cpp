#include "ExpressionEngine.h"
#include "TestCase.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextCodec>

#include <cfenv>
#include <cmath>
#include <limits>

namespace {

using Variables = std::map<std::string, double>;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

const QStringList& Functions()
{
    static const QStringList functions =
        QString("sin cos tan asin acos atan atan2 sinh cosh tanh asinh acosh atanh exp ln log log2 "
                "log10 sqrt cbrt abs sign floor ceil round rint mod pow hypot min max sum avg")
            .split(' ');
    return functions;
}

double Calculate(const std::string& expression, Variables variables = {})
{
    return ExpressionEngine::CalculateExpress(expression, variables);
}

double Calculate(const QString& expression, const Variables& variables = {})
{
    return Calculate(expression.toLocal8Bit().toStdString(), variables);
}

double Calculate(const char* expression, const Variables& variables = {})
{
    return Calculate(std::string(expression), variables);
}

std::string Repeated(const std::string& part, int times)
{
    std::string text;
    for (int i = 0; i < times; ++i)
        text += part;
    return text;
}

// Every row but the exact ones is calculated by the C library, whose last digit is its own.
bool IsNear(double actual, double expected)
{
    return std::abs(actual - expected) <= 1e-14 * std::max(1.0, std::abs(expected));
}

#define COMPARE_VALUE(expression, expected)                                                        \
    QVERIFY2(IsNear(expression, expected), qPrintable(QString("%1 instead of %2; %3")              \
                                                          .arg(expression, 0, 'g', 17)             \
                                                          .arg(expected, 0, 'g', 17)               \
                                                          .arg(ExpressionEngine::LastError())))

struct Example
{
    QString expression;
    QString result;
};

QString UserDocument()
{
    QFile file(SourcePath("docs/expressions.md"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// In a table of the document the bar is written with a backslash.
QString WithoutEscapes(QString text)
{
    return text.replace("\\|", "|");
}

QVector<Example> ExamplesOfDocument()
{
    QVector<Example> examples;
    static const QRegularExpression pattern("`([^`]+)` = `([^`]+)`");
    auto match = pattern.globalMatch(UserDocument());
    while (match.hasNext()) {
        const auto found = match.next();
        if (found.captured(1) != "formula")
            examples.append({WithoutEscapes(found.captured(1)), found.captured(2)});
    }
    return examples;
}

} // namespace

class tst_ExpressionEngine : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AnExpressionHasAValue_data();
    void AnExpressionHasAValue();
    void WhatIsNoExpressionGivesNaNAndAReason_data();
    void WhatIsNoExpressionGivesNaNAndAReason();
    void EveryFunctionChecksHowManyValuesItTakes_data();
    void EveryFunctionChecksHowManyValuesItTakes();
    void NothingElseOfTheParserIsReachable_data();
    void NothingElseOfTheParserIsReachable();

    void TheReasonIsForgottenAfterASuccess();
    void LongNamesAreShortenedInTheReason();

    void AVariableWinsOverAConstant();
    void AVariableWinsOverAFunction_data();
    void AVariableWinsOverAFunction();
    void TheSameTextFollowsTheVariablesOfEachCall();
    void EntriesThatAreNoNamesSpoilNothing_data();
    void EntriesThatAreNoNamesSpoilNothing();
    void AVariableThatIsNotFiniteGivesNaN_data();
    void AVariableThatIsNotFiniteGivesNaN();
    void VariablesThatDoNotOccurDoNotMatter();
    void TheCallersVariablesAreNotChanged();

    void NamesMayHoldAnyLetters_data();
    void NamesMayHoldAnyLetters();
    void NamesMayHoldBytesThatLookLikeOperators_data();
    void NamesMayHoldBytesThatLookLikeOperators();
    void BytesThatDoNotDecodeAreStillNames_data();
    void BytesThatDoNotDecodeAreStillNames();
    void PositionsCountCharacters_data();
    void PositionsCountCharacters();
    void AChangeOfTheCodePageIsFollowed();

    void TheDecimalSignIsTheFullStopUnderEveryLocale();
    void TheHostsFloatingPointStateIsLeftAlone();
    void FloatingPointTrapsOfTheHostDoNotFire();
    void NothingIsHiddenByARoundedRegrouping();

    void LongAndDeepTextsEndInAValue_data();
    void LongAndDeepTextsEndInAValue();
    void TooLongTextsEndInAnError_data();
    void TooLongTextsEndInAnError();
    void TheLongestTextMayHoldThousandsOfNames();
    void ManyDifferentExpressionsStayRight();

    void EveryExampleOfTheDocumentIsRight_data();
    void EveryExampleOfTheDocumentIsRight();
    void EveryReasonOfTheDocumentIsGiven_data();
    void EveryReasonOfTheDocumentIsGiven();
    void TheDocumentHasAnExampleOfEverything_data();
    void TheDocumentHasAnExampleOfEverything();
};

// clang-format off
void tst_ExpressionEngine::AnExpressionHasAValue_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<double>("value");

    QTest::newRow("whole number")               << "2"                     << 2.0;
    QTest::newRow("decimals")                   << "2.5"                   << 2.5;
    QTest::newRow("no leading zero")            << ".5"                    << 0.5;
    QTest::newRow("no decimals")                << "2."                    << 2.0;
    QTest::newRow("leading zeros")              << "007"                   << 7.0;
    QTest::newRow("power of ten")               << "1e3"                   << 1000.0;
    QTest::newRow("capital power of ten")       << "1E3"                   << 1000.0;
    QTest::newRow("signed power of ten")        << "1e+3"                  << 1000.0;
    QTest::newRow("negative power of ten")      << "1e-3"                  << 0.001;
    QTest::newRow("decimals, power of ten")     << ".25e1"                 << 2.5;
    QTest::newRow("largest number")             << "1.7976931348623157e308" << std::numeric_limits<double>::max();
    QTest::newRow("17 digits")                  << "0.10000000000000001"   << 0.1;

    QTest::newRow("sum")                        << "1+2"                   << 3.0;
    QTest::newRow("difference")                 << "10-4-3"                << 3.0;
    QTest::newRow("product")                    << "2*3*4"                 << 24.0;
    QTest::newRow("quotient")                   << "12/4/3"                << 1.0;
    QTest::newRow("power")                      << "2^10"                  << 1024.0;
    QTest::newRow("product before sum")         << "1+2*3"                 << 7.0;
    QTest::newRow("power before product")       << "2*3^2"                 << 18.0;
    QTest::newRow("power from right to left")   << "2^3^2"                 << 512.0;
    QTest::newRow("brackets")                   << "(1+2)*3"               << 9.0;
    QTest::newRow("nested brackets")            << "((2)^((3)))"           << 8.0;

    QTest::newRow("sign")                       << "-2"                    << -2.0;
    QTest::newRow("plus sign")                  << "+2"                    << 2.0;
    QTest::newRow("sign of a power")            << "-2^2"                  << -4.0;
    QTest::newRow("power of a signed value")    << "(-2)^2"                << 4.0;
    QTest::newRow("signed exponent")            << "2^-1"                  << 0.5;
    QTest::newRow("power in signed exponent")   << "2^-1^2"                << 0.5;
    QTest::newRow("product after exponent")     << "2^-1*4"                << 2.0;
    QTest::newRow("sign after operator")        << "3*-2"                  << -6.0;
    QTest::newRow("two signs")                  << "--2"                   << 2.0;
    QTest::newRow("mixed signs")                << "-+-+-2"                << -2.0;
    QTest::newRow("minus a negative")           << "3 - -2"                << 5.0;
    QTest::newRow("sign of a bracket")          << "-(2-5)"                << 3.0;
    QTest::newRow("sign of a function")         << "-abs(-2)"              << -2.0;

    QTest::newRow("less")                       << "1<2"                   << 1.0;
    QTest::newRow("not less")                   << "2<2"                   << 0.0;
    QTest::newRow("less or equal")              << "2<=2"                  << 1.0;
    QTest::newRow("greater")                    << "2>1"                   << 1.0;
    QTest::newRow("greater or equal")           << "1>=2"                  << 0.0;
    QTest::newRow("equal")                      << "2==2"                  << 1.0;
    QTest::newRow("unequal")                    << "2!=2"                  << 0.0;
    QTest::newRow("less than a negative")       << "1<-2"                  << 0.0;
    QTest::newRow("sum before comparison")      << "1+1==2"                << 1.0;
    QTest::newRow("comparisons rank equally")   << "1==2<3"                << 1.0;
    QTest::newRow("comparison in a sum")        << "(2>1)+(3>2)"           << 2.0;
    QTest::newRow("and")                        << "1&&2"                  << 1.0;
    QTest::newRow("and, one false")             << "1&&0"                  << 0.0;
    QTest::newRow("or")                         << "0||3"                  << 1.0;
    QTest::newRow("or, both false")             << "0||0"                  << 0.0;
    QTest::newRow("and before or")              << "1||0&&0"               << 1.0;
    QTest::newRow("comparison before and")      << "1<2&&2<3"              << 1.0;

    QTest::newRow("choice, true")               << "1?2:3"                 << 2.0;
    QTest::newRow("choice, false")              << "0?2:3"                 << 3.0;
    QTest::newRow("any value is true")          << "-0.5?2:3"              << 2.0;
    QTest::newRow("choice after choice")        << "0?1:0?2:3"             << 3.0;
    QTest::newRow("choice in choice")           << "1?0?1:2:3"             << 2.0;
    QTest::newRow("both branches nested")       << "0?1?2:3:1?4:5"         << 4.0;
    QTest::newRow("or before choice")           << "0||1?2:3"              << 2.0;
    QTest::newRow("sum in the last branch")     << "1?2:3+4"               << 2.0;
    QTest::newRow("choice in brackets")         << "(1?2:3)+4"             << 6.0;
    QTest::newRow("choice in a function")       << "max(1?2:3, 0?9:1)"     << 2.0;
    QTest::newRow("signed branches")            << "1?-2:-3"               << -2.0;
    QTest::newRow("only the chosen counts")     << "0?1/0:7"               << 7.0;

    QTest::newRow("blanks")                     << "  1 \t+\n2\r\n "       << 3.0;
    QTest::newRow("blank before bracket")       << "max (1 , 2)"           << 2.0;

    QTest::newRow("pi")                         << "pi"                    << 3.14159265358979323846;
    QTest::newRow("e")                          << "e"                     << 2.71828182845904523536;

    QTest::newRow("sin")                        << "sin(1)"                << std::sin(1.0);
    QTest::newRow("cos")                        << "cos(1)"                << std::cos(1.0);
    QTest::newRow("tan")                        << "tan(1)"                << std::tan(1.0);
    QTest::newRow("asin")                       << "asin(0.5)"             << std::asin(0.5);
    QTest::newRow("acos")                       << "acos(0.5)"             << std::acos(0.5);
    QTest::newRow("atan")                       << "atan(0.5)"             << std::atan(0.5);
    QTest::newRow("atan2")                      << "atan2(1, -2)"          << std::atan2(1.0, -2.0);
    QTest::newRow("atan2 of the origin")        << "atan2(0, 0)"           << 0.0;
    QTest::newRow("sinh")                       << "sinh(1)"               << std::sinh(1.0);
    QTest::newRow("cosh")                       << "cosh(1)"               << std::cosh(1.0);
    QTest::newRow("tanh")                       << "tanh(1)"               << std::tanh(1.0);
    QTest::newRow("tanh of a large value")      << "tanh(1000)"            << 1.0;
    QTest::newRow("asinh")                      << "asinh(1)"              << std::asinh(1.0);
    QTest::newRow("acosh")                      << "acosh(2)"              << std::acosh(2.0);
    QTest::newRow("atanh")                      << "atanh(0.5)"            << std::atanh(0.5);
    QTest::newRow("exp")                        << "exp(1)"                << std::exp(1.0);
    QTest::newRow("exp becoming 0")             << "exp(-1000)"            << 0.0;
    QTest::newRow("ln")                         << "ln(10)"                << std::log(10.0);
    QTest::newRow("log is natural")             << "log(10)"               << std::log(10.0);
    QTest::newRow("log2")                       << "log2(8)"               << 3.0;
    QTest::newRow("log10")                      << "log10(1000)"           << 3.0;
    QTest::newRow("sqrt")                       << "sqrt(16)"              << 4.0;
    QTest::newRow("cbrt")                       << "cbrt(-27)"             << -3.0;
    QTest::newRow("abs")                        << "abs(-2.5)"             << 2.5;
    QTest::newRow("sign, negative")             << "sign(-2.5)"            << -1.0;
    QTest::newRow("sign, zero")                 << "sign(0)"               << 0.0;
    QTest::newRow("sign, positive")             << "sign(2.5)"             << 1.0;
    QTest::newRow("floor")                      << "floor(-2.5)"           << -3.0;
    QTest::newRow("ceil")                       << "ceil(-2.5)"            << -2.0;
    QTest::newRow("round, half")                << "round(2.5)"            << 3.0;
    QTest::newRow("round, negative half")       << "round(-2.5)"           << -3.0;
    QTest::newRow("rint, half down")            << "rint(2.5)"             << 2.0;
    QTest::newRow("rint, half up")              << "rint(3.5)"             << 4.0;
    QTest::newRow("mod")                        << "mod(7, 3)"             << 1.0;
    QTest::newRow("mod, negative")              << "mod(-7, 3)"            << -1.0;
    QTest::newRow("mod, negative divisor")      << "mod(7, -3)"            << 1.0;
    QTest::newRow("mod of decimals")            << "mod(5.5, 2)"           << 1.5;
    QTest::newRow("pow")                        << "pow(2, 10)"            << 1024.0;
    QTest::newRow("pow, negative base")         << "pow(-2, 3)"            << -8.0;
    QTest::newRow("hypot")                      << "hypot(3, 4)"           << 5.0;
    QTest::newRow("hypot of large values")      << "hypot(3e200, 4e200)"   << 5e200;
    QTest::newRow("min")                        << "min(3, 1, 2)"          << 1.0;
    QTest::newRow("min of one")                 << "min(3)"                << 3.0;
    QTest::newRow("max")                        << "max(3, 1, 2)"          << 3.0;
    QTest::newRow("max of one")                 << "max(-3)"               << -3.0;
    QTest::newRow("sum of four")                << "sum(1, 2, 3, 4)"       << 10.0;
    QTest::newRow("sum of one")                 << "sum(3)"                << 3.0;
    QTest::newRow("avg")                        << "avg(1, 2, 6)"          << 3.0;
    QTest::newRow("avg of one")                 << "avg(3)"                << 3.0;
    QTest::newRow("functions in functions")     << "max(min(1, 2), abs(-3), sum(1, 1))" << 3.0;

    QTest::newRow("too large in between")       << "1/(1+exp(1000))"       << 0.0;
    QTest::newRow("arc tangent of too large")   << "atan(10^400)"          << std::atan(HUGE_VAL);
    QTest::newRow("smaller than too large")     << "min(5, 10^400)"        << 5.0;

    QTest::newRow("variables")                  << "2*width+a_1"           << 27.0;
    QTest::newRow("capitals are others")        << "Width"                 << 100.0;
    QTest::newRow("underscore first")           << "_x"                    << 8.0;
    QTest::newRow("underscore alone")           << "_"                     << 9.0;
    QTest::newRow("a name used twice")          << "width*width"           << 100.0;
    QTest::newRow("name like a number's end")   << "2*e3"                  << 14.0;
    QTest::newRow("name like a function")       << "sinus"                 << 6.0;
}
// clang-format on

void tst_ExpressionEngine::AnExpressionHasAValue()
{
    QFETCH(QString, expression);
    QFETCH(double, value);
    const Variables variables = {{"width", 10.0}, {"a_1", 7.0}, {"Width", 100.0}, {"_x", 8.0},
                                 {"_", 9.0},      {"e3", 7.0},  {"sinus", 6.0}};
    COMPARE_VALUE(Calculate(expression, variables), value);
    QCOMPARE(ExpressionEngine::LastError(), QString());
    // The kept expression gives the same.
    COMPARE_VALUE(Calculate(expression, variables), value);
}

// clang-format off
void tst_ExpressionEngine::WhatIsNoExpressionGivesNaNAndAReason_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("reason");

    const QString missing = "a value is missing before '%1'";
    const QString noOperator = "an operator is missing before '%1'";
    const QString notAllowed = "'%1' is not allowed here";
    const QString early = "the expression ends where a value must follow";
    const QString several = "more than one value";

    QTest::newRow("empty")                   << ""             << 1 << "the expression is empty";
    QTest::newRow("blanks")                  << " \t "         << 1 << "the expression is empty";
    QTest::newRow("comma as decimal sign")   << "2,5*2"        << 2 << several;
    QTest::newRow("two values")              << "1.5,2"        << 4 << several;
    QTest::newRow("two values in brackets")  << "(1,2)"        << 3 << several;
    QTest::newRow("two values, bracketed argument") << "sin((1,2))" << 7 << several;
    QTest::newRow("comma first")             << ",2"           << 1 << missing.arg(",");
    QTest::newRow("comma last")              << "2,"           << 2 << several;
    QTest::newRow("unknown name")            << "2*foo"        << 3 << "the name 'foo' is unknown";
    QTest::newRow("unknown name, twice")     << "a+foo+foo"    << 3 << "the name 'foo' is unknown";
    QTest::newRow("unknown function")        << "2*foo(1)"     << 3 << "there is no function 'foo'";
    QTest::newRow("a variable called")       << "a(1)"         << 1 << "there is no function 'a'";
    QTest::newRow("function without call")   << "1+sin"        << 3 << "the name 'sin' is unknown";
    QTest::newRow("constant called")         << "pi(2)"        << 1 << "there is no function 'pi'";
    QTest::newRow("trailing value")          << "2 3"          << 3 << noOperator.arg("3");
    QTest::newRow("trailing name")           << "2 a"          << 3 << noOperator.arg("a");
    QTest::newRow("trailing text")           << "2+3 mm"       << 5 << noOperator.arg("mm");
    QTest::newRow("trailing semicolon")      << "2;"           << 2 << notAllowed.arg(";");
    QTest::newRow("number, then name")       << "2a"           << 2 << noOperator.arg("a");
    QTest::newRow("hexadecimal")             << "0x10"         << 2 << noOperator.arg("x10");
    QTest::newRow("half a power of ten")     << "1e"           << 2 << noOperator.arg("e");
    QTest::newRow("signed half of it")       << "1e+"          << 2 << noOperator.arg("e");
    QTest::newRow("two full stops")          << "1.2.3"        << 4 << noOperator.arg(".3");
    QTest::newRow("full stop alone")         << "."            << 1 << notAllowed.arg(".");
    QTest::newRow("full stop after a name")  << "a.b"          << 2 << notAllowed.arg(".");
    QTest::newRow("too large a number")      << "2+1e999"      << 3 << "the number is too large or too small";
    QTest::newRow("too small a number")      << "1e-999"       << 1 << "the number is too large or too small";
    QTest::newRow("value before bracket")    << "2(3)"         << 2 << noOperator.arg("(");
    QTest::newRow("bracket before bracket")  << "(2)(3)"       << 4 << noOperator.arg("(");
    QTest::newRow("operator first")          << "*2"           << 1 << missing.arg("*");
    QTest::newRow("operator last")           << "2*"           << 3 << early;
    QTest::newRow("sign alone")              << "-"            << 2 << early;
    QTest::newRow("two operators")           << "2*/3"         << 3 << missing.arg("/");
    QTest::newRow("two powers")              << "2**3"         << 3 << missing.arg("*");
    QTest::newRow("operator in brackets")    << "(2+)"         << 4 << missing.arg(")");
    QTest::newRow("empty brackets")          << "()"           << 2 << missing.arg(")");
    QTest::newRow("bracket not closed")      << "1+(2*3"       << 3 << "'(' without a matching ')'";
    QTest::newRow("bracket not opened")      << "1+2)"         << 4 << "')' without a matching '('";
    QTest::newRow("bracket only closed")     << ")"            << 1 << missing.arg(")");
    QTest::newRow("call not closed")         << "1+sin(2"      << 3 << "'(' without a matching ')'";
    QTest::newRow("call not ended")          << "sin("         << 5 << early;
    QTest::newRow("empty argument")          << "max(1,,2)"    << 7 << missing.arg(",");
    QTest::newRow("empty last argument")     << "max(1,)"      << 7 << missing.arg(")");
    QTest::newRow("question mark alone")     << "1?2"          << 2 << "'?' without a matching ':'";
    QTest::newRow("question mark, bracketed") << "(1?2)"       << 3 << "'?' without a matching ':'";
    QTest::newRow("comma within a choice")   << "max(1?2,3:4)" << 6 << "'?' without a matching ':'";
    QTest::newRow("colon alone")             << "1:2"          << 2 << "':' without a matching '?'";
    QTest::newRow("colon too many")          << "1?2:3:4"      << 6 << "':' without a matching '?'";
    QTest::newRow("colon in other brackets") << "1?(2:3)"      << 5 << "':' without a matching '?'";
    QTest::newRow("choice without a value")  << "1?:2"         << 3 << missing.arg(":");
    QTest::newRow("choice without the last") << "1?2:"         << 5 << early;
    QTest::newRow("assignment")              << "a=2"          << 2 << "nothing can be assigned with '='";
    QTest::newRow("assignment in brackets")  << "(a=2)"        << 3 << "nothing can be assigned with '='";
    QTest::newRow("split comparison")        << "1< =2"        << 4 << notAllowed.arg("=");
    QTest::newRow("reversed comparison")     << "1=<2"         << 2 << "nothing can be assigned with '='";
    QTest::newRow("not")                     << "!1"           << 1 << notAllowed.arg("!");
    QTest::newRow("factorial")               << "3!"           << 2 << notAllowed.arg("!");
    QTest::newRow("single and")              << "1&2"          << 2 << notAllowed.arg("&");
    QTest::newRow("single or")               << "1|2"          << 2 << notAllowed.arg("|");
    QTest::newRow("percent")                 << "7%3"          << 2 << notAllowed.arg("%");
    QTest::newRow("text")                    << "\"a\""        << 1 << notAllowed.arg("\"");
    QTest::newRow("other brackets")          << "[1]"          << 1 << notAllowed.arg("[");
    QTest::newRow("control character")       << "1+\x01"       << 3 << "the character with code 1 is not allowed here";
    QTest::newRow("zero byte")               << QString("1+") + QChar(0) << 3 << "the character with code 0 is not allowed here";
    QTest::newRow("full-width operator")     << "1＋2"         << 2 << noOperator.arg("＋2");
    QTest::newRow("division by zero")        << "1/0"          << 1 << "an operation has no finite result";
    QTest::newRow("division in between")     << "1/(1/0)"      << 1 << "an operation has no finite result";
    QTest::newRow("logarithm of zero")       << "ln(0)"        << 1 << "an operation has no finite result";
    QTest::newRow("zero by zero")            << "0/0"          << 1 << "an operation has no real result";
    QTest::newRow("root of a negative")      << "sqrt(-1)"     << 1 << "an operation has no real result";
    QTest::newRow("hidden in a comparison")  << "sqrt(-1)==1"  << 1 << "an operation has no real result";
    QTest::newRow("hidden in a choice")      << "sqrt(-1)>0?1:2" << 1 << "an operation has no real result";
    QTest::newRow("hidden in a function")    << "min(1,0/0)"   << 1 << "an operation has no real result";
    QTest::newRow("and calculates both sides") << "0&&1/0"     << 1 << "an operation has no finite result";
    QTest::newRow("or calculates both sides") << "1||1/0"      << 1 << "an operation has no finite result";
    QTest::newRow("arc sine of 2")           << "asin(2)"      << 1 << "an operation has no real result";
    QTest::newRow("negative base")           << "(-8)^(1/3)"   << 1 << "an operation has no real result";
    QTest::newRow("remainder by zero")       << "mod(1,0)"     << 1 << "an operation has no real result";
    QTest::newRow("too large a result")      << "10^400"       << 1 << "a number becomes too large";
    QTest::newRow("too large throughout")    << "10^400/10^399" << 1 << "an operation has no real result";
    QTest::newRow("too large, compared")     << "10^400==10^500" << 1 << "a number becomes too large";
    QTest::newRow("too large, of two")       << "atan2(10^400,10^500)" << 1 << "an operation has no real result";
}
// clang-format on

void tst_ExpressionEngine::WhatIsNoExpressionGivesNaNAndAReason()
{
    QFETCH(QString, expression);
    QFETCH(int, position);
    QFETCH(QString, reason);
    const QString expected = QString("Position %1: %2").arg(QString::number(position), reason);
    for (int round = 0; round < 2; ++round) {
        QVERIFY(std::isnan(Calculate(expression, {{"a", 1.0}})));
        QCOMPARE(ExpressionEngine::LastError().left(expected.size()), expected);
    }
}

void tst_ExpressionEngine::EveryFunctionChecksHowManyValuesItTakes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    const QStringList two = {"atan2", "mod", "pow", "hypot"};
    const QStringList many = {"min", "max", "sum", "avg"};
    for (const QString& name : Functions()) {
        const int least = two.contains(name) ? 2 : 1;
        QTest::newRow(qPrintable(name)) << name << least << (many.contains(name) ? 100 : least);
    }
}

void tst_ExpressionEngine::EveryFunctionChecksHowManyValuesItTakes()
{
    QFETCH(QString, name);
    QFETCH(int, least);
    QFETCH(int, most);
    QVERIFY(std::isnan(Calculate(name + "()")));
    for (int count = 1; count <= 4; ++count) {
        QStringList values;
        for (int i = 0; i < count; ++i)
            values << "a";
        const double result = Calculate(name + '(' + values.join(',') + ')', {{"a", 1.0}});
        const bool isRight = count >= least && count <= most;
        // One value has no finite result with this one.
        if (isRight && name != "atanh")
            QVERIFY2(std::isfinite(result), qPrintable(ExpressionEngine::LastError()));
        if (!isRight)
            QCOMPARE(ExpressionEngine::LastError(),
                     QString("Position 1: the function '%1' takes %2 value(s), not %3")
                         .arg(name)
                         .arg(least)
                         .arg(count));
    }
}

void tst_ExpressionEngine::NothingElseOfTheParserIsReachable_data()
{
    QTest::addColumn<QString>("expression");
    for (const char* const text :
         {"_pi",   "_e",      "rnd()",     "rnd",    "A",   "AA",  "a=1",   "a+=1",
          "sin 1", "1 and 2", "not 1",     "#1",     "'a'", "~1",  "$a",    "1?2",
          "min()", "max()",   "sum()",     "avg()",  "inf", "nan", "1e400", "0b1",
          "1_000", "1'000",   "if(1,2,3)", "SIN(1)", "Pi",  "E",   "PI"})
        QTest::newRow(text) << text;
}

void tst_ExpressionEngine::NothingElseOfTheParserIsReachable()
{
    QFETCH(QString, expression);
    QVERIFY(std::isnan(Calculate(expression, {{"a", 1.0}})));
    QVERIFY(ExpressionEngine::LastError().startsWith("Position "));
}

void tst_ExpressionEngine::TheReasonIsForgottenAfterASuccess()
{
    QVERIFY(std::isnan(Calculate("1+")));
    QVERIFY(!ExpressionEngine::LastError().isEmpty());
    QCOMPARE(Calculate("1+1"), 2.0);
    QCOMPARE(ExpressionEngine::LastError(), QString());
}

void tst_ExpressionEngine::LongNamesAreShortenedInTheReason()
{
    QVERIFY(std::isnan(Calculate(std::string(5000, 'x'))));
    QCOMPARE(ExpressionEngine::LastError(),
             QString("Position 1: the name '%1...' is unknown").arg(QString(40, 'x')));
}

void tst_ExpressionEngine::AVariableWinsOverAConstant()
{
    QCOMPARE(Calculate("2*e", {{"e", 5.0}}), 10.0);
    QCOMPARE(Calculate("2*pi", {{"pi", 5.0}}), 10.0);
    // The sign of a power of ten is part of its number.
    QCOMPARE(Calculate("2e1", {{"e", 5.0}, {"e1", 5.0}}), 20.0);
}

void tst_ExpressionEngine::AVariableWinsOverAFunction_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : Functions())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_ExpressionEngine::AVariableWinsOverAFunction()
{
    QFETCH(QString, name);
    const Variables variables = {{name.toStdString(), 5.0}};
    QCOMPARE(Calculate(name + "+1", variables), 6.0);
    QVERIFY(std::isnan(Calculate("1+" + name + "(1)", variables)));
    QVERIFY(ExpressionEngine::LastError().startsWith("Position 3: "));
}

void tst_ExpressionEngine::TheSameTextFollowsTheVariablesOfEachCall()
{
    QCOMPARE(Calculate("2*e+a", {{"a", 1.0}, {"e", 3.0}}), 7.0);
    QCOMPARE(Calculate("2*e+a", {{"a", 2.0}}), 2.0 * 2.71828182845904523536 + 2.0);
    QCOMPARE(Calculate("2*e+a", {{"a", 1.0}, {"e", 4.0}}), 9.0);
    QVERIFY(std::isnan(Calculate("2*e+a", {{"e", 4.0}})));
    QCOMPARE(Calculate("max(1, 2)"), 2.0);
    QVERIFY(std::isnan(Calculate("max(1, 2)", {{"max", 1.0}})));
    QCOMPARE(Calculate("max(1, 2)"), 2.0);
}

void tst_ExpressionEngine::EntriesThatAreNoNamesSpoilNothing_data()
{
    QTest::addColumn<QByteArray>("entry");
    for (const char* const entry : {"", " ", "a b", " a", "a ", "a+b", "2", "2a", "1e3", "(", ",",
                                    "a,b", "=", "-", "!", "\"", "a.b", "\n", "\xFF"})
        QTest::addRow("\"%s\"", entry) << QByteArray(entry);
    QTest::newRow("zero byte") << QByteArray("a\0b", 3);
    QTest::newRow("very long") << QByteArray(100000, 'a');
}

void tst_ExpressionEngine::EntriesThatAreNoNamesSpoilNothing()
{
    QFETCH(QByteArray, entry);
    const Variables variables = {{entry.toStdString(), 99.0}, {"a", 2.0}, {"b", 3.0}};
    QCOMPARE(Calculate("a+b", variables), 5.0);
    QCOMPARE(Calculate("2*1e3-a", variables), 1998.0);
    QVERIFY(std::isnan(Calculate("a b", variables)));
    QVERIFY(std::isnan(Calculate("2a", variables)));
    QVERIFY(std::isnan(Calculate("", variables)));
}

void tst_ExpressionEngine::AVariableThatIsNotFiniteGivesNaN_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<double>("value");
    for (const char* const expression :
         {"x", "1*x", "1/x", "x>1", "x==x", "x?1:2", "x&&1", "min(1,x)", "atan(x)"}) {
        QTest::addRow("%s, NaN", expression) << expression << NotANumber;
        QTest::addRow("%s, infinite", expression) << expression << Infinity;
        QTest::addRow("%s, negative infinite", expression) << expression << -Infinity;
    }
}

void tst_ExpressionEngine::AVariableThatIsNotFiniteGivesNaN()
{
    QFETCH(QString, expression);
    QFETCH(double, value);
    QVERIFY(std::isnan(Calculate(expression, {{"x", value}})));
    QCOMPARE(
        ExpressionEngine::LastError(),
        QString("Position %1: the value of 'x' is not finite").arg(expression.indexOf('x') + 1));
}

void tst_ExpressionEngine::VariablesThatDoNotOccurDoNotMatter()
{
    QCOMPARE(Calculate("a+1", {{"a", 1.0}, {"b", NotANumber}, {"c", Infinity}}), 2.0);
}

void tst_ExpressionEngine::TheCallersVariablesAreNotChanged()
{
    const Variables before = {{"", 0.0}, {"a", 1.5}, {"a b", 2.0}, {"e", 3.0}};
    Variables variables = before;
    ExpressionEngine::CalculateExpress("a*e+pi", variables);
    ExpressionEngine::CalculateExpress("a=7", variables);
    ExpressionEngine::CalculateExpress("unknown", variables);
    QVERIFY(variables == before);
}

void tst_ExpressionEngine::NamesMayHoldAnyLetters_data()
{
    QTest::addColumn<QByteArray>("codePage");
    QTest::addColumn<QString>("name");
    for (const char* const codePage : {"UTF-8", "GB18030"}) {
        for (const char* const name :
             {"长度", "é", "größe", "Δx_1", "_长", "长2", "😀", "ａ", "\u00A0"})
            QTest::addRow("%s in %s", name, codePage) << QByteArray(codePage) << QString(name);
    }
    QTest::newRow("é in Latin-1") << QByteArray("ISO 8859-1") << QString("é");
    QTest::newRow("Длина in KOI8-R") << QByteArray("KOI8-R") << QString("Длина");
}

void tst_ExpressionEngine::NamesMayHoldAnyLetters()
{
    QFETCH(QByteArray, codePage);
    QFETCH(QString, name);
    UseCodePage(codePage);
    const std::string bytes = name.toLocal8Bit().toStdString();
    QCOMPARE(Calculate(bytes, {{bytes, 4.0}}), 4.0);
    QCOMPARE(Calculate("2*" + bytes + "^2 - max(" + bytes + ",1)", {{bytes, 4.0}}), 28.0);
    QVERIFY(std::isnan(Calculate("2*" + bytes)));
    QCOMPARE(ExpressionEngine::LastError(),
             QString("Position 3: the name '%1' is unknown").arg(name));
}

void tst_ExpressionEngine::NamesMayHoldBytesThatLookLikeOperators_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char second : std::string("@ABCXYZ[\\]^_`abcxyz{|}~"))
        QTest::addRow("second byte %c", second) << QByteArray("\x81") + second;
    QTest::newRow("bars") << QByteArray("\x81\x7C\x81\x7C");
    QTest::newRow("digits") << QByteArray("\x94\x39\xFC\x36");
}

void tst_ExpressionEngine::NamesMayHoldBytesThatLookLikeOperators()
{
    QFETCH(QByteArray, name);
    UseCodePage("GB18030");
    const std::string bytes = name.toStdString();
    QCOMPARE(Calculate(bytes + "||0", {{bytes, 4.0}}), 1.0);
    QCOMPARE(Calculate("2^" + bytes + "-1", {{bytes, 4.0}, {"\x81", 1.0}}), 15.0);
}

// clang-format off
void tst_ExpressionEngine::BytesThatDoNotDecodeAreStillNames_data()
{
    QTest::addColumn<QByteArray>("codePage");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("Latin-1 bytes in UTF-8")     << QByteArray("UTF-8")   << QByteArray("gr\xF6\xDF" "e");
    QTest::newRow("one byte in UTF-8")          << QByteArray("UTF-8")   << QByteArray("\x80");
    QTest::newRow("cut character in UTF-8")     << QByteArray("UTF-8")   << QByteArray("\xE9\x95");
    QTest::newRow("overlong form in UTF-8")     << QByteArray("UTF-8")   << QByteArray("\xC1\xBF");
    QTest::newRow("byte order mark in UTF-8")   << QByteArray("UTF-8")   << QByteArray("\xEF\xBB\xBF" "a");
    QTest::newRow("one byte in GB18030")        << QByteArray("GB18030") << QByteArray("\xFF");
    QTest::newRow("every byte from 0x80 up")    << QByteArray("UTF-8")   << [] {
        QByteArray all;
        for (int byte = 0x80; byte <= 0xFF; ++byte)
            all += char(byte);
        return all;
    }();
}
// clang-format on

void tst_ExpressionEngine::BytesThatDoNotDecodeAreStillNames()
{
    QFETCH(QByteArray, codePage);
    QFETCH(QByteArray, name);
    UseCodePage(codePage);
    const std::string bytes = name.toStdString();
    QCOMPARE(Calculate(bytes + "*2", {{bytes, 4.0}}), 8.0);
    QCOMPARE(Calculate("2*(" + bytes + ")", {{bytes, 4.0}}), 8.0);
    QVERIFY(std::isnan(Calculate(bytes, {{"a", 4.0}})));
}

// clang-format off
void tst_ExpressionEngine::PositionsCountCharacters_data()
{
    QTest::addColumn<QByteArray>("codePage");
    QTest::addColumn<QString>("expression");
    QTest::addColumn<int>("position");
    QTest::newRow("UTF-8")           << QByteArray("UTF-8")   << "长度 + 宽" << 6;
    QTest::newRow("GB18030")         << QByteArray("GB18030") << "长度 + 宽" << 6;
    QTest::newRow("emoji, UTF-8")    << QByteArray("UTF-8")   << "长度*长度/宽" << 7;
    QTest::newRow("emoji, GB18030")  << QByteArray("GB18030") << "😀+宽"    << 3;
    QTest::newRow("the end")         << QByteArray("UTF-8")   << "长度+"    << 4;
    QTest::newRow("name seen before") << QByteArray("UTF-8")  << "长度+长度+宽+宽" << 7;
}
// clang-format on

void tst_ExpressionEngine::PositionsCountCharacters()
{
    QFETCH(QByteArray, codePage);
    QFETCH(QString, expression);
    QFETCH(int, position);
    UseCodePage(codePage);
    const Variables variables = {{QString("长度").toLocal8Bit().toStdString(), 1.0},
                                 {QString("😀").toLocal8Bit().toStdString(), 1.0}};
    QVERIFY(std::isnan(Calculate(expression, variables)));
    QVERIFY2(ExpressionEngine::LastError().startsWith(QString("Position %1: ").arg(position)),
             qPrintable(ExpressionEngine::LastError()));
}

void tst_ExpressionEngine::AChangeOfTheCodePageIsFollowed()
{
    const std::string bytes = "\x81\x7C\x81\x7C";
    const Variables variables = {{bytes, 4.0}};
    for (int round = 0; round < 2; ++round) {
        UseCodePage("GB18030");
        QCOMPARE(Calculate(bytes + "+1", variables), 5.0);
        UseCodePage("ISO 8859-1");
        QVERIFY(std::isnan(Calculate(bytes + "+1", variables)));
        QCOMPARE(ExpressionEngine::LastError(), QString("Position 2: '|' is not allowed here"));
    }
}

void tst_ExpressionEngine::TheDecimalSignIsTheFullStopUnderEveryLocale()
{
    QVERIFY2(UseLocale("de_DE.UTF-8"), "the test needs a locale with a decimal comma");
    const std::locale before = std::locale::global(std::locale("de_DE.UTF-8"));
    const double decimals = Calculate("1.5*2 + 0.25");
    const double power = Calculate("2.5e-1");
    const double maximum = Calculate("max(1,5)");
    const double commas = Calculate("2,5");
    const double dots = Calculate("1.000");
    std::locale::global(before);
    QCOMPARE(decimals, 3.25);
    QCOMPARE(power, 0.25);
    QCOMPARE(maximum, 5.0);
    QVERIFY(std::isnan(commas));
    QCOMPARE(dots, 1.0);
}

void tst_ExpressionEngine::TheHostsFloatingPointStateIsLeftAlone()
{
    std::feclearexcept(FE_ALL_EXCEPT);
    QVERIFY(std::isnan(Calculate("1/0")));
    QVERIFY(std::isnan(Calculate("sqrt(-1)")));
    QCOMPARE(std::fetestexcept(FE_ALL_EXCEPT), 0);
    // What the host did before is no fault of the expression.
    std::feraiseexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
    QCOMPARE(Calculate("1+1"), 2.0);
    QCOMPARE(std::fetestexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW),
             FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
    std::feclearexcept(FE_ALL_EXCEPT);
}

void tst_ExpressionEngine::FloatingPointTrapsOfTheHostDoNotFire()
{
    std::feclearexcept(FE_ALL_EXCEPT);
    feenableexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
    const double division = Calculate("1/0");
    const double root = Calculate("sqrt(-1)");
    const double number = Calculate("1e999");
    const double maximum = Calculate("max(1, x)", {{"x", NotANumber}});
    const double right = Calculate("1/4");
    const int traps = fedisableexcept(FE_ALL_EXCEPT);
    QVERIFY(std::isnan(division));
    QVERIFY(std::isnan(root));
    QVERIFY(std::isnan(number));
    QVERIFY(std::isnan(maximum));
    QCOMPARE(right, 0.25);
    QCOMPARE(traps, FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
}

void tst_ExpressionEngine::NothingIsHiddenByARoundedRegrouping()
{
    QCOMPARE(Calculate("(x+1e308)*10", {{"x", -1e308}}), 0.0);
    QCOMPARE(Calculate("x+1e16-1e16", {{"x", 1.0}}), 0.0);
    QCOMPARE(Calculate("x*3/3", {{"x", 0.1}}), 0.1 * 3 / 3);
    QCOMPARE(Calculate("x-x", {{"x", 0.1}}), 0.0);
    QCOMPARE(Calculate("x^2-x*x+x^0", {{"x", 3.0}}), 1.0);
    QCOMPARE(Calculate("2-x-x-x*2+3*x", {{"x", 5.0}}), -3.0);
}

void tst_ExpressionEngine::LongAndDeepTextsEndInAValue_data()
{
    QTest::addColumn<QByteArray>("expression");
    QTest::addColumn<double>("value");
    const auto row = [](const char* name, const std::string& expression, double value) {
        QTest::newRow(name) << QByteArray::fromStdString(expression) << value;
    };
    row("sum", "1" + Repeated("+1", 4999), 5000.0);
    row("sum of names", "a" + Repeated("+a", 4999), 5000.0);
    row("power chain", "1" + Repeated("^1", 4999), 1.0);
    row("brackets", Repeated("(", 4999) + "7" + Repeated(")", 4999), 7.0);
    row("brackets and sums", Repeated("(1+", 2499) + "1" + Repeated(")", 2499), 2500.0);
    row("signs", Repeated("-", 9999) + "7", -7.0);
    row("signs and brackets", Repeated("-(", 3332) + "7" + Repeated(")", 3332), 7.0);
    row("functions", Repeated("abs(", 1999) + "-7" + Repeated(")", 1999), 7.0);
    row("choices in the last branch", Repeated("0?1:", 2499) + "7", 7.0);
    row("choices in the first branch", Repeated("1?", 2499) + "7" + Repeated(":2", 2499), 7.0);
    row("many arguments", "sum(1" + Repeated(",1", 4996) + ")", 4997.0);
    row("smallest of many", "min(a" + Repeated(",2", 4996) + ")", 1.0);
    row("long name", std::string(9990, 'n') + "+1", 6.0);
    row("long number", std::string(9000, '0') + "1.5" + std::string(900, '0'), 1.5);
    row("blanks", std::string(9999, ' ') + "7", 7.0);
    row("logic", "1" + Repeated("&&1", 3333), 1.0);
}

void tst_ExpressionEngine::LongAndDeepTextsEndInAValue()
{
    QFETCH(QByteArray, expression);
    QFETCH(double, value);
    QVERIFY(expression.size() <= 10000);
    const Variables variables = {{"a", 1.0}, {std::string(9990, 'n'), 5.0}};
    COMPARE_VALUE(Calculate(expression.toStdString(), variables), value);
    COMPARE_VALUE(Calculate(expression.toStdString(), variables), value);
}

void tst_ExpressionEngine::TooLongTextsEndInAnError_data()
{
    QTest::addColumn<QByteArray>("expression");
    const auto row = [](const char* name, const std::string& expression) {
        QTest::newRow(name) << QByteArray::fromStdString(expression);
    };
    constexpr int Many = 100000;
    row("one character too many", "1" + Repeated("+1", 5000));
    row("brackets", Repeated("(", Many) + "1" + Repeated(")", Many));
    row("open brackets", Repeated("(", Many));
    row("closing brackets", Repeated(")", Many));
    row("signs", Repeated("-", Many) + "1");
    row("powers", "1" + Repeated("^1", Many));
    row("choices", Repeated("1?2:", Many) + "3");
    row("open choices", Repeated("1?", Many));
    row("functions", Repeated("sin(", Many) + "1" + Repeated(")", Many));
    row("arguments", "max(1" + Repeated(",1", Many) + ")");
    row("sum", "1" + Repeated("+1", Many));
    row("name", std::string(Many, 'x'));
    row("number", std::string(Many, '1'));
    row("blanks", std::string(Many, ' '));
    row("letters", Repeated("长", 10001));
    row("zero bytes", std::string(Many, '\0'));
    row("bytes that do not decode", std::string(Many, '\xFF'));
}

void tst_ExpressionEngine::TooLongTextsEndInAnError()
{
    QFETCH(QByteArray, expression);
    QVERIFY(std::isnan(Calculate(expression.toStdString())));
    QCOMPARE(ExpressionEngine::LastError(),
             QString("Position 10001: the expression has more than 10000 characters"));
}

void tst_ExpressionEngine::TheLongestTextMayHoldThousandsOfNames()
{
    Variables variables;
    QString expression = "0";
    double sum = 0.0;
    for (int i = 0; i < 4999; ++i) {
        const QString name(QChar(0x4E00 + i));
        variables[name.toStdString()] = i;
        expression += '+' + name;
        sum += i;
    }
    QCOMPARE(Calculate(expression, variables), sum);
}

void tst_ExpressionEngine::ManyDifferentExpressionsStayRight()
{
    constexpr int Count = 30000;
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < Count; ++i)
            QCOMPARE(Calculate("a+" + std::to_string(i), {{"a", round}}), double(i + round));
    }
}

void tst_ExpressionEngine::EveryExampleOfTheDocumentIsRight_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("result");
    const QVector<Example> examples = ExamplesOfDocument();
    QVERIFY(examples.size() > 60);
    for (const Example& example : examples)
        QTest::newRow(qPrintable(example.expression)) << example.expression << example.result;
}

void tst_ExpressionEngine::EveryExampleOfTheDocumentIsRight()
{
    QFETCH(QString, expression);
    QFETCH(QString, result);
    bool isNumber = false;
    const double value = result.toDouble(&isNumber);
    QVERIFY(isNumber);
    COMPARE_VALUE(Calculate(expression), value);
}

void tst_ExpressionEngine::EveryReasonOfTheDocumentIsGiven_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("reason");
    static const QRegularExpression pattern(
        "^\\|[^|]*\\| `([^`]+)`[^|]*\\| (Position [^|]*[^| ]) \\|$",
        QRegularExpression::MultilineOption);
    auto match = pattern.globalMatch(UserDocument());
    int count = 0;
    while (match.hasNext()) {
        const auto found = match.next();
        QTest::newRow(qPrintable(found.captured(1))) << found.captured(1) << found.captured(2);
        ++count;
    }
    QVERIFY(count > 15);
}

void tst_ExpressionEngine::EveryReasonOfTheDocumentIsGiven()
{
    QFETCH(QString, expression);
    QFETCH(QString, reason);
    QVERIFY(std::isnan(
        Calculate(expression, {{"min", 1.0}, {"width", 1.0}, {"a", 1.0}, {"x", NotANumber}})));
    QCOMPARE(ExpressionEngine::LastError(), reason);
}

void tst_ExpressionEngine::TheDocumentHasAnExampleOfEverything_data()
{
    QTest::addColumn<QRegularExpression>("wanted");
    for (const QString& name : Functions())
        QTest::newRow(qPrintable(name)) << QRegularExpression("\\b" + name + "\\(");
    for (const char* const name : {"pi", "e"})
        QTest::newRow(name) << QRegularExpression(QString("\\b%1\\b").arg(name));
    for (const char* const sign :
         {"+", "-", "*", "/", "^", "<", "<=", ">", ">=", "==", "!=", "&&", "||", "?", ":"})
        QTest::newRow(sign) << QRegularExpression(QRegularExpression::escape(sign));
}

void tst_ExpressionEngine::TheDocumentHasAnExampleOfEverything()
{
    QFETCH(QRegularExpression, wanted);
    const QVector<Example> examples = ExamplesOfDocument();
    for (const Example& example : examples) {
        if (wanted.match(example.expression).hasMatch())
            return;
    }
    QFAIL("there is no example");
}

TARN_TEST_MAIN(tst_ExpressionEngine)
#include "tst_ExpressionEngine.moc"
