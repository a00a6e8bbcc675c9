#include "EmptyDesignStores.h"
#include "ModalDriver.h"
#include "StoredDesign.h"
#include "TestCase.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <limits>

class tst_StoredDesign : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ParametersAreWrittenAsTheyStand_data();
    void ParametersAreWrittenAsTheyStand();
    void ParametersKeepTheirOrder();
    void SamplesAreWrittenAsRangeWhereTheRangeGivesThem_data();
    void SamplesAreWrittenAsRangeWhereTheRangeGivesThem();
    void SamplesOfNobodyAndWithoutValuesAreLeftOut();
};

static QByteArray Text(const QJsonArray& json)
{
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

void tst_StoredDesign::ParametersAreWrittenAsTheyStand_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QByteArray>("json");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("Bool") << 0 << 1.0 << "1"
                          << "" << QByteArray(R"([{"name":"a","type":"Bool","value":true}])");
    QTest::newRow("Scalar") << 1 << 0.1 << "0.1"
                            << "" << QByteArray(R"([{"name":"a","type":"Scalar","value":0.1}])");
    QTest::newRow("Vector") << 2 << 0.0 << "1,2,3"
                            << ""
                            << QByteArray(R"([{"name":"a","type":"Vector","value":[1,2,3]}])");
    QTest::newRow("Tensor") << 3 << 0.0 << "1 0; 0 1"
                            << ""
                            << QByteArray(R"([{"name":"a","type":"Tensor","value":"1 0; 0 1"}])");
    QTest::newRow("expression")
        << 1 << 4.0 << "4"
        << "2*宽" << QByteArray(R"([{"expression":"2*宽","name":"a","type":"Scalar","value":4}])");
    QTest::newRow("expression without value")
        << 1 << nan << "nan"
        << "2*" << QByteArray(R"([{"expression":"2*","name":"a","type":"Scalar"}])");
}

void tst_StoredDesign::ParametersAreWrittenAsTheyStand()
{
    const EmptyDesignStores stores;
    QFETCH(int, type);
    QFETCH(double, value);
    QFETCH(QString, text);
    QFETCH(QString, expression);
    ParametersDef record;
    record.m_nType = type;
    record.m_dValue = value;
    record.m_strValue = text;
    record.m_dX = 1.0;
    record.m_dY = 2.0;
    record.m_dZ = 3.0;
    record.m_strExpression = expression.toStdString();
    GlobalParaMeterMgr::AddParameter("a", record);
    QTEST(Text(StoredParameters()), "json");
}

void tst_StoredDesign::ParametersKeepTheirOrder()
{
    const EmptyDesignStores stores;
    ParametersDef record;
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = 5.0;
    GlobalParaMeterMgr::AddParameter("c", record);
    record.m_varRawValue = 7.0;
    record.m_strExpressPara = "c,d";
    record.m_strDescription = "what it is";
    GlobalParaMeterMgr::AddParameter("a", record);
    QCOMPARE(Text(StoredParameters()),
             QByteArray(R"([{"name":"c","type":"Scalar","value":5},)"
                        R"({"description":"what it is","expressionParameters":["c","d"],)"
                        R"("name":"a","type":"Scalar","value":7}])"));
}

void tst_StoredDesign::SamplesAreWrittenAsRangeWhereTheRangeGivesThem_data()
{
    QTest::addColumn<QVector<double>>("values");
    QTest::addColumn<QVector<double>>("range");
    QTest::addColumn<int>("spacing");
    QTest::addColumn<bool>("isRange");
    const auto row = [](const char* name, const QVector<double>& values,
                        const QVector<double>& range, int spacing, bool isRange) {
        QTest::newRow(name) << values << range << spacing << isRange;
    };
    row("Linear", {0, 0.1, 0.2}, {0, 0.25, 0.1}, 0, true);
    row("Log10", {0, 2}, {1, 100, 99}, 1, true);
    row("Ln, in six digits", {0, 0.693147}, {1, 2, 1}, 2, true);
    row("one changed", {0, 0.1, 0.3}, {0, 0.25, 0.1}, 0, false);
    row("one more", {0, 0.1, 0.2, 0.3}, {0, 0.25, 0.1}, 0, false);
    row("one less", {0, 0.1}, {0, 0.25, 0.1}, 0, false);
    row("other spacing", {0, 0.1, 0.2}, {0, 0.25, 0.1}, 1, false);
    row("Gauss", {0, 0.1, 0.2}, {0, 0.25, 0.1}, 3, false);
    row("no step", {1}, {1, 2, 0}, 0, false);
    row("step that moves nothing", {1e9}, {1e9, 1e9 + 1, 1e-30}, 0, false);
}

void tst_StoredDesign::SamplesAreWrittenAsRangeWhereTheRangeGivesThem()
{
    const EmptyDesignStores stores;
    QFETCH(QVector<double>, values);
    QFETCH(QVector<double>, range);
    QFETCH(int, spacing);
    QFETCH(bool, isRange);
    GlobalParaMeterMgr::AddParameter("a", {});
    sParaArrayData& record = g_mapParaArrays["a"];
    record.bChecked = 1;
    record.vecValues = std::vector<double>(values.begin(), values.end());
    record.dMin = range[0];
    record.dMax = range[1];
    record.dDelta = range[2];
    record.nSampleType = spacing;
    const QJsonObject json = StoredSamples()[0].toObject();
    QCOMPARE(json["parameter"].toString(), QString("a"));
    QCOMPARE(json["ticked"].toBool(), true);
    QCOMPARE(json.contains("min") && json.contains("max") && json.contains("delta"), isRange);
    QCOMPARE(json.contains("values"), !isRange);
    if (!isRange)
        QCOMPARE(json["values"].toArray().size(), values.size());
}

void tst_StoredDesign::SamplesOfNobodyAndWithoutValuesAreLeftOut()
{
    const EmptyDesignStores stores;
    GlobalParaMeterMgr::AddParameter("a", {});
    g_mapParaArrays["a"].bChecked = 1;
    g_mapParaArrays["gone"].vecValues = {1.0, 2.0};
    QVERIFY(StoredSamples().isEmpty());
}

TARN_TEST_MAIN(tst_StoredDesign)
#include "tst_StoredDesign.moc"
