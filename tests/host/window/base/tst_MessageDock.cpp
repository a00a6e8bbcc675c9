#include "DrawerOutput.h"
#include "MessageDock.h"
#include "MessageLevel.h"
#include "TestCase.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QTableView>
#include <QTime>

#include <limits>

class tst_MessageDock : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheLevelIsShownAsAWord_data();
    void TheLevelIsShownAsAWord();
    void ALineShowsTimeLevelAndText();
    void LinesAreInTheOrderOfArrival();
    void ARepeatIsCountedAndMovesToTheEnd();
    void TheSameTextAtAnotherLevelIsAnotherLine();
    void TheOldestLinesGo();
    void ADroppedLineIsCountedFromOneAgain();
    void TheNewestLineIsInView();
    void SelectedLinesAreCopiedByTheKeyboard();
    void CtrlCInTheDockCopiesNothingWhenNothingIsSelected();
    void ClearRemovesAllLines();
    void ATextIsShownUnchanged();
    void LinesCannotBeEdited();
    void ALongTextWraps();
    void APastMessageIsDimmedUntilItComesAgain();

private:
    static QString Cell(const MessageDock& dock, int row, int column)
    {
        return Find<QTableView>(dock, "messageView").model()->index(row, column).data().toString();
    }
    static int Lines(const MessageDock& dock)
    {
        return Find<QTableView>(dock, "messageView").model()->rowCount();
    }
    static void Post(int level, const QString& text)
    {
        PostMessageToChannel(MessageLevel(level), text);
    }
};

void tst_MessageDock::ALongTextWraps()
{
    MessageDock dock(nullptr);
    dock.resize(400, 300);
    dock.show();
    Post(InfoLevel, "short");
    Post(InfoLevel, QString("a long text ").repeated(30));
    const auto& view = Find<QTableView>(dock, "messageView");
    QTRY_VERIFY(view.rowHeight(1) > 2 * view.rowHeight(0));
    const int tall = view.rowHeight(1);
    dock.resize(1200, 300);
    QTRY_VERIFY(view.rowHeight(1) < tall);
}

void tst_MessageDock::APastMessageIsDimmedUntilItComesAgain()
{
    MessageDock dock(nullptr);
    Post(ErrorLevel, "a <b>");
    Post(ErrorLevel, "other");
    const QAbstractItemModel& model = *Find<QTableView>(dock, "messageView").model();
    const auto isDimmed = [&](int row) {
        return model.index(row, MessageDock::TextColumn).data(Qt::ForegroundRole).isValid() &&
               model.index(row, MessageDock::TextColumn)
                   .data(Qt::ToolTipRole)
                   .toString()
                   .startsWith("No longer so: ");
    };
    dock.MarkPast("a <b>");
    QVERIFY(isDimmed(0));
    QVERIFY(!isDimmed(1));
    QCOMPARE(model.index(0, MessageDock::TextColumn).data(Qt::ToolTipRole).toString(),
             QString("No longer so: a &lt;b&gt;"));
    Post(ErrorLevel, "a <b>");
    QCOMPARE(Cell(dock, 1, MessageDock::TextColumn), QString("a <b>"));
    QVERIFY(!isDimmed(1));
}

void tst_MessageDock::TheLevelIsShownAsAWord_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("word");
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << "Info";
    QTest::newRow("information") << int(InfoLevel) << "Info";
    QTest::newRow("warning") << int(WarningLevel) << "Warning";
    QTest::newRow("error") << int(ErrorLevel) << "Error";
    QTest::newRow("largest") << std::numeric_limits<int>::max() << "Error";
}

void tst_MessageDock::TheLevelIsShownAsAWord()
{
    QFETCH(int, level);
    QFETCH(QString, word);
    MessageDock dock(nullptr);
    DrawerOutput::GetInstance()->EmitMessage2MessageWidget(level, "text");
    QCOMPARE(Cell(dock, 0, MessageDock::LevelColumn), word);
    QCOMPARE(MessageDock::LevelWord(level), word);
}

void tst_MessageDock::ALineShowsTimeLevelAndText()
{
    MessageDock dock(nullptr);
    const QTime before = QTime::currentTime();
    DrawerOutput::GetInstance()->EmitMessage2MessageWidget(ErrorLevel, "%s: %d", "mesh", 12);
    QCOMPARE(Lines(dock), 1);
    const QTime shown = QTime::fromString(Cell(dock, 0, MessageDock::TimeColumn), "HH:mm:ss");
    QVERIFY(shown.isValid());
    QVERIFY(qAbs(before.secsTo(shown)) <= 60 || qAbs(before.secsTo(shown)) >= 86000);
    QCOMPARE(Cell(dock, 0, MessageDock::LevelColumn), QStringLiteral("Error"));
    QCOMPARE(Cell(dock, 0, MessageDock::CountColumn), QString());
    QCOMPARE(Cell(dock, 0, MessageDock::TextColumn), QStringLiteral("mesh: 12"));
}

void tst_MessageDock::LinesAreInTheOrderOfArrival()
{
    MessageDock dock(nullptr);
    for (const char* const text : {"a", "c", "b"})
        Post(InfoLevel, text);
    QCOMPARE(Cell(dock, 0, MessageDock::TextColumn), QStringLiteral("a"));
    QCOMPARE(Cell(dock, 1, MessageDock::TextColumn), QStringLiteral("c"));
    QCOMPARE(Cell(dock, 2, MessageDock::TextColumn), QStringLiteral("b"));
}

void tst_MessageDock::ARepeatIsCountedAndMovesToTheEnd()
{
    MessageDock dock(nullptr);
    Post(InfoLevel, "a");
    Post(InfoLevel, "b");
    Post(InfoLevel, "a");
    Post(InfoLevel, "a");
    QCOMPARE(Lines(dock), 2);
    QCOMPARE(Cell(dock, 0, MessageDock::TextColumn), QStringLiteral("b"));
    QCOMPARE(Cell(dock, 0, MessageDock::CountColumn), QString());
    QCOMPARE(Cell(dock, 1, MessageDock::TextColumn), QStringLiteral("a"));
    QCOMPARE(Cell(dock, 1, MessageDock::CountColumn), QStringLiteral("3"));
}

void tst_MessageDock::TheSameTextAtAnotherLevelIsAnotherLine()
{
    MessageDock dock(nullptr);
    Post(InfoLevel, "a");
    Post(ErrorLevel, "a");
    QCOMPARE(Lines(dock), 2);
}

void tst_MessageDock::TheOldestLinesGo()
{
    MessageDock dock(nullptr);
    for (int i = 0; i < MessageDock::MaximumLines + 3; ++i)
        Post(InfoLevel, QString::number(i));
    QCOMPARE(Lines(dock), MessageDock::MaximumLines);
    QCOMPARE(Cell(dock, 0, MessageDock::TextColumn), QStringLiteral("3"));
    QCOMPARE(Cell(dock, MessageDock::MaximumLines - 1, MessageDock::TextColumn),
             QString::number(MessageDock::MaximumLines + 2));
}

void tst_MessageDock::ADroppedLineIsCountedFromOneAgain()
{
    MessageDock dock(nullptr);
    for (int i = 0; i <= MessageDock::MaximumLines; ++i)
        Post(InfoLevel, QString::number(i));
    Post(InfoLevel, "0");
    QCOMPARE(Lines(dock), MessageDock::MaximumLines);
    QCOMPARE(Cell(dock, MessageDock::MaximumLines - 1, MessageDock::TextColumn),
             QStringLiteral("0"));
    QCOMPARE(Cell(dock, MessageDock::MaximumLines - 1, MessageDock::CountColumn), QString());
}

void tst_MessageDock::TheNewestLineIsInView()
{
    MessageDock dock(nullptr);
    dock.resize(400, 150);
    dock.show();
    for (int i = 0; i < 100; ++i)
        Post(InfoLevel, QString::number(i));
    QCoreApplication::processEvents();
    const auto& view = Find<QTableView>(dock, "messageView");
    const QRect newest = view.visualRect(view.model()->index(99, MessageDock::TimeColumn));
    QVERIFY(view.viewport()->rect().contains(newest.center()));
}

void tst_MessageDock::SelectedLinesAreCopiedByTheKeyboard()
{
    MessageDock dock(nullptr);
    dock.show();
    QVERIFY(QTest::qWaitForWindowActive(&dock));
    Post(InfoLevel, "a");
    Post(WarningLevel, "b");
    Post(WarningLevel, "b");
    Post(InfoLevel, "c");
    auto& view = Find<QTableView>(dock, "messageView");
    view.setFocus();
    const auto centre = [&view](int row) {
        return view.visualRect(view.model()->index(row, MessageDock::TextColumn)).center();
    };
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, centre(1));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ControlModifier, centre(0));
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(
        QGuiApplication::clipboard()->text(),
        QStringLiteral("%1\tInfo\t\ta\n%2\tWarning\t2\tb")
            .arg(Cell(dock, 0, MessageDock::TimeColumn), Cell(dock, 1, MessageDock::TimeColumn)));
}

void tst_MessageDock::CtrlCInTheDockCopiesNothingWhenNothingIsSelected()
{
    MessageDock dock(nullptr);
    dock.show();
    QVERIFY(QTest::qWaitForWindowActive(&dock));
    Post(InfoLevel, "a");
    QGuiApplication::clipboard()->setText("kept");
    auto& view = Find<QTableView>(dock, "messageView");
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
}

void tst_MessageDock::ClearRemovesAllLines()
{
    MessageDock dock(nullptr);
    Post(InfoLevel, "a");
    Post(InfoLevel, "a");
    auto* const clear = dock.findChild<QAction*>("action_ClearMessages");
    QVERIFY(clear != nullptr);
    clear->trigger();
    QCOMPARE(Lines(dock), 0);
    Post(InfoLevel, "a");
    QCOMPARE(Lines(dock), 1);
    QCOMPARE(Cell(dock, 0, MessageDock::CountColumn), QString());
}

void tst_MessageDock::ATextIsShownUnchanged()
{
    MessageDock dock(nullptr);
    Post(InfoLevel, "<b>100%s</b> 长度");
    QCOMPARE(Cell(dock, 0, MessageDock::TextColumn), QStringLiteral("<b>100%s</b> 长度"));
}

void tst_MessageDock::LinesCannotBeEdited()
{
    MessageDock dock(nullptr);
    Post(InfoLevel, "a");
    QCOMPARE(Find<QTableView>(dock, "messageView").editTriggers(),
             QAbstractItemView::EditTriggers(QAbstractItemView::NoEditTriggers));
}

TARN_TEST_MAIN(tst_MessageDock)
#include "tst_MessageDock.moc"
