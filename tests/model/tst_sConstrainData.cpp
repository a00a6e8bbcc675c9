#include "TestCase.h"
#include "sConstrainData.h"

class tst_sConstrainData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ANewRecordIsEmpty();
    void ACopyIsIndependent();
};

void tst_sConstrainData::ANewRecordIsEmpty()
{
    const auto record = std::make_unique<sConstrainData>();
    QVERIFY(record->m_strName.empty());
    QVERIFY(!record->m_bXD && !record->m_bYD && !record->m_bZD);
    QVERIFY(!record->m_bXR && !record->m_bYR && !record->m_bZR);
    const sConstrainData inOrder{"a", true, false, true, false, true, false};
    QVERIFY(inOrder.m_bXD && inOrder.m_bZD && inOrder.m_bYR);
}

void tst_sConstrainData::ACopyIsIndependent()
{
    sConstrainData record;
    record.m_strName = "a";
    sConstrainData copy = record;
    copy.m_strName = "b";
    QVERIFY(record.m_strName == "a");
    record = copy;
    QVERIFY(record.m_strName == "b");
}

TARN_TEST_MAIN(tst_sConstrainData)
#include "tst_sConstrainData.moc"
