#include "KVMaterialData.h"
#include "TestCase.h"
#include "XmlFiles.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

const std::string UserFile = "./UserMaterial.xml";
const std::string SystemFile = "./SysMaterial.xml";

KVMaterialData& Store()
{
    return *KVMaterialData::GetInstance();
}

KVMaterialInfo* Record(const QString& name, int type = MATERIAL_USER,
                       const QString& modulus = QStringLiteral("1"))
{
    auto* const record = new KVMaterialInfo;
    record->m_nType = type;
    record->m_strName = name;
    (type == MATERIAL_SYSTEM ? record->m_strLibElasticModulus : record->m_strElasticModulus) =
        modulus;
    return record;
}

QByteArray File(const QByteArray& records)
{
    return "<Materials version=\"1\" units=\"SI\">" + records + "</Materials>";
}

QByteArray Line(const QByteArray& name, const QByteArray& modulus)
{
    return "<Material name=\"" + name + "\" elasticModulus=\"" + modulus + "\"/>";
}

/// All materials as "name:type:first modulus:second modulus".
QStringList Contents()
{
    QStringList contents;
    const QStringList names = Store().GetMaterialNameList();
    for (const QString& name : names) {
        const KVMaterialInfo& record = *Store().GetMaterialInfo(name);
        contents << QStringLiteral("%1:%2:%3:%4")
                        .arg(record.m_strName, QString::number(record.m_nType),
                             record.m_strElasticModulus, record.m_strLibElasticModulus);
    }
    return contents;
}

} // namespace

class tst_KVMaterialData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ThereIsOneStore();
    void MaterialsKeepTheOrderOfEntry();
    void AnUnknownNameGivesNull();
    void ANullRecordIsIgnored();
    void AUserMaterialWins();
    void AUserMaterialWins_data();
    void AMaterialOfTheSameTypeReplacesInPlace();
    void NamesDifferInCase();
    void ARecordHeldAlreadyIsHeldOnce();
    void ARenamedRecordMovesToItsNewName();
    void ARecordRenamedOntoAnotherReplacesIt();
    void AReplacedRecordCanBeGivenAgain();
    void PointersLiveUntilTheStoreIsCleared();
    void RemovingAnUnknownNameChangesNothing();
    void ANameRemovedAndEnteredAgainComesLast();
    void ClearingForgetsAll();
    void TheCurrentNameIsRemembered();

    void AUserFileFillsTheFirstTriple();
    void ASystemFileFillsTheSecondTriple();
    void AWrittenFileCanBeReadAsASystemFile();
    void AUserMaterialIsNotLostToTheSystemLibrary();
    void ReadingAgainChangesTheRecordsInPlace();
    void OnlyUserMaterialsAreWritten();
    void TheNameInTheFileIsTheOneInTheStore();
    void AnyTextReadsBackExactly();
    void AnyTextReadsBackExactly_data();
    void AWrittenFileFitsItsSchema();
    void TheSchemaRefusesWhatIsUnfit();
    void TheSchemaRefusesWhatIsUnfit_data();
    void ARefusedFileChangesNothing();
    void ARefusedFileChangesNothing_data();
    void WhatIsNotAFileIsRefused();
    void WhatIsUnknownIsSkipped();
    void AMillionRecordsAreRead();
    void ATextTooLongToBeReadIsNotWritten();
    void ThePathIsInTheLocalCodePage();
    void AFileNotReadIsKeptAsACopy();
    void AFileNotReadIsKeptAsACopy_data();
    void AFileReadInFullIsReplaced();
    void AFileReadTwiceIsReplaced();
    void ClearingForgetsWhatWasRead();
    void AFullDiskIsToldAndLeavesTheOldFile();
    void AsMuchAsLineEditsHoldIsWritten();
    void AFileChangedSinceItWasReadIsKept();
    void ManyMaterialsReadBack();
    void TheCorpusIsReadOrRefused();
    void TheCorpusIsReadOrRefused_data();

    void TheSystemLibraryIsComplete();
    void TheSystemLibraryFitsItsSchema();

private:
    void Start();
};

/// Begins with an empty store in an empty directory.
void tst_KVMaterialData::Start()
{
    EnterTemporaryDirectory();
    Store().ClearInfo();
    Store().setCurrentMaterialName({});
}

void tst_KVMaterialData::ThereIsOneStore()
{
    Start();
    QVERIFY(KVMaterialData::GetInstance() != nullptr);
    QCOMPARE(KVMaterialData::GetInstance(), KVMaterialData::GetInstance());
}

void tst_KVMaterialData::MaterialsKeepTheOrderOfEntry()
{
    Start();
    QStringList names;
    for (int i = 0; i < 100; ++i) {
        names << QString::number((i * 37) % 100);
        Store().AddMaterialInfo(Record(names.last(), i % 2));
    }
    QCOMPARE(Store().GetMaterialNameList(), names);
    QCOMPARE(Store().MapDataRow(), 100);
}

void tst_KVMaterialData::AnUnknownNameGivesNull()
{
    Start();
    Store().AddMaterialInfo(Record("a"));
    QCOMPARE(Store().GetMaterialInfo("b"), static_cast<KVMaterialInfo*>(nullptr));
    QCOMPARE(Store().MapDataRow(), 1);
}

void tst_KVMaterialData::ANullRecordIsIgnored()
{
    Start();
    Store().AddMaterialInfo(nullptr);
    QCOMPARE(Store().MapDataRow(), 0);
}

void tst_KVMaterialData::AUserMaterialWins_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<bool>("secondIsHeld");
    QTest::newRow("user over system") << 0 << 1 << true;
    QTest::newRow("system after user") << 1 << 0 << false;
    QTest::newRow("user over user") << 1 << 1 << true;
    QTest::newRow("system over system") << 0 << 0 << true;
    QTest::newRow("unknown after user") << 1 << 7 << false;
    QTest::newRow("user over unknown") << 7 << 1 << true;
}

void tst_KVMaterialData::AUserMaterialWins()
{
    Start();
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(bool, secondIsHeld);
    KVMaterialInfo* const one = Record("a", first);
    KVMaterialInfo* const other = Record("a", second);
    Store().AddMaterialInfo(one);
    Store().AddMaterialInfo(Record("b"));
    Store().AddMaterialInfo(other);
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"a", "b"}));
    QCOMPARE(Store().GetMaterialInfo("a"), secondIsHeld ? other : one);
    QCOMPARE(one->m_nType, first);
    QCOMPARE(other->m_nType, second);
}

void tst_KVMaterialData::AMaterialOfTheSameTypeReplacesInPlace()
{
    Start();
    Store().AddMaterialInfo(Record("a", MATERIAL_USER, "1"));
    Store().AddMaterialInfo(Record("b", MATERIAL_USER, "2"));
    Store().AddMaterialInfo(Record("a", MATERIAL_USER, "3"));
    QCOMPARE(Contents(), QStringList({"a:1:3:", "b:1:2:"}));
}

void tst_KVMaterialData::NamesDifferInCase()
{
    Start();
    Store().AddMaterialInfo(Record("steel"));
    Store().AddMaterialInfo(Record("Steel"));
    QCOMPARE(Store().MapDataRow(), 2);
}

void tst_KVMaterialData::ARecordHeldAlreadyIsHeldOnce()
{
    Start();
    KVMaterialInfo* const record = Record("a");
    Store().AddMaterialInfo(record);
    Store().AddMaterialInfo(record);
    QCOMPARE(Store().GetMaterialNameList(), QStringList("a"));
    QCOMPARE(Store().GetMaterialInfo("a"), record);
}

void tst_KVMaterialData::ARenamedRecordMovesToItsNewName()
{
    Start();
    KVMaterialInfo* const record = Record("a");
    Store().AddMaterialInfo(record);
    Store().AddMaterialInfo(Record("b"));
    record->m_strName = "c";
    Store().AddMaterialInfo(record);
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"c", "b"}));
    QCOMPARE(Store().GetMaterialInfo("c"), record);
    QVERIFY(Store().GetMaterialInfo("a") == nullptr);
}

void tst_KVMaterialData::ARecordRenamedOntoAnotherReplacesIt()
{
    Start();
    KVMaterialInfo* const record = Record("a");
    KVMaterialInfo* const other = Record("b");
    Store().AddMaterialInfo(record);
    Store().AddMaterialInfo(other);
    record->m_strName = "b";
    Store().AddMaterialInfo(record);
    QCOMPARE(Store().GetMaterialNameList(), QStringList("b"));
    QCOMPARE(Store().GetMaterialInfo("b"), record);
    QCOMPARE(other->m_strName, QString("b"));
}

void tst_KVMaterialData::AReplacedRecordCanBeGivenAgain()
{
    Start();
    KVMaterialInfo* const record = Record("a");
    Store().AddMaterialInfo(record);
    Store().AddMaterialInfo(Record("a"));
    Store().AddMaterialInfo(record);
    QCOMPARE(Store().GetMaterialInfo("a"), record);
    Store().RemoveItem("a");
    Store().AddMaterialInfo(record);
    QCOMPARE(Store().GetMaterialInfo("a"), record);
    QCOMPARE(Store().MapDataRow(), 1);
}

void tst_KVMaterialData::PointersLiveUntilTheStoreIsCleared()
{
    Start();
    KVMaterialInfo* const replaced = Record("replaced", MATERIAL_SYSTEM, "1");
    KVMaterialInfo* const removed = Record("removed", MATERIAL_USER, "2");
    KVMaterialInfo* const refused = Record("kept", MATERIAL_SYSTEM, "3");
    KVMaterialInfo* const kept = Record("kept", MATERIAL_USER, "4");
    for (KVMaterialInfo* const record : {replaced, removed, kept, refused})
        Store().AddMaterialInfo(record);
    Store().AddMaterialInfo(Record("replaced"));
    Store().RemoveItem("removed");
    Put("UserMaterial.xml", File(Line("replaced", "5") + Line("kept", "6")));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);

    QCOMPARE(replaced->m_strLibElasticModulus, QString("1"));
    QCOMPARE(removed->m_strElasticModulus, QString("2"));
    QCOMPARE(refused->m_strLibElasticModulus, QString("3"));
    QCOMPARE(kept->m_strElasticModulus, QString("6"));
    QCOMPARE(Store().GetMaterialInfo("kept"), kept);
    removed->m_strName = "still there";
}

void tst_KVMaterialData::RemovingAnUnknownNameChangesNothing()
{
    Start();
    Store().AddMaterialInfo(Record("a"));
    Store().RemoveItem("b");
    QCOMPARE(Store().GetMaterialNameList(), QStringList("a"));
}

void tst_KVMaterialData::ANameRemovedAndEnteredAgainComesLast()
{
    Start();
    Store().AddMaterialInfo(Record("a"));
    Store().AddMaterialInfo(Record("b"));
    Store().RemoveItem(Store().GetMaterialInfo("a")->m_strName);
    QCOMPARE(Store().MapDataRow(), 1);
    QVERIFY(Store().GetMaterialInfo("a") == nullptr);
    Store().AddMaterialInfo(Record("a"));
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"b", "a"}));
}

void tst_KVMaterialData::ClearingForgetsAll()
{
    Start();
    Store().AddMaterialInfo(Record("a"));
    Store().ClearInfo();
    QCOMPARE(Store().MapDataRow(), 0);
    QCOMPARE(Store().GetMaterialNameList(), QStringList());
    QVERIFY(Store().GetMaterialInfo("a") == nullptr);
}

void tst_KVMaterialData::TheCurrentNameIsRemembered()
{
    Start();
    QCOMPARE(Store().CurrentMaterialName(), QString());
    Store().setCurrentMaterialName("not in the store");
    Store().ClearInfo();
    QCOMPARE(Store().CurrentMaterialName(), QString("not in the store"));
    Store().setCurrentMaterialName("");
    QCOMPARE(Store().CurrentMaterialName(), QString());
}

void tst_KVMaterialData::AUserFileFillsTheFirstTriple()
{
    Start();
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

void tst_KVMaterialData::ASystemFileFillsTheSecondTriple()
{
    Start();
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

void tst_KVMaterialData::AWrittenFileCanBeReadAsASystemFile()
{
    Start();
    Store().AddMaterialInfo(Record("b", MATERIAL_USER, "1"));
    Store().AddMaterialInfo(Record("a", MATERIAL_USER, "2"));
    QCOMPARE(Store().WriteXML(UserFile), 0);
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_SYSTEM), 0);
    QCOMPARE(Contents(), QStringList({"b:0::1", "a:0::2"}));
}

void tst_KVMaterialData::AUserMaterialIsNotLostToTheSystemLibrary()
{
    Start();
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

void tst_KVMaterialData::ReadingAgainChangesTheRecordsInPlace()
{
    Start();
    Put("SysMaterial.xml", File(Line("a", "1") + Line("b", "2") + Line("a", "3")));
    QCOMPARE(Store().ReadXML(SystemFile, MATERIAL_SYSTEM), 0);
    QCOMPARE(Contents(), QStringList({"a:0::3", "b:0::2"}));
    const KVMaterialInfo* const before = Store().GetMaterialInfo("b");
    Put("SysMaterial.xml", File(Line("b", "4")));
    QCOMPARE(Store().ReadXML(SystemFile, MATERIAL_SYSTEM), 0);
    QCOMPARE(Contents(), QStringList({"a:0::3", "b:0::4"}));
    QCOMPARE(Store().GetMaterialInfo("b"), before);
}

void tst_KVMaterialData::OnlyUserMaterialsAreWritten()
{
    Start();
    Store().AddMaterialInfo(Record("system", MATERIAL_SYSTEM));
    Store().AddMaterialInfo(Record("user", MATERIAL_USER));
    Store().AddMaterialInfo(Record("unknown", 2));
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QCOMPARE(Store().MapDataRow(), 3);
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Store().GetMaterialNameList(), QStringList("user"));
}

void tst_KVMaterialData::TheNameInTheFileIsTheOneInTheStore()
{
    Start();
    Store().AddMaterialInfo(Record("a", MATERIAL_USER, "1"));
    Store().AddMaterialInfo(Record("b", MATERIAL_USER, "2"));
    Store().GetMaterialInfo("a")->m_strName = "b";
    QCOMPARE(Store().WriteXML(UserFile), 0);
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Contents(), QStringList({"a:1:1:", "b:1:2:"}));
}

void tst_KVMaterialData::AnyTextReadsBackExactly_data()
{
    AddTextRows();
}

void tst_KVMaterialData::AnyTextReadsBackExactly()
{
    Start();
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

void tst_KVMaterialData::AWrittenFileFitsItsSchema()
{
    Start();
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QCOMPARE(Complaints("UserMaterial.xml", "Materials.xsd"), QString());
    Store().AddMaterialInfo(Record(QStringLiteral("结构钢 <&\">")));
    Store().AddMaterialInfo(Record(""));
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QCOMPARE(Complaints("UserMaterial.xml", "Materials.xsd"), QString());
    QVERIFY(ContentOf("UserMaterial.xml").startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
}

void tst_KVMaterialData::TheSchemaRefusesWhatIsUnfit_data()
{
    AddUnfitRows("Materials", "SI", "Material");
}

void tst_KVMaterialData::TheSchemaRefusesWhatIsUnfit()
{
    Start();
    QFETCH(QByteArray, content);
    Put("unfit.xml", content);
    QVERIFY(!Complaints("unfit.xml", "Materials.xsd").isEmpty());
}

void tst_KVMaterialData::ARefusedFileChangesNothing_data()
{
    AddRefusedRows("Materials", "SI", "Material");
}

void tst_KVMaterialData::ARefusedFileChangesNothing()
{
    Start();
    QFETCH(QByteArray, content);
    Store().AddMaterialInfo(Record("old", MATERIAL_USER, "1"));
    Put("UserMaterial.xml", content);
    QVERIFY(Store().ReadXML(UserFile, MATERIAL_USER) != 0);
    QVERIFY(Store().ReadXML(UserFile, MATERIAL_SYSTEM) != 0);
    QCOMPARE(Contents(), QStringList("old:1:1:"));
}

void tst_KVMaterialData::WhatIsNotAFileIsRefused()
{
    Start();
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

void tst_KVMaterialData::WhatIsUnknownIsSkipped()
{
    Start();
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

void tst_KVMaterialData::AMillionRecordsAreRead()
{
    // The most there may be; one more is refused.
    Start();
    Put("UserMaterial.xml", File(QByteArray("<Material name=\"\"/>").repeated(1000000)));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Store().MapDataRow(), 1);
}

void tst_KVMaterialData::ATextTooLongToBeReadIsNotWritten()
{
    Start();
    QCOMPARE(Store().WriteXML(UserFile), 0);
    const QByteArray before = ContentOf("UserMaterial.xml");
    Store().AddMaterialInfo(Record(QString(2000000, 'x')));
    QVERIFY(Store().WriteXML(UserFile) != 0);
    QCOMPARE(ContentOf("UserMaterial.xml"), before);
}

void tst_KVMaterialData::ThePathIsInTheLocalCodePage()
{
    Start();
    UseCodePage("GB18030");
    const QString name = QStringLiteral("材料.xml");
    Store().AddMaterialInfo(Record("a"));
    QCOMPARE(Store().WriteXML(name.toLocal8Bit().toStdString()), 0);
    QVERIFY(QFile::exists(name));
    QCOMPARE(Store().ReadXML(name.toLocal8Bit().toStdString(), MATERIAL_USER), 0);
    QVERIFY(QFile::remove(name));
}

void tst_KVMaterialData::AFileNotReadIsKeptAsACopy_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("type");
    const int notRead = -1;
    QTest::newRow("not read") << File(Line("a", "1")) << notRead;
    QTest::newRow("empty") << QByteArray() << 1;
    QTest::newRow("damaged") << File(Line("a", "1")).chopped(1) << 1;
    QTest::newRow("newer") << QByteArray("<Materials version=\"2\" units=\"SI\"/>") << 1;
    QTest::newRow("another root") << QByteArray("<Other/>") << 1;
    QTest::newRow("only as system") << File(Line("a", "1")) << 0;
    QTest::newRow("unknown element") << File("<Colour/>") << 1;
    QTest::newRow("element in a material")
        << File("<Material name=\"a\"><Colour/></Material>") << 1;
    QTest::newRow("unknown attribute") << File("<Material name=\"a\" colour=\"grey\"/>") << 1;
    QTest::newRow("unknown root attribute")
        << QByteArray("<Materials version=\"1\" units=\"SI\" by=\"me\"/>") << 1;
    QTest::newRow("comment") << File("<!-- mine -->") << 1;
    QTest::newRow("processing instruction") << File("<?mine?>") << 1;
    QTest::newRow("text") << File("mine") << 1;
    QTest::newRow("a name twice") << File(Line("a", "1") + Line("a", "2")) << 1;
}

void tst_KVMaterialData::AFileNotReadIsKeptAsACopy()
{
    Start();
    QFETCH(QByteArray, content);
    QFETCH(int, type);
    Put("UserMaterial.xml", content);
    if (type >= 0)
        Store().ReadXML(UserFile, MATERIAL_TYPE(type));
    Store().AddMaterialInfo(Record("new"));
    QCOMPARE(Store().WriteXML(UserFile), 0);

    const QStringList copies = CopiesOf("UserMaterial.xml");
    QCOMPARE(copies.size(), 1);
    static const QRegularExpression name("^UserMaterial\\.xml\\.\\d{8}-\\d{6}-\\d{3}\\.bak$");
    QVERIFY2(name.match(copies.first()).hasMatch(), qPrintable(copies.first()));
    QCOMPARE(ContentOf(copies.first()), content);

    Store().AddMaterialInfo(Record("newer"));
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QCOMPARE(CopiesOf("UserMaterial.xml"), copies);
}

void tst_KVMaterialData::AFileReadInFullIsReplaced()
{
    Start();
    Put("UserMaterial.xml", File(Line("a", "1")));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    Store().RemoveItem("a");
    QCOMPARE(Store().WriteXML("UserMaterial.xml"), 0);
    QCOMPARE(CopiesOf("UserMaterial.xml"), QStringList());
}

void tst_KVMaterialData::AFileReadTwiceIsReplaced()
{
    Start();
    Put("UserMaterial.xml", File(Line("a", "1") + Line("b", "2")));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    Put("UserMaterial.xml", File(Line("b", "3") + Line("c", "4")));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Contents(), QStringList({"a:1:1:", "b:1:3:", "c:1:4:"}));
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QCOMPARE(CopiesOf("UserMaterial.xml"), QStringList());
}

void tst_KVMaterialData::ClearingForgetsWhatWasRead()
{
    Start();
    Put("UserMaterial.xml", File(Line("a", "1")));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    Store().ClearInfo();
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QCOMPARE(CopiesOf("UserMaterial.xml").size(), 1);
}

void tst_KVMaterialData::AFileChangedSinceItWasReadIsKept()
{
    Start();
    Put("UserMaterial.xml", File(Line("a", "1")));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    const QByteArray changed = File(Line("b", "2"));
    Put("UserMaterial.xml", changed);
    QCOMPARE(Store().WriteXML(UserFile), 0);
    const QStringList copies = CopiesOf("UserMaterial.xml");
    QCOMPARE(copies.size(), 1);
    QCOMPARE(ContentOf(copies.first()), changed);
}

void tst_KVMaterialData::AFullDiskIsToldAndLeavesTheOldFile()
{
    Start();
    Store().AddMaterialInfo(Record("a"));
    QCOMPARE(Store().WriteXML(UserFile), 0);
    const QByteArray before = ContentOf("UserMaterial.xml");
    Store().AddMaterialInfo(Record("b"));
    {
        // Less than the buffer of a file: only its flush fails.
        const FullDisk full(rlim_t(before.size()));
        QVERIFY(Store().WriteXML(UserFile) != 0);
    }
    QCOMPARE(ContentOf("UserMaterial.xml"), before);
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QVERIFY(ContentOf("UserMaterial.xml") != before);
    QCOMPARE(CopiesOf("UserMaterial.xml"), QStringList());
}

void tst_KVMaterialData::AsMuchAsLineEditsHoldIsWritten()
{
    Start();
    // What a line edit takes, each character the longest in the file.
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

void tst_KVMaterialData::ManyMaterialsReadBack()
{
    Start();
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

void tst_KVMaterialData::TheCorpusIsReadOrRefused_data()
{
    AddCorpusRows("KVMaterialData");
}

void tst_KVMaterialData::TheCorpusIsReadOrRefused()
{
    Start();
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

void tst_KVMaterialData::TheSystemLibraryIsComplete()
{
    Start();
    QCOMPARE(Store().ReadXML(SourcePath("model/TarnFEMData/SysMaterial.xml").toStdString(),
                             MATERIAL_SYSTEM),
             0);
    QVERIFY(Store().MapDataRow() >= 40);
    const QStringList names = Store().GetMaterialNameList();
    for (const char* const kind :
         {"Steel ", "Stainless steel ", "Cast iron ", "Aluminium ", "Titanium ", "Nickel ",
          "Copper ", "Brass ", "PA 66", "PE-HD", "CFRP", "GFRP", "Glass", "Concrete ", "Wood"})
        QVERIFY2(!QStringList(names).filter(QRegularExpression(QString("^") + kind)).isEmpty(),
                 kind);
    for (const QString& name : names) {
        const KVMaterialInfo& record = *Store().GetMaterialInfo(name);
        const double modulus = record.m_strLibElasticModulus.toDouble();
        const double poisson = record.m_strLibPoisson.toDouble();
        const double density = record.m_strLibDensity.toDouble();
        QVERIFY2(modulus >= 1e6 && modulus <= 7e11, qPrintable(name));
        QVERIFY2(poisson >= 0.0 && poisson < 0.5, qPrintable(name));
        QVERIFY2(density >= 100.0 && density <= 20000.0, qPrintable(name));
    }

    QFile file(SourcePath("model/TarnFEMData/SysMaterial.xml"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    int sources = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QString("Material"))
            sources += xml.attributes().value("source").isEmpty() ? 0 : 1;
    }
    QCOMPARE(sources, Store().MapDataRow());
}

void tst_KVMaterialData::TheSystemLibraryFitsItsSchema()
{
    Start();
    QCOMPARE(Complaints(SourcePath("model/TarnFEMData/SysMaterial.xml"), "Materials.xsd"),
             QString());
}

TARN_TEST_MAIN(tst_KVMaterialData)
#include "tst_KVMaterialData.moc"
