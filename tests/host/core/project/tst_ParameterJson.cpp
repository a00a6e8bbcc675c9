#include "ParameterJson.h"
#include "TestCase.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <limits>

class tst_ParameterJson : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ParametersAreWrittenUnchanged_data();
    void ParametersAreWrittenUnchanged();
    void EveryEntryIsReadBack();
};

static QByteArray Text(const QJsonArray& json)
{
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

void tst_ParameterJson::ParametersAreWrittenUnchanged_data()
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

void tst_ParameterJson::ParametersAreWrittenUnchanged()
{
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
    record.m_strName = "a";
    QTEST(Text(QJsonArray{ToJson(ParameterEntry{record, {}})}), "json");
}

void tst_ParameterJson::EveryEntryIsReadBack()
{
    ParametersDef record;
    record.m_strName = "a";
    record.m_nType = ParametersDef::ScalarType;
    record.m_varRawValue = 7.0;
    record.m_strExpressPara = "c,d";
    record.m_strDescription = "what it is";
    const QJsonObject json = ToJson(ParameterEntry{record, "mm"});
    QCOMPARE(Text(QJsonArray{json}),
             QByteArray(R"([{"description":"what it is","expressionParameters":["c","d"],)"
                        R"("name":"a","type":"Scalar","unit":"mm","value":7}])"));
    const ParameterEntry read = ReadParameter(json, 1);
    QCOMPARE(read.unit, QString("mm"));
    QCOMPARE(ToJson(read), json);
}

TARN_TEST_MAIN(tst_ParameterJson)
#include "tst_ParameterJson.moc"
