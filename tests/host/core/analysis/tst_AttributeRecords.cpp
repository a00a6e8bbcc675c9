#include "AnalysisEntries.h"
#include "AttributeRecords.h"
#include "EmptyAnalysisStores.h"
#include "EmptyDesignStores.h"
#include "GlobalParaMeterMgr.h"
#include "KVPropertyData.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <QFile>

class tst_AttributeRecords : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void ABoundaryConditionKeepsItsTargets();
    void NamesAreInTheLocalCodePage();
    void AForceKeepsTheExpressionsThatStillHold();
    void AThicknessKeepsItsExpressionWhileItHolds();
    void RecordsOfTheStoreStayInPlace();
    void RemovedPropertiesDoNotComeBackFromTheFile();

private:
    const EmptyDesignStores m_parameters;
    const EmptyAnalysisStores m_stores;
};

void tst_AttributeRecords::init()
{
    TestCase::init();
    KVPropertyData::GetInstance()->Clear();
    ParametersDef record;
    record.m_strName = "t";
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = 2.0;
    record.m_strValue = "2";
    GlobalParaMeterMgr::AddParameter("t", record);
}

void tst_AttributeRecords::ABoundaryConditionKeepsItsTargets()
{
    const ConstraintDefinition former = Constraint("foot", "plate.zmin");
    sConstrainData record = ToRecord(former);
    QVERIFY(record.m_bXD && record.m_bYD && record.m_bZD);
    QVERIFY(!record.m_bXR && !record.m_bYR && !record.m_bZR);
    record.m_strName = "base";
    record.m_bYR = true;
    const ConstraintDefinition edited = FromRecord(record, former);
    QCOMPARE(edited.name, QString("base"));
    QVERIFY(edited.held[4]);
    QVERIFY(edited.faces == former.faces);
}

void tst_AttributeRecords::NamesAreInTheLocalCodePage()
{
    UseCodePage("ISO-8859-1");
    QCOMPARE(ToRecord(Load(QString::fromUtf8("ä"))).m_strName, std::string("\xe4"));
    sConstrainData record;
    record.m_strName = "\xe4";
    QCOMPARE(FromRecord(record).name, QString::fromUtf8("ä"));
}

void tst_AttributeRecords::AForceKeepsTheExpressionsThatStillHold()
{
    const LoadDefinition former = Load("pull", "t * 50", "t", "3");
    sLoadForceData record = ToRecord(former);
    QCOMPARE(record.m_nKind, int(sLoadForceData::ComponentKind));
    QCOMPARE(record.m_dFX, 100.0);
    record.m_dFY = 2.5;
    const LoadDefinition edited = FromRecord(record, former);
    QCOMPARE(edited.force[0], QString("t * 50"));
    QCOMPARE(edited.force[1], QString("2.5"));
    QCOMPARE(edited.force[2], QString("3"));
    QVERIFY(edited.faces == former.faces);
}

void tst_AttributeRecords::AThicknessKeepsItsExpressionWhileItHolds()
{
    PropertyDefinition former = Property("web", "steel", "t / 2");
    former.faces = {{"plate.zmax", {}}};
    StoreProperties({former});
    std::vector<PropertyDefinition> taken = StoredProperties({former});
    QCOMPARE(taken.size(), std::size_t(1));
    QVERIFY(taken.front() == former);
    KVPropertyData::GetInstance()->GetPropertyInfo("web")->m_dThickness = 7.0;
    taken = StoredProperties({former});
    QCOMPARE(taken.front().thickness, QString("7"));
    QVERIFY(taken.front().faces == former.faces);
}

void tst_AttributeRecords::RecordsOfTheStoreStayInPlace()
{
    auto* const record = new CQLTElemPropDef;
    record->m_strName = "web";
    record->m_nReserved = 42;
    record->m_nTypeCode = 9;
    KVPropertyData::GetInstance()->AddPropInfo(record);
    StoreProperties({Property("web", "wood", "3")});
    QCOMPARE(KVPropertyData::GetInstance()->GetPropertyInfo("web"), record);
    QCOMPARE(record->m_strMaterialName, QString("wood"));
    QCOMPARE(record->m_dThickness, 3.0);
    QCOMPARE(record->m_nReserved, qint64(42));
    QCOMPARE(record->m_nTypeCode, 9);
}

void tst_AttributeRecords::RemovedPropertiesDoNotComeBackFromTheFile()
{
    EnterTemporaryDirectory();
    KVPropertyData& store = *KVPropertyData::GetInstance();
    RemoveOtherProperties({});
    QVERIFY(!QFile::exists("ElementProperty.xml"));
    StoreProperties({Property("a"), Property("b")});
    QCOMPARE(store.WriteXML("./ElementProperty.xml"), 0);
    RemoveOtherProperties({Property("b")});
    QCOMPARE(store.ReadXML("./ElementProperty.xml"), 0);
    QCOMPARE(store.GetPropertyInfo("a"), nullptr);
    QVERIFY(store.GetPropertyInfo("b") != nullptr);
    QCOMPARE(AllFiles(), QStringList("ElementProperty.xml"));
}

TARN_TEST_MAIN(tst_AttributeRecords)
#include "tst_AttributeRecords.moc"
