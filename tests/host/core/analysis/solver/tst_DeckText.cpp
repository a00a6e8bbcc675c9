#include "DeckText.h"
#include "TestCase.h"

class tst_DeckText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void NumbersFit_data();
    void NumbersFit();
    void NumbersReadBackAsTheSame_data();
    void NumbersReadBackAsTheSame();
    void AGermanLocaleWritesAPoint();
};

void tst_DeckText::NumbersFit_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("width");
    QTest::addColumn<QByteArray>("number");
    QTest::addColumn<QByteArray>("real");
    const auto row = [](const char* name, double value, int width, const char* number,
                        const char* real) {
        NewRow(name, value, width, QByteArray(number), QByteArray(real));
    };
    row("whole", 5.0, 20, "5", "5.");
    row("zero", 0.0, 8, "0", "0.");
    row("tenth", 0.1, 16, "0.1", "0.1");
    row("small", 1e-5, 16, "1e-05", "1.E-5");
    row("density", 7.85e-9, 16, "7.85e-09", "7.85E-9");
    row("large", 1e6, 8, "1e+06", "1.E6");
    row("third in 16", 1.0 / 3.0, 16, "0.33333333333333", "0.33333333333333");
    row("third in 8", -1.0 / 3.0, 8, "-0.33333", "-0.33333");
    row("17 digits", -1.2345678901234567e-300, 20, "-1.234567890123e-300", "-1.234567890123E-300");
    row("many digits before the point", 123456.789012, 8, "123456.8", "123456.8");
    row("more digits than the width", 123456789.0, 8, "1.23e+08", "1.2346E8");
}

void tst_DeckText::NumbersFit()
{
    QFETCH(double, value);
    QFETCH(int, width);
    QTEST(NumberInWidth(value, width), "number");
    QTEST(RealInWidth(value, width), "real");
    QVERIFY(NumberInWidth(value, width).size() <= width);
    QVERIFY(RealInWidth(value, width).size() <= width);
}

void tst_DeckText::NumbersReadBackAsTheSame_data()
{
    QTest::addColumn<double>("value");
    NewRow("tenth", 0.1);
    NewRow("third", 1.0 / 3.0);
    NewRow("small", 4.9e-324);
    NewRow("large", 1.7976931348623157e308);
    NewRow("below 0", -123456.789);
}

void tst_DeckText::NumbersReadBackAsTheSame()
{
    QFETCH(double, value);
    QCOMPARE(NumberInWidth(value, 30).toDouble(), value);
    QCOMPARE(RealInWidth(value, 30).toDouble(), value);
}

void tst_DeckText::AGermanLocaleWritesAPoint()
{
    UseLocale("de_DE.UTF-8");
    QCOMPARE(NumberInWidth(1.5, 8), QByteArray("1.5"));
    QCOMPARE(RealInWidth(1234.5, 8), QByteArray("1234.5"));
}

TARN_TEST_MAIN(tst_DeckText)
#include "tst_DeckText.moc"
