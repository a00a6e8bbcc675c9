#include "StudySelection.h"
#include "TestCase.h"

#include <QSignalSpy>

class tst_StudySelection : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void RowsAreSortedAndUnique();
    void OnlyAChangeIsReported();
};

void tst_StudySelection::RowsAreSortedAndUnique()
{
    StudySelection selection;
    selection.Set({7, 2, 7});
    QCOMPARE(selection.Rows(), std::vector<int>({2, 7}));
    QVERIFY(selection.Contains(2));
    QVERIFY(!selection.Contains(3));
    QVERIFY(!selection.Contains(8));
}

void tst_StudySelection::OnlyAChangeIsReported()
{
    StudySelection selection;
    const QSignalSpy changed(&selection, &StudySelection::Changed);
    selection.Set({1});
    selection.Set({1});
    QCOMPARE(changed.count(), 1);
    selection.Clear();
    selection.Clear();
    QCOMPARE(changed.count(), 2);
    QVERIFY(!selection.Contains(1));
}

TARN_TEST_MAIN(tst_StudySelection)
#include "tst_StudySelection.moc"
