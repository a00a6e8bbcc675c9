#include "NoticeWatcher.h"
#include "TestCase.h"

#include <QMessageBox>

class tst_NoticeWatcher : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void BoxesAreClosedAndTheirTextsKept();
    void WithoutABoxThereIsNothing();
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

TARN_TEST_MAIN(tst_NoticeWatcher)
#include "tst_NoticeWatcher.moc"
