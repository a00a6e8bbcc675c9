#include "NumberItem.h"
#include "Tables.h"
#include "TestCase.h"

#include <QDataStream>
#include <QSignalSpy>

#include <limits>
#include <memory>

class tst_NumberItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheNumberIsShownWithSixDigits_data();
    void TheNumberIsShownWithSixDigits();
    void OtherRolesAreThoseOfAnOrdinaryItem();
    void AnEditedTextIsKeptAsTyped_data();
    void AnEditedTextIsKeptAsTyped();
    void AnEditWithoutChangeIsIgnored();
    void AnUnsetTextIsEmpty();
    void ItemsSortAsOrdinaryOnes();
    void AClonedItemIsIndependent();
    void AStreamedItemIsReadAsAnOrdinaryOne();
    void AStreamReplacesTheNumber();
};

namespace {

void Stream(const QTableWidgetItem& from, QTableWidgetItem& to)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << from;
    QDataStream in(bytes);
    in >> to;
}

} // namespace

void tst_NumberItem::TheNumberIsShownWithSixDigits_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    NewRow("zero", 0.0, "0");
    NewRow("negative zero", -0.0, "0");
    NewRow("short", 0.1, "0.1");
    NewRow("rounded", 1.0 / 3, "0.333333");
    NewRow("large", 1234567.0, "1.23457e+06");
    NewRow("no number", std::numeric_limits<double>::quiet_NaN(), "nan");
    NewRow("infinite", -std::numeric_limits<double>::infinity(), "-inf");
}

void tst_NumberItem::TheNumberIsShownWithSixDigits()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    const NumberItem item(value);
    QCOMPARE(item.text(), text);
    QCOMPARE(item.data(Qt::DisplayRole), QVariant(text));
    QCOMPARE(item.data(Qt::EditRole), QVariant(text));
}

void tst_NumberItem::OtherRolesAreThoseOfAnOrdinaryItem()
{
    NumberItem item(2.5);
    const QTableWidgetItem ordinary("2.5");
    QCOMPARE(item.type(), ordinary.type());
    QCOMPARE(item.flags(), ordinary.flags());
    QVERIFY(!item.data(Qt::ToolTipRole).isValid());
    item.setToolTip("tip");
    QCOMPARE(item.toolTip(), QStringLiteral("tip"));
    QCOMPARE(item.text(), QStringLiteral("2.5"));
}

void tst_NumberItem::AnEditedTextIsKeptAsTyped_data()
{
    QTest::addColumn<QString>("typed");
    NewRow("number", "7.50");
    NewRow("many digits", "0.123456789");
    NewRow("no number", "seven");
    NewRow("empty", "");
}

void tst_NumberItem::AnEditedTextIsKeptAsTyped()
{
    QFETCH(QString, typed);
    QTableWidget table(1, 1);
    table.setItem(0, 0, new NumberItem(2.5));
    table.show();
    QSignalSpy changed(&table, SIGNAL(cellChanged(int, int)));

    TypeIntoCell(table, 0, 0, typed);
    QCOMPARE(table.item(0, 0)->text(), typed);
    QCOMPARE(table.item(0, 0)->data(Qt::EditRole).toString(), typed);
    QCOMPARE(changed.count(), 1);
    table.item(0, 0)->setText("8");
    QCOMPARE(table.item(0, 0)->text(), QStringLiteral("8"));
    QCOMPARE(changed.count(), 2);
}

void tst_NumberItem::AnEditWithoutChangeIsIgnored()
{
    QTableWidget table(1, 2);
    table.setItem(0, 0, new NumberItem(1.0 / 3));
    table.setItem(0, 1, new QTableWidgetItem("0.333333"));
    QSignalSpy changed(&table, SIGNAL(cellChanged(int, int)));
    table.item(0, 0)->setText("0.333333");
    table.item(0, 1)->setText("0.333333");
    QCOMPARE(changed.count(), 0);
    QCOMPARE(table.item(0, 0)->text(), QStringLiteral("0.333333"));
}

void tst_NumberItem::AnUnsetTextIsEmpty()
{
    NumberItem item(2.5);
    item.setData(Qt::DisplayRole, QVariant());
    QVERIFY(!item.data(Qt::DisplayRole).isValid());
    QCOMPARE(item.text(), QString());
}

void tst_NumberItem::ItemsSortAsOrdinaryOnes()
{
    // By text, like ordinary items: 10 comes before 9.
    QTableWidget table(4, 2);
    int row = 0;
    for (const double value : {9.0, 10.0, -1.0, 0.5}) {
        table.setItem(row, 0, new NumberItem(value));
        table.setItem(row, 1, new QTableWidgetItem(QString::number(value)));
        ++row;
    }
    for (const int column : {0, 1}) {
        table.sortItems(column);
        QCOMPARE(ColumnTexts(table, column), QStringList({"-1", "0.5", "10", "9"}));
    }
    QVERIFY(NumberItem(10.0) < QTableWidgetItem("9"));
    QVERIFY(QTableWidgetItem("10") < NumberItem(9.0));
}

void tst_NumberItem::AClonedItemIsIndependent()
{
    NumberItem item(2.5);
    item.setToolTip("tip");
    const std::unique_ptr<QTableWidgetItem> number(item.clone());
    item.setText("edited");
    const std::unique_ptr<QTableWidgetItem> edited(item.clone());
    item.setText("again");
    QCOMPARE(number->text(), QStringLiteral("2.5"));
    QCOMPARE(number->toolTip(), QStringLiteral("tip"));
    QCOMPARE(edited->text(), QStringLiteral("edited"));
    QVERIFY(number->tableWidget() == nullptr);
}

void tst_NumberItem::AStreamedItemIsReadAsAnOrdinaryOne()
{
    NumberItem item(2.5);
    item.setToolTip("tip");
    QTableWidgetItem read;
    Stream(item, read);
    QCOMPARE(read.text(), QStringLiteral("2.5"));
    QCOMPARE(read.toolTip(), QStringLiteral("tip"));

    item.setText("edited");
    Stream(item, read);
    QCOMPARE(read.text(), QStringLiteral("edited"));
}

void tst_NumberItem::AStreamReplacesTheNumber()
{
    NumberItem item(2.5);
    Stream(QTableWidgetItem("other"), item);
    QCOMPARE(item.text(), QStringLiteral("other"));
}

TARN_TEST_MAIN(tst_NumberItem)
#include "tst_NumberItem.moc"
