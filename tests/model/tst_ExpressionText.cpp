#include "Expressions.h"
#include "TestCase.h"

#include <cmath>

using namespace expressions;

class tst_ExpressionText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AnInvalidExpressionGivesNaNAndAReason_data();
    void AnInvalidExpressionGivesNaNAndAReason();
    void EveryFunctionChecksHowManyValuesItTakes_data();
    void EveryFunctionChecksHowManyValuesItTakes();
    void OtherFeaturesOfTheParserAreNotReachable_data();
    void OtherFeaturesOfTheParserAreNotReachable();
    void LongNamesAreShortenedInTheReason();
    void PositionsCountCharacters_data();
    void PositionsCountCharacters();
    void NamesMayContainAnyLetters_data();
    void NamesMayContainAnyLetters();
    void NamesMayContainBytesThatLookLikeOperators_data();
    void NamesMayContainBytesThatLookLikeOperators();
    void UndecodableBytesAreStillNames_data();
    void UndecodableBytesAreStillNames();
    void AChangeOfTheCodePageTakesEffect();
};

// clang-format off
void tst_ExpressionText::AnInvalidExpressionGivesNaNAndAReason_data()
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
    QTest::newRow("too large, no operator")  << "2 1e999"      << 3 << "the number is too large or too small";
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
    QTest::newRow("too large, by zero")      << "1/(10^400/0)" << 1 << "an operation has no finite result";
    QTest::newRow("too large, power of zero") << "1/0^(-10^400)" << 1 << "an operation has no finite result";
    QTest::newRow("too large, negative base") << "(-1)^10^400" << 1 << "an operation has no real result";
    QTest::newRow("the same as a function")  << "pow(-1,10^400)" << 1 << "an operation has no real result";
    QTest::newRow("too large, negative root") << "1/(-10^400)^0.5" << 1 << "an operation has no real result";
}
// clang-format on

void tst_ExpressionText::AnInvalidExpressionGivesNaNAndAReason()
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

void tst_ExpressionText::EveryFunctionChecksHowManyValuesItTakes_data()
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

void tst_ExpressionText::EveryFunctionChecksHowManyValuesItTakes()
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
        // atanh(1) has no finite value.
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

void tst_ExpressionText::OtherFeaturesOfTheParserAreNotReachable_data()
{
    QTest::addColumn<QString>("expression");
    for (const char* const text :
         {"_pi",   "_e",      "rnd()",     "rnd",    "A",   "AA",  "a=1",   "a+=1",
          "sin 1", "1 and 2", "not 1",     "#1",     "'a'", "~1",  "$a",    "1?2",
          "min()", "max()",   "sum()",     "avg()",  "inf", "nan", "1e400", "0b1",
          "1_000", "1'000",   "if(1,2,3)", "SIN(1)", "Pi",  "E",   "PI"})
        QTest::newRow(text) << text;
}

void tst_ExpressionText::OtherFeaturesOfTheParserAreNotReachable()
{
    QFETCH(QString, expression);
    QVERIFY(std::isnan(Calculate(expression, {{"a", 1.0}})));
    QVERIFY(ExpressionEngine::LastError().startsWith("Position "));
}

void tst_ExpressionText::LongNamesAreShortenedInTheReason()
{
    QVERIFY(std::isnan(Calculate(std::string(5000, 'x'))));
    QCOMPARE(ExpressionEngine::LastError(),
             QString("Position 1: the name '%1...' is unknown").arg(QString(40, 'x')));
}

// clang-format off
void tst_ExpressionText::PositionsCountCharacters_data()
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

void tst_ExpressionText::PositionsCountCharacters()
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

void tst_ExpressionText::NamesMayContainAnyLetters_data()
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

void tst_ExpressionText::NamesMayContainAnyLetters()
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

void tst_ExpressionText::NamesMayContainBytesThatLookLikeOperators_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char second : std::string("@ABCXYZ[\\]^_`abcxyz{|}~"))
        QTest::addRow("second byte %c", second) << QByteArray("\x81") + second;
    QTest::newRow("bars") << QByteArray("\x81\x7C\x81\x7C");
    QTest::newRow("digits") << QByteArray("\x94\x39\xFC\x36");
}

void tst_ExpressionText::NamesMayContainBytesThatLookLikeOperators()
{
    QFETCH(QByteArray, name);
    UseCodePage("GB18030");
    const std::string bytes = name.toStdString();
    QCOMPARE(Calculate(bytes + "||0", {{bytes, 4.0}}), 1.0);
    QCOMPARE(Calculate("2^" + bytes + "-1", {{bytes, 4.0}, {"\x81", 1.0}}), 15.0);
}

// clang-format off
void tst_ExpressionText::UndecodableBytesAreStillNames_data()
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

void tst_ExpressionText::UndecodableBytesAreStillNames()
{
    QFETCH(QByteArray, codePage);
    QFETCH(QByteArray, name);
    UseCodePage(codePage);
    const std::string bytes = name.toStdString();
    QCOMPARE(Calculate(bytes + "*2", {{bytes, 4.0}}), 8.0);
    QCOMPARE(Calculate("2*(" + bytes + ")", {{bytes, 4.0}}), 8.0);
    QVERIFY(std::isnan(Calculate(bytes, {{"a", 4.0}})));
}

void tst_ExpressionText::AChangeOfTheCodePageTakesEffect()
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

TARN_TEST_MAIN(tst_ExpressionText)
#include "tst_ExpressionText.moc"
