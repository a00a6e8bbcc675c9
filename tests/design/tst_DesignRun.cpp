#include "DesignRun.h"
#include "EmptyDesignStores.h"
#include "GlobalParaMeterMgr.h"
#include "TestCase.h"
#include "sParaArrayData.h"

class tst_DesignRun : public With<TestCase, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void TheTickedParametersAreThoseOfTheRegistry();
    void TheOtherParametersGetTheirRecordsBack();
    void ExpressionsFollowTheRun();
    void ATickedParameterWithAnExpressionKeepsTheRun();
    void AParameterThatTheDesignDoesNotHaveStays();
    void AnExpressionWithoutAValueIsReported();
};

namespace {

void Add(const QString& name, double value, const std::string& expression = {})
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = value;
    record.m_varRawValue = value;
    record.m_strValue = QString::number(value);
    record.m_strExpression = expression;
    GlobalParaMeterMgr::AddParameter(name, record);
}

// As "Generate" of the dialog leaves the store: every parameter outside the run is 0.
void Generate(const QString& name, double value)
{
    for (auto& [stored, record] : GlobalParaMeterMgr::m_nameMapParameters) {
        record.m_dValue = stored == name ? value : 0.0;
        record.m_varRawValue = record.m_dValue;
    }
}

double Value(const QString& name)
{
    return GlobalParaMeterMgr::GetParameterRawValue(name).toDouble();
}

} // namespace

void tst_DesignRun::TheTickedParametersAreThoseOfTheRegistry()
{
    g_mapParaArrays["a"].bChecked = 1;
    g_mapParaArrays["b"].bChecked = 0;
    QCOMPARE(DesignRun::Ticked(), QSet<QString>({"a"}));
}

void tst_DesignRun::TheOtherParametersGetTheirRecordsBack()
{
    Add("a", 1);
    Add("b", 2.5);
    const ParameterMap design = GlobalParaMeterMgr::m_nameMapParameters;
    Generate("a", 7);
    const DesignRun::Completion run = DesignRun::Complete(design, {"a"});
    QCOMPARE(run.restored, 1);
    QVERIFY(run.faults.messages.empty());
    QCOMPARE(Value("a"), 7.0);
    QCOMPARE(Value("b"), 2.5);
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.at("b").m_strValue, QString("2.5"));
}

void tst_DesignRun::ExpressionsFollowTheRun()
{
    Add("later", 0, "a + b");
    Add("a", 1);
    Add("b", 2);
    const ParameterMap design = GlobalParaMeterMgr::m_nameMapParameters;
    Generate("a", 7);
    DesignRun::Complete(design, {"a"});
    QCOMPARE(Value("later"), 9.0);
}

void tst_DesignRun::ATickedParameterWithAnExpressionKeepsTheRun()
{
    Add("a", 1, "2*3");
    const ParameterMap design = GlobalParaMeterMgr::m_nameMapParameters;
    Generate("a", 7);
    QCOMPARE(DesignRun::Complete(design, {"a"}).restored, 0);
    QCOMPARE(Value("a"), 7.0);
}

void tst_DesignRun::AParameterThatTheDesignDoesNotHaveStays()
{
    Add("a", 1);
    const ParameterMap design = GlobalParaMeterMgr::m_nameMapParameters;
    Add("added", 4);
    GlobalParaMeterMgr::m_nameMapParameters.erase("a");
    QCOMPARE(DesignRun::Complete(design, {}).restored, 0);
    QCOMPARE(Value("added"), 4.0);
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.count("a"), std::size_t(0));
}

void tst_DesignRun::AnExpressionWithoutAValueIsReported()
{
    Add("a", 1, "b");
    Add("b", 1, "a");
    const auto run = DesignRun::Complete(GlobalParaMeterMgr::m_nameMapParameters, {});
    QCOMPARE(int(run.faults.messages.size()), 1);
    QCOMPARE(run.faults.reasons.size(), 2);
}

TARN_TEST_MAIN(tst_DesignRun)
#include "tst_DesignRun.moc"
