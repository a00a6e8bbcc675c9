#include "TableSelection.h"
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

QVector<int> Rows(const QTableWidget& table)
{
    QVector<int> rows;
    const QModelIndexList indexes = table.selectionModel()->selectedRows();
    for (const QModelIndex& index : indexes)
        rows << index.row();
    return rows;
}

/// How many times the style sheet of a widget was set.
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
    void ARowThatIsNotThereLeavesTheSelection_data();
    void ARowThatIsNotThereLeavesTheSelection();
    void TheGroundIsCyanEvenWithoutARow();
    void TheSheetIsSetOnce();
    void TheRowIsCurrentBeforeTheSelectionTells();
    void HeldKeysDoNotExtendTheSelection_data();
    void HeldKeysDoNotExtendTheSelection();
    void TheRowIsScrolledTo();
    void TextStaysReadableOnCyan_data();
    void TextStaysReadableOnCyan();
    void ACellTellsItsTextInFull_data();
    void ACellTellsItsTextInFull();
};

void tst_TableSelection::TheWholeRowIsSelectedAndCurrent()
{
    QTableWidget table(3, 4);
    tarn::SelectRow(table, 1);
    QCOMPARE(table.currentRow(), 1);
    QCOMPARE(table.currentColumn(), 0);
    QCOMPARE(Rows(table), QVector<int>({1}));
    tarn::SelectRow(table, 2);
    QCOMPARE(table.currentRow(), 2);
    QCOMPARE(Rows(table), QVector<int>({2}));
}

void tst_TableSelection::ARowThatIsNotThereLeavesTheSelection_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("before the first") << -1;
    QTest::newRow("after the last") << 3;
    QTest::newRow("far away") << 1000000;
}

void tst_TableSelection::ARowThatIsNotThereLeavesTheSelection()
{
    QFETCH(int, row);
    QTableWidget table(3, 4);
    tarn::SelectRow(table, 1);
    tarn::SelectRow(table, row);
    QCOMPARE(table.currentRow(), 1);
    QCOMPARE(Rows(table), QVector<int>({1}));
}

void tst_TableSelection::TheGroundIsCyanEvenWithoutARow()
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

void tst_TableSelection::TheRowIsCurrentBeforeTheSelectionTells()
{
    QTableWidget table(3, 4);
    QVector<int> told;
    connect(&table, &QTableWidget::itemSelectionChanged, this, [&] { told << table.currentRow(); });
    tarn::SelectRow(table, 2);
    tarn::SelectRow(table, 0);
    tarn::SelectRow(table, 0);
    QCOMPARE(told, QVector<int>({2, 0}));
}

void tst_TableSelection::HeldKeysDoNotExtendTheSelection_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifier");
    QTest::newRow("Shift, as for a capital letter") << Qt::KeyboardModifiers(Qt::ShiftModifier);
    QTest::newRow("Control") << Qt::KeyboardModifiers(Qt::ControlModifier);
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
    QCOMPARE(Rows(table), QVector<int>({3}));
}

void tst_TableSelection::TheRowIsScrolledTo()
{
    QTableWidget table(500, 2);
    Fill(table);
    table.show();
    tarn::SelectRow(table, 400);
    QVERIFY(table.viewport()->rect().contains(table.visualItemRect(table.item(400, 0))));
    // Again after the user has scrolled away.
    table.scrollToTop();
    tarn::SelectRow(table, 400);
    QVERIFY(table.viewport()->rect().contains(table.visualItemRect(table.item(400, 0))));
}

void tst_TableSelection::TextStaysReadableOnCyan_data()
{
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("text");
    QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("dark") << QColor(30, 30, 30) << QColor(Qt::white);
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

void tst_TableSelection::ACellTellsItsTextInFull_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a name") << "Steel S235JR";
    QTest::newRow("a long name") << QString(300, 'x');
    QTest::newRow("markup") << "<b>bold</b> & <i>";
    QTest::newRow("Chinese") << "结构钢";
}

void tst_TableSelection::ACellTellsItsTextInFull()
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
