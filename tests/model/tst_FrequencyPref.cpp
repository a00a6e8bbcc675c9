#include "FrequencyPref.h"
#include "TestCase.h"

class tst_FrequencyPref : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheRangeIsInitiallySet();
    void ThereIsOneInstance();
    void TheValuesAreShared();
};

void tst_FrequencyPref::TheRangeIsInitiallySet()
{
    QCOMPARE(FrequencyPref::m_MinFreq, 1.0);
    QCOMPARE(FrequencyPref::m_MaxFreq, 1000000.0);
    QCOMPARE(FrequencyPref::m_NumFreq, 10);
}

void tst_FrequencyPref::ThereIsOneInstance()
{
    QVERIFY(FrequencyPref::GetInstance() != nullptr);
    QCOMPARE(FrequencyPref::GetInstance(), FrequencyPref::GetInstance());
}

void tst_FrequencyPref::TheValuesAreShared()
{
    const double before = FrequencyPref::m_MinFreq;
    FrequencyPref::GetInstance()->m_MinFreq = 5.0;
    QCOMPARE(FrequencyPref::m_MinFreq, 5.0);
    FrequencyPref::m_MinFreq = before;
}

TARN_TEST_MAIN(tst_FrequencyPref)
#include "tst_FrequencyPref.moc"
