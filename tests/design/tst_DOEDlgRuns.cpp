#include "DOEDlgTables.h"

#include <QHeaderView>
#include <QSignalSpy>

#include <limits>

// The run table.

namespace {

const ShownBox TooMany = ShownBox::Notice("Notify", "Too many runs");

Values Counted(int count)
{
    Values values;
    for (int i = 0; i < count; ++i)
        values.push_back(i);
    return values;
}

} // namespace

class tst_DOEDlgRuns : public With<DialogTest, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void TheRunsAreTheFullFactorial_data();
    void TheRunsAreTheFullFactorial();
    void TheColumnsAreSortedByName();
    void TheHeaderShowsTheNamesOfTheRecords();
    void TheRegistryAloneDecides();
    void NumbersAreShownWithSixDigits();
    void CellsAreOrdinaryItems();
    void TheTableCanBeBuiltRepeatedly();
    void TheViewsFollowTheTable();
    void TheViewForgetsTheCurrentRow();
    void TwoDialogsDoNotDisturbEachOther();
    void VeryManyParametersMayBeTicked();

    void TheLimitIsAMillionRuns();
    void TooManyRunsAreRefused_data();
    void TooManyRunsAreRefused();
    void TooManyRunsAreRefusedAtTheConstruction();
    void AnEmptyListMakesNoRuns_data();
    void AnEmptyListMakesNoRuns();

    void AddAppendsAnEmptyRow();
    void AddWorksOnAnEmptyTable();
    void DeleteRemovesTheCurrentRow();
    void DeleteWithoutACurrentRowIsRefused();
    void TheNextBuildDiscardsAddedAndDeletedRows();
    void EnterInTheRunTablePressesNothing();
};

void tst_DOEDlgRuns::TheRunsAreTheFullFactorial_data()
{
    QTest::addColumn<QVector<Values>>("lists");
    QTest::addColumn<QStringList>("rows");
    using Lists = QVector<Values>;
    NewRow("nothing ticked", Lists(), QStringList());
    NewRow("one parameter", Lists({{3, 1, 2}}), QStringList({"3", "1", "2"}));
    NewRow("one run", Lists({{1}, {2}}), QStringList({"1 2"}));
    NewRow("the last turns fastest", Lists({{1, 2}, {10, 20, 30}}),
           QStringList({"1 10", "1 20", "1 30", "2 10", "2 20", "2 30"}));
    NewRow("three parameters", Lists({{1, 2}, {3, 4}, {5, 6}}),
           QStringList({"1 3 5", "1 3 6", "1 4 5", "1 4 6", "2 3 5", "2 3 6", "2 4 5", "2 4 6"}));
    NewRow("one of many", Lists({{1, 2}, {9}, {3, 4}}),
           QStringList({"1 9 3", "1 9 4", "2 9 3", "2 9 4"}));
    NewRow("duplicates stay", Lists({{1, 1}, {2, 2}}), QStringList({"1 2", "1 2", "1 2", "1 2"}));
    NewRow("first list empty", Lists({{}, {1, 2}}), QStringList());
    NewRow("last list empty", Lists({{1, 2}, {}}), QStringList());
    NewRow("middle list empty", Lists({{1}, {}, {2}}), QStringList());
    NewRow("only list empty", Lists({{}}), QStringList());
}

void tst_DOEDlgRuns::TheRunsAreTheFullFactorial()
{
    QFETCH(QVector<Values>, lists);
    QFETCH(QStringList, rows);
    for (int i = 0; i < lists.size(); ++i)
        Tick(QStringLiteral("p%1").arg(i), lists[i]);
    const DOEDlg dialog(nullptr);
    QCOMPARE(Rows(dialog), rows);
    QCOMPARE(Runs(dialog).columnCount(), rows.isEmpty() ? 0 : lists.size());
    Refresh(dialog);
    QCOMPARE(Rows(dialog), rows);
}

void tst_DOEDlgRuns::TheColumnsAreSortedByName()
{
    Tick("b", {1});
    Tick("a10", {2});
    Tick("a2", {3});
    Tick("B", {4});
    AddRecord("c", 0, {5});
    Tick("长", {6});
    const DOEDlg dialog(nullptr);
    QCOMPARE(HeaderTexts(Runs(dialog)), QStringList({"B", "a10", "a2", "b", "长"}));
    QCOMPARE(Rows(dialog), QStringList({"4 2 3 1 6"}));
}

void tst_DOEDlgRuns::TheHeaderShowsTheNamesOfTheRecords()
{
    Tick("a", {1});
    Tick("b", {2});
    g_mapParaArrays["a"].strName = "other";
    g_mapParaArrays["b"].strName = "";
    const DOEDlg dialog(nullptr);
    QCOMPARE(HeaderTexts(Runs(dialog)), QStringList({"other", ""}));
}

void tst_DOEDlgRuns::TheRegistryAloneDecides()
{
    // The store and the ticks in the window do not matter.
    AddParameter("x");
    Tick("a", {1, 2});
    const DOEDlg dialog(nullptr);
    QCOMPARE(HeaderTexts(Runs(dialog)), QStringList({"a"}));
    g_mapParaArrays["a"].bChecked = 0;
    Tick("b", {3});
    QCOMPARE(Rows(dialog), QStringList({"1", "2"}));
    Refresh(dialog);
    QCOMPARE(HeaderTexts(Runs(dialog)), QStringList({"b"}));
    QCOMPARE(Rows(dialog), QStringList({"3"}));
}

void tst_DOEDlgRuns::NumbersAreShownWithSixDigits()
{
    const double inf = std::numeric_limits<double>::infinity();
    Tick("a", {0.1, 1234567, 1.0 / 3, -0.00001234567, 100000, 1e300, inf, -inf});
    const DOEDlg dialog(nullptr);
    QCOMPARE(Rows(dialog), QStringList({"0.1", "1.23457e+06", "0.333333", "-1.23457e-05", "100000",
                                        "1e+300", "inf", "-inf"}));
}

void tst_DOEDlgRuns::CellsAreOrdinaryItems()
{
    Tick("a", {9, 10});
    const DOEDlg dialog(nullptr);
    QTableWidget& table = Runs(dialog);
    const QTableWidgetItem ordinary("9");
    QCOMPARE(table.item(0, 0)->flags(), ordinary.flags());
    QCOMPARE(table.item(0, 0)->type(), ordinary.type());
    QCOMPARE(table.item(0, 0)->data(Qt::EditRole), ordinary.data(Qt::EditRole));
    QCOMPARE(table.findItems("10", Qt::MatchExactly).size(), 1);
    QSignalSpy changed(&table, SIGNAL(cellChanged(int, int)));
    table.item(1, 0)->setText("9.50");
    QCOMPARE(changed.count(), 1);
    QCOMPARE(Rows(dialog), QStringList({"9", "9.50"}));
}

void tst_DOEDlgRuns::TheTableCanBeBuiltRepeatedly()
{
    Tick("a", {1, 2});
    const DOEDlg dialog(nullptr);
    Runs(dialog).item(0, 0)->setText("edited");
    for (int i = 0; i < 3; ++i) {
        Refresh(dialog);
        QCOMPARE(Rows(dialog), QStringList({"1", "2"}));
    }
}

void tst_DOEDlgRuns::TheViewsFollowTheTable()
{
    // Setting the cells emits no signals, but changing their number must.
    Tick("a", {1, 2, 3});
    DOEDlg dialog(nullptr);
    dialog.show();
    QTableWidget& table = Runs(dialog);
    QSignalSpy rows(table.model(), SIGNAL(rowsInserted(QModelIndex, int, int)));
    QSignalSpy columns(table.model(), SIGNAL(columnsInserted(QModelIndex, int, int)));
    QSignalSpy cells(table.model(), SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>)));
    Tick("b", {4, 5});
    Refresh(dialog);
    QCOMPARE(rows.count(), 1);
    QCOMPARE(columns.count(), 1);
    QCOMPARE(cells.count(), 0);
    QVERIFY(!table.model()->signalsBlocked());
    QCOMPARE(table.verticalHeader()->count(), 6);
    QCOMPARE(table.horizontalHeader()->count(), 2);
    QVERIFY(table.visualItemRect(table.item(5, 1)).isValid());
}

void tst_DOEDlgRuns::TheViewForgetsTheCurrentRow()
{
    Tick("a", {1, 2});
    const DOEDlg dialog(nullptr);
    Runs(dialog).setCurrentCell(1, 0);
    Refresh(dialog);
    QCOMPARE(Runs(dialog).currentRow(), -1);
    QVERIFY(Runs(dialog).selectedItems().isEmpty());
}

void tst_DOEDlgRuns::TwoDialogsDoNotDisturbEachOther()
{
    Tick("a", {1, 2});
    const DOEDlg first(nullptr);
    Tick("b", {3});
    {
        const DOEDlg second(nullptr);
        QCOMPARE(Rows(second), QStringList({"1 3", "2 3"}));
        QCOMPARE(Rows(first), QStringList({"1", "2"}));
    }
    Refresh(first);
    QCOMPARE(Rows(first), QStringList({"1 3", "2 3"}));
}

void tst_DOEDlgRuns::VeryManyParametersMayBeTicked()
{
    constexpr int Count = 200000;
    for (int i = 0; i < Count; ++i)
        Tick(QStringLiteral("p%1").arg(i, 6, 10, QLatin1Char('0')), {double(i)});
    const DOEDlg dialog(nullptr);
    QCOMPARE(RunTableSize(dialog), QSize(Count, 1));
    QCOMPARE(Runs(dialog).item(0, 0)->text(), QStringLiteral("0"));
    QCOMPARE(Runs(dialog).item(0, Count - 1)->text(), QStringLiteral("199999"));
    QCOMPARE(Runs(dialog).horizontalHeaderItem(Count - 1)->text(), QStringLiteral("p199999"));
}

void tst_DOEDlgRuns::TheLimitIsAMillionRuns()
{
    QCOMPARE(DOEDlg::MaximumRuns, 1000000);
    Tick("a", Counted(1000));
    Tick("b", Counted(1000));
    const DOEDlg dialog(nullptr);
    QCOMPARE(RunTableSize(dialog), QSize(2, 1000000));
    QCOMPARE(Runs(dialog).item(123456, 0)->text(), QStringLiteral("123"));
    QCOMPARE(Runs(dialog).item(123456, 1)->text(), QStringLiteral("456"));
}

void tst_DOEDlgRuns::TooManyRunsAreRefused_data()
{
    QTest::addColumn<QVector<int>>("lengths");
    NewRow("one more than the limit", QVector<int>({1000001}));
    NewRow("a little above", QVector<int>({1000, 1001}));
    NewRow("beyond 32 bits", QVector<int>({70000, 70000}));
    NewRow("0 in 32 bits", QVector<int>({65536, 65536}));
    NewRow("0 in 64 bits", QVector<int>({65536, 65536, 65536, 65536}));
    NewRow("beyond all bits", QVector<int>(200, 2));
    NewRow("one run at the end", QVector<int>({1001, 1000, 1, 1}));
    NewRow("too many cells", QVector<int>({1000, 1000}) + QVector<int>(19, 1));
}

void tst_DOEDlgRuns::TooManyRunsAreRefused()
{
    QFETCH(QVector<int>, lengths);
    Tick("a", {1, 2});
    const DOEDlg dialog(nullptr);
    g_mapParaArrays.clear();
    for (int i = 0; i < lengths.size(); ++i)
        Tick(QStringLiteral("p%1").arg(i), Counted(lengths[i]));
    User().WhileBoxOpen([&](QMessageBox&) { QCOMPARE(RunTableSize(dialog), QSize(0, 0)); });
    Refresh(dialog);
    QCOMPARE(Boxes(), ShownBoxes({TooMany}));
    QCOMPARE(RunTableSize(dialog), QSize(0, 0));
}

void tst_DOEDlgRuns::TooManyRunsAreRefusedAtTheConstruction()
{
    Tick("a", Counted(2000));
    Tick("b", Counted(2000));
    AddParameter("a");
    // The host removes the tick while the box is open.
    User().WhileBoxOpen([](QMessageBox&) { g_mapParaArrays.erase("b"); });
    const DOEDlg dialog(nullptr);
    QCOMPARE(Boxes(), ShownBoxes({TooMany}));
    QCOMPARE(RunTableSize(dialog), QSize(0, 0));
    Refresh(dialog);
    QCOMPARE(RunTableSize(dialog), QSize(1, 2000));
    QCOMPARE(Boxes(), ShownBoxes({TooMany}));
}

void tst_DOEDlgRuns::AnEmptyListMakesNoRuns_data()
{
    QTest::addColumn<QString>("empty");
    NewRow("first", "a");
    NewRow("middle", "m");
    NewRow("last", "z");
}

void tst_DOEDlgRuns::AnEmptyListMakesNoRuns()
{
    QFETCH(QString, empty);
    for (const char* const name : {"b", "c", "x", "y"})
        Tick(name, Counted(70000));
    Tick(empty, {});
    const DOEDlg dialog(nullptr);
    QCOMPARE(RunTableSize(dialog), QSize(0, 0));
}

void tst_DOEDlgRuns::AddAppendsAnEmptyRow()
{
    AddRecord("a", 1, {1, 2});
    const DOEDlg dialog(nullptr);
    Runs(dialog).setCurrentCell(0, 0);
    Click(dialog, "pushButton_Add");
    QCOMPARE(RunTableSize(dialog), QSize(1, 3));
    QCOMPARE(Runs(dialog).item(1, 0)->text(), QStringLiteral("2"));
    QVERIFY(Runs(dialog).item(2, 0) == nullptr);
}

void tst_DOEDlgRuns::AddWorksOnAnEmptyTable()
{
    const DOEDlg dialog(nullptr);
    Click(dialog, "pushButton_Add");
    QCOMPARE(RunTableSize(dialog), QSize(0, 1));
}

void tst_DOEDlgRuns::DeleteRemovesTheCurrentRow()
{
    AddRecord("a", 1, {1, 2, 3});
    const DOEDlg dialog(nullptr);
    Runs(dialog).setCurrentCell(1, 0);
    Click(dialog, "pushButton_Delete");
    QCOMPARE(RunTableSize(dialog), QSize(1, 2));
    QCOMPARE(Runs(dialog).item(0, 0)->text(), QStringLiteral("1"));
    QCOMPARE(Runs(dialog).item(1, 0)->text(), QStringLiteral("3"));
    QCOMPARE(g_mapParaArrays.at("a").vecValues.size(), std::size_t(3));
}

void tst_DOEDlgRuns::DeleteWithoutACurrentRowIsRefused()
{
    AddRecord("a", 1, {1, 2});
    const DOEDlg dialog(nullptr);
    Click(dialog, "pushButton_Delete");
    QCOMPARE(Boxes(), ShownBoxes({ShownBox::Notice("Notify", "Select one row first!")}));
    QCOMPARE(RunTableSize(dialog), QSize(1, 2));
}

void tst_DOEDlgRuns::TheNextBuildDiscardsAddedAndDeletedRows()
{
    AddRecord("a", 1, {1, 2});
    const DOEDlg dialog(nullptr);
    Runs(dialog).setCurrentCell(0, 0);
    Click(dialog, "pushButton_Delete");
    Click(dialog, "pushButton_Add");
    Click(dialog, "pushButton_Add");
    Refresh(dialog);
    QCOMPARE(RunTableSize(dialog), QSize(1, 2));
    QCOMPARE(Runs(dialog).item(0, 0)->text(), QStringLiteral("1"));
    QCOMPARE(Runs(dialog).item(1, 0)->text(), QStringLiteral("2"));
}

void tst_DOEDlgRuns::EnterInTheRunTablePressesNothing()
{
    AddRecord("a", 1, {1, 2});
    DOEDlg dialog(nullptr);
    Then([](QDialog& shown) {
        Runs(shown).setFocus();
        QTest::keyClick(&Runs(shown), Qt::Key_Return);
        QTest::keyClick(&Parameters(shown), Qt::Key_Enter);
        QTest::keyClick(&shown, Qt::Key_Return);
        QVERIFY(shown.isVisible());
        QCOMPARE(RunTableSize(shown), QSize(1, 2));
        shown.reject();
    });
    dialog.exec();
}

TARN_TEST_MAIN(tst_DOEDlgRuns)
#include "tst_DOEDlgRuns.moc"
