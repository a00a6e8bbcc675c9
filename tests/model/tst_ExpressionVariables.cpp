#include "Expressions.h"
#include "TestCase.h"

#include <cmath>
#include <limits>

using namespace expressions;

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

class tst_ExpressionVariables : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AVariableHidesAConstant();
    void AVariableHidesAFunction_data();
    void AVariableHidesAFunction();
    void EntriesThatAreNotNamesAreIgnored_data();
    void EntriesThatAreNotNamesAreIgnored();
    void AVariableThatIsNotFiniteGivesNaN_data();
    void AVariableThatIsNotFiniteGivesNaN();
    void UnusedVariablesDoNotMatter();
};

void tst_ExpressionVariables::AVariableHidesAConstant()
{
    QCOMPARE(Calculate("2*e", {{"e", 5.0}}), 10.0);
    QCOMPARE(Calculate("2*pi", {{"pi", 5.0}}), 10.0);
    // The sign of a power of ten is part of its number.
    QCOMPARE(Calculate("2e1", {{"e", 5.0}, {"e1", 5.0}}), 20.0);
}

void tst_ExpressionVariables::AVariableHidesAFunction_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : Functions())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_ExpressionVariables::AVariableHidesAFunction()
{
    QFETCH(QString, name);
    const Variables variables = {{name.toStdString(), 5.0}};
    QCOMPARE(Calculate(name + "+1", variables), 6.0);
    QVERIFY(std::isnan(Calculate("1+" + name + "(1)", variables)));
    QVERIFY(ExpressionEngine::LastError().startsWith("Position 3: "));
}

void tst_ExpressionVariables::EntriesThatAreNotNamesAreIgnored_data()
{
    QTest::addColumn<QByteArray>("entry");
    for (const char* const entry : {"", " ", "a b", " a", "a ", "a+b", "2", "2a", "1e3", "(", ",",
                                    "a,b", "=", "-", "!", "\"", "a.b", "\n", "\xFF"})
        QTest::addRow("\"%s\"", entry) << QByteArray(entry);
    QTest::newRow("zero byte") << QByteArray("a\0b", 3);
    QTest::newRow("very long") << QByteArray(100000, 'a');
}

void tst_ExpressionVariables::EntriesThatAreNotNamesAreIgnored()
{
    QFETCH(QByteArray, entry);
    const Variables variables = {{entry.toStdString(), 99.0}, {"a", 2.0}, {"b", 3.0}};
    QCOMPARE(Calculate("a+b", variables), 5.0);
    QCOMPARE(Calculate("2*1e3-a", variables), 1998.0);
    QVERIFY(std::isnan(Calculate("a b", variables)));
    QVERIFY(std::isnan(Calculate("2a", variables)));
    QVERIFY(std::isnan(Calculate("", variables)));
}

void tst_ExpressionVariables::AVariableThatIsNotFiniteGivesNaN_data()
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

void tst_ExpressionVariables::AVariableThatIsNotFiniteGivesNaN()
{
    QFETCH(QString, expression);
    QFETCH(double, value);
    QVERIFY(std::isnan(Calculate(expression, {{"x", value}})));
    QCOMPARE(
        ExpressionEngine::LastError(),
        QString("Position %1: the value of 'x' is not finite").arg(expression.indexOf('x') + 1));
}

void tst_ExpressionVariables::UnusedVariablesDoNotMatter()
{
    QCOMPARE(Calculate("a+1", {{"a", 1.0}, {"b", NotANumber}, {"c", Infinity}}), 2.0);
}

TARN_TEST_MAIN(tst_ExpressionVariables)
#include "tst_ExpressionVariables.moc"
