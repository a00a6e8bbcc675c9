#include "AnalysisStores.h"
#include "EmptyAnalysisStores.h"
#include "KVMaterialData.h"
#include "KVPropertyData.h"
#include "TestCase.h"
#include "TestFiles.h"

class tst_AnalysisStores : public With<TestCase, EmptyAnalysisStores>
{
    Q_OBJECT

private Q_SLOTS:
    void AnotherFolderShowsNothingOfTheFormer();
    void FormerContentReturns();
    void TheFileIsWrittenWhereItIsNeeded();
};

namespace {

void AddProperty(const QString& name)
{
    auto* const property = new CQLTElemPropDef;
    property->m_strName = name;
    KVPropertyData::GetInstance()->AddPropInfo(property);
}

void AddMaterial(const QString& name)
{
    auto* const material = new KVMaterialInfo;
    material->m_nType = MATERIAL_USER;
    material->m_strName = name;
    material->m_strDensity = "7000";
    KVMaterialData::GetInstance()->AddMaterialInfo(material);
}

} // namespace

void tst_AnalysisStores::AnotherFolderShowsNothingOfTheFormer()
{
    EnterTemporaryDirectory();
    AddProperty("web");
    AddMaterial("mine");
    QCOMPARE(AnalysisStores::Write(), QString());
    EnterTemporaryDirectory();
    AnalysisStores::Open();
    QVERIFY(KVPropertyData::GetInstance()->GetProptyDataMap().empty());
    QVERIFY(AnalysisStores::Current().materials.empty());
    // The library of the system is there, and nothing was written.
    QVERIFY(KVMaterialData::GetInstance()->MapDataRow() > 0);
    QCOMPARE(AllFiles(), QStringList());
}

void tst_AnalysisStores::FormerContentReturns()
{
    EnterTemporaryDirectory();
    AddMaterial("old");
    QCOMPARE(AnalysisStores::Write(), QString());
    const AnalysisStores former = AnalysisStores::Current();
    KVMaterialData::GetInstance()->RemoveItem("old");
    AddMaterial("new");
    QVERIFY(AnalysisStores::Current() != former);

    QCOMPARE(former.Apply(), QString());
    QVERIFY(AnalysisStores::Current() == former);
    // The dialogs read the file again.
    AnalysisStores::Open();
    QVERIFY(AnalysisStores::Current() == former);
}

void tst_AnalysisStores::TheFileIsWrittenWhereItIsNeeded()
{
    EnterTemporaryDirectory();
    AnalysisStores::Open();
    QCOMPARE(AnalysisStores::Write(), QString());
    QCOMPARE(AllFiles(), QStringList());
    AddMaterial("mine");
    QCOMPARE(AnalysisStores::Write(), QString());
    QCOMPARE(AllFiles(), QStringList("UserMaterial.xml"));
}

TARN_TEST_MAIN(tst_AnalysisStores)
#include "tst_AnalysisStores.moc"
