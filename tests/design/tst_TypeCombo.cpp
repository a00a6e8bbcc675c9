#include "ParametersDef.h"
#include "TestCase.h"
#include "TypeCombo.h"

#include <QSignalSpy>
#include <QTableWidget>

class tst_TypeCombo : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ItOffersTheTypesAgain();
    void ACodeChoosesItsEntry_data();
    void ACodeChoosesItsEntry();
    void AnUnknownEntryIsAScalar();
    void OfferingIsNotAChangeByTheUser();
    void ItHasTheSizeOfItsCell();
    void NumbersGrow();
};

void tst_TypeCombo::ItOffersTheTypesAgain()
{
    const QTableWidget table(1, 1);
    TypeCombo combo(table, 0);
    for (int time = 1; time <= 2; ++time) {
        combo.Offer(ParametersDef::TensorType);
        QStringList entries;
        for (int i = 0; i < combo.count(); ++i)
            entries << combo.itemText(i);
        QCOMPARE(entries, QStringList({"Scalar", "Vector", "Tensor", "Bool"}));
        QCOMPARE(combo.currentText(), "Tensor");
        combo.addItem("a fifth");
        combo.setCurrentIndex(4);
    }
    QCOMPARE(combo.accessibleName(), "Type");
}

void tst_TypeCombo::ACodeChoosesItsEntry_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("index");
    NewRow("scalar", int(ParametersDef::ScalarType), 0);
    NewRow("vector", int(ParametersDef::VectorType), 1);
    NewRow("tensor", int(ParametersDef::TensorType), 2);
    NewRow("bool", int(ParametersDef::BoolType), 3);
}

void tst_TypeCombo::ACodeChoosesItsEntry()
{
    QFETCH(int, code);
    QFETCH(int, index);
    const QTableWidget table(1, 1);
    TypeCombo combo(table, 0);
    combo.Offer(code);
    QCOMPARE(combo.currentIndex(), index);
    QCOMPARE(TypeCombo::TypeCode(index), code);
}

void tst_TypeCombo::AnUnknownEntryIsAScalar()
{
    const QTableWidget table(1, 1);
    TypeCombo combo(table, 0);
    for (const int code : {-1, 4}) {
        combo.Offer(code);
        QCOMPARE(combo.currentIndex(), 0);
        QCOMPARE(TypeCombo::TypeCode(code), int(ParametersDef::ScalarType));
    }
}

void tst_TypeCombo::OfferingIsNotAChangeByTheUser()
{
    const QTableWidget table(1, 1);
    TypeCombo combo(table, 0);
    combo.Offer(ParametersDef::ScalarType);
    const QSignalSpy changes(&combo, QOverload<int>::of(&QComboBox::currentIndexChanged));
    combo.Offer(ParametersDef::TensorType);
    QCOMPARE(changes.count(), 0);
}

void tst_TypeCombo::ItHasTheSizeOfItsCell()
{
    QTableWidget table(1, 2);
    table.setColumnWidth(1, 123);
    const TypeCombo combo(table, 1);
    QCOMPARE(combo.parentWidget(), table.viewport());
    QCOMPARE(combo.width(), 123);
}

void tst_TypeCombo::NumbersGrow()
{
    const QTableWidget table(1, 1);
    const TypeCombo first(table, 0);
    const TypeCombo second(table, 0);
    QVERIFY(first.Number() < second.Number());
}

TARN_TEST_MAIN(tst_TypeCombo)
#include "tst_TypeCombo.moc"
