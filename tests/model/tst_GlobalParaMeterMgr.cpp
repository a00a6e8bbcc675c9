#include "GlobalParaMeterMgr.h"
#include "TestCase.h"

#include <type_traits>

namespace {

using Names = std::vector<QString>;

ParametersDef Record(double value, const QVariant& raw = QVariant())
{
    ParametersDef record;
    record.m_dValue = value;
    record.m_varRawValue = raw;
    return record;
}

ParameterMap& Store()
{
    return GlobalParaMeterMgr::m_nameMapParameters;
}

// The store lives as long as the process: each test starts and ends with an empty store.
class EmptyStore
{
public:
    EmptyStore() { Store().clear(); }
    ~EmptyStore() { Store().clear(); }
    EmptyStore(const EmptyStore&) = delete;
    EmptyStore& operator=(const EmptyStore&) = delete;
};

} // namespace

class tst_GlobalParaMeterMgr : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AnEmptyStoreHasNoNames();
    void NamesComeInTheOrderInWhichTheyWereAdded();
    void AnAddedRecordIsStoredWithAllItsFields();
    void AddingAnExistingNameReplacesTheRecordInItsPlace();
    void TheStoreIsKeyedByTheGivenName();
    void NamesDifferByCase();
    void TheEmptyNameIsAName();
    void TheStoreHoldsACopyOfTheRecord();
    void OthersSeeTheRawValue_data();
    void OthersSeeTheRawValue();
    void TheRawValueFollowsAChangeInPlace();
    void AnUnknownNameGivesZeroAndIsNotEntered();
    void RecordsAreChangedInPlaceWhileIterating();
    void ACopyOfTheStoreIsIndependent();
    void ADefaultRecordIsInitialised();
    void RecordsAreCopiedByValue();
};

void tst_GlobalParaMeterMgr::AnEmptyStoreHasNoNames()
{
    const EmptyStore guard;
    QVERIFY(GlobalParaMeterMgr::GetAllParametersName().empty());
    QVERIFY(Store().empty());
}

void tst_GlobalParaMeterMgr::NamesComeInTheOrderInWhichTheyWereAdded()
{
    const EmptyStore guard;
    for (const char* const name : {"width", "a", "长度", "Z", "b"})
        GlobalParaMeterMgr::AddParameter(name, ParametersDef());
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), Names({"width", "a", "长度", "Z", "b"}));
}

void tst_GlobalParaMeterMgr::AnAddedRecordIsStoredWithAllItsFields()
{
    const EmptyStore guard;
    ParametersDef record;
    record.m_strName = "width";
    record.m_nType = ParametersDef::VectorType;
    record.m_strExpression = "2*a";
    record.m_strExpressPara = "a";
    record.m_dValue = 1.5;
    record.m_varRawValue = 2.5;
    record.m_dX = 3.5;
    record.m_dY = 4.5;
    record.m_dZ = 5.5;
    record.m_strValue = "1.50";
    record.m_strDescription = "outer width";
    GlobalParaMeterMgr::AddParameter("width", record);

    const ParametersDef& stored = Store().at("width");
    QCOMPARE(stored.m_strName, QString("width"));
    QCOMPARE(stored.m_nType, int(ParametersDef::VectorType));
    QCOMPARE(stored.m_strExpression, std::string("2*a"));
    QCOMPARE(stored.m_strExpressPara, QString("a"));
    QCOMPARE(stored.m_dValue, 1.5);
    QCOMPARE(stored.m_varRawValue, QVariant(2.5));
    QCOMPARE(stored.m_dX, 3.5);
    QCOMPARE(stored.m_dY, 4.5);
    QCOMPARE(stored.m_dZ, 5.5);
    QCOMPARE(stored.m_strValue, QString("1.50"));
    QCOMPARE(stored.m_strDescription, QString("outer width"));
}

void tst_GlobalParaMeterMgr::AddingAnExistingNameReplacesTheRecordInItsPlace()
{
    const EmptyStore guard;
    GlobalParaMeterMgr::AddParameter("a", Record(1.0, 10.0));
    GlobalParaMeterMgr::AddParameter("b", Record(2.0));
    GlobalParaMeterMgr::AddParameter("c", Record(3.0));
    GlobalParaMeterMgr::AddParameter("a", Record(4.0));
    QCOMPARE(Store().size(), std::size_t(3));
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), Names({"a", "b", "c"}));
    QCOMPARE(Store().at("a").m_dValue, 4.0);
    // Nothing of the replaced record remains.
    QVERIFY(!Store().at("a").m_varRawValue.isValid());
}

void tst_GlobalParaMeterMgr::TheStoreIsKeyedByTheGivenName()
{
    const EmptyStore guard;
    ParametersDef record = Record(1.0);
    record.m_strName = "inside";
    GlobalParaMeterMgr::AddParameter("outside", record);
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), Names({"outside"}));
    QCOMPARE(Store().at("outside").m_strName, QString("inside"));
}

void tst_GlobalParaMeterMgr::NamesDifferByCase()
{
    const EmptyStore guard;
    GlobalParaMeterMgr::AddParameter("a", Record(1.0));
    GlobalParaMeterMgr::AddParameter("A", Record(2.0));
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("a"), QVariant(1.0));
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("A"), QVariant(2.0));
}

void tst_GlobalParaMeterMgr::TheEmptyNameIsAName()
{
    const EmptyStore guard;
    GlobalParaMeterMgr::AddParameter(QString(), Record(1.0));
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), Names({QString()}));
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue(""), QVariant(1.0));
}

void tst_GlobalParaMeterMgr::TheStoreHoldsACopyOfTheRecord()
{
    const EmptyStore guard;
    ParametersDef record = Record(1.0);
    GlobalParaMeterMgr::AddParameter("a", record);
    record.m_dValue = 2.0;
    QCOMPARE(Store().at("a").m_dValue, 1.0);
}

// clang-format off
void tst_GlobalParaMeterMgr::OthersSeeTheRawValue_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QVariant>("rawValue");
    QTest::addColumn<QVariant>("seen");
    QTest::newRow("not set")              << 2.5 << QVariant()                 << QVariant(2.5);
    QTest::newRow("not set, value 0")     << 0.0 << QVariant()                 << QVariant(0.0);
    QTest::newRow("set")                  << 2.5 << QVariant(4.0)              << QVariant(4.0);
    QTest::newRow("set to 0")             << 2.5 << QVariant(0.0)              << QVariant(0.0);
    QTest::newRow("set to a text")        << 2.5 << QVariant("7")              << QVariant("7");
    QTest::newRow("set to an empty text") << 2.5 << QVariant(QString())        << QVariant(QString());
    QTest::newRow("typed, but null")      << 2.5 << QVariant(QVariant::Double) << QVariant(QVariant::Double);
}
// clang-format on

void tst_GlobalParaMeterMgr::OthersSeeTheRawValue()
{
    const EmptyStore guard;
    QFETCH(double, value);
    QFETCH(QVariant, rawValue);
    QFETCH(QVariant, seen);
    GlobalParaMeterMgr::AddParameter("a", Record(value, rawValue));
    const QVariant result = GlobalParaMeterMgr::GetParameterRawValue("a");
    QCOMPARE(result, seen);
    QCOMPARE(result.type(), seen.type());
    // Asking for a value does not store it.
    QCOMPARE(Store().at("a").m_varRawValue, rawValue);
}

void tst_GlobalParaMeterMgr::TheRawValueFollowsAChangeInPlace()
{
    const EmptyStore guard;
    GlobalParaMeterMgr::AddParameter("a", Record(1.0));
    Store().at("a").m_dValue = 2.0;
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("a"), QVariant(2.0));
    Store().at("a").m_varRawValue = 3.0;
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("a"), QVariant(3.0));
}

void tst_GlobalParaMeterMgr::AnUnknownNameGivesZeroAndIsNotEntered()
{
    const EmptyStore guard;
    const QVariant result = GlobalParaMeterMgr::GetParameterRawValue("nobody");
    QCOMPARE(result, QVariant(0.0));
    QCOMPARE(result.type(), QVariant::Double);
    QVERIFY(Store().empty());
}

void tst_GlobalParaMeterMgr::RecordsAreChangedInPlaceWhileIterating()
{
    const EmptyStore guard;
    GlobalParaMeterMgr::AddParameter("b", Record(1.0));
    GlobalParaMeterMgr::AddParameter("a", Record(2.0));
    QStringList order;
    for (auto& [name, record] : Store()) {
        order << name;
        record.m_varRawValue = record.m_dValue * 10.0;
    }
    QCOMPARE(order, QStringList({"b", "a"}));
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("a"), QVariant(20.0));
}

void tst_GlobalParaMeterMgr::ACopyOfTheStoreIsIndependent()
{
    const EmptyStore guard;
    GlobalParaMeterMgr::AddParameter("a", Record(1.0));
    ParameterMap copy = Store();
    copy.at("a").m_dValue = 2.0;
    Store().clear();
    QCOMPARE(copy.at("a").m_dValue, 2.0);
    QVERIFY(GlobalParaMeterMgr::GetAllParametersName().empty());
}

void tst_GlobalParaMeterMgr::ADefaultRecordIsInitialised()
{
    const ParametersDef record;
    QCOMPARE(record.m_strName, QString());
    QCOMPARE(record.m_nType, 0);
    QCOMPARE(record.m_strExpression, std::string());
    QCOMPARE(record.m_strExpressPara, QString());
    QCOMPARE(record.m_dValue, 0.0);
    QVERIFY(!record.m_varRawValue.isValid());
    QCOMPARE(record.m_dX, 0.0);
    QCOMPARE(record.m_dY, 0.0);
    QCOMPARE(record.m_dZ, 0.0);
    QCOMPARE(record.m_strValue, QString());
    QCOMPARE(record.m_strDescription, QString());
}

void tst_GlobalParaMeterMgr::RecordsAreCopiedByValue()
{
    static_assert(std::is_copy_constructible_v<ParametersDef>);
    static_assert(std::is_copy_assignable_v<ParametersDef>);
    ParametersDef record = Record(1.0, 2.0);
    record.m_strName = "a";
    ParametersDef copy(record);
    copy.m_strName = "b";
    copy.m_dValue = 3.0;
    QCOMPARE(record.m_strName, QString("a"));
    QCOMPARE(record.m_dValue, 1.0);
    QCOMPARE(copy.m_varRawValue, QVariant(2.0));
}

TARN_TEST_MAIN(tst_GlobalParaMeterMgr)
#include "tst_GlobalParaMeterMgr.moc"
