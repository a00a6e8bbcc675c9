#include "DrawerOutput.h"
#include "TestCase.h"

#include <QMetaMethod>
#include <QSignalSpy>

#include <type_traits>

class tst_DrawerOutput : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EveryCallOfGetInstanceGivesTheOneObject();
    void TheObjectHasNoParent();
    void TheSignalIsConnectedByItsNormalisedSignature();
    void TheSignalNamesItsParameters();
    void AFormattedLineIsEmittedWithItsLevel();
    void TheLevelPassesUnchanged_data();
    void TheLevelPassesUnchanged();
    void ADirectConnectionHasTheLineBeforeTheCallReturns();
    void BytesAreReadInTheLocalCodePage_data();
    void BytesAreReadInTheLocalCodePage();
    void GetQStringFromCharFormatsAndEmitsNothing();
    void TheDecimalSignIsTheFullStopUnderEveryLocale();
    void ALongTextIsCutAt1023Bytes_data();
    void ALongTextIsCutAt1023Bytes();
    void NoHalfCharacterIsLeftAtTheCut_data();
    void NoHalfCharacterIsLeftAtTheCut();
    void ACharacterThatIsOneByteTooLongIsDropped();
};

void tst_DrawerOutput::EveryCallOfGetInstanceGivesTheOneObject()
{
    static_assert(!std::is_default_constructible_v<DrawerOutput>);
    static_assert(!std::is_copy_constructible_v<DrawerOutput>);
    DrawerOutput* const first = DrawerOutput::GetInstance();
    QVERIFY(first != nullptr);
    QCOMPARE(DrawerOutput::GetInstance(), first);
}

void tst_DrawerOutput::TheObjectHasNoParent()
{
    QVERIFY(DrawerOutput::GetInstance()->parent() == nullptr);
}

void tst_DrawerOutput::TheSignalIsConnectedByItsNormalisedSignature()
{
    QSignalSpy spy(DrawerOutput::GetInstance(), SIGNAL(MessageWidgetMessage(int, QString)));
    QVERIFY(spy.isValid());
    DrawerOutput::GetInstance()->EmitMessage2MessageWidget(0, "x");
    QCOMPARE(spy.count(), 1);
}

void tst_DrawerOutput::TheSignalNamesItsParameters()
{
    const QMetaObject& meta = DrawerOutput::staticMetaObject;
    const int index = meta.indexOfSignal("MessageWidgetMessage(int,QString)");
    QVERIFY(index >= 0);
    QCOMPARE(meta.method(index).parameterNames(), QList<QByteArray>({"nLevel", "str"}));
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
}

void tst_DrawerOutput::AFormattedLineIsEmittedWithItsLevel()
{
    QSignalSpy spy(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    DrawerOutput::GetInstance()->EmitMessage2MessageWidget(2, "%s: %d", "mesh", 12);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy[0][0].toInt(), 2);
    QCOMPARE(spy[0][1].toString(), QStringLiteral("mesh: 12"));
}

void tst_DrawerOutput::TheLevelPassesUnchanged_data()
{
    QTest::addColumn<int>("level");
    NewRow("negative", -7);
    NewRow("zero", 0);
    NewRow("largest", std::numeric_limits<int>::max());
    NewRow("smallest", std::numeric_limits<int>::min());
}

void tst_DrawerOutput::TheLevelPassesUnchanged()
{
    QFETCH(int, level);
    QSignalSpy spy(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    DrawerOutput::GetInstance()->EmitMessage2MessageWidget(level, "text");
    QCOMPARE(spy[0][0].toInt(), level);
}

void tst_DrawerOutput::ADirectConnectionHasTheLineBeforeTheCallReturns()
{
    QString shown;
    const auto connection =
        connect(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage,
                [&shown](int, const QString& text) { shown = text; });
    DrawerOutput::GetInstance()->EmitMessage2MessageWidget(1, "now");
    QCOMPARE(shown, QStringLiteral("now"));
    disconnect(connection);
}

void tst_DrawerOutput::BytesAreReadInTheLocalCodePage_data()
{
    QTest::addColumn<QByteArray>("codePage");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    NewRow("UTF-8", QByteArray("UTF-8"), QByteArray("\xE9\x95\xBF"), QStringLiteral("长"));
    NewRow("GB18030", QByteArray("GB18030"), QByteArray("\xB3\xA4"), QStringLiteral("长"));
    NewRow("Latin-1", QByteArray("ISO 8859-1"), QByteArray("\xE9"), QStringLiteral("é"));
}

void tst_DrawerOutput::BytesAreReadInTheLocalCodePage()
{
    QFETCH(QByteArray, codePage);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    UseCodePage(codePage);
    QCOMPARE(DrawerOutput::GetQStringFromChar("%s", bytes.constData()), text);
    QSignalSpy spy(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    DrawerOutput::GetInstance()->EmitMessage2MessageWidget(1, "%s", bytes.constData());
    QCOMPARE(spy[0][1].toString(), text);
}

void tst_DrawerOutput::GetQStringFromCharFormatsAndEmitsNothing()
{
    QSignalSpy spy(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    QCOMPARE(DrawerOutput::GetQStringFromChar("%.3f", 1.0), QStringLiteral("1.000"));
    QCOMPARE(spy.count(), 0);
}

void tst_DrawerOutput::TheDecimalSignIsTheFullStopUnderEveryLocale()
{
    UseLocale("de_DE.UTF-8");
    QCOMPARE(DrawerOutput::GetQStringFromChar("%.3f", 1.0), QStringLiteral("1.000"));
    // The host's locale is unchanged.
    QCOMPARE(std::localeconv()->decimal_point, ",");
}

void tst_DrawerOutput::ALongTextIsCutAt1023Bytes_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("kept");
    NewRow("fits", 1023, 1023);
    NewRow("one too many", 1024, 1023);
    NewRow("far too many", 100000, 1023);
}

void tst_DrawerOutput::ALongTextIsCutAt1023Bytes()
{
    QFETCH(int, length);
    QFETCH(int, kept);
    const QByteArray bytes(length, 'a');
    QCOMPARE(DrawerOutput::GetQStringFromChar("%s", bytes.constData()),
             QString(kept, QLatin1Char('a')));
}

void tst_DrawerOutput::NoHalfCharacterIsLeftAtTheCut_data()
{
    QTest::addColumn<QByteArray>("codePage");
    QTest::addColumn<QString>("filler");
    QTest::addColumn<QString>("character");
    for (const int shift : {0, 1, 2, 3}) {
        const QString filler(shift, QLatin1Char('a'));
        QTest::addRow("UTF-8, three bytes, shifted by %d", shift)
            << QByteArray("UTF-8") << filler << QStringLiteral("长");
        QTest::addRow("UTF-8, four bytes, shifted by %d", shift)
            << QByteArray("UTF-8") << filler << QStringLiteral("😀");
        QTest::addRow("GB18030, two bytes, shifted by %d", shift)
            << QByteArray("GB18030") << filler << QStringLiteral("长");
        QTest::addRow("GB18030, four bytes, shifted by %d", shift)
            << QByteArray("GB18030") << filler << QStringLiteral("😀");
    }
}

void tst_DrawerOutput::NoHalfCharacterIsLeftAtTheCut()
{
    QFETCH(QByteArray, codePage);
    QFETCH(QString, filler);
    QFETCH(QString, character);
    UseCodePage(codePage);
    const int width = character.toLocal8Bit().size();
    const QByteArray bytes = (filler + character.repeated(1024)).toLocal8Bit();
    QCOMPARE(DrawerOutput::GetQStringFromChar("%s", bytes.constData()),
             filler + character.repeated((1023 - filler.size()) / width));
}

void tst_DrawerOutput::ACharacterThatIsOneByteTooLongIsDropped()
{
    UseCodePage("UTF-8");
    const QString filler(1022, QLatin1Char('a'));
    const QByteArray bytes = (filler + QStringLiteral("é")).toUtf8();
    QCOMPARE(bytes.size(), 1024);
    QCOMPARE(DrawerOutput::GetQStringFromChar("%s", bytes.constData()), filler);
}

TARN_TEST_MAIN(tst_DrawerOutput)
#include "tst_DrawerOutput.moc"
