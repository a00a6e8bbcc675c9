#include "StudyRuns.h"
#include "StudySelection.h"
#include "StudyTable.h"
#include "StudyTableView.h"
#include "TestCase.h"

class tst_StudyTableView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ClicksSelectRuns();
    void RunsStaySelectedWhenTheOrderChanges();
    void ASelectionElsewhereIsScrolledTo();
    void EverythingCanBeSelected();
};

namespace {

struct Shown
{
    explicit Shown(int runs)
    {
        table.Take(SomeRuns(runs));
        view.resize(500, 300);
        view.show();
    }

    void ClickRow(int row, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, keys,
                          view.visualRect(table.index(row, 0)).center());
    }

    StudySelection selection;
    StudyTable table{selection};
    StudyTableView view{table, selection, nullptr};
};

} // namespace

void tst_StudyTableView::ClicksSelectRuns()
{
    Shown shown(5);
    shown.ClickRow(1);
    QCOMPARE(shown.selection.Rows(), std::vector<int>({1}));
    shown.ClickRow(3, Qt::ShiftModifier);
    QCOMPARE(shown.selection.Rows(), std::vector<int>({1, 2, 3}));
    shown.ClickRow(2, Qt::ControlModifier);
    QCOMPARE(shown.selection.Rows(), std::vector<int>({1, 3}));
}

void tst_StudyTableView::RunsStaySelectedWhenTheOrderChanges()
{
    Shown shown(5);
    shown.ClickRow(0);
    shown.view.sortByColumn(0, Qt::DescendingOrder);
    QCOMPARE(shown.selection.Rows(), std::vector<int>({0}));
    QVERIFY(shown.table.index(4, 0).data(Qt::BackgroundRole).isValid());
    shown.ClickRow(0);
    QCOMPARE(shown.selection.Rows(), std::vector<int>({4}));
}

void tst_StudyTableView::ASelectionElsewhereIsScrolledTo()
{
    Shown shown(500);
    shown.ClickRow(0);
    shown.selection.Set({400, 410});
    QVERIFY(
        shown.view.viewport()->rect().intersects(shown.view.visualRect(shown.table.index(400, 0))));
    // A click starts afresh.
    shown.view.scrollToTop();
    shown.ClickRow(2);
    QCOMPARE(shown.selection.Rows(), std::vector<int>({2}));
}

void tst_StudyTableView::EverythingCanBeSelected()
{
    Shown shown(2000);
    shown.ClickRow(0);
    QTest::keyClick(&shown.view, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(int(shown.selection.Rows().size()), 2000);
}

TARN_TEST_MAIN(tst_StudyTableView)
#include "tst_StudyTableView.moc"
