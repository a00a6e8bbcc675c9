#include "TableSelection.h"
#include "Tables.h"
#include "TestCase.h"

#include <QApplication>
#include <QTableWidget>
#include <QTextDocument>

namespace {

const char* const Sheet = "selection-background-color:cyan";

void Fill(QTableWidget& table)
{
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < table.columnCount(); ++column)
            table.setItem(row, column, tarn::NewTextItem("MMMM"));
    }
}

/// Counts how often the style sheet of a widget is set.
class StyleChanges : public QObject
{
public:
    int count = 0;

    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::StyleChange ? 1 : 0;
        return false;
    }
};

} // namespace

class tst_TableSelection : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheWholeRowIsSelectedAndCurrent();
    void AMissingRowKeepsTheSelection_data();
    void AMissingRowKeepsTheSelection();
    void TheSelectionIsCyanEvenWithoutARow();
    void TheSheetIsSetOnce();
    void TheRowIsCurrentBeforeTheSelectionChanges();
    void HeldKeysDoNotExtendTheSelection_data();
    void HeldKeysDoNotExtendTheSelection();
    void TheRowIsScrolledIntoView();
    void TextStaysReadableOnCyan_data();
    void TextStaysReadableOnCyan();
    void TheToolTipShowsTheTextInFull_data();
    void TheToolTipShowsTheTextInFull();
};

void tst_TableSelection::TheWholeRowIsSelectedAndCurrent()
{
    QTableWidget table(3, 4);
    tarn::SelectRow(table, 1);
    QCOMPARE(table.currentRow(), 1);
    QCOMPARE(table.currentColumn(), 0);
    QCOMPARE(SelectedRows(table), QVector<int>({1}));
    tarn::SelectRow(table, 2);
    QCOMPARE(table.currentRow(), 2);
    QCOMPARE(SelectedRows(table), QVector<int>({2}));
}

void tst_TableSelection::AMissingRowKeepsTheSelection_data()
{
    QTest::addColumn<int>("row");
    NewRow("before the first", -1);
    NewRow("after the last", 3);
    NewRow("far away", 1000000);
}

void tst_TableSelection::AMissingRowKeepsTheSelection()
{
    QFETCH(int, row);
    QTableWidget table(3, 4);
    tarn::SelectRow(table, 1);
    tarn::SelectRow(table, row);
    QCOMPARE(table.currentRow(), 1);
    QCOMPARE(SelectedRows(table), QVector<int>({1}));
}

void tst_TableSelection::TheSelectionIsCyanEvenWithoutARow()
{
    QTableWidget table;
    tarn::SelectRow(table, 0);
    QCOMPARE(table.styleSheet(), Sheet);
    QCOMPARE(table.currentRow(), -1);
}

void tst_TableSelection::TheSheetIsSetOnce()
{
    QTableWidget table(3, 4);
    table.show();
    tarn::SelectRow(table, 0);
    StyleChanges changes;
    table.installEventFilter(&changes);
    for (int i = 0; i < 10; ++i)
        tarn::SelectRow(table, i % 3);
    QCOMPARE(changes.count, 0);
    QCOMPARE(table.styleSheet(), Sheet);
}

void tst_TableSelection::TheRowIsCurrentBeforeTheSelectionChanges()
{
    QTableWidget table(3, 4);
    QVector<int> currentRows;
    connect(&table, &QTableWidget::itemSelectionChanged, this,
            [&] { currentRows << table.currentRow(); });
    tarn::SelectRow(table, 2);
    tarn::SelectRow(table, 0);
    tarn::SelectRow(table, 0);
    QCOMPARE(currentRows, QVector<int>({2, 0}));
}

void tst_TableSelection::HeldKeysDoNotExtendTheSelection_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifier");
    NewRow("Shift, as for a capital letter", Qt::KeyboardModifiers(Qt::ShiftModifier));
    NewRow("Control", Qt::KeyboardModifiers(Qt::ControlModifier));
}

void tst_TableSelection::HeldKeysDoNotExtendTheSelection()
{
    QFETCH(Qt::KeyboardModifiers, modifier);
    QTableWidget table(5, 2);
    table.show();
    tarn::SelectRow(table, 0);
    QTest::keyPress(&table, Qt::Key_F12, modifier);
    QCOMPARE(QApplication::keyboardModifiers(), modifier);
    tarn::SelectRow(table, 3);
    QTest::keyRelease(&table, Qt::Key_F12);
    QCOMPARE(SelectedRows(table), QVector<int>({3}));
}

void tst_TableSelection::TheRowIsScrolledIntoView()
{
    QTableWidget table(500, 2);
    Fill(table);
    table.show();
    tarn::SelectRow(table, 400);
    QVERIFY(table.viewport()->rect().contains(table.visualItemRect(table.item(400, 0))));
    // The same after the user has scrolled away.
    table.scrollToTop();
    tarn::SelectRow(table, 400);
    QVERIFY(table.viewport()->rect().contains(table.visualItemRect(table.item(400, 0))));
}

void tst_TableSelection::TextStaysReadableOnCyan_data()
{
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("text");
    NewRow("light", QColor(Qt::white), QColor(Qt::black));
    NewRow("dark", QColor(30, 30, 30), QColor(Qt::white));
}

void tst_TableSelection::TextStaysReadableOnCyan()
{
    QFETCH(QColor, base);
    QFETCH(QColor, text);
    const QPalette before = QApplication::palette();
    QPalette palette = before;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(palette);
    {
        QTableWidget table(2, 2);
        Fill(table);
        table.show();
        tarn::SelectRow(table, 1);
        const QRect cell = table.visualItemRect(table.item(1, 1));
        const QImage image = table.viewport()->grab(cell).toImage();
        int ground = 0;
        int dark = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                ground += image.pixelColor(x, y) == QColor(Qt::cyan) ? 1 : 0;
                dark += image.pixelColor(x, y).lightness() < 60 ? 1 : 0;
            }
        }
        QVERIFY2(ground > image.width() * image.height() / 2, qPrintable(QString::number(ground)));
        QVERIFY2(dark > 20, qPrintable(QString::number(dark)));
    }
    QApplication::setPalette(before);
}

void tst_TableSelection::TheToolTipShowsTheTextInFull_data()
{
    QTest::addColumn<QString>("text");
    NewRow("a name", "Steel S235JR");
    NewRow("a long name", QString(300, 'x'));
    NewRow("markup", "<b>bold</b> & <i>");
    NewRow("Chinese", "结构钢");
}

void tst_TableSelection::TheToolTipShowsTheTextInFull()
{
    QFETCH(QString, text);
    QTableWidget table(1, 1);
    table.setItem(0, 0, tarn::NewTextItem(text));
    QCOMPARE(table.item(0, 0)->text(), text);
    QCOMPARE(table.item(0, 0)->type(), int(QTableWidgetItem::Type));
    QTextDocument shown;
    shown.setHtml(table.item(0, 0)->toolTip());
    QCOMPARE(shown.toPlainText().replace(QChar::Nbsp, ' '), text);
}

TARN_TEST_MAIN(tst_TableSelection)
#include "tst_TableSelection.moc"
