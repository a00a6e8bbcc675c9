#include "AnalysisFiles.h"
#include "EmptyAnalysisStores.h"
#include "FullDisk.h"
#include "NotAFile.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

class tst_AnalysisFiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheSystemLibraryIsThatOfTheSources();
    void AnInstalledLibraryIsPreferred();
    void AMissingLibraryIsProvided();
    void TheProvidedFileCanBeWrittenByItsOwner();
    void AFileThatIsThereStays_data();
    void AFileThatIsThereStays();
    void ALinkToNowhereIsNotFollowed();
    void OnlyAFileIsALibrary_data();
    void OnlyAFileIsALibrary();
    void AMissingSourceLeavesNoFile();
    void AFullDiskLeavesNoFile();
    void ALibraryThatCannotBeProvidedGivesAWarning();
    void TheFilesFillTheStores();
    void TheContentsOfTheStoresStay();
};

namespace {

QByteArray Shipped()
{
    return ContentOf(SourcePath("model/TarnFEMData/SysMaterial.xml"));
}

KVMaterialInfo* NewUserMaterial(const QString& name)
{
    auto* const material = new KVMaterialInfo;
    material->m_nType = MATERIAL_USER;
    material->m_strName = name;
    return material;
}

} // namespace

void tst_AnalysisFiles::TheSystemLibraryIsThatOfTheSources()
{
    QVERIFY(!Shipped().isEmpty());
    QCOMPARE(ContentOf(InstalledSystemMaterials()), Shipped());
}

void tst_AnalysisFiles::AnInstalledLibraryIsPreferred()
{
    const QDir program(QCoreApplication::applicationDirPath());
    const QString directory = program.filePath("../share/TarnGUICommon-" TARN_INTERFACE);
    QVERIFY(QDir().mkpath(directory));
    Put(directory + "/SysMaterial.xml", "installed");
    const QByteArray found = ContentOf(InstalledSystemMaterials());
    QVERIFY(QDir(program.filePath("../share")).removeRecursively());
    QCOMPARE(found, QByteArray("installed"));
}

void tst_AnalysisFiles::AMissingLibraryIsProvided()
{
    EnterTemporaryDirectory();
    QVERIFY(ProvideSystemMaterials());
    QCOMPARE(ContentOf("SysMaterial.xml"), Shipped());
    QCOMPARE(QDir().entryList(QDir::Files), QStringList("SysMaterial.xml"));
}

void tst_AnalysisFiles::TheProvidedFileCanBeWrittenByItsOwner()
{
    EnterTemporaryDirectory();
    QVERIFY(ProvideSystemMaterials());
    QVERIFY(QFile::permissions("SysMaterial.xml").testFlag(QFileDevice::WriteOwner));
}

void tst_AnalysisFiles::AFileThatIsThereStays_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no XML") << QByteArray("mine");
    QTest::newRow("another library") << QByteArray("<Materials version=\"1\" units=\"SI\"/>");
}

void tst_AnalysisFiles::AFileThatIsThereStays()
{
    QFETCH(QByteArray, content);
    EnterTemporaryDirectory();
    Put("SysMaterial.xml", content);
    QVERIFY(ProvideSystemMaterials());
    QCOMPARE(ContentOf("SysMaterial.xml"), content);
}

void tst_AnalysisFiles::ALinkToNowhereIsNotFollowed()
{
    EnterTemporaryDirectory();
    QVERIFY(QFile::link("elsewhere.xml", "SysMaterial.xml"));
    QVERIFY(!ProvideSystemMaterials());
    QVERIFY(!QFileInfo::exists("elsewhere.xml"));
    QVERIFY(QFileInfo("SysMaterial.xml").isSymLink());
}

void tst_AnalysisFiles::OnlyAFileIsALibrary_data()
{
    AddNotAFileRows();
}

void tst_AnalysisFiles::OnlyAFileIsALibrary()
{
    const EmptyAnalysisStores stores;
    EnterTemporaryDirectory();
    QFETCH(QString, kind);
    for (const char* const name : {"SysMaterial.xml", "UserMaterial.xml", "ElementProperty.xml"})
        QVERIFY(PutNotAFile(kind, name));
    const QStringList before = AllFiles();
    QVERIFY(!ProvideSystemMaterials());
    QVERIFY(!ReadAnalysisFiles().isEmpty());
    QCOMPARE(AllFiles(), before);
    QVERIFY(!QFileInfo("SysMaterial.xml").isFile());
}

void tst_AnalysisFiles::AMissingSourceLeavesNoFile()
{
    EnterTemporaryDirectory();
    QVERIFY(!ProvideSystemMaterials("no such file"));
    QVERIFY(QDir().isEmpty());
}

void tst_AnalysisFiles::AFullDiskLeavesNoFile()
{
    FullDisk disk;
    disk.Fill(1);
    QVERIFY(!ProvideSystemMaterials());
    QVERIFY(QDir().isEmpty());
}

void tst_AnalysisFiles::ALibraryThatCannotBeProvidedGivesAWarning()
{
    const EmptyAnalysisStores stores;
    EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("SysMaterial.xml"));
    QCOMPARE(ReadAnalysisFiles(),
             QString("No system library of materials: cannot write SysMaterial.xml"));
}

void tst_AnalysisFiles::TheFilesFillTheStores()
{
    const EmptyAnalysisStores stores;
    EnterTemporaryDirectory();
    KVMaterialData& materials = *KVMaterialData::GetInstance();
    KVPropertyData& properties = *KVPropertyData::GetInstance();
    materials.AddMaterialInfo(NewUserMaterial("mine"));
    QCOMPARE(materials.WriteXML("./UserMaterial.xml"), 0);
    materials.ClearInfo();
    auto* const property = new CQLTElemPropDef;
    property->m_strName = "plate";
    properties.AddPropInfo(property);
    QCOMPARE(properties.WriteXML("./ElementProperty.xml"), 0);
    properties.Clear();

    QCOMPARE(ReadAnalysisFiles(), QString());
    QVERIFY(materials.GetMaterialInfo("mine") != nullptr);
    QVERIFY(materials.GetMaterialInfo("Steel S355") != nullptr);
    QCOMPARE(materials.GetMaterialInfo("mine")->m_nType, int(MATERIAL_USER));
    QCOMPARE(materials.GetMaterialInfo("Steel S355")->m_nType, int(MATERIAL_SYSTEM));
    QCOMPARE(properties.GetProptyDataMap().count("plate"), std::size_t(1));
}

void tst_AnalysisFiles::TheContentsOfTheStoresStay()
{
    const EmptyAnalysisStores stores;
    EnterTemporaryDirectory();
    KVMaterialData& materials = *KVMaterialData::GetInstance();
    KVMaterialInfo* const unwritten = NewUserMaterial("unwritten");
    materials.AddMaterialInfo(unwritten);
    ReadAnalysisFiles();
    QCOMPARE(materials.GetMaterialNameList(), QStringList("unwritten"));
    QCOMPARE(materials.GetMaterialInfo("unwritten"), unwritten);
}

TARN_TEST_MAIN(tst_AnalysisFiles)
#include "tst_AnalysisFiles.moc"
