#include "Expressions.h"
#include "TestCase.h"

#include <cmath>

using namespace expressions;

namespace {

std::string Repeated(const std::string& part, int times)
{
    std::string text;
    for (int i = 0; i < times; ++i)
        text += part;
    return text;
}

} // namespace

class tst_ExpressionLimits : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void LongAndDeepTextsHaveAValue_data();
    void LongAndDeepTextsHaveAValue();
    void TooLongTextsAreRefused_data();
    void TooLongTextsAreRefused();
    void TheLongestTextMayContainThousandsOfNames();
};

void tst_ExpressionLimits::LongAndDeepTextsHaveAValue_data()
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
    row("long name beyond ASCII", Repeated("长", 9998) + "+1", 4.0);
    row("calls in calls", Repeated("abs(max(", 900) + "-7" + Repeated("))", 900), 7.0);
    row("long number", std::string(9000, '0') + "1.5" + std::string(900, '0'), 1.5);
    row("blanks", std::string(9999, ' ') + "7", 7.0);
    row("logic", "1" + Repeated("&&1", 3333), 1.0);
}

void tst_ExpressionLimits::LongAndDeepTextsHaveAValue()
{
    QFETCH(QByteArray, expression);
    QFETCH(double, value);
    QVERIFY(QString::fromUtf8(expression).size() <= 10000);
    const Variables variables = {
        {"a", 1.0}, {std::string(9990, 'n'), 5.0}, {Repeated("长", 9998), 3.0}};
    COMPARE_VALUE(Calculate(expression.toStdString(), variables), value);
    COMPARE_VALUE(Calculate(expression.toStdString(), variables), value);
}

void tst_ExpressionLimits::TooLongTextsAreRefused_data()
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
    row("undecodable bytes", std::string(Many, '\xFF'));
}

void tst_ExpressionLimits::TooLongTextsAreRefused()
{
    QFETCH(QByteArray, expression);
    QVERIFY(std::isnan(Calculate(expression.toStdString())));
    QCOMPARE(ExpressionEngine::LastError(),
             QString("Position 10001: the expression has more than 10000 characters"));
}

void tst_ExpressionLimits::TheLongestTextMayContainThousandsOfNames()
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

TARN_TEST_MAIN(tst_ExpressionLimits)
#include "tst_ExpressionLimits.moc"
