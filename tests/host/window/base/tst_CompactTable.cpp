#include "CompactTable.h"
#include "TestCase.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

class tst_CompactTable : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ARowIsALittleHigherThanItsText();
    void ALongTextStaysInOneLine();
    void RowsHaveNoNumbers();
    void HeadersStartAtTheLeft();
    void TabLeavesTheTable();
};

namespace {

struct CompactTable : QTableWidget
{
    CompactTable()
        : QTableWidget(2, 2)
    {
        MakeCompact(*this);
        setItem(0, 0, new QTableWidgetItem("a text that is much longer than its column is wide"));
    }
};

} // namespace

void tst_CompactTable::ARowIsALittleHigherThanItsText()
{
    const CompactTable table;
    QVERIFY(table.rowHeight(0) > table.fontMetrics().height());
    QVERIFY(table.rowHeight(0) < 2 * table.fontMetrics().height());
}

void tst_CompactTable::ALongTextStaysInOneLine()
{
    CompactTable table;
    const int before = table.rowHeight(0);
    table.resizeRowToContents(0);
    QVERIFY(table.rowHeight(0) < before + table.fontMetrics().height());
}

void tst_CompactTable::RowsHaveNoNumbers()
{
    CompactTable table;
    table.show();
    QVERIFY(!table.verticalHeader()->isVisible());
}

void tst_CompactTable::HeadersStartAtTheLeft()
{
    const CompactTable table;
    QVERIFY(table.horizontalHeader()->defaultAlignment().testFlag(Qt::AlignLeft));
}

void tst_CompactTable::TabLeavesTheTable()
{
    QWidget window;
    QVBoxLayout layout(&window);
    CompactTable table;
    QPushButton next;
    layout.addWidget(&table);
    layout.addWidget(&next);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Tab);
    QVERIFY(next.hasFocus());
}

TARN_TEST_MAIN(tst_CompactTable)
#include "tst_CompactTable.moc"
