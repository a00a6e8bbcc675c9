#include "Language.h"
#include "StudyRuns.h"
#include "StudySelection.h"
#include "StudyTable.h"
#include "TestCase.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QPalette>
#include <QSignalSpy>

class tst_StudyTable : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheTableShowsTheRuns();
    void RunsWithoutANumberAreLastInBothOrders_data();
    void RunsWithoutANumberAreLastInBothOrders();
    void AFilterLeavesRuns_data();
    void AFilterLeavesRuns();
    void ValuesWithoutAResultAreNoFaultInAnyLanguage();
    void ABadFilterChangesNothing_data();
    void ABadFilterChangesNothing();
    void RunsThatComeInAreFilteredAndSorted();
    void SelectedRunsAreHighlighted();
    void FailedRunsHaveTheirReason();
    void TheCsvHoldsWhatIsShown();
    void AnotherStudyReplacesTheColumns();
    void TwoHundredThousandRunsAreFilteredAndSorted();
};

namespace {

struct Open
{
    StudySelection selection;
    StudyTable table{selection};
    QAbstractItemModelTester tester{&table};
};

std::vector<int> RunsOf(const StudyTable& table)
{
    std::vector<int> runs;
    for (int row = 0; row < table.rowCount(); ++row)
        runs.push_back(table.index(row, 0).data().toInt());
    return runs;
}

} // namespace

void tst_StudyTable::TheTableShowsTheRuns()
{
    Open open;
    QCOMPARE(open.table.columnCount(), 0);
    open.table.Take(SomeRuns(3));
    QCOMPARE(open.table.columnCount(), 5);
    QCOMPARE(open.table.headerData(0, Qt::Horizontal).toString(), QString("Run"));
    QCOMPARE(open.table.headerData(2, Qt::Horizontal).toString(), QString("mass_kg"));
    QCOMPARE(open.table.headerData(1, Qt::Horizontal).toString(), QString("a (mm)"));
    QCOMPARE(open.table.index(2, 2).data().toString(), QString("33.3333"));
    QCOMPARE(open.table.index(1, 3).data().toString(), QString());
    QCOMPARE(open.table.index(0, 4).data().toString(), QString("ok"));
}

void tst_StudyTable::RunsWithoutANumberAreLastInBothOrders_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::addColumn<std::vector<int>>("runs");
    using Runs = std::vector<int>;
    NewRow("run, descending", 0, Qt::DescendingOrder, Runs{4, 3, 2, 1});
    NewRow("mass, ascending", 2, Qt::AscendingOrder, Runs{4, 3, 2, 1});
    NewRow("frequency, ascending", 3, Qt::AscendingOrder, Runs{1, 3, 4, 2});
    NewRow("frequency, descending", 3, Qt::DescendingOrder, Runs{4, 3, 1, 2});
}

void tst_StudyTable::RunsWithoutANumberAreLastInBothOrders()
{
    QFETCH(int, column);
    QFETCH(Qt::SortOrder, order);
    QFETCH(std::vector<int>, runs);
    Open open;
    open.table.Take(SomeRuns(4));
    open.table.sort(column, order);
    QCOMPARE(RunsOf(open.table), runs);
}

void tst_StudyTable::AFilterLeavesRuns_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<std::vector<int>>("runs");
    using Runs = std::vector<int>;
    NewRow("none", QString(" "), Runs{1, 2, 3, 4});
    NewRow("one column", QString("mass_kg < 40"), Runs{3, 4});
    NewRow("two columns", QString("mass_kg < 60 && a != 3"), Runs{2, 4});
    NewRow("a missing number", QString("f1_hz >= 0"), Runs{1, 3, 4});
    NewRow("the run", QString("run == 2"), Runs{2});
    NewRow("no value", QString("1 / (a - 1) > 0"), Runs{2, 3, 4});
    NewRow("none left", QString("a > 10"), Runs{});
}

void tst_StudyTable::AFilterLeavesRuns()
{
    QFETCH(QString, filter);
    QFETCH(std::vector<int>, runs);
    Open open;
    open.table.Take(SomeRuns(4));
    QCOMPARE(open.table.SetFilter(filter), QString());
    QCOMPARE(RunsOf(open.table), runs);
}

void tst_StudyTable::ValuesWithoutAResultAreNoFaultInAnyLanguage()
{
    for (const QString& name : Language::Known()) {
        const Language language(name);
        Open open;
        open.table.Take(SomeRuns(4));
        QCOMPARE(open.table.SetFilter("sqrt(0 - a) > 1"), QString());
    }
}

void tst_StudyTable::ABadFilterChangesNothing_data()
{
    NewNameRows("filter", {"b > 1", "a >", "a > 1 &&& a < 2", "max(", "\"a\""});
}

void tst_StudyTable::ABadFilterChangesNothing()
{
    QFETCH(QByteArray, filter);
    Open open;
    open.table.Take(SomeRuns(4));
    QCOMPARE(open.table.SetFilter("a > 2"), QString());
    QVERIFY(!open.table.SetFilter(filter).isEmpty());
    QCOMPARE(RunsOf(open.table), std::vector<int>({3, 4}));
}

void tst_StudyTable::RunsThatComeInAreFilteredAndSorted()
{
    Open open;
    open.table.Take(SomeRuns(2));
    QCOMPARE(open.table.SetFilter("a != 3"), QString());
    open.table.sort(0, Qt::DescendingOrder);
    const QSignalSpy changed(&open.table, &StudyTable::RowsChanged);
    open.table.Take(SomeRuns(5));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(RunsOf(open.table), std::vector<int>({5, 4, 2, 1}));
}

void tst_StudyTable::SelectedRunsAreHighlighted()
{
    Open open;
    open.table.Take(SomeRuns(3));
    open.selection.Set({1});
    const QBrush highlight = QApplication::palette().highlight();
    QVERIFY(open.table.index(1, 0).data(Qt::BackgroundRole).value<QBrush>() == highlight);
    QVERIFY(!open.table.index(0, 0).data(Qt::BackgroundRole).isValid());
    // The run stays selected where it goes.
    open.table.sort(0, Qt::DescendingOrder);
    QVERIFY(open.table.index(1, 0).data(Qt::BackgroundRole).isValid());
    open.table.sort(2, Qt::AscendingOrder);
    open.table.Clear();
    QVERIFY(open.selection.Rows().empty());
}

void tst_StudyTable::FailedRunsHaveTheirReason()
{
    Open open;
    ResultColumns columns = SomeRuns(2);
    columns.Take(std::vector<QByteArray>{"2", "2", "", "", "failed", "the fillet is too large"});
    open.table.Take(columns);
    QCOMPARE(open.table.FailedCount(), 1);
    QCOMPARE(open.table.index(1, 4).data().toString(), QString("failed: the fillet is too large"));
    QCOMPARE(open.table.index(1, 2).data().toString(), QString());
}

void tst_StudyTable::TheCsvHoldsWhatIsShown()
{
    Open open;
    ResultColumns columns = SomeRuns(3);
    columns.Take(std::vector<QByteArray>{"3", "3", "", "", "failed", "no body, really"});
    open.table.Take(columns);
    QCOMPARE(open.table.SetFilter("run > 1"), QString());
    open.table.sort(0, Qt::DescendingOrder);
    QCOMPARE(open.table.ToCsv(), QByteArray("run,a,mass_kg,f1_hz,status,error\n"
                                            "3,3,,,failed,\"no body, really\"\n"
                                            "2,2,50,,ok,\n"));
}

void tst_StudyTable::AnotherStudyReplacesTheColumns()
{
    Open open;
    open.table.Take(SomeRuns(3));
    QCOMPARE(open.table.SetFilter("a > 1"), QString());
    ResultColumns other({"b"}, {"mass_kg"});
    other.Take(std::vector<QByteArray>{"1", "2", "3", "ok", ""});
    open.table.Take(other);
    QCOMPARE(open.table.columnCount(), 4);
    QCOMPARE(RunsOf(open.table), std::vector<int>({1}));
}

void tst_StudyTable::TwoHundredThousandRunsAreFilteredAndSorted()
{
    constexpr int Runs = 200000;
    StudySelection selection;
    StudyTable table(selection);
    table.Take(SomeRuns(Runs));
    QCOMPARE(table.SetFilter("a > 100000 && f1_hz == 3"), QString());
    table.sort(2, Qt::AscendingOrder);
    QCOMPARE(table.index(0, 1).data().toInt() % 7, 3);
    QVERIFY(table.rowCount() > Runs / 15 && table.rowCount() < Runs / 13);
}

TARN_TEST_MAIN(tst_StudyTable)
#include "tst_StudyTable.moc"
