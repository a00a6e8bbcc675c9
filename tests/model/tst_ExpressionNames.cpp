#include "ExpressionNames.h"
#include "TestCase.h"

class tst_ExpressionNames : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void NamesOfValuesAreFound_data();
    void NamesOfValuesAreFound();
    void ConstantsAreParametersOnlyIfThereAreSuch();
    void SomeTextsAreNames_data();
    void SomeTextsAreNames();
    void RenamingChangesWholeNamesOnly_data();
    void RenamingChangesWholeNamesOnly();
};

void tst_ExpressionNames::NamesOfValuesAreFound_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QStringList>("names");
    NewRow("empty", QString(), QStringList());
    NewRow("number", QString("-1.5e-3"), QStringList());
    NewRow("sum", QString("a+b*a"), QStringList({"a", "b"}));
    NewRow("function", QString("max(a, sin (b))"), QStringList({"a", "b"}));
    NewRow("underscores and digits", QString("_x1 - x_2"), QStringList({"_x1", "x_2"}));
    NewRow("beyond ASCII", QString("2*长度+größe"), QStringList({"长度", "größe"}));
    NewRow("exponent", QString("1e3+e3"), QStringList({"e3"}));
    NewRow("no exponent", QString("1e+x"), QStringList({"e", "x"}));
    NewRow("leading point", QString(".5*a"), QStringList({"a"}));
    NewRow("nonsense", QString("a $ ((b"), QStringList({"a", "b"}));
}

void tst_ExpressionNames::NamesOfValuesAreFound()
{
    QFETCH(QString, expression);
    QTEST(tarn::NamesIn(expression), "names");
}

void tst_ExpressionNames::ConstantsAreParametersOnlyIfThereAreSuch()
{
    QCOMPARE(tarn::ParametersIn("e*pi*a", {"e"}), QStringList({"e", "a"}));
}

void tst_ExpressionNames::SomeTextsAreNames_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isName");
    NewRow("plain", QString("a_1"), true);
    NewRow("beyond ASCII", QString("长度"), true);
    NewRow("empty", QString(), false);
    NewRow("blank", QString("wall thickness"), false);
    NewRow("blank at the end", QString("a "), false);
    NewRow("digit first", QString("2nd"), false);
    NewRow("minus", QString("a-b"), false);
    NewRow("comma", QString("a,b"), false);
}

void tst_ExpressionNames::SomeTextsAreNames()
{
    QFETCH(QString, text);
    QTEST(tarn::IsExpressionName(text), "isName");
}

void tst_ExpressionNames::RenamingChangesWholeNamesOnly_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("renamed");
    NewRow("each occurrence", QString("a+2*a"), QString("width+2*width"));
    NewRow("part of a name", QString("aa+b_a+a1"), QString("aa+b_a+a1"));
    NewRow("function", QString("a(1)+a"), QString("a(1)+width"));
    NewRow("number", QString("1e5"), QString("1e5"));
    NewRow("blanks stay", QString(" a  + b"), QString(" width  + b"));
}

void tst_ExpressionNames::RenamingChangesWholeNamesOnly()
{
    QFETCH(QString, expression);
    QTEST(tarn::WithRenamed(expression, "a", "width"), "renamed");
}

TARN_TEST_MAIN(tst_ExpressionNames)
#include "tst_ExpressionNames.moc"
