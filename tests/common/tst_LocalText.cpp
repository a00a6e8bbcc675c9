#include "LocalText.h"
#include "TestCase.h"

class tst_LocalText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TextsAreConvertedInTheLocalCodePage_data();
    void TextsAreConvertedInTheLocalCodePage();
    void AnEightBitTextEndsAtItsFirstZeroByte();
};

void tst_LocalText::TextsAreConvertedInTheLocalCodePage_data()
{
    QTest::addColumn<QByteArray>("codePage");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    NewRow("empty", QByteArray("UTF-8"), QString(), QByteArray());
    NewRow("UTF-8", QByteArray("UTF-8"), QStringLiteral("长度"),
           QByteArray("\xE9\x95\xBF\xE5\xBA\xA6"));
    NewRow("GB18030", QByteArray("GB18030"), QStringLiteral("长度"),
           QByteArray("\xB3\xA4\xB6\xC8"));
    NewRow("blanks are kept", QByteArray("UTF-8"), QStringLiteral(" a "), QByteArray(" a "));
}

void tst_LocalText::TextsAreConvertedInTheLocalCodePage()
{
    QFETCH(QByteArray, codePage);
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    UseCodePage(codePage);
    QCOMPARE(tarn::ToLocal8Bit(text), bytes.toStdString());
    QCOMPARE(tarn::FromLocal8Bit(bytes.toStdString()), text);
}

void tst_LocalText::AnEightBitTextEndsAtItsFirstZeroByte()
{
    const QString text = QStringLiteral("a") + QChar(0) + QStringLiteral("b");
    QCOMPARE(tarn::ToLocal8Bit(text), std::string("a"));
    QCOMPARE(tarn::FromLocal8Bit(std::string("a\0b", 3)), QStringLiteral("a"));
}

TARN_TEST_MAIN(tst_LocalText)
#include "tst_LocalText.moc"
