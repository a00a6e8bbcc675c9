#include "ColumnBox.h"
#include "ColumnPicker.h"
#include "PlotRuns.h"

#include <QMenu>
#include <QSignalSpy>

class tst_ColumnBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void VaryingColumnsAreFound();
    void TheChosenColumnStays();
    void ThePickerChoosesWhatVaries();
    void ThePickerKeepsWhatTheUserChose();
};

void tst_ColumnBox::VaryingColumnsAreFound()
{
    QCOMPARE(VaryingColumns(GridRuns(3)), std::vector<int>({0, 1, 3, 4}));
    QCOMPARE(FirstResult(GridRuns(3)), 3);
    QCOMPARE(VaryingColumns(GridRuns(1)), std::vector<int>());
    QCOMPARE(FirstResult(GridRuns(1)), 3);
    QCOMPARE(FirstResult(ResultColumns()), 0);
}

void tst_ColumnBox::TheChosenColumnStays()
{
    ColumnBox box(nullptr);
    QCOMPARE(box.Column(), -1);
    box.Refresh(GridRuns(2), 3);
    QCOMPARE(box.currentText(), QString("sum"));
    box.setCurrentIndex(1);
    box.Refresh(GridRuns(3), 3);
    QCOMPARE(box.Column(), 1);
    box.Refresh(ResultColumns({"b"}, {"mass"}), 1);
    QCOMPARE(box.Column(), 0); // Still b.
    box.Refresh(ResultColumns({"x"}, {"y"}), 1);
    QCOMPARE(box.currentText(), QString("y"));
}

void tst_ColumnBox::ThePickerChoosesWhatVaries()
{
    ColumnPicker picker(2, nullptr);
    picker.Refresh(GridRuns(1));
    QCOMPARE(picker.Chosen(), std::vector<int>());
    picker.Refresh(GridRuns(3));
    QCOMPARE(picker.Chosen(), std::vector<int>({0, 3}));
}

void tst_ColumnBox::ThePickerKeepsWhatTheUserChose()
{
    ColumnPicker picker(6, nullptr);
    picker.Refresh(GridRuns(3));
    const QSignalSpy changed(&picker, &ColumnPicker::Changed);
    picker.menu()->actions()[2]->trigger();
    QCOMPARE(changed.count(), 1);
    picker.Refresh(GridRuns(4));
    QCOMPARE(picker.Chosen(), std::vector<int>({0, 1, 2, 3, 4}));
}

TARN_TEST_MAIN(tst_ColumnBox)
#include "tst_ColumnBox.moc"
