#include "DrawerOutput.h"
#include "HostApplication.h"
#include "MessageLevel.h"
#include "TestCase.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QIcon>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextCodec>
#include <QTimer>
#include <Standard_ConstructionError.hxx>
#include <gp_Dir.hxx>

#include <clocale>
#include <functional>
#include <new>
#include <stdexcept>

Q_DECLARE_METATYPE(std::function<void()>)

namespace {

const QString DialogFont = QStringLiteral("微软雅黑");

// The settings of the application object, before the test framework sets its own locale.
bool g_hasDecimalPoint = false;
bool g_codePageIsUtf8 = false;

const QEvent::Type FailingEvent = QEvent::Type(QEvent::registerEventType());

class FailingObject : public QObject
{
public:
    explicit FailingObject(std::function<void()> fail)
        : m_fail(std::move(fail))
    {
    }

    bool event(QEvent* event) override
    {
        if (event->type() == FailingEvent)
            m_fail();
        return QObject::event(event);
    }

private:
    std::function<void()> m_fail;
};

} // namespace

class tst_HostApplication : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void NumbersHaveADecimalPointInEverySystemLocale();
    void EightBitTextsAreUtf8();
    void TheDialogFontHasASubstituteWithItsCharacters();
    void TheApplicationHasNameVersionAndIcon();

    void AnExceptionBecomesAMessage_data();
    void AnExceptionBecomesAMessage();
    void APressedButtonMayFail();
    void APostedEventMayFail();
    void ATimerMayFailInsideAnEventLoop();
    void AKernelFailureNamesItsKind();
    void AConstructionErrorIsReportedWithTheGivenText();
    void APercentSignInAReasonIsNotAFormat();
};

void tst_HostApplication::NumbersHaveADecimalPointInEverySystemLocale()
{
    QVERIFY(g_hasDecimalPoint);
}

void tst_HostApplication::EightBitTextsAreUtf8()
{
    QVERIFY(g_codePageIsUtf8);
}

void tst_HostApplication::TheDialogFontHasASubstituteWithItsCharacters()
{
    if (QFontDatabase().hasFamily(DialogFont)) {
        QVERIFY(QFont::substitutes(DialogFont).isEmpty());
        return;
    }
    QVERIFY(!QFont::substitutes(DialogFont).isEmpty());
    const QString shown = QFontInfo(QFont(DialogFont)).family();
    QVERIFY2(QFontDatabase().writingSystems(shown).contains(QFontDatabase::SimplifiedChinese),
             qPrintable(shown));
}

void tst_HostApplication::TheApplicationHasNameVersionAndIcon()
{
    QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("tarnhost"));
    QVERIFY(!QCoreApplication::applicationVersion().isEmpty());
    QVERIFY(!QApplication::windowIcon().isNull());
    QVERIFY(!QApplication::windowIcon().availableSizes().isEmpty());
}

void tst_HostApplication::AnExceptionBecomesAMessage_data()
{
    QTest::addColumn<std::function<void()>>("fail");
    QTest::addColumn<QString>("said");
    const auto row = [](const char* name, const std::function<void()>& fail, const char* said) {
        QTest::newRow(name) << fail << QString(said);
    };
    row(
        "kernel", [] { gp_Dir(0.0, 0.0, 0.0); }, "geometry kernel");
    row(
        "kernel, no text", [] { throw Standard_ConstructionError(); }, "geometry kernel");
    row(
        "standard", [] { throw std::out_of_range("no such run"); }, "no such run");
    row(
        "standard, Chinese", [] { throw std::runtime_error("长度"); }, "长度");
    row(
        "memory", [] { throw std::bad_alloc(); }, "ran out of memory");
    row(
        "any other", [] { throw 7; }, "unknown error");
}

void tst_HostApplication::AnExceptionBecomesAMessage()
{
    QFETCH(std::function<void()>, fail);
    QFETCH(QString, said);
    FailingObject object(fail);
    QSignalSpy messages(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    QEvent event(FailingEvent);
    QCOMPARE(QCoreApplication::sendEvent(&object, &event), true);
    QCOMPARE(messages.count(), 1);
    QCOMPARE(messages[0][0].toInt(), int(ErrorLevel));
    QVERIFY2(messages[0][1].toString().contains(said), qPrintable(messages[0][1].toString()));
}

void tst_HostApplication::APressedButtonMayFail()
{
    QPushButton button;
    int presses = 0;
    connect(&button, &QPushButton::clicked, this, [&presses] {
        ++presses;
        throw std::runtime_error("pressed");
    });
    button.show();
    QSignalSpy messages(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(presses, 2);
    QCOMPARE(messages.count(), 2);
    QVERIFY(!button.isDown());
}

void tst_HostApplication::APostedEventMayFail()
{
    FailingObject object([] { throw std::runtime_error("posted"); });
    QSignalSpy messages(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    QCoreApplication::postEvent(&object, new QEvent(FailingEvent));
    QCoreApplication::postEvent(&object, new QEvent(FailingEvent));
    QCoreApplication::processEvents();
    QCOMPARE(messages.count(), 2);
}

void tst_HostApplication::ATimerMayFailInsideAnEventLoop()
{
    QSignalSpy messages(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    QTimer timer;
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, [] { throw std::runtime_error("timer"); });
    timer.start(0);
    QTRY_COMPARE(messages.count(), 1);
}

void tst_HostApplication::AKernelFailureNamesItsKind()
{
    FailingObject object([] { gp_Dir(0.0, 0.0, 0.0); });
    QSignalSpy messages(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    QEvent event(FailingEvent);
    QCoreApplication::sendEvent(&object, &event);
    QVERIFY(messages[0][1].toString().contains("Standard_ConstructionError"));
}

void tst_HostApplication::AConstructionErrorIsReportedWithTheGivenText()
{
    FailingObject zeroDirection([] { gp_Dir(0.0, 0.0, 0.0); });
    FailingObject other([] { throw std::runtime_error("other"); });
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    QEvent event(FailingEvent);
    {
        const ConstructionErrorText text(QStringLiteral("No direction."));
        QCoreApplication::sendEvent(&zeroDirection, &event);
        QCoreApplication::sendEvent(&other, &event);
    }
    QCoreApplication::sendEvent(&zeroDirection, &event);
    QCOMPARE(posted.count(), 3);
    QCOMPARE(posted[0][0].toInt(), int(WarningLevel));
    QCOMPARE(posted[0][1].toString(), QStringLiteral("No direction."));
    QCOMPARE(posted[1][0].toInt(), int(ErrorLevel));
    QVERIFY(posted[1][1].toString().contains("other"));
    QCOMPARE(posted[2][0].toInt(), int(ErrorLevel));
    QVERIFY(posted[2][1].toString().contains("Standard_ConstructionError"));
}

void tst_HostApplication::APercentSignInAReasonIsNotAFormat()
{
    FailingObject object([] { throw std::runtime_error("%s at 100%n"); });
    QSignalSpy messages(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    QEvent event(FailingEvent);
    QCoreApplication::sendEvent(&object, &event);
    QVERIFY(messages[0][1].toString().contains("%s at 100%n"));
}

int main(int argc, char** argv)
{
    PrepareTestProgram();
    // A user whose system has a decimal comma and another code page.
    qputenv("LC_ALL", "de_DE.UTF-8");
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO 8859-1"));
    HostApplication application(argc, argv);
    g_hasDecimalPoint = std::localeconv()->decimal_point == QByteArray(".");
    g_codePageIsUtf8 = QTextCodec::codecForLocale()->name() == "UTF-8";
    tst_HostApplication test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_HostApplication.moc"
