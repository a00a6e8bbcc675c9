#include "JsonSection.h"
#include "SampleListJson.h"
#include "SampleSpacing.h"
#include "TestCase.h"

#include <QJsonDocument>

// How the reader words its refusals is checked in tst_Project.

class tst_SampleListJson : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EveryListReadsBack_data();
    void EveryListReadsBack();
    void TickedAndLinearNeedNotBeWritten();
    void ABadRangeIsRefusedAndGaussIsNot();
};

static QJsonValue Json(const char* text)
{
    return QJsonDocument::fromJson(text).object();
}

void tst_SampleListJson::EveryListReadsBack_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("Linear") << QByteArray(
        R"({"delta":0.1,"max":1,"min":-1,"parameter":"a","spacing":"Linear",)"
        R"("ticked":true})");
    QTest::newRow("Log10") << QByteArray(
        R"({"delta":9,"max":10,"min":1,"parameter":"长","spacing":"Log10",)"
        R"("ticked":false})");
    QTest::newRow("Ln") << QByteArray(
        R"({"delta":1,"max":2,"min":1,"parameter":"a","spacing":"Ln","ticked":true})");
    QTest::newRow("Gauss") << QByteArray(
        R"({"delta":1,"max":2,"min":1,"parameter":"a","spacing":"Gauss","ticked":true})");
    QTest::newRow("values") << QByteArray(
        R"({"parameter":"a","ticked":true,"values":[8,4.1234567890123,8]})");
}

void tst_SampleListJson::EveryListReadsBack()
{
    QFETCH(QByteArray, json);
    const SampleList list = ReadSampleList(Json(json.constData()), 1);
    QCOMPARE(QJsonDocument(ToJson({list, list})).toJson(QJsonDocument::Compact),
             "[" + json + "," + json + "]");
}

void tst_SampleListJson::TickedAndLinearNeedNotBeWritten()
{
    const SampleList list =
        ReadSampleList(Json(R"({"parameter": "a", "min": 16, "max": 24, "delta": 4})"), 1);
    QVERIFY(list.ticked);
    QCOMPARE(list.range.spacing, int(SampleSpacing::Linear));
    QCOMPARE(list.Samples(), std::vector<double>({16, 20, 24}));
}

void tst_SampleListJson::ABadRangeIsRefusedAndGaussIsNot()
{
    QVERIFY_EXCEPTION_THROWN(
        ReadSampleList(Json(R"({"parameter": "a", "min": 0, "max": 0, "delta": 1})"), 1),
        JsonError);
    const SampleList list = ReadSampleList(
        Json(R"({"parameter": "a", "min": 0, "max": 1, "delta": 1, "spacing": "Gauss"})"), 1);
    QVERIFY(!list.Problem().isEmpty());
}

TARN_TEST_MAIN(tst_SampleListJson)
#include "tst_SampleListJson.moc"
