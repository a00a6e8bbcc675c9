#include "Conversions.h"

#include <QTest>

#include <limits>

void AddConversionRows()
{
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    struct Row
    {
        const char* text;
        double number;
        int integer;
    };
    const Row rows[] = {
        {"", 0.0, 0},
        {"abc", 0.0, 0},
        {"12", 12.0, 12},
        {"-7", -7.0, -7},
        {"+3", 3.0, 3},
        {"007", 7.0, 7},
        {" 5 ", 5.0, 5},
        {"5 6", 0.0, 0},
        {"5mm", 0.0, 0},
        {"6.5", 6.5, 0},
        {".5", 0.5, 0},
        {"0.1", 0.1, 0},
        {"1e3", 1000.0, 0},
        {"1e-3", 0.001, 0},
        {"1,5", 0.0, 0},
        {"1.234,5", 0.0, 0},
        {"1,234.5", 0.0, 0},
        {"0x10", 0.0, 0},
        {"2147483647", 2147483647.0, 2147483647},
        {"2147483648", 2147483648.0, 0},
        {"inf", Infinity, 0},
        {"-inf", -Infinity, 0},
        {"nan", NaN, 0},
        {"1e400", Infinity, 0},
        {"-1e400", -Infinity, 0},
        {"1e-400", 0.0, 0},
    };
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");
    QTest::addColumn<int>("integer");
    for (const char* const locale : {"C", "de_DE.UTF-8"}) {
        for (const Row& row : rows)
            QTest::addRow("\"%s\" under %s", row.text, locale)
                << QByteArray(locale) << QString::fromLatin1(row.text) << row.number << row.integer;
    }
}

QString AllDigits(double value)
{
    return QString::number(value, 'g', 17);
}
