#include "EmptyDesignStores.h"
#include "TestCase.h"
#include "sParaArrayData.h"

class tst_sParaArrayData : public With<TestCase, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void ANewRecordHasItsDefaults();
    void TheMembersAreInTheirOrder();
    void TheSpacingsHaveTheirCodes();
    void LookingUpANameEntersADefaultRecord();
    void TheRegistryIsSortedByName();
};

void tst_sParaArrayData::ANewRecordHasItsDefaults()
{
    const sParaArrayData record;
    QCOMPARE(record.bChecked, 0);
    QCOMPARE(record.strName, QString());
    QVERIFY(record.vecValues.empty());
    QCOMPARE(record.dMin, 0.0);
    QCOMPARE(record.dMax, 1.0);
    QCOMPARE(record.dDelta, 1.0);
    QCOMPARE(record.nSampleType, 0);
}

void tst_sParaArrayData::TheMembersAreInTheirOrder()
{
    const sParaArrayData record = {1, "a", {2.5}, -1.0, 4.0, 0.5, 3};
    QCOMPARE(record.bChecked, 1);
    QCOMPARE(record.strName, QStringLiteral("a"));
    QCOMPARE(record.vecValues, std::vector<double>({2.5}));
    QCOMPARE(record.dMin, -1.0);
    QCOMPARE(record.dMax, 4.0);
    QCOMPARE(record.dDelta, 0.5);
    QCOMPARE(record.nSampleType, 3);
}

void tst_sParaArrayData::TheSpacingsHaveTheirCodes()
{
    QCOMPARE(int(SampleSpacing::Linear), 0);
    QCOMPARE(int(SampleSpacing::Log10), 1);
    QCOMPARE(int(SampleSpacing::Ln), 2);
    QCOMPARE(int(SampleSpacing::Gauss), 3);
}

void tst_sParaArrayData::LookingUpANameEntersADefaultRecord()
{
    QCOMPARE(g_mapParaArrays["new"].bChecked, 0);
    QCOMPARE(g_mapParaArrays.size(), std::size_t(1));
}

void tst_sParaArrayData::TheRegistryIsSortedByName()
{
    for (const char* const name : {"b", "a10", "B", "a2", "长", ""})
        g_mapParaArrays[name];
    QStringList names;
    for (const auto& entry : g_mapParaArrays)
        names << entry.first;
    QCOMPARE(names, QStringList({"", "B", "a10", "a2", "b", "长"}));
}

TARN_TEST_MAIN(tst_sParaArrayData)
#include "tst_sParaArrayData.moc"
