#include "DialogTest.h"
#include "Notice.h"

class tst_Notice : public DialogTest
{
    Q_OBJECT

private Q_SLOTS:
    void ANoticeIsAnInformationBoxWithOneOkButtonAndNoParent();
    void ANoticeIsClosedWithItsCloseButtonToo();
    void EventsAreDeliveredWhileANoticeIsOpen();
};

void tst_Notice::ANoticeIsAnInformationBoxWithOneOkButtonAndNoParent()
{
    tarn::ShowNotice("Warning", "Some text");
    ShownBox expected;
    expected.title = "Warning";
    expected.text = "Some text";
    expected.icon = QMessageBox::Information;
    expected.buttons = QMessageBox::Ok;
    expected.parent = nullptr;
    QCOMPARE(Boxes(), ShownBoxes({expected}));
}

void tst_Notice::ANoticeIsClosedWithItsCloseButtonToo()
{
    User().Answer(QMessageBox::Close);
    tarn::ShowNotice("Warning", "Some text");
    QCOMPARE(Boxes().size(), 1);
}

void tst_Notice::EventsAreDeliveredWhileANoticeIsOpen()
{
    bool delivered = false;
    User().WhileBoxOpen([&delivered](QMessageBox&) {
        QObject context;
        QMetaObject::invokeMethod(
            &context, [&delivered] { delivered = true; }, Qt::QueuedConnection);
        QCoreApplication::processEvents();
    });
    tarn::ShowNotice("Warning", "Some text");
    QVERIFY(delivered);
}

TARN_TEST_MAIN(tst_Notice)
#include "tst_Notice.moc"
