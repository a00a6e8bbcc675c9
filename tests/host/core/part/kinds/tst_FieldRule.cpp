#include "NewFeature.h"
#include "TestCase.h"

#include <limits>
#include <utility>

class tst_FieldRule : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ARuleAllowsItsRange_data();
    void ARuleAllowsItsRange();
    void ValuesHaveTheirUnits();
};

void tst_FieldRule::ARuleAllowsItsRange_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("field");
    QTest::addColumn<QVector<double>>("allowed");
    QTest::addColumn<QVector<double>>("refused");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* kind, int field,
                        const QVector<double>& allowed, const QVector<double>& refused,
                        const char* text) {
        QTest::newRow(name) << QString(kind) << field << allowed << refused << QString(text);
    };
    row("length", "box", 0, {1e-4, 1e6}, {0, -1, 9.99e-5, 1000001}, "from 0.0001 to 1000000 mm");
    row("length or zero", "cone", 1, {0, 1e-4, 1e6}, {-1, 1e-5, 1000001},
        "0 or from 0.0001 to 1000000 mm");
    row("coordinate", "move", 0, {-1e6, 0, 1e-300, 1e6}, {1000001, -1000001},
        "from -1000000 to 1000000 mm");
    row("direction", "polygon", 3, {-1e6, 0, 1e6}, {1000001}, "from -1000000 to 1000000");
    row("sweep", "cylinder", 2, {1e-9, 360}, {0, -1, 360.001}, "above 0 and at most 360 degrees");
    row("latitude, from", "sphere", 1, {-90, 89.9}, {90, -90.1},
        "at least -90 and below 90 degrees");
    row("latitude, to", "sphere", 2, {-89.9, 90}, {-90, 90.1}, "above -90 and at most 90 degrees");
    row("tube, from", "torus", 2, {-180, -0.1}, {0, -180.1}, "at least -180 and below 0 degrees");
    row("tube, to", "torus", 3, {0.1, 180}, {0, 180.1}, "above 0 and at most 180 degrees");
    row("turn", "rotate", 6, {-360, 0, 360}, {-360.1, 360.1}, "from -360 to 360 degrees");
    row("edges", "polygon", 0, {3, 1000}, {2, 3.5, 1001}, "a whole number from 3 to 1000");
    row("instances", "polarArray", 7, {1, 10000}, {0, -1, 1.5, 10001},
        "a whole number from 1 to 10000");
}

void tst_FieldRule::ARuleAllowsItsRange()
{
    QFETCH(QString, kind);
    QFETCH(int, field);
    QFETCH(QVector<double>, allowed);
    QFETCH(QVector<double>, refused);
    const FieldRule& rule = KindOf(kind.toUtf8().constData()).fields[std::size_t(field)].rule;
    for (const double value : allowed)
        QVERIFY2(rule.Allows(value), QByteArray::number(value));
    refused << std::numeric_limits<double>::quiet_NaN() << std::numeric_limits<double>::infinity()
            << -std::numeric_limits<double>::infinity();
    for (const double value : std::as_const(refused))
        QVERIFY2(!rule.Allows(value), QByteArray::number(value));
    QTEST(rule.Text(), "text");
}

void tst_FieldRule::ValuesHaveTheirUnits()
{
    QCOMPARE((FieldRule{0, 1, FieldRule::Millimetres}.ValueText(12.5)), QString("12.5 mm"));
    QCOMPARE((FieldRule{0, 1, FieldRule::Degrees}.ValueText(-90)), QString("-90°"));
    QCOMPARE((FieldRule{0, 1, FieldRule::Number}.ValueText(1e-7)), QString("1e-07"));
    QCOMPARE((FieldRule{0, 1, FieldRule::WholeNumber}.ValueText(8)), QString("8"));
}

TARN_TEST_MAIN(tst_FieldRule)
#include "tst_FieldRule.moc"
