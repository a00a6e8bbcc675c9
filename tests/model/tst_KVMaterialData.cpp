#include "MaterialStoreTest.h"
#include "TestFiles.h"

/// The store in memory.
class tst_KVMaterialData : public MaterialStoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void ThereIsOneStore();
    void MaterialsKeepTheOrderOfEntry();
    void AnUnknownNameGivesNull();
    void ANullRecordIsIgnored();
    void AUserMaterialWins_data();
    void AUserMaterialWins();
    void AMaterialOfTheSameTypeReplacesInPlace();
    void NamesDifferInCase();
    void AddingARecordTwiceHoldsItOnce();
    void ARenamedRecordMovesToItsNewName();
    void ARecordRenamedOntoAnotherReplacesIt();
    void AReplacedRecordCanBeGivenAgain();
    void PointersStayValidUntilTheStoreIsCleared();
    void RemovingAnUnknownNameChangesNothing();
    void ANameRemovedAndEnteredAgainComesLast();
    void ClearingForgetsAll();
    void TheCurrentNameIsRemembered();
};

void tst_KVMaterialData::ThereIsOneStore()
{
    QVERIFY(KVMaterialData::GetInstance() != nullptr);
    QCOMPARE(KVMaterialData::GetInstance(), KVMaterialData::GetInstance());
}

void tst_KVMaterialData::MaterialsKeepTheOrderOfEntry()
{
    QStringList names;
    for (int i = 0; i < 100; ++i) {
        names << QString::number((i * 37) % 100);
        Store().AddMaterialInfo(Record(names.last(), i % 2));
    }
    QCOMPARE(Store().GetMaterialNameList(), names);
    QCOMPARE(Store().MapDataRow(), 100);
}

void tst_KVMaterialData::AnUnknownNameGivesNull()
{
    Store().AddMaterialInfo(Record("a"));
    QCOMPARE(Store().GetMaterialInfo("b"), static_cast<KVMaterialInfo*>(nullptr));
    QCOMPARE(Store().MapDataRow(), 1);
}

void tst_KVMaterialData::ANullRecordIsIgnored()
{
    Store().AddMaterialInfo(nullptr);
    QCOMPARE(Store().MapDataRow(), 0);
}

void tst_KVMaterialData::AUserMaterialWins_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<bool>("secondIsHeld");
    QTest::newRow("user over system") << 0 << 1 << true;
    QTest::newRow("system after user") << 1 << 0 << false;
    QTest::newRow("user over user") << 1 << 1 << true;
    QTest::newRow("system over system") << 0 << 0 << true;
    QTest::newRow("unknown after user") << 1 << 7 << false;
    QTest::newRow("user over unknown") << 7 << 1 << true;
}

void tst_KVMaterialData::AUserMaterialWins()
{
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(bool, secondIsHeld);
    KVMaterialInfo* const one = Record("a", first);
    KVMaterialInfo* const other = Record("a", second);
    Store().AddMaterialInfo(one);
    Store().AddMaterialInfo(Record("b"));
    Store().AddMaterialInfo(other);
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"a", "b"}));
    QCOMPARE(Store().GetMaterialInfo("a"), secondIsHeld ? other : one);
    QCOMPARE(one->m_nType, first);
    QCOMPARE(other->m_nType, second);
}

void tst_KVMaterialData::AMaterialOfTheSameTypeReplacesInPlace()
{
    Store().AddMaterialInfo(Record("a", MATERIAL_USER, "1"));
    Store().AddMaterialInfo(Record("b", MATERIAL_USER, "2"));
    Store().AddMaterialInfo(Record("a", MATERIAL_USER, "3"));
    QCOMPARE(Contents(), QStringList({"a:1:3:", "b:1:2:"}));
}

void tst_KVMaterialData::NamesDifferInCase()
{
    Store().AddMaterialInfo(Record("steel"));
    Store().AddMaterialInfo(Record("Steel"));
    QCOMPARE(Store().MapDataRow(), 2);
}

void tst_KVMaterialData::AddingARecordTwiceHoldsItOnce()
{
    KVMaterialInfo* const record = Record("a");
    Store().AddMaterialInfo(record);
    Store().AddMaterialInfo(record);
    QCOMPARE(Store().GetMaterialNameList(), QStringList("a"));
    QCOMPARE(Store().GetMaterialInfo("a"), record);
}

void tst_KVMaterialData::ARenamedRecordMovesToItsNewName()
{
    KVMaterialInfo* const record = Record("a");
    Store().AddMaterialInfo(record);
    Store().AddMaterialInfo(Record("b"));
    record->m_strName = "c";
    Store().AddMaterialInfo(record);
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"c", "b"}));
    QCOMPARE(Store().GetMaterialInfo("c"), record);
    QVERIFY(Store().GetMaterialInfo("a") == nullptr);
}

void tst_KVMaterialData::ARecordRenamedOntoAnotherReplacesIt()
{
    KVMaterialInfo* const record = Record("a");
    KVMaterialInfo* const other = Record("b");
    Store().AddMaterialInfo(record);
    Store().AddMaterialInfo(other);
    record->m_strName = "b";
    Store().AddMaterialInfo(record);
    QCOMPARE(Store().GetMaterialNameList(), QStringList("b"));
    QCOMPARE(Store().GetMaterialInfo("b"), record);
    QCOMPARE(other->m_strName, QString("b"));
}

void tst_KVMaterialData::AReplacedRecordCanBeGivenAgain()
{
    KVMaterialInfo* const record = Record("a");
    Store().AddMaterialInfo(record);
    Store().AddMaterialInfo(Record("a"));
    Store().AddMaterialInfo(record);
    QCOMPARE(Store().GetMaterialInfo("a"), record);
    Store().RemoveItem("a");
    Store().AddMaterialInfo(record);
    QCOMPARE(Store().GetMaterialInfo("a"), record);
    QCOMPARE(Store().MapDataRow(), 1);
}

void tst_KVMaterialData::PointersStayValidUntilTheStoreIsCleared()
{
    KVMaterialInfo* const replaced = Record("replaced", MATERIAL_SYSTEM, "1");
    KVMaterialInfo* const removed = Record("removed", MATERIAL_USER, "2");
    KVMaterialInfo* const refused = Record("kept", MATERIAL_SYSTEM, "3");
    KVMaterialInfo* const kept = Record("kept", MATERIAL_USER, "4");
    for (KVMaterialInfo* const record : {replaced, removed, kept, refused})
        Store().AddMaterialInfo(record);
    Store().AddMaterialInfo(Record("replaced"));
    Store().RemoveItem("removed");
    Put("UserMaterial.xml", File(Line("replaced", "5") + Line("kept", "6")));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);

    QCOMPARE(replaced->m_strLibElasticModulus, QString("1"));
    QCOMPARE(removed->m_strElasticModulus, QString("2"));
    QCOMPARE(refused->m_strLibElasticModulus, QString("3"));
    QCOMPARE(kept->m_strElasticModulus, QString("6"));
    QCOMPARE(Store().GetMaterialInfo("kept"), kept);
    removed->m_strName = "still there";
}

void tst_KVMaterialData::RemovingAnUnknownNameChangesNothing()
{
    Store().AddMaterialInfo(Record("a"));
    Store().RemoveItem("b");
    QCOMPARE(Store().GetMaterialNameList(), QStringList("a"));
}

void tst_KVMaterialData::ANameRemovedAndEnteredAgainComesLast()
{
    Store().AddMaterialInfo(Record("a"));
    Store().AddMaterialInfo(Record("b"));
    Store().RemoveItem(Store().GetMaterialInfo("a")->m_strName);
    QCOMPARE(Store().MapDataRow(), 1);
    QVERIFY(Store().GetMaterialInfo("a") == nullptr);
    Store().AddMaterialInfo(Record("a"));
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"b", "a"}));
}

void tst_KVMaterialData::ClearingForgetsAll()
{
    Store().AddMaterialInfo(Record("a"));
    Store().ClearInfo();
    QCOMPARE(Store().MapDataRow(), 0);
    QCOMPARE(Store().GetMaterialNameList(), QStringList());
    QVERIFY(Store().GetMaterialInfo("a") == nullptr);
}

void tst_KVMaterialData::TheCurrentNameIsRemembered()
{
    QCOMPARE(Store().CurrentMaterialName(), QString());
    Store().setCurrentMaterialName("not in the store");
    Store().ClearInfo();
    QCOMPARE(Store().CurrentMaterialName(), QString("not in the store"));
    Store().setCurrentMaterialName("");
    QCOMPARE(Store().CurrentMaterialName(), QString());
}

TARN_TEST_MAIN(tst_KVMaterialData)
#include "tst_KVMaterialData.moc"
