#include "NumberTexts.h"
#include "TestCase.h"

class tst_NumberTexts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ShortTextsHaveSixDigits();
    void ExactTextsReadBackAsTheSameNumber_data();
    void ExactTextsReadBackAsTheSameNumber();
};

void tst_NumberTexts::ShortTextsHaveSixDigits()
{
    QCOMPARE(ShortText(1.0 / 3.0), QString("0.333333"));
    QCOMPARE(ShortText(-1234567.0), QString("-1.23457e+06"));
    QCOMPARE(ShortText(20.0), QString("20"));
}

void tst_NumberTexts::ExactTextsReadBackAsTheSameNumber_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 20.0 << "20";
    QTest::newRow("short decimal") << 0.1 << "0.1";
    QTest::newRow("all digits") << 0.1 + 0.2 << "0.30000000000000004";
    QTest::newRow("negative") << -2.5 << "-2.5";
    QTest::newRow("tiny") << 5e-324 << "5e-324";
}

void tst_NumberTexts::ExactTextsReadBackAsTheSameNumber()
{
    QFETCH(double, number);
    QTEST(ExactText(number), "text");
    QCOMPARE(ExactText(number).toDouble(), number);
}

TARN_TEST_MAIN(tst_NumberTexts)
#include "tst_NumberTexts.moc"
