#include "NumberText.h"
#include "TestCase.h"

#include <limits>

class tst_NumberText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ANumberIsShownWithSixDigits_data();
    void ANumberIsShownWithSixDigits();
    void OnlyDigitsAndFullStopsAreANumber_data();
    void OnlyDigitsAndFullStopsAreANumber();
};

void tst_NumberText::ANumberIsShownWithSixDigits_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("sum of tenths") << 0.1 + 0.2 << "0.3";
    QTest::newRow("large") << 1234567.0 << "1.23457e+06";
    QTest::newRow("small") << 0.000012345678 << "1.23457e-05";
    QTest::newRow("negative") << -2.5 << "-2.5";
    QTest::newRow("zero") << 0.0 << "0";
    QTest::newRow("infinite") << -std::numeric_limits<double>::infinity() << "-inf";
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << "nan";
}

void tst_NumberText::ANumberIsShownWithSixDigits()
{
    QFETCH(double, value);
    QTEST(tarn::NumberText(value), "text");
}

void tst_NumberText::OnlyDigitsAndFullStopsAreANumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isNumber");
    QTest::newRow("empty") << "" << true;
    QTest::newRow("integer") << "12" << true;
    QTest::newRow("decimal") << "2.5" << true;
    QTest::newRow("two full stops") << "1.2.3" << true;
    QTest::newRow("full stop alone") << "." << true;
    QTest::newRow("minus sign") << "-2" << false;
    QTest::newRow("plus sign") << "+2" << false;
    QTest::newRow("exponent") << "1e3" << false;
    QTest::newRow("leading blank") << " 1" << false;
    QTest::newRow("comma") << "1,2" << false;
    QTest::newRow("letters") << "abc" << false;
    QTest::newRow("full-width digit") << QStringLiteral("１") << false;
    QTest::newRow("Arabic digit") << QStringLiteral("١") << false;
}

void tst_NumberText::OnlyDigitsAndFullStopsAreANumber()
{
    QFETCH(QString, text);
    QTEST(tarn::IsNumberText(text), "isNumber");
}

TARN_TEST_MAIN(tst_NumberText)
#include "tst_NumberText.moc"
