#include "EmptyAnalysisStores.h"
#include "KVMaterialData.h"
#include "MaterialLibrary.h"
#include "TestCase.h"

#include <QDir>

class tst_MaterialLibrary : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheUsersMaterialsAreReadFromTheFolder();
    void TheMaterialsOfAnotherFolderAreGone();
    void AUserMaterialHidesASystemMaterialOfItsName();
    void MaterialsThatCannotBeUsedAreReported_data();
    void MaterialsThatCannotBeUsedAreReported();
    void TheDensityNeedsNoOtherValue();
    void TheSourceOfAMaterialIsKnown();
};

namespace {

KVMaterialInfo* UserMaterial(const QString& name, const QString& modulus = "210e9",
                             const QString& poisson = "0.3", const QString& density = "7850")
{
    auto* const material = new KVMaterialInfo;
    material->m_nType = MATERIAL_USER;
    material->m_strName = name;
    material->m_strElasticModulus = modulus;
    material->m_strPoisson = poisson;
    material->m_strDensity = density;
    return material;
}

void WriteUserFile(const QString& folder, KVMaterialInfo* material)
{
    QDir().mkpath(folder);
    KVMaterialData& store = *KVMaterialData::GetInstance();
    store.ClearInfo();
    store.AddMaterialInfo(material);
    QCOMPARE(store.WriteXML(QString(folder + "/UserMaterial.xml").toStdString()), 0);
}

} // namespace

void tst_MaterialLibrary::TheUsersMaterialsAreReadFromTheFolder()
{
    const EmptyAnalysisStores stores;
    EnterTemporaryDirectory();
    WriteUserFile("a", UserMaterial("木", "1e10", "0.2", "600"));
    ReadMaterials("a");
    const Material material = MaterialOf("木");
    QCOMPARE(material.name, QString("木"));
    QCOMPARE(material.elasticModulus, 1e10);
    QCOMPARE(material.poisson, 0.2);
    QCOMPARE(material.density, 600.0);

    const QStringList names = KVMaterialData::GetInstance()->GetMaterialNameList();
    QVERIFY2(names.size() > 1, "The system's library is missing.");
    for (const QString& name : names)
        QVERIFY(MaterialOf(name).density > 0.0);
}

void tst_MaterialLibrary::TheMaterialsOfAnotherFolderAreGone()
{
    const EmptyAnalysisStores stores;
    EnterTemporaryDirectory();
    WriteUserFile("a", UserMaterial("own"));
    ReadMaterials("a");
    ReadMaterials("b");
    try {
        MaterialOf("own");
        QFAIL("The material is still there.");
    } catch (const MaterialError& error) {
        QCOMPARE(error.Reason(), QString("The material \"own\" is neither in the system's library "
                                         "nor in UserMaterial.xml beside the project."));
    }
}

void tst_MaterialLibrary::AUserMaterialHidesASystemMaterialOfItsName()
{
    const EmptyAnalysisStores stores;
    EnterTemporaryDirectory();
    ReadMaterials(".");
    const QString name = KVMaterialData::GetInstance()->GetMaterialNameList().first();
    WriteUserFile(".", UserMaterial(name, "1"));
    ReadMaterials(".");
    QCOMPARE(MaterialOf(name).elasticModulus, 1.0);
}

void tst_MaterialLibrary::MaterialsThatCannotBeUsedAreReported_data()
{
    QTest::addColumn<QString>("modulus");
    QTest::addColumn<QString>("poisson");
    QTest::addColumn<QString>("density");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* modulus, const char* poisson,
                        const char* density, const char* reason) {
        QTest::newRow(name) << modulus << poisson << density << reason;
    };
    row("no modulus", "", "0.3", "1", "the elastic modulus \"\" is not a number.");
    row("comma", "2,1e9", "0.3", "1", "the elastic modulus \"2,1e9\" is not a number.");
    row("infinite modulus", "inf", "0.3", "1", "the elastic modulus \"inf\" is not a number.");
    row("modulus 0", "0", "0.3", "1", "the elastic modulus 0 must be greater than 0.");
    row("Poisson's ratio nan", "1", "nan", "1", "the Poisson's ratio \"nan\" is not a number.");
    row("Poisson's ratio -1", "1", "-1", "1", "Poisson's ratio -1 is not between -1 and 0.5.");
    row("Poisson's ratio 0.5", "1", "0.5", "1", "Poisson's ratio 0.5 is not between -1 and 0.5.");
    row("density below 0", "1", "0", "-1", "the density -1 must be greater than 0.");
    row("density 1e999", "1", "0", "1e999", "the density \"1e999\" is not a number.");
}

void tst_MaterialLibrary::MaterialsThatCannotBeUsedAreReported()
{
    const EmptyAnalysisStores stores;
    QFETCH(QString, modulus);
    QFETCH(QString, poisson);
    QFETCH(QString, density);
    QFETCH(QString, reason);
    KVMaterialData::GetInstance()->AddMaterialInfo(UserMaterial("m", modulus, poisson, density));
    try {
        MaterialOf("m");
        QFAIL("The material was taken.");
    } catch (const MaterialError& error) {
        QCOMPARE(error.Reason(), "Material \"m\": " + reason);
    }
}

void tst_MaterialLibrary::TheDensityNeedsNoOtherValue()
{
    const EmptyAnalysisStores stores;
    KVMaterialData::GetInstance()->AddMaterialInfo(UserMaterial("m", "", "", "1200"));
    QCOMPARE(DensityOf("m"), 1200.0);
    QVERIFY_EXCEPTION_THROWN(DensityOf("n"), MaterialError);
}

void tst_MaterialLibrary::TheSourceOfAMaterialIsKnown()
{
    const EmptyAnalysisStores stores;
    EnterTemporaryDirectory();
    WriteUserFile("a", UserMaterial("Steel S355"));
    ReadMaterials("a");
    QCOMPARE(SourceOf("Steel S355"), QString("a material of yours, in UserMaterial.xml"));
    QCOMPARE(SourceOf("unknown"), QString());
    ReadMaterials("elsewhere");
    const QString source = SourceOf("Steel S355");
    QVERIFY2(source.startsWith("EN 1993-1-1:2005, 3.2.6"), qPrintable(source));
    const QStringList names = KVMaterialData::GetInstance()->GetMaterialNameList();
    for (const QString& name : names)
        QVERIFY2(!SourceOf(name).isEmpty(), qPrintable(name));
}

TARN_TEST_MAIN(tst_MaterialLibrary)
#include "tst_MaterialLibrary.moc"
