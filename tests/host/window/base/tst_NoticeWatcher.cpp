#include "NoticeWatcher.h"
#include "TestCase.h"

#include <QMessageBox>
#include <QTimer>
#include <QWindow>

#include <memory>

class tst_NoticeWatcher : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void BoxesAreClosedAndTheirTextsKept();
    void WithoutABoxThereIsNothing();
    void NoWindowComesOnTheScreen_data();
    void NoWindowComesOnTheScreen();
};

void tst_NoticeWatcher::BoxesAreClosedAndTheirTextsKept()
{
    NoticeWatcher watcher;
    QMessageBox::information(nullptr, "Error", "Check\ninput data!");
    QMessageBox::information(nullptr, "Notify", "Number not equal");
    QCOMPARE(watcher.TakeNotices(), QStringList({"Check input data!", "Number not equal"}));
    QCOMPARE(watcher.TakeNotices(), QStringList());
}

void tst_NoticeWatcher::WithoutABoxThereIsNothing()
{
    NoticeWatcher watcher;
    QWidget window;
    window.show();
    QCOMPARE(watcher.TakeNotices(), QStringList());
    QVERIFY(window.isVisible());
}

void tst_NoticeWatcher::NoWindowComesOnTheScreen_data()
{
    QTest::addColumn<bool>("isWatched");
    QTest::newRow("watched") << true;
    QTest::newRow("not watched") << false;
}

void tst_NoticeWatcher::NoWindowComesOnTheScreen()
{
    QFETCH(bool, isWatched);
    const auto watcher = isWatched ? std::make_unique<NoticeWatcher>() : nullptr;
    QWidget window;
    window.show();
    QDialog dialog(&window);
    bool isDialogOnScreen = false;
    QTimer::singleShot(0, &dialog, [&] {
        QVERIFY(dialog.isVisible());
        isDialogOnScreen = dialog.windowHandle()->isVisible();
        dialog.close();
    });
    dialog.exec();
    QCOMPARE(isDialogOnScreen, !isWatched);
    QVERIFY(window.isVisible());
    QCOMPARE(window.windowHandle()->isVisible(), !isWatched);
}

TARN_TEST_MAIN(tst_NoticeWatcher)
#include "tst_NoticeWatcher.moc"
