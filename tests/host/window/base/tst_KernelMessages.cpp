#include "DrawerOutput.h"
#include "KernelMessages.h"
#include "MessageLevel.h"
#include "TestCase.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_PrinterOStream.hxx>
#include <QSignalSpy>

class tst_KernelMessages : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AFailureIsPosted_data();
    void AFailureIsPosted();
    void ConversionsInATextStay();
    void NoPrinterIsLeftForTheConsole();
};

void tst_KernelMessages::AFailureIsPosted_data()
{
    QTest::addColumn<int>("gravity");
    QTest::addColumn<bool>("isPosted");
    QTest::newRow("trace") << int(Message_Trace) << false;
    QTest::newRow("info") << int(Message_Info) << false;
    QTest::newRow("warning") << int(Message_Warning) << false;
    QTest::newRow("alarm") << int(Message_Alarm) << true;
    QTest::newRow("failure") << int(Message_Fail) << true;
}

void tst_KernelMessages::AFailureIsPosted()
{
    QFETCH(int, gravity);
    QFETCH(bool, isPosted);
    RouteKernelMessages();
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    Message::DefaultMessenger()->Send("no memory left", Message_Gravity(gravity));
    QCOMPARE(posted.size(), isPosted ? 1 : 0);
    if (!isPosted)
        return;
    QCOMPARE(posted[0][0].toInt(), int(WarningLevel));
    QCOMPARE(posted[0][1].toString(), QStringLiteral("The geometry kernel: no memory left"));
}

void tst_KernelMessages::ConversionsInATextStay()
{
    RouteKernelMessages();
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    Message::DefaultMessenger()->Send("100 %s of ä", Message_Fail);
    QCOMPARE(posted[0][1].toString(), QStringLiteral("The geometry kernel: 100 %s of ä"));
}

void tst_KernelMessages::NoPrinterIsLeftForTheConsole()
{
    RouteKernelMessages();
    RouteKernelMessages();
    QCOMPARE(Message::DefaultMessenger()->Printers().Length(), 1);
    QVERIFY(Message::DefaultMessenger()->Printers().First()->DynamicType() !=
            STANDARD_TYPE(Message_PrinterOStream));
}

TARN_TEST_MAIN(tst_KernelMessages)
#include "tst_KernelMessages.moc"
