#include "CoordinateInput.h"
#include "KernelText.h"
#include "TestCase.h"

#include <QLineEdit>

class tst_CoordinateInput : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ThreeFieldsMakeAPoint_data();
    void ThreeFieldsMakeAPoint();
};

void tst_CoordinateInput::ThreeFieldsMakeAPoint_data()
{
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("y");
    QTest::addColumn<QString>("z");
    QTest::addColumn<QString>("point");
    NewRow("numbers", "1", "-2.5", "1e3", "(1, -2.5, 1000)");
    NewRow("no numbers", "", "abc", "1,5", "(0, 0, 0)");
    NewRow("no finite numbers", "inf", "-inf", "nan", "(inf, -inf, nan)");
}

void tst_CoordinateInput::ThreeFieldsMakeAPoint()
{
    QFETCH(QString, x);
    QFETCH(QString, y);
    QFETCH(QString, z);
    QFETCH(QString, point);
    for (const char* const locale : {"C", "de_DE.UTF-8"}) {
        UseLocale(locale);
        QCOMPARE(KernelText(tarn::Coordinates(QLineEdit(x), QLineEdit(y), QLineEdit(z))), point);
    }
}

TARN_TEST_MAIN(tst_CoordinateInput)
#include "tst_CoordinateInput.moc"
