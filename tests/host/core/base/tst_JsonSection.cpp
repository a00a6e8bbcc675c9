#include "JsonSection.h"
#include "TestCase.h"

class tst_JsonSection : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EntriesAreReadByType();
    void ExpressionsAreNumbersOrTexts();
    void MissingEntriesGiveTheDefault();
    void MessagesBeginWithThePlace();
    void QuotedTextsStayShortAndInOneLine();
};

static const QLatin1String Key("key");

static JsonSection Section(const QJsonValue& value)
{
    return JsonSection("the place", QJsonObject({{Key, value}}), {Key});
}

void tst_JsonSection::EntriesAreReadByType()
{
    QCOMPARE(Section("x").Text(Key), QString("x"));
    QCOMPARE(Section("x").NeededText(Key), QString("x"));
    QCOMPARE(Section("").GivenText(Key), QString(""));
    QCOMPARE(Section(1.5).Number(Key), 1.5);
    QCOMPARE(Section(true).Flag(Key, false), true);
    QCOMPARE(Section(QJsonArray({1, 2})).Numbers(Key), std::vector<double>({1.0, 2.0}));
    QCOMPARE(Section(QJsonArray({"a", "b"})).Texts(Key), QStringList({"a", "b"}));
}

void tst_JsonSection::ExpressionsAreNumbersOrTexts()
{
    QCOMPARE(Section(0.1).Expression(Key), QString("0.1"));
    QCOMPARE(Section("a / 2").Expression(Key), QString("a / 2"));
    const std::array<QString, 3> texts = {"1", "a", "-2.5"};
    QVERIFY(Section(QJsonArray({1, "a", -2.5})).Expressions(Key) == texts);
    QCOMPARE(ExpressionsToJson(texts), QJsonArray({1, "a", -2.5}));
    // A text that is not the shortest one of its number stays a text.
    for (const char* text : {"1.0", "1e3", " 1", "nan", "inf", "", "1e999"})
        QCOMPARE(ExpressionToJson(text), QJsonValue(text));
    QVERIFY_EXCEPTION_THROWN(Section(true).Expression(Key), JsonError);
    QVERIFY_EXCEPTION_THROWN(Section(QJsonArray({1, 2})).Expressions(Key), JsonError);
    QVERIFY_EXCEPTION_THROWN(Section(QJsonArray({1, 2, true})).Expressions(Key), JsonError);
}

void tst_JsonSection::MissingEntriesGiveTheDefault()
{
    const JsonSection section("the place", QJsonObject(), {Key});
    QVERIFY(!section.Has(Key));
    QCOMPARE(section.Text(Key, "default"), QString("default"));
    QCOMPARE(section.Flag(Key, true), true);
    QVERIFY(section.Array(Key).isEmpty());
    QVERIFY(section.Numbers(Key).empty());
    QVERIFY(section.Texts(Key).isEmpty());
}

void tst_JsonSection::MessagesBeginWithThePlace()
{
    try {
        Section(1.0).Text(Key);
        QFAIL("A number was taken for a text.");
    } catch (const JsonError& error) {
        QCOMPARE(error.what(), "the place has a \"key\" that is not a text");
    }
}

void tst_JsonSection::QuotedTextsStayShortAndInOneLine()
{
    QCOMPARE(Quoted("a\nb"), QString("\"a b\""));
    QCOMPARE(Quoted(QString(60, 'x')), '"' + QString(60, 'x') + '"');
    QCOMPARE(Quoted(QString(61, 'x')), '"' + QString(60, 'x') + "...\"");
}

TARN_TEST_MAIN(tst_JsonSection)
#include "tst_JsonSection.moc"
