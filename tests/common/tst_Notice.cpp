#include "ModalDriver.h"
#include "Notice.h"
#include "TestCase.h"

class tst_Notice : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ANoticeIsAnInformationBoxWithOneOkButtonAndNoParent();
    void ANoticeIsClosedWithItsCloseButtonToo();
    void EventsAreDeliveredBehindANotice();
};

void tst_Notice::ANoticeIsAnInformationBoxWithOneOkButtonAndNoParent()
{
    ModalDriver user;
    tarn::ShowNotice("Warning", "Some text");
    ShownBox expected;
    expected.title = "Warning";
    expected.text = "Some text";
    expected.icon = QMessageBox::Information;
    expected.buttons = QMessageBox::Ok;
    expected.parent = nullptr;
    QCOMPARE(user.Boxes(), QVector<ShownBox>({expected}));
}

void tst_Notice::ANoticeIsClosedWithItsCloseButtonToo()
{
    ModalDriver user;
    user.Answer(QMessageBox::Close);
    tarn::ShowNotice("Warning", "Some text");
    QCOMPARE(user.Boxes().size(), 1);
    QVERIFY(user.IsDone());
}

void tst_Notice::EventsAreDeliveredBehindANotice()
{
    ModalDriver user;
    bool delivered = false;
    user.WhileBoxOpen([&delivered](QMessageBox&) {
        QObject context;
        QMetaObject::invokeMethod(
            &context, [&delivered] { delivered = true; }, Qt::QueuedConnection);
        QCoreApplication::processEvents();
    });
    tarn::ShowNotice("Warning", "Some text");
    QVERIFY(delivered);
    QVERIFY(user.IsDone());
}

TARN_TEST_MAIN(tst_Notice)
#include "tst_Notice.moc"
