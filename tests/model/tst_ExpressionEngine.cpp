#include "Expressions.h"
#include "TestCase.h"

#include <cfenv>
#include <cmath>
#include <limits>

using namespace expressions;

namespace {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

class tst_ExpressionEngine : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AnExpressionHasAValue_data();
    void AnExpressionHasAValue();
    void OperationsAreNotRegrouped();
    void TheSameTextFollowsTheVariablesOfEachCall();
    void ManyDifferentExpressionsKeepTheirValues();
    void ASuccessClearsTheReason();
    void TheCallersVariablesAreNotChanged();
    void TheDecimalSignIsTheFullStopUnderEveryLocale();
    void TheHostsFloatingPointStateIsPreserved();
    void FloatingPointTrapsOfTheHostDoNotFire();
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
    QTest::newRow("power of too large")         << "1/(-10^400)^3"         << 0.0;
    QTest::newRow("power to too large")         << "0.5^10^400"            << 0.0;
    QTest::newRow("too large to the power 0")   << "(10^400)^0"            << 1.0;

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
    // So does the cached program.
    COMPARE_VALUE(Calculate(expression, variables), value);
}

void tst_ExpressionEngine::OperationsAreNotRegrouped()
{
    QCOMPARE(Calculate("(x+1e308)*10", {{"x", -1e308}}), 0.0);
    QCOMPARE(Calculate("x+1e16-1e16", {{"x", 1.0}}), 0.0);
    QCOMPARE(Calculate("x*3/3", {{"x", 0.1}}), 0.1 * 3 / 3);
    QCOMPARE(Calculate("x-x", {{"x", 0.1}}), 0.0);
    QCOMPARE(Calculate("x^2-x*x+x^0", {{"x", 3.0}}), 1.0);
    QCOMPARE(Calculate("2-x-x-x*2+3*x", {{"x", 5.0}}), -3.0);
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

void tst_ExpressionEngine::ManyDifferentExpressionsKeepTheirValues()
{
    constexpr int Count = 30000;
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < Count; ++i)
            QCOMPARE(Calculate("a+" + std::to_string(i), {{"a", round}}), double(i + round));
    }
}

void tst_ExpressionEngine::ASuccessClearsTheReason()
{
    QVERIFY(std::isnan(Calculate("1+")));
    QVERIFY(!ExpressionEngine::LastError().isEmpty());
    QCOMPARE(Calculate("1+1"), 2.0);
    QCOMPARE(ExpressionEngine::LastError(), QString());
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

void tst_ExpressionEngine::TheDecimalSignIsTheFullStopUnderEveryLocale()
{
    UseLocale("de_DE.UTF-8");
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

void tst_ExpressionEngine::TheHostsFloatingPointStateIsPreserved()
{
    std::feclearexcept(FE_ALL_EXCEPT);
    QVERIFY(std::isnan(Calculate("1/0")));
    QVERIFY(std::isnan(Calculate("sqrt(-1)")));
    QCOMPARE(std::fetestexcept(FE_ALL_EXCEPT), 0);
    // Flags that the host raised before do not affect the expression.
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

TARN_TEST_MAIN(tst_ExpressionEngine)
#include "tst_ExpressionEngine.moc"
