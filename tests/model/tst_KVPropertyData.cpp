#include "PropertyStoreTest.h"
#include "TestFiles.h"

/// The store in memory.
class tst_KVPropertyData : public PropertyStoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void ThereIsOneStore();
    void TheMapIsInTheOrderOfNames();
    void TheMapIsACopy();
    void AnUnknownNameGivesNull();
    void ANullRecordIsIgnored();
    void AddingARecordTwiceHoldsItOnce();
    void ARenamedRecordIsHeldUnderItsNewName();
    void ARecordRenamedOntoAnotherWins();
    void AReplacedRecordCanBeGivenAgain();
    void PointersStayValidUntilTheStoreIsCleared();
    void ClearingForgetsAll();
};

void tst_KVPropertyData::ThereIsOneStore()
{
    QVERIFY(KVPropertyData::GetInstance() != nullptr);
    QCOMPARE(KVPropertyData::GetInstance(), KVPropertyData::GetInstance());
}

void tst_KVPropertyData::TheMapIsInTheOrderOfNames()
{
    for (const char* const name : {"b", "B", "a10", "a9", "", "ä"})
        Store().AddPropInfo(Record(name));
    QCOMPARE(Keys(), QStringList({"", "B", "a10", "a9", "b", "ä"}));
}

void tst_KVPropertyData::TheMapIsACopy()
{
    Store().AddPropInfo(Record("a"));
    auto map = Store().GetProptyDataMap();
    map.clear();
    QCOMPARE(Keys(), QStringList("a"));
}

void tst_KVPropertyData::AnUnknownNameGivesNull()
{
    Store().AddPropInfo(Record("a"));
    QString name = "b";
    QVERIFY(Store().GetPropertyInfo(name) == nullptr);
    QCOMPARE(name, QString("b"));
    QCOMPARE(Keys(), QStringList("a"));
}

void tst_KVPropertyData::ANullRecordIsIgnored()
{
    Store().AddPropInfo(nullptr);
    QCOMPARE(Keys(), QStringList());
}

void tst_KVPropertyData::AddingARecordTwiceHoldsItOnce()
{
    CQLTElemPropDef* const record = Record("a");
    Store().AddPropInfo(record);
    Store().AddPropInfo(record);
    QCOMPARE(Keys(), QStringList("a"));
    QCOMPARE(Find("a"), record);
}

void tst_KVPropertyData::ARenamedRecordIsHeldUnderItsNewName()
{
    CQLTElemPropDef* const record = Record("a");
    Store().AddPropInfo(record);
    record->m_strName = "b";
    QCOMPARE(Find("a"), record);
    Store().AddPropInfo(record);
    QCOMPARE(Keys(), QStringList("b"));
    QCOMPARE(Find("b"), record);
}

void tst_KVPropertyData::ARecordRenamedOntoAnotherWins()
{
    CQLTElemPropDef* const record = Record("a", 1.0);
    CQLTElemPropDef* const other = Record("b", 2.0);
    Store().AddPropInfo(record);
    Store().AddPropInfo(other);
    record->m_strName = "b";
    Store().AddPropInfo(record);
    QCOMPARE(Contents(), QStringList("b:b:1"));
    QCOMPARE(other->m_dThickness, 2.0);
}

void tst_KVPropertyData::AReplacedRecordCanBeGivenAgain()
{
    CQLTElemPropDef* const record = Record("a", 1.0);
    CQLTElemPropDef* const other = Record("a", 2.0);
    Store().AddPropInfo(record);
    Store().AddPropInfo(other);
    QCOMPARE(Find("a"), other);
    Store().AddPropInfo(record);
    QCOMPARE(Find("a"), record);
    other->m_strName = "b";
    Store().AddPropInfo(other);
    QCOMPARE(Contents(), QStringList({"a:a:1", "b:b:2"}));
}

void tst_KVPropertyData::PointersStayValidUntilTheStoreIsCleared()
{
    CQLTElemPropDef* const record = Record("a", 1.0);
    Store().AddPropInfo(record);
    const auto map = Store().GetProptyDataMap();
    Store().AddPropInfo(Record("a", 2.0));
    Put("ElementProperty.xml", File(Line("a", "3")));
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(map.at("a"), record);
    QCOMPARE(record->m_dThickness, 1.0);
    record->m_strName = "still there";
}

void tst_KVPropertyData::ClearingForgetsAll()
{
    Store().AddPropInfo(Record("a"));
    Store().Clear();
    QCOMPARE(Keys(), QStringList());
    QVERIFY(Find("a") == nullptr);
}

TARN_TEST_MAIN(tst_KVPropertyData)
#include "tst_KVPropertyData.moc"
