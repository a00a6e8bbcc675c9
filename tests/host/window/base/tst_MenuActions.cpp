#include "MenuActions.h"
#include "TestCase.h"

#include <QSignalSpy>

class tst_MenuActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AnActionHasTextNameAndShortcut();
    void AnActionCallsItsSlot();
    void TheReceiverOwnsTheAction();
};

void tst_MenuActions::AnActionHasTextNameAndShortcut()
{
    QWidget window;
    const QAction* const action =
        NewAction("&Quit", "action_Quit", &window, &QWidget::close, QKeySequence("Ctrl+Q"));
    QCOMPARE(action->text(), QString("&Quit"));
    QCOMPARE(action->objectName(), QString("action_Quit"));
    QCOMPARE(action->shortcut(), QKeySequence("Ctrl+Q"));
    QVERIFY(NewAction("None", "none", &window, &QWidget::close)->shortcut().isEmpty());
}

void tst_MenuActions::AnActionCallsItsSlot()
{
    QWidget window;
    window.addAction(
        NewAction("&Quit", "action_Quit", &window, &QWidget::close, QKeySequence("Ctrl+Q")));
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(!window.isVisible());
}

void tst_MenuActions::TheReceiverOwnsTheAction()
{
    auto window = std::make_unique<QWidget>();
    QSignalSpy destroyed(NewAction("&Quit", "action_Quit", window.get(), &QWidget::close),
                         &QObject::destroyed);
    window.reset();
    QCOMPARE(destroyed.count(), 1);
}

TARN_TEST_MAIN(tst_MenuActions)
#include "tst_MenuActions.moc"
