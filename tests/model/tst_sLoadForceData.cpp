#include "TestCase.h"
#include "sLoadForceData.h"

class tst_sLoadForceData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ANewRecordIsEmpty();
    void ACopyIsIndependent();
};

void tst_sLoadForceData::ANewRecordIsEmpty()
{
    const auto record = std::make_unique<sLoadForceData>();
    QVERIFY(record->m_strName.empty());
    QCOMPARE(record->m_nKind, 0);
    QVERIFY(record->m_dFX == 0.0 && record->m_dFY == 0.0 && record->m_dFZ == 0.0);
    const sLoadForceData inOrder{"a", 1, 2.0, 3.0, 4.0};
    QVERIFY(inOrder.m_dFX == 2.0 && inOrder.m_dFY == 3.0 && inOrder.m_dFZ == 4.0);
}

void tst_sLoadForceData::ACopyIsIndependent()
{
    sLoadForceData record;
    record.m_strName = "a";
    sLoadForceData copy = record;
    copy.m_strName = "b";
    QVERIFY(record.m_strName == "a");
    record = copy;
    QVERIFY(record.m_strName == "b");
}

TARN_TEST_MAIN(tst_sLoadForceData)
#include "tst_sLoadForceData.moc"
