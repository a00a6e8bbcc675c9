#include "MaterialStoreTest.h"
#include "NotAFile.h"
#include "TestFiles.h"
#include "XmlFiles.h"

/// Reading and writing the files of materials.
class tst_KVMaterialDataFiles : public MaterialStoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void AUserFileFillsTheFirstTriple();
    void ASystemFileFillsTheSecondTriple();
    void BothTriplesOfAUserMaterialAreKept();
    void AFileWithBothTriplesIsNotCopied();
    void AWrittenFileCanBeReadAsASystemFile();
    void AUserMaterialIsNotLostToTheSystemLibrary();
    void ReadingAgainChangesTheRecordsInPlace();
    void OnlyUserMaterialsAreWritten();
    void TheNameInTheFileIsTheOneInTheStore();
    void AnyTextReadsBackExactly_data();
    void AnyTextReadsBackExactly();
    void AWrittenFileFitsItsSchema();
    void TheSchemaRefusesInvalidFiles_data();
    void TheSchemaRefusesInvalidFiles();
    void ARefusedFileChangesNothing_data();
    void ARefusedFileChangesNothing();
    void OnlyRegularFilesAreAccepted_data();
    void OnlyRegularFilesAreAccepted();
    void PathsWithoutAFileAreRefused();
    void UnknownContentIsSkipped();
    void AMillionRecordsAreRead();
    void ATextTooLongToBeReadIsNotWritten();
    void ThePathIsInTheLocalCodePage();
    void AsMuchAsLineEditsHoldIsWritten();
    void ManyMaterialsReadBack();
    void TheCorpusIsReadOrRefused_data();
    void TheCorpusIsReadOrRefused();
};

void tst_KVMaterialDataFiles::AUserFileFillsTheFirstTriple()
{
    Put("UserMaterial.xml",
        File("<Material name=\"a\" elasticModulus=\"1\" poisson=\"2\" density=\"3\"/>"));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    const KVMaterialInfo& record = *Store().GetMaterialInfo("a");
    QCOMPARE(record.m_nType, 1);
    QCOMPARE(record.m_strElasticModulus, QString("1"));
    QCOMPARE(record.m_strPoisson, QString("2"));
    QCOMPARE(record.m_strDensity, QString("3"));
    QCOMPARE(record.m_strLibElasticModulus, QString());
    QCOMPARE(record.m_strLibPoisson, QString());
    QCOMPARE(record.m_strLibDensity, QString());
}

void tst_KVMaterialDataFiles::BothTriplesOfAUserMaterialAreKept()
{
    auto* const record = Record("a");
    record->m_strLibElasticModulus = "l\n1";
    record->m_strLibDensity = "l3";
    Store().AddMaterialInfo(record);
    QCOMPARE(Store().WriteXML(UserFile), 0);
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    const KVMaterialInfo& read = *Store().GetMaterialInfo("a");
    QCOMPARE(read.m_strElasticModulus, QString("1"));
    QCOMPARE(read.m_strLibElasticModulus, QString("l\n1"));
    QCOMPARE(read.m_strLibPoisson, QString());
    QCOMPARE(read.m_strLibDensity, QString("l3"));
    QCOMPARE(Complaints("UserMaterial.xml", "Materials.xsd"), QString());
}

void tst_KVMaterialDataFiles::AFileWithBothTriplesIsNotCopied()
{
    Put("UserMaterial.xml", File("<Material name=\"a\" elasticModulus=\"1\" libPoisson=\"2\"/>"));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QCOMPARE(QDir().entryList({"*.bak"}), QStringList());
    QVERIFY(ContentOf("UserMaterial.xml").contains("libPoisson=\"2\""));
}

void tst_KVMaterialDataFiles::ASystemFileFillsTheSecondTriple()
{
    Put("SysMaterial.xml",
        File("<Material name=\"a\" elasticModulus=\"1\" poisson=\"2\" density=\"3\"/>"));
    QCOMPARE(Store().ReadXML(SystemFile, MATERIAL_SYSTEM), 0);
    const KVMaterialInfo& record = *Store().GetMaterialInfo("a");
    QCOMPARE(record.m_nType, 0);
    QCOMPARE(record.m_strElasticModulus, QString());
    QCOMPARE(record.m_strPoisson, QString());
    QCOMPARE(record.m_strDensity, QString());
    QCOMPARE(record.m_strLibElasticModulus, QString("1"));
    QCOMPARE(record.m_strLibPoisson, QString("2"));
    QCOMPARE(record.m_strLibDensity, QString("3"));
}

void tst_KVMaterialDataFiles::AWrittenFileCanBeReadAsASystemFile()
{
    Store().AddMaterialInfo(Record("b", MATERIAL_USER, "1"));
    Store().AddMaterialInfo(Record("a", MATERIAL_USER, "2"));
    QCOMPARE(Store().WriteXML(UserFile), 0);
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_SYSTEM), 0);
    QCOMPARE(Contents(), QStringList({"b:0::1", "a:0::2"}));
}

void tst_KVMaterialDataFiles::AUserMaterialIsNotLostToTheSystemLibrary()
{
    Put("UserMaterial.xml", File(Line("mine", "1") + Line("both", "2")));
    Put("SysMaterial.xml", File(Line("both", "3") + Line("theirs", "4")));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Store().ReadXML(SystemFile, MATERIAL_SYSTEM), 0);
    QCOMPARE(Contents(), QStringList({"mine:1:1:", "both:1:2:", "theirs:0::4"}));

    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(SystemFile, MATERIAL_SYSTEM), 0);
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Contents(), QStringList({"both:1:2:", "theirs:0::4", "mine:1:1:"}));

    QCOMPARE(Store().WriteXML(UserFile), 0);
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Contents(), QStringList({"both:1:2:", "mine:1:1:"}));
}

void tst_KVMaterialDataFiles::ReadingAgainChangesTheRecordsInPlace()
{
    Put("SysMaterial.xml", File(Line("a", "1") + Line("b", "2") + Line("a", "3")));
    QCOMPARE(Store().ReadXML(SystemFile, MATERIAL_SYSTEM), 0);
    QCOMPARE(Contents(), QStringList({"a:0::3", "b:0::2"}));
    const KVMaterialInfo* const before = Store().GetMaterialInfo("b");
    Put("SysMaterial.xml", File(Line("b", "4")));
    QCOMPARE(Store().ReadXML(SystemFile, MATERIAL_SYSTEM), 0);
    QCOMPARE(Contents(), QStringList({"a:0::3", "b:0::4"}));
    QCOMPARE(Store().GetMaterialInfo("b"), before);
}

void tst_KVMaterialDataFiles::OnlyUserMaterialsAreWritten()
{
    Store().AddMaterialInfo(Record("system", MATERIAL_SYSTEM));
    Store().AddMaterialInfo(Record("user", MATERIAL_USER));
    Store().AddMaterialInfo(Record("unknown", 2));
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QCOMPARE(Store().MapDataRow(), 3);
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Store().GetMaterialNameList(), QStringList("user"));
}

void tst_KVMaterialDataFiles::TheNameInTheFileIsTheOneInTheStore()
{
    Store().AddMaterialInfo(Record("a", MATERIAL_USER, "1"));
    Store().AddMaterialInfo(Record("b", MATERIAL_USER, "2"));
    Store().GetMaterialInfo("a")->m_strName = "b";
    QCOMPARE(Store().WriteXML(UserFile), 0);
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Contents(), QStringList({"a:1:1:", "b:1:2:"}));
}

void tst_KVMaterialDataFiles::AnyTextReadsBackExactly_data()
{
    AddTextRows();
}

void tst_KVMaterialDataFiles::AnyTextReadsBackExactly()
{
    QFETCH(QString, text);
    KVMaterialInfo* const written = Record(text, MATERIAL_USER, "E" + text.left(100));
    written->m_strPoisson = text.left(100) + "p";
    written->m_strDensity = text.left(100);
    Store().AddMaterialInfo(written);
    Store().AddMaterialInfo(Record("next"));
    const KVMaterialInfo before = *written;
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QCOMPARE(Complaints("UserMaterial.xml", "Materials.xsd"), QString());

    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Store().GetMaterialNameList(), QStringList({before.m_strName, "next"}));
    const KVMaterialInfo& read = *Store().GetMaterialInfo(before.m_strName);
    QCOMPARE(read.m_strName, before.m_strName);
    QCOMPARE(read.m_strElasticModulus, before.m_strElasticModulus);
    QCOMPARE(read.m_strPoisson, before.m_strPoisson);
    QCOMPARE(read.m_strDensity, before.m_strDensity);
}

void tst_KVMaterialDataFiles::AWrittenFileFitsItsSchema()
{
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QCOMPARE(Complaints("UserMaterial.xml", "Materials.xsd"), QString());
    Store().AddMaterialInfo(Record(QStringLiteral("结构钢 <&\">")));
    Store().AddMaterialInfo(Record(""));
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QCOMPARE(Complaints("UserMaterial.xml", "Materials.xsd"), QString());
    QVERIFY(ContentOf("UserMaterial.xml").startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
}

void tst_KVMaterialDataFiles::TheSchemaRefusesInvalidFiles_data()
{
    AddUnfitRows("Materials", "SI", "Material");
}

void tst_KVMaterialDataFiles::TheSchemaRefusesInvalidFiles()
{
    QFETCH(QByteArray, content);
    Put("unfit.xml", content);
    QVERIFY(!Complaints("unfit.xml", "Materials.xsd").isEmpty());
}

void tst_KVMaterialDataFiles::ARefusedFileChangesNothing_data()
{
    AddRefusedRows("Materials", "SI", "Material");
}

void tst_KVMaterialDataFiles::ARefusedFileChangesNothing()
{
    QFETCH(QByteArray, content);
    Store().AddMaterialInfo(Record("old", MATERIAL_USER, "1"));
    Put("UserMaterial.xml", content);
    QVERIFY(Store().ReadXML(UserFile, MATERIAL_USER) != 0);
    QVERIFY(Store().ReadXML(UserFile, MATERIAL_SYSTEM) != 0);
    QCOMPARE(Contents(), QStringList("old:1:1:"));
}

void tst_KVMaterialDataFiles::OnlyRegularFilesAreAccepted_data()
{
    AddNotAFileRows();
}

void tst_KVMaterialDataFiles::OnlyRegularFilesAreAccepted()
{
    QFETCH(QString, kind);
    QVERIFY(PutNotAFile(kind, "UserMaterial.xml"));
    const QStringList before = AllFiles();
    QVERIFY(Store().ReadXML(UserFile, MATERIAL_USER) != 0);
    QVERIFY(Store().WriteXML(UserFile) != 0);
    QVERIFY(!QFileInfo("UserMaterial.xml").isFile());
    QCOMPARE(AllFiles(), before);
}

void tst_KVMaterialDataFiles::PathsWithoutAFileAreRefused()
{
    QDir().mkdir("directory");
    QVERIFY(Store().ReadXML("missing.xml", MATERIAL_USER) != 0);
    QVERIFY(Store().ReadXML("directory", MATERIAL_USER) != 0);
    QVERIFY(Store().ReadXML("", MATERIAL_USER) != 0);
    QVERIFY(Store().ReadXML("/dev/zero", MATERIAL_USER) != 0);
    QVERIFY(Store().WriteXML("directory") != 0);
    QVERIFY(Store().WriteXML("") != 0);
    QVERIFY(Store().WriteXML("missing/UserMaterial.xml") != 0);
    QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("directory"));
}

void tst_KVMaterialDataFiles::UnknownContentIsSkipped()
{
    Put("UserMaterial.xml",
        "\xEF\xBB\xBF<?xml version=\"1.0\"?><!-- mine --><?style x?>"
        "<Materials units=\"SI\" version=\"1\" by=\"me\" xmlns:x=\"urn:x\"><Note>Text<Material "
        "name=\"inner\"/></Note>text<![CDATA[<Material name=\"text\"/>]]>"
        "<x:Material name=\"foreign\"/><Material density=\"3\" colour=\"grey\" x:name=\"b\" "
        "name=\"a\"><Colour><b/></Colour></Material><!-- end --></Materials>\n");
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Store().GetMaterialNameList(), QStringList("a"));
    QCOMPARE(Store().GetMaterialInfo("a")->m_strDensity, QString("3"));
    QCOMPARE(Store().GetMaterialInfo("a")->m_strPoisson, QString());
}

void tst_KVMaterialDataFiles::AMillionRecordsAreRead()
{
    // The maximum; one more is refused.
    Put("UserMaterial.xml", File(QByteArray("<Material name=\"\"/>").repeated(1000000)));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Store().MapDataRow(), 1);
}

void tst_KVMaterialDataFiles::ATextTooLongToBeReadIsNotWritten()
{
    QCOMPARE(Store().WriteXML(UserFile), 0);
    const QByteArray before = ContentOf("UserMaterial.xml");
    Store().AddMaterialInfo(Record(QString(2000000, 'x')));
    QVERIFY(Store().WriteXML(UserFile) != 0);
    QCOMPARE(ContentOf("UserMaterial.xml"), before);
}

void tst_KVMaterialDataFiles::ThePathIsInTheLocalCodePage()
{
    UseCodePage("GB18030");
    const QString name = QStringLiteral("材料.xml");
    Store().AddMaterialInfo(Record("a"));
    QCOMPARE(Store().WriteXML(name.toLocal8Bit().toStdString()), 0);
    QVERIFY(QFile::exists(name));
    QCOMPARE(Store().ReadXML(name.toLocal8Bit().toStdString(), MATERIAL_USER), 0);
    QVERIFY(QFile::remove(name));
}

void tst_KVMaterialDataFiles::AsMuchAsLineEditsHoldIsWritten()
{
    // The longest text of a line edit, with the characters that take most space in the file.
    const QString full(32767, '\\');
    KVMaterialInfo* const written = Record(full);
    written->m_strElasticModulus = full;
    written->m_strPoisson = full;
    written->m_strDensity = full;
    Store().AddMaterialInfo(written);
    QCOMPARE(Store().WriteXML(UserFile), 0);
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    const KVMaterialInfo& read = *Store().GetMaterialInfo(full);
    QCOMPARE(read.m_strElasticModulus, full);
    QCOMPARE(read.m_strDensity, full);
}

void tst_KVMaterialDataFiles::ManyMaterialsReadBack()
{
    const int count = 20000;
    for (int i = 0; i < count; ++i)
        Store().AddMaterialInfo(Record(QString::number((i * 7919) % count)));
    const QStringList names = Store().GetMaterialNameList();
    QCOMPARE(Store().WriteXML(UserFile), 0);
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Store().GetMaterialNameList(), names);
    QCOMPARE(Store().MapDataRow(), count);
}

void tst_KVMaterialDataFiles::TheCorpusIsReadOrRefused_data()
{
    AddCorpusRows("KVMaterialData");
}

void tst_KVMaterialDataFiles::TheCorpusIsReadOrRefused()
{
    QFETCH(QString, file);
    Store().AddMaterialInfo(Record("old"));
    const int result = Store().ReadXML(file.toLocal8Bit().toStdString(), MATERIAL_USER);
    CheckCorpusResult(file, result);
    if (result != 0) {
        QCOMPARE(Contents(), QStringList("old:1:1:"));
        return;
    }
    const QStringList before = Contents();
    QCOMPARE(Store().WriteXML(UserFile), 0);
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Contents(), before);
}

TARN_TEST_MAIN(tst_KVMaterialDataFiles)
#include "tst_KVMaterialDataFiles.moc"
