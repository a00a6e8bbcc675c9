#include "AnalysisEntries.h"
#include "AnalysisRecords.h"
#include "AttributeCommonMgr.h"
#include "EmptyAnalysisStores.h"
#include "EmptyAttributeNames.h"
#include "FrequencyPref.h"
#include "TestCase.h"

#include <QSignalSpy>

class tst_AnalysisRecords : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override;
    void ANewModelIsAVibrationWithoutEntries();
    void TheStoresFollowTheSetUp();
    void NamesOfEntriesAreTakenAndFreed();
    void NamesAreFreeAfterTheModelIsDestroyed();
    void NamesOfOthersStayTaken();
    void WhatDialogsChangeInTheStoresIsTaken();
    void PropertiesOfTheFileJoinTheProject();
    void StartingForgetsTheFormerSetUp();
    void EveryChangeIsReported();

private:
    const EmptyAnalysisStores m_stores;
    const EmptyAttributeNames m_names;
};

namespace {

bool IsTaken(std::string name)
{
    return AttributeCommonMgr::GetInstance()->FindName(name);
}

AnalysisDefinition Everything()
{
    AnalysisDefinition analysis;
    analysis.type.kind = AnalysisType::StaticKind;
    analysis.constraints = {Constraint("foot")};
    analysis.loads = {Load("pull")};
    analysis.properties = {Property("web", "steel", "2.5")};
    analysis.frequencies = {0.5, 2000.0, 3};
    return analysis;
}

} // namespace

void tst_AnalysisRecords::cleanup()
{
    KVPropertyData::GetInstance()->Clear();
    FrequencyPref::m_MinFreq = 1.0;
    FrequencyPref::m_MaxFreq = 1000000.0;
    FrequencyPref::m_NumFreq = 10;
    TestCase::cleanup();
}

void tst_AnalysisRecords::ANewModelIsAVibrationWithoutEntries()
{
    const AnalysisRecords model;
    QCOMPARE(model.Definition().type.family, 1);
    QCOMPARE(model.Definition().type.kind, 2);
    QVERIFY(model.Definition() == AnalysisDefinition());
}

void tst_AnalysisRecords::TheStoresFollowTheSetUp()
{
    EnterTemporaryDirectory();
    AnalysisRecords model;
    model.SetDefinition(Everything());
    QCOMPARE(FrequencyPref::m_MinFreq, 0.5);
    QCOMPARE(FrequencyPref::m_MaxFreq, 2000.0);
    QCOMPARE(FrequencyPref::m_NumFreq, 3);
    const CQLTElemPropDef* const web = KVPropertyData::GetInstance()->GetPropertyInfo("web");
    QVERIFY(web != nullptr);
    QCOMPARE(web->m_strMaterialName, QString("steel"));
    QCOMPARE(web->m_dThickness, 2.5);

    model.SetDefinition({});
    QCOMPARE(KVPropertyData::GetInstance()->GetPropertyInfo("web"), nullptr);
    QCOMPARE(FrequencyPref::m_NumFreq, 10);
}

void tst_AnalysisRecords::NamesOfEntriesAreTakenAndFreed()
{
    AnalysisRecords model;
    model.SetDefinition(Everything());
    QVERIFY(IsTaken("foot"));
    QVERIFY(IsTaken("pull"));
    AnalysisDefinition analysis = model.Definition();
    analysis.constraints.front().name = "base";
    analysis.loads.clear();
    model.SetDefinition(analysis);
    QVERIFY(IsTaken("base"));
    QVERIFY(!IsTaken("foot"));
    QVERIFY(!IsTaken("pull"));
}

void tst_AnalysisRecords::NamesAreFreeAfterTheModelIsDestroyed()
{
    {
        AnalysisRecords model;
        model.SetDefinition(Everything());
    }
    QVERIFY(!IsTaken("foot"));
    QVERIFY(!IsTaken("pull"));
}

void tst_AnalysisRecords::NamesOfOthersStayTaken()
{
    AttributeCommonMgr::GetInstance()->AddName("other");
    {
        AnalysisRecords model;
        model.SetDefinition(Everything());
        model.Clear();
    }
    QVERIFY(IsTaken("other"));
    AttributeCommonMgr::GetInstance()->RemoveName("other");
}

void tst_AnalysisRecords::WhatDialogsChangeInTheStoresIsTaken()
{
    AnalysisRecords model;
    model.SetDefinition(Everything());
    KVPropertyData& store = *KVPropertyData::GetInstance();
    store.GetPropertyInfo("web")->m_dThickness = 4.0;
    auto* const added = new CQLTElemPropDef;
    added->m_strName = "added";
    added->m_strMaterialName = "wood";
    store.AddPropInfo(added);
    FrequencyPref::m_MaxFreq = 99.0;
    model.TakeStores();

    const AnalysisDefinition& analysis = model.Definition();
    QCOMPARE(analysis.frequencies.max, 99.0);
    QCOMPARE(analysis.properties.size(), std::size_t(2));
    QCOMPARE(analysis.properties[0].thickness, QString("4"));
    QCOMPARE(analysis.properties[1].name, QString("added"));
    QCOMPARE(analysis.properties[1].material, QString("wood"));
}

void tst_AnalysisRecords::PropertiesOfTheFileJoinTheProject()
{
    KVPropertyData& store = *KVPropertyData::GetInstance();
    for (const char* const name : {"of the file", "web"}) {
        auto* const record = new CQLTElemPropDef;
        record->m_strName = name;
        record->m_strMaterialName = "iron";
        store.AddPropInfo(record);
    }
    AnalysisRecords model;
    model.Start(Everything());
    QCOMPARE(model.Definition().properties.size(), std::size_t(2));
    QCOMPARE(model.Definition().properties[0].material, QString("steel"));
    QCOMPARE(store.GetPropertyInfo("web")->m_strMaterialName, QString("steel"));
    QCOMPARE(model.Definition().properties[1].name, QString("of the file"));
}

void tst_AnalysisRecords::StartingForgetsTheFormerSetUp()
{
    AnalysisRecords model;
    model.SetDefinition(Everything());
    KVPropertyData::GetInstance()->Clear();
    model.Clear();
    QVERIFY(model.Definition() == AnalysisDefinition());
    QVERIFY(!IsTaken("foot"));
}

void tst_AnalysisRecords::EveryChangeIsReported()
{
    AnalysisRecords model;
    const QSignalSpy changes(&model, &AnalysisRecords::Changed);
    model.SetDefinition(Everything());
    model.TakeStores();
    model.Clear();
    QCOMPARE(changes.size(), 3);
}

TARN_TEST_MAIN(tst_AnalysisRecords)
#include "tst_AnalysisRecords.moc"
