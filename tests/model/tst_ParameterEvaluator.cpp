#include "EmptyDesignStores.h"
#include "GlobalParaMeterMgr.h"
#include "ParameterEvaluator.h"
#include "TestCase.h"

#include <cmath>

class tst_ParameterEvaluator : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void PlainParametersAreLeftAlone();
    void AnExpressionFillsValueRawValueAndText();
    void TheOrderOfTheStoreDoesNotMatter();
    void OnlyTheNamesInTheFormulaCount_data();
    void OnlyTheNamesInTheFormulaCount();
    void AnExpressionNeedsNoNames();
    void AnErasedParameterLeavesNoValue();
    void AnExpressionWithoutValueIsReportedAndGivesNaN();
    void AConsequenceOfAFailureIsNotReported();
    void EachParameterWithoutValueHasAReason();
    void ACycleIsNamed_data();
    void ACycleIsNamed();
    void EachCycleIsReportedOnce();
    void ALongCycleIsAbbreviated();
    void ParametersOutsideACycleAreEvaluated();
    void HeldParametersKeepTheirValues();
    void AHeldParameterOpensACycle();
    void AChainOfAHundredThousandIsEvaluated();
    void UsedParametersAreNotedInTheRecords();
};

static void Add(const QString& name, const QString& expression, const QString& uses,
                double value = 0.0)
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = ParametersDef::ScalarType;
    record.m_strExpression = expression.toLocal8Bit().toStdString();
    record.m_strExpressPara = uses;
    record.m_dValue = value;
    record.m_strValue = QString::number(value);
    GlobalParaMeterMgr::AddParameter(name, record);
}

static ParametersDef Record(const char* name)
{
    return GlobalParaMeterMgr::m_nameMapParameters.at(name);
}

static double Value(const char* name)
{
    return GlobalParaMeterMgr::GetParameterRawValue(name).toDouble();
}

static QStringList Messages(const QSet<QString>& held = {})
{
    QStringList messages;
    for (const QString& message : ParameterEvaluator::Evaluate(held).messages)
        messages << message;
    return messages;
}

void tst_ParameterEvaluator::PlainParametersAreLeftAlone()
{
    const EmptyDesignStores stores;
    Add("a", "", "nobody", 2.0);
    QCOMPARE(Messages(), QStringList());
    QCOMPARE(Value("a"), 2.0);
    QVERIFY(!Record("a").m_varRawValue.isValid());
}

void tst_ParameterEvaluator::AnExpressionFillsValueRawValueAndText()
{
    const EmptyDesignStores stores;
    Add("a", "", "", 411522.0);
    Add("b", "a*3+1", "a");
    QCOMPARE(Messages(), QStringList());
    QCOMPARE(Record("b").m_dValue, 1234567.0);
    QCOMPARE(Record("b").m_varRawValue, QVariant(1234567.0));
    QCOMPARE(Record("b").m_strValue, QString("1.23457e+06"));
}

void tst_ParameterEvaluator::TheOrderOfTheStoreDoesNotMatter()
{
    const EmptyDesignStores stores;
    Add("d", "b+c", "b,c");
    Add("c", "b*2", "b");
    Add("b", "a+1", "a");
    Add("a", "", "", 1.0);
    QCOMPARE(Messages(), QStringList());
    QCOMPARE(Value("b"), 2.0);
    QCOMPARE(Value("c"), 4.0);
    QCOMPARE(Value("d"), 6.0);
}

void tst_ParameterEvaluator::OnlyTheNamesInTheFormulaCount_data()
{
    QTest::addColumn<QString>("uses");
    QTest::newRow("all of them") << "a";
    QTest::newRow("blanks and empty names") << " a ,,";
    QTest::newRow("none") << "";
    QTest::newRow("itself") << "b";
    QTest::newRow("a name that is not a parameter") << "a,gone";
}

void tst_ParameterEvaluator::OnlyTheNamesInTheFormulaCount()
{
    const EmptyDesignStores stores;
    QFETCH(QString, uses);
    Add("a", "", "", 1.0);
    Add("b", "a+1", uses);
    QCOMPARE(Messages(), QStringList());
    QCOMPARE(Value("b"), 2.0);
}

void tst_ParameterEvaluator::AnExpressionNeedsNoNames()
{
    const EmptyDesignStores stores;
    Add("a", "2*3", "");
    QCOMPARE(Messages(), QStringList());
    QCOMPARE(Value("a"), 6.0);
}

void tst_ParameterEvaluator::AnErasedParameterLeavesNoValue()
{
    const EmptyDesignStores stores;
    Add("a", "x1*2", "x1", 7.0);
    Add("b", "a+1", "a");
    QCOMPARE(Messages(), QStringList("a: its expression uses \"x1\", which is not a parameter"));
    QVERIFY(std::isnan(Value("a")));
    QVERIFY(std::isnan(Value("b")));
}

void tst_ParameterEvaluator::AnExpressionWithoutValueIsReportedAndGivesNaN()
{
    const EmptyDesignStores stores;
    Add("a", "2*(3", "", 7.0);
    const QStringList messages = Messages();
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages[0].startsWith("a = 2*(3: ") && messages[0].size() > 12,
             qPrintable(messages[0]));
    QVERIFY(std::isnan(Value("a")));
    QVERIFY(std::isnan(Record("a").m_dValue));
    QCOMPARE(Record("a").m_strValue, QString("nan"));
}

void tst_ParameterEvaluator::AConsequenceOfAFailureIsNotReported()
{
    const EmptyDesignStores stores;
    Add("c", "b*2", "b");
    Add("b", "a*2", "a");
    Add("a", "1/0", "");
    const QStringList messages = Messages();
    QCOMPARE(messages.size(), 1);
    QVERIFY(messages[0].startsWith("a = 1/0: "));
    QVERIFY(std::isnan(Value("c")));
}

void tst_ParameterEvaluator::EachParameterWithoutValueHasAReason()
{
    const EmptyDesignStores stores;
    Add("a", "nobody", "nobody", 2.0);
    Add("b", "a-2", "a");
    Add("c", "d", "d");
    Add("d", "c", "c");
    Add("good", "2", "");
    const QHash<QString, QString> reasons = ParameterEvaluator::Evaluate().reasons;
    QCOMPARE(reasons.size(), 4);
    QCOMPARE(reasons["a"], QString("its expression uses \"nobody\", which is not a parameter"));
    QCOMPARE(reasons["b"], QString("it uses \"a\", which has no value"));
    QCOMPARE(reasons["c"], QString("Circular reference: c -> d -> c"));
    QCOMPARE(reasons["d"], reasons["c"]);
}

void tst_ParameterEvaluator::ACycleIsNamed_data()
{
    QTest::addColumn<QStringList>("uses"); // Of a, b, c, d.
    QTest::addColumn<QString>("cycle");
    QTest::newRow("itself") << QStringList({"a", "0", "0", "0"}) << "a -> a";
    QTest::newRow("two") << QStringList({"b", "a", "0", "0"}) << "a -> b -> a";
    QTest::newRow("three") << QStringList({"b", "c", "a", "0"}) << "a -> b -> c -> a";
    QTest::newRow("behind a way") << QStringList({"b", "c", "d", "c"}) << "c -> d -> c";
    QTest::newRow("backwards") << QStringList({"0", "0", "d", "c"}) << "c -> d -> c";
    QTest::newRow("not the first name") << QStringList({"c,b", "a", "0", "0"}) << "a -> b -> a";
}

void tst_ParameterEvaluator::ACycleIsNamed()
{
    const EmptyDesignStores stores;
    QFETCH(QStringList, uses);
    QFETCH(QString, cycle);
    const QStringList names = {"a", "b", "c", "d"};
    for (int i = 0; i < names.size(); ++i)
        Add(names[i], "1+" + uses[i].split(',').join('+'), uses[i], 7.0);
    QCOMPARE(Messages(), QStringList("Circular reference: " + cycle));
    QVERIFY(std::isnan(Value(qPrintable(QString(cycle.at(0))))));
}

void tst_ParameterEvaluator::EachCycleIsReportedOnce()
{
    const EmptyDesignStores stores;
    Add("a", "b", "b");
    Add("b", "a", "a");
    Add("c", "d+a", "d,a");
    Add("d", "c", "c");
    QCOMPARE(Messages(),
             QStringList({"Circular reference: a -> b -> a", "Circular reference: c -> d -> c"}));
}

void tst_ParameterEvaluator::ALongCycleIsAbbreviated()
{
    const EmptyDesignStores stores;
    constexpr int Length = 50000;
    for (int i = 0; i < Length; ++i)
        Add(QString("p%1").arg(i), QString("p%1").arg((i + 1) % Length), "");
    QCOMPARE(Messages(), QStringList("Circular reference: p0 -> p1 -> p2 -> p3 -> p4 -> "
                                     "p5 -> p6 -> p7 -> p8 -> p9 -> p10 -> p11 -> ... -> p0"));
}

void tst_ParameterEvaluator::ParametersOutsideACycleAreEvaluated()
{
    const EmptyDesignStores stores;
    Add("a", "b", "b", 3.0);
    Add("b", "a", "a", 4.0);
    Add("c", "a+1", "a");
    Add("d", "e*2", "e");
    Add("e", "", "", 5.0);
    QCOMPARE(Messages().size(), 1);
    QVERIFY(std::isnan(Value("c")));
    QCOMPARE(Value("d"), 10.0);
}

void tst_ParameterEvaluator::HeldParametersKeepTheirValues()
{
    const EmptyDesignStores stores;
    Add("a", "", "", 1.0);
    Add("b", "a*10", "a", 7.0);
    Add("c", "b*10", "b");
    QCOMPARE(Messages({"b"}), QStringList());
    QCOMPARE(Value("b"), 7.0);
    QCOMPARE(Value("c"), 70.0);
}

void tst_ParameterEvaluator::AHeldParameterOpensACycle()
{
    const EmptyDesignStores stores;
    Add("a", "b+1", "b");
    Add("b", "a+1", "a", 7.0);
    QCOMPARE(Messages({"b"}), QStringList());
    QCOMPARE(Value("a"), 8.0);
}

void tst_ParameterEvaluator::AChainOfAHundredThousandIsEvaluated()
{
    const EmptyDesignStores stores;
    // Against the store's order, so that each waits for all that follow.
    constexpr int Length = 100000;
    for (int i = 0; i < Length; ++i)
        Add(QString("p%1").arg(i), QString("p%1+1").arg(i + 1), QString("p%1").arg(i + 1));
    Add(QString("p%1").arg(Length), "", "", 0.0);
    QCOMPARE(Messages(), QStringList());
    QCOMPARE(Value("p0"), double(Length));
}

void tst_ParameterEvaluator::UsedParametersAreNotedInTheRecords()
{
    const EmptyDesignStores stores;
    Add("a", "", "", 1.0);
    Add("长度", "", "", 1.0);
    Add("b", "max(a, 长度) + a + pi + gone", "old");
    ParameterEvaluator::NoteUsedParameters();
    QCOMPARE(Record("b").m_strExpressPara, QString("a,长度,gone"));
    QCOMPARE(Record("a").m_strExpressPara, QString());
}

TARN_TEST_MAIN(tst_ParameterEvaluator)
#include "tst_ParameterEvaluator.moc"
