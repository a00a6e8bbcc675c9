#include "KVMaterialInfo.h"
#include "TestCase.h"

class tst_KVMaterialInfo : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ANewRecordIsEmpty();
    void ACopyIsIndependent();
};

void tst_KVMaterialInfo::ANewRecordIsEmpty()
{
    const auto record = std::make_unique<KVMaterialInfo>();
    QCOMPARE(record->m_nType, 0);
    for (const QString* const text :
         {&record->m_strName, &record->m_strElasticModulus, &record->m_strPoisson,
          &record->m_strDensity, &record->m_strLibElasticModulus, &record->m_strLibPoisson,
          &record->m_strLibDensity})
        QVERIFY(text->isEmpty());
    QCOMPARE(int(MATERIAL_SYSTEM), 0);
    QCOMPARE(int(MATERIAL_USER), 1);
    const KVMaterialInfo inOrder{1, "a", "b", "c", "d", "e", "f", "g"};
    QCOMPARE(inOrder.m_strLibElasticModulus, QString("e"));
}

void tst_KVMaterialInfo::ACopyIsIndependent()
{
    KVMaterialInfo record;
    record.m_strName = "a";
    KVMaterialInfo copy = record;
    copy.m_strName = "b";
    QVERIFY(record.m_strName == "a");
    record = copy;
    QVERIFY(record.m_strName == "b");
}

TARN_TEST_MAIN(tst_KVMaterialInfo)
#include "tst_KVMaterialInfo.moc"
