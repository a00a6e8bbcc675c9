#include "CQLTElemPropDef.h"
#include "TestCase.h"

class tst_CQLTElemPropDef : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ANewRecordIsEmpty();
    void ACopyIsIndependent();
};

void tst_CQLTElemPropDef::ANewRecordIsEmpty()
{
    const auto record = std::make_unique<CQLTElemPropDef>();
    QVERIFY(record->m_strName.isEmpty());
    QCOMPARE(record->m_nReserved, qint64(0));
    QVERIFY(record->m_strMaterialName.isEmpty());
    QCOMPARE(record->m_dThickness, 0.0);
    QVERIFY(record->m_strTypeName.isEmpty());
    QCOMPARE(record->m_nTypeCode, 0);
    const CQLTElemPropDef inOrder{"a", 1, "b", 2.0, "c", 3};
    QCOMPARE(inOrder.m_strTypeName, QString("c"));
}

void tst_CQLTElemPropDef::ACopyIsIndependent()
{
    CQLTElemPropDef record;
    record.m_strName = "a";
    CQLTElemPropDef copy = record;
    copy.m_strName = "b";
    QVERIFY(record.m_strName == "a");
    record = copy;
    QVERIFY(record.m_strName == "b");
}

TARN_TEST_MAIN(tst_CQLTElemPropDef)
#include "tst_CQLTElemPropDef.moc"
