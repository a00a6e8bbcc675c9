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
    NewRow("sum of tenths", 0.1 + 0.2, "0.3");
    NewRow("large", 1234567.0, "1.23457e+06");
    NewRow("small", 0.000012345678, "1.23457e-05");
    NewRow("negative", -2.5, "-2.5");
    NewRow("zero", 0.0, "0");
    NewRow("infinite", -std::numeric_limits<double>::infinity(), "-inf");
    NewRow("no number", std::numeric_limits<double>::quiet_NaN(), "nan");
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
    NewRow("empty", "", true);
    NewRow("integer", "12", true);
    NewRow("decimal", "2.5", true);
    NewRow("two full stops", "1.2.3", true);
    NewRow("full stop alone", ".", true);
    NewRow("minus sign", "-2", false);
    NewRow("plus sign", "+2", false);
    NewRow("exponent", "1e3", false);
    NewRow("leading blank", " 1", false);
    NewRow("comma", "1,2", false);
    NewRow("letters", "abc", false);
    NewRow("full-width digit", QStringLiteral("１"), false);
    NewRow("Arabic digit", QStringLiteral("١"), false);
}

void tst_NumberText::OnlyDigitsAndFullStopsAreANumber()
{
    QFETCH(QString, text);
    QTEST(tarn::IsNumberText(text), "isNumber");
}

TARN_TEST_MAIN(tst_NumberText)
#include "tst_NumberText.moc"
