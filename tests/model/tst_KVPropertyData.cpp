#include "KVPropertyData.h"
#include "TestCase.h"
#include "XmlFiles.h"

#include <cmath>
#include <limits>

namespace {

const std::string PropertyFile = "./ElementProperty.xml";

KVPropertyData& Store()
{
    return *KVPropertyData::GetInstance();
}

CQLTElemPropDef* Record(const QString& name, double thickness = 1.0)
{
    auto* const record = new CQLTElemPropDef;
    record->m_strName = name;
    record->m_dThickness = thickness;
    return record;
}

CQLTElemPropDef* Find(QString name)
{
    return Store().GetPropertyInfo(name);
}

QStringList Keys()
{
    QStringList keys;
    for (const auto& entry : Store().GetProptyDataMap())
        keys << entry.first;
    return keys;
}

/// All properties as "key:name:thickness".
QStringList Contents()
{
    QStringList contents;
    for (const auto& entry : Store().GetProptyDataMap())
        contents << QStringLiteral("%1:%2:%3")
                        .arg(entry.first, entry.second->m_strName)
                        .arg(entry.second->m_dThickness);
    return contents;
}

QByteArray File(const QByteArray& records)
{
    return "<ElementProperties version=\"1\" units=\"model\">" + records + "</ElementProperties>";
}

QByteArray Line(const QByteArray& name, const QByteArray& thickness)
{
    return "<ElementProperty name=\"" + name + "\" thickness=\"" + thickness + "\"/>";
}

} // namespace

class tst_KVPropertyData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ThereIsOneStore();
    void TheMapIsInTheOrderOfNames();
    void TheMapIsACopy();
    void AnUnknownNameGivesNull();
    void ANullRecordIsIgnored();
    void ARecordHeldAlreadyIsHeldOnce();
    void ARenamedRecordIsHeldUnderItsNewName();
    void ARecordRenamedOntoAnotherWins();
    void AReplacedRecordCanBeGivenAgain();
    void PointersLiveUntilTheStoreIsCleared();
    void ClearingForgetsAll();

    void EveryFieldReadsBack();
    void NumbersReadBackExactly();
    void NumbersReadBackExactly_data();
    void ACommaLocaleChangesNothing();
    void AnyTextReadsBackExactly();
    void AnyTextReadsBackExactly_data();
    void ARefusedEditMergesNothing();
    void ReadingAgainDoesNotUndoWhatMemoryHolds();
    void WhatIsMissingHasItsDefault();
    void AWrittenFileFitsItsSchema();
    void TheSchemaRefusesWhatIsUnfit();
    void TheSchemaRefusesWhatIsUnfit_data();
    void ARefusedFileChangesNothing();
    void ARefusedFileChangesNothing_data();
    void ANumberThatIsNoneIsRefused();
    void ANumberThatIsNoneIsRefused_data();
    void WhatIsNotAFileIsRefused();
    void WhatIsUnknownIsSkipped();
    void AFileNotReadIsKeptAsACopy();
    void AFileNotReadIsKeptAsACopy_data();
    void AFileReadIsReplaced();
    void WhatMemoryHoldsOtherwiseIsKeptAsACopy();
    void AValueThatMemoryHoldsOtherwiseIsKeptAsACopy_data();
    void AValueThatMemoryHoldsOtherwiseIsKeptAsACopy();
    void AFileReplacedSinceItWasReadIsKept();
    void ClearingForgetsWhatWasRead();
    void AFullDiskIsToldAndLeavesTheOldFile();
    void AsMuchAsLineEditsHoldIsWritten();
    void ManyPropertiesReadBack();
    void TheCorpusIsReadOrRefused();
    void TheCorpusIsReadOrRefused_data();

private:
    void Start();
};

/// Begins with an empty store in an empty directory.
void tst_KVPropertyData::Start()
{
    EnterTemporaryDirectory();
    Store().Clear();
}

void tst_KVPropertyData::ThereIsOneStore()
{
    QVERIFY(KVPropertyData::GetInstance() != nullptr);
    QCOMPARE(KVPropertyData::GetInstance(), KVPropertyData::GetInstance());
}

void tst_KVPropertyData::TheMapIsInTheOrderOfNames()
{
    Start();
    for (const char* const name : {"b", "B", "a10", "a9", "", "ä"})
        Store().AddPropInfo(Record(name));
    QCOMPARE(Keys(), QStringList({"", "B", "a10", "a9", "b", "ä"}));
}

void tst_KVPropertyData::TheMapIsACopy()
{
    Start();
    Store().AddPropInfo(Record("a"));
    auto map = Store().GetProptyDataMap();
    map.clear();
    QCOMPARE(Keys(), QStringList("a"));
}

void tst_KVPropertyData::AnUnknownNameGivesNull()
{
    Start();
    Store().AddPropInfo(Record("a"));
    QString name = "b";
    QVERIFY(Store().GetPropertyInfo(name) == nullptr);
    QCOMPARE(name, QString("b"));
    QCOMPARE(Keys(), QStringList("a"));
}

void tst_KVPropertyData::ANullRecordIsIgnored()
{
    Start();
    Store().AddPropInfo(nullptr);
    QCOMPARE(Keys(), QStringList());
}

void tst_KVPropertyData::ARecordHeldAlreadyIsHeldOnce()
{
    Start();
    CQLTElemPropDef* const record = Record("a");
    Store().AddPropInfo(record);
    Store().AddPropInfo(record);
    QCOMPARE(Keys(), QStringList("a"));
    QCOMPARE(Find("a"), record);
}

void tst_KVPropertyData::ARenamedRecordIsHeldUnderItsNewName()
{
    Start();
    CQLTElemPropDef* const record = Record("a");
    Store().AddPropInfo(record);
    record->m_strName = "b";
    QCOMPARE(Find("a"), record);
    Store().AddPropInfo(record);
    QCOMPARE(Keys(), QStringList("b"));
    QCOMPARE(Find("b"), record);
}

void tst_KVPropertyData::ARecordRenamedOntoAnotherWins()
{
    Start();
    CQLTElemPropDef* const record = Record("a", 1.0);
    CQLTElemPropDef* const other = Record("b", 2.0);
    Store().AddPropInfo(record);
    Store().AddPropInfo(other);
    record->m_strName = "b";
    Store().AddPropInfo(record);
    QCOMPARE(Contents(), QStringList("b:b:1"));
    QCOMPARE(other->m_dThickness, 2.0);
}

void tst_KVPropertyData::AReplacedRecordCanBeGivenAgain()
{
    Start();
    CQLTElemPropDef* const record = Record("a", 1.0);
    CQLTElemPropDef* const other = Record("a", 2.0);
    Store().AddPropInfo(record);
    Store().AddPropInfo(other);
    QCOMPARE(Find("a"), other);
    Store().AddPropInfo(record);
    QCOMPARE(Find("a"), record);
    other->m_strName = "b";
    Store().AddPropInfo(other);
    QCOMPARE(Contents(), QStringList({"a:a:1", "b:b:2"}));
}

void tst_KVPropertyData::PointersLiveUntilTheStoreIsCleared()
{
    Start();
    CQLTElemPropDef* const record = Record("a", 1.0);
    Store().AddPropInfo(record);
    const auto map = Store().GetProptyDataMap();
    Store().AddPropInfo(Record("a", 2.0));
    Put("ElementProperty.xml", File(Line("a", "3")));
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(map.at("a"), record);
    QCOMPARE(record->m_dThickness, 1.0);
    record->m_strName = "still there";
}

void tst_KVPropertyData::ClearingForgetsAll()
{
    Start();
    Store().AddPropInfo(Record("a"));
    Store().Clear();
    QCOMPARE(Keys(), QStringList());
    QVERIFY(Find("a") == nullptr);
}

void tst_KVPropertyData::EveryFieldReadsBack()
{
    Start();
    CQLTElemPropDef* const written = Record("a", 2.5);
    written->m_nReserved = std::numeric_limits<qint64>::min();
    written->m_strMaterialName = "Steel";
    written->m_strTypeName = "Shell";
    written->m_nTypeCode = 2;
    Store().AddPropInfo(written);
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    Store().Clear();
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Keys(), QStringList("a"));
    const CQLTElemPropDef& read = *Find("a");
    QCOMPARE(read.m_strName, QString("a"));
    QCOMPARE(read.m_nReserved, std::numeric_limits<qint64>::min());
    QCOMPARE(read.m_strMaterialName, QString("Steel"));
    QCOMPARE(read.m_dThickness, 2.5);
    QCOMPARE(read.m_strTypeName, QString("Shell"));
    QCOMPARE(read.m_nTypeCode, 2);
}

void tst_KVPropertyData::NumbersReadBackExactly_data()
{
    using Limits = std::numeric_limits<double>;
    QTest::addColumn<double>("number");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative zero") << -0.0;
    QTest::newRow("a tenth") << 0.1;
    QTest::newRow("a third") << 1.0 / 3.0;
    QTest::newRow("negative") << -1234567.890123456;
    QTest::newRow("next after one") << std::nextafter(1.0, 2.0);
    QTest::newRow("largest") << Limits::max();
    QTest::newRow("smallest") << Limits::min();
    QTest::newRow("smallest subnormal") << Limits::denorm_min();
    QTest::newRow("infinity") << Limits::infinity();
    QTest::newRow("negative infinity") << -Limits::infinity();
}

void tst_KVPropertyData::NumbersReadBackExactly()
{
    Start();
    QFETCH(double, number);
    Store().AddPropInfo(Record("a", number));
    Store().AddPropInfo(Record("none", std::numeric_limits<double>::quiet_NaN()));
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QCOMPARE(Complaints("ElementProperty.xml", "ElementProperties.xsd"), QString());
    Store().Clear();
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QVERIFY(Find("a")->m_dThickness == number);
    QCOMPARE(std::signbit(Find("a")->m_dThickness), std::signbit(number));
    QVERIFY(std::isnan(Find("none")->m_dThickness));
}

void tst_KVPropertyData::ACommaLocaleChangesNothing()
{
    Start();
    QVERIFY(UseLocale("de_DE.UTF-8"));
    Store().AddPropInfo(Record("a", 1234.1));
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    const QByteArray content = ContentOf("ElementProperty.xml");
    QVERIFY2(content.contains("thickness=\"1234.0999999999999\""), content.constData());
    Store().Clear();
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QVERIFY(Find("a")->m_dThickness == 1234.1);
}

void tst_KVPropertyData::AnyTextReadsBackExactly_data()
{
    AddTextRows();
}

void tst_KVPropertyData::AnyTextReadsBackExactly()
{
    Start();
    QFETCH(QString, text);
    CQLTElemPropDef* const written = Record(text);
    written->m_strMaterialName = text.left(100);
    written->m_strTypeName = text.left(100) + "t";
    Store().AddPropInfo(written);
    const CQLTElemPropDef before = *written;
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QCOMPARE(Complaints("ElementProperty.xml", "ElementProperties.xsd"), QString());
    Store().Clear();
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Keys(), QStringList(text));
    QCOMPARE(Find(text)->m_strMaterialName, before.m_strMaterialName);
    QCOMPARE(Find(text)->m_strTypeName, before.m_strTypeName);
}

void tst_KVPropertyData::ARefusedEditMergesNothing()
{
    Start();
    Store().AddPropInfo(Record("a", 1.0));
    Store().AddPropInfo(Record("b", 2.0));
    Find("a")->m_strName.clear();
    Find("b")->m_strName.clear();
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    Store().Clear();
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Contents(), QStringList({"a:a:1", "b:b:2"}));
}

void tst_KVPropertyData::ReadingAgainDoesNotUndoWhatMemoryHolds()
{
    Start();
    Put("ElementProperty.xml", File(Line("a", "1") + Line("b", "2") + Line("b", "3")));
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Contents(), QStringList({"a:a:1", "b:b:2"}));
    CQLTElemPropDef* const edited = Find("a");
    edited->m_dThickness = 5.0;
    Store().AddPropInfo(edited);
    Store().AddPropInfo(Record("d", 6.0));
    Put("ElementProperty.xml", File(Line("a", "1") + Line("c", "4") + Line("d", "7")));
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Contents(), QStringList({"a:a:5", "b:b:2", "c:c:4", "d:d:6"}));
    QCOMPARE(Find("a"), edited);
}

void tst_KVPropertyData::WhatIsMissingHasItsDefault()
{
    Start();
    Put("ElementProperty.xml", File("<ElementProperty name=\"a\"/>"));
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    const CQLTElemPropDef& read = *Find("a");
    QCOMPARE(read.m_nReserved, qint64(0));
    QCOMPARE(read.m_strMaterialName, QString());
    QCOMPARE(read.m_dThickness, 0.0);
    QCOMPARE(read.m_strTypeName, QString());
    QCOMPARE(read.m_nTypeCode, 0);
}

void tst_KVPropertyData::AWrittenFileFitsItsSchema()
{
    Start();
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QCOMPARE(Complaints("ElementProperty.xml", "ElementProperties.xsd"), QString());
    Store().AddPropInfo(Record("<&\">"));
    Store().AddPropInfo(Record(""));
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QCOMPARE(Complaints("ElementProperty.xml", "ElementProperties.xsd"), QString());
}

void tst_KVPropertyData::TheSchemaRefusesWhatIsUnfit_data()
{
    AddUnfitRows("ElementProperties", "model", "ElementProperty");
    QTest::newRow("thickness of letters")
        << File("<ElementProperty name=\"a\" thickness=\"thick\"/>");
    QTest::newRow("type code with a point")
        << File("<ElementProperty name=\"a\" typeCode=\"2.5\"/>");
    QTest::newRow("reserved too large")
        << File("<ElementProperty name=\"a\" reserved=\"9223372036854775808\"/>");
}

void tst_KVPropertyData::TheSchemaRefusesWhatIsUnfit()
{
    Start();
    QFETCH(QByteArray, content);
    Put("unfit.xml", content);
    QVERIFY(!Complaints("unfit.xml", "ElementProperties.xsd").isEmpty());
}

void tst_KVPropertyData::ARefusedFileChangesNothing_data()
{
    AddRefusedRows("ElementProperties", "model", "ElementProperty");
}

void tst_KVPropertyData::ARefusedFileChangesNothing()
{
    Start();
    QFETCH(QByteArray, content);
    Store().AddPropInfo(Record("old", 1.0));
    Put("ElementProperty.xml", content);
    QVERIFY(Store().ReadXML(PropertyFile) != 0);
    QCOMPARE(Contents(), QStringList("old:old:1"));
}

void tst_KVPropertyData::ANumberThatIsNoneIsRefused_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::newRow("thickness of letters") << QByteArray("thickness=\"thick\"");
    QTest::newRow("empty thickness") << QByteArray("thickness=\"\"");
    QTest::newRow("thickness with comma") << QByteArray("thickness=\"1,5\"");
    QTest::newRow("thickness too large") << QByteArray("thickness=\"1e999\"");
    QTest::newRow("type code with a point") << QByteArray("typeCode=\"2.5\"");
    QTest::newRow("type code too large") << QByteArray("typeCode=\"3000000000\"");
    QTest::newRow("empty type code") << QByteArray("typeCode=\"\"");
    QTest::newRow("reserved of letters") << QByteArray("reserved=\"x\"");
    QTest::newRow("reserved too large") << QByteArray("reserved=\"9223372036854775808\"");
}

void tst_KVPropertyData::ANumberThatIsNoneIsRefused()
{
    Start();
    QFETCH(QByteArray, attribute);
    Put("ElementProperty.xml",
        File(Line("a", "1") + "<ElementProperty name=\"b\" " + attribute + "/>"));
    QVERIFY(Store().ReadXML(PropertyFile) != 0);
    QCOMPARE(Contents(), QStringList());
}

void tst_KVPropertyData::WhatIsNotAFileIsRefused()
{
    Start();
    QDir().mkdir("directory");
    QVERIFY(Store().ReadXML("missing.xml") != 0);
    QVERIFY(Store().ReadXML("directory") != 0);
    QVERIFY(Store().WriteXML("directory") != 0);
    QVERIFY(Store().WriteXML("missing/ElementProperty.xml") != 0);
    QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("directory"));
}

void tst_KVPropertyData::WhatIsUnknownIsSkipped()
{
    Start();
    Put("ElementProperty.xml",
        "<ElementProperties units=\"model\" version=\"1\" by=\"me\"><Note>Text<ElementProperty "
        "name=\"inner\"/></Note>text<ElementProperty colour=\"grey\" typeCode=\"2\" name=\"a\">"
        "<Layer/></ElementProperty><!-- end --></ElementProperties>\n");
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Keys(), QStringList("a"));
    QCOMPARE(Find("a")->m_nTypeCode, 2);
}

void tst_KVPropertyData::AFileNotReadIsKeptAsACopy_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isRead");
    QTest::newRow("not read") << File(Line("a", "1")) << false;
    QTest::newRow("damaged") << File(Line("a", "1")).chopped(1) << true;
    QTest::newRow("newer") << QByteArray("<ElementProperties version=\"2\" units=\"model\"/>")
                           << true;
    QTest::newRow("unknown element") << File("<Layer/>") << true;
    QTest::newRow("a name twice") << File(Line("a", "1") + Line("a", "2")) << true;
}

void tst_KVPropertyData::AFileNotReadIsKeptAsACopy()
{
    Start();
    QFETCH(QByteArray, content);
    QFETCH(bool, isRead);
    Put("ElementProperty.xml", content);
    if (isRead)
        Store().ReadXML(PropertyFile);
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    const QStringList copies = CopiesOf("ElementProperty.xml");
    QCOMPARE(copies.size(), 1);
    QCOMPARE(ContentOf(copies.first()), content);
}

void tst_KVPropertyData::AFileReadIsReplaced()
{
    Start();
    Put("ElementProperty.xml", File(Line("a", "1")));
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    Store().AddPropInfo(Record("b"));
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QCOMPARE(CopiesOf("ElementProperty.xml"), QStringList());
}

void tst_KVPropertyData::WhatMemoryHoldsOtherwiseIsKeptAsACopy()
{
    Start();
    Put("ElementProperty.xml", File(Line("a", "1")));
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    Find("a")->m_dThickness = 2.0;
    // The user's own edit of what was read loses nothing of others.
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QCOMPARE(CopiesOf("ElementProperty.xml"), QStringList());

    // Somebody else's value, which memory does not take over, does not get lost either.
    const QByteArray foreign = File(Line("a", "3"));
    Put("ElementProperty.xml", foreign);
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Contents(), QStringList("a:a:2"));
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    const QStringList copies = CopiesOf("ElementProperty.xml");
    QCOMPARE(copies.size(), 1);
    QCOMPARE(ContentOf(copies.first()), foreign);
}

void tst_KVPropertyData::AValueThatMemoryHoldsOtherwiseIsKeptAsACopy_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::newRow("material") << QByteArray("material=\"m\"");
    QTest::newRow("thickness") << QByteArray("thickness=\"3\"");
    QTest::newRow("type name") << QByteArray("typeName=\"Beam\"");
    QTest::newRow("type code") << QByteArray("typeCode=\"7\"");
    QTest::newRow("reserved") << QByteArray("reserved=\"7\"");
}

void tst_KVPropertyData::AValueThatMemoryHoldsOtherwiseIsKeptAsACopy()
{
    Start();
    QFETCH(QByteArray, attribute);
    Put("ElementProperty.xml", File("<ElementProperty name=\"a\"/>"));
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    const QByteArray foreign = File("<ElementProperty name=\"a\" " + attribute + "/>");
    Put("ElementProperty.xml", foreign);
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    const QStringList copies = CopiesOf("ElementProperty.xml");
    QCOMPARE(copies.size(), 1);
    QCOMPARE(ContentOf(copies.first()), foreign);
}

void tst_KVPropertyData::AFileReplacedSinceItWasReadIsKept()
{
    Start();
    Put("ElementProperty.xml", File(Line("a", "1")));
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    const QByteArray foreign = File(Line("b", "2"));
    Put("other.xml", foreign);
    QVERIFY(QFile::remove("ElementProperty.xml"));
    QVERIFY(QFile::rename("other.xml", "ElementProperty.xml"));
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    const QStringList copies = CopiesOf("ElementProperty.xml");
    QCOMPARE(copies.size(), 1);
    QCOMPARE(ContentOf(copies.first()), foreign);
}

void tst_KVPropertyData::ClearingForgetsWhatWasRead()
{
    Start();
    Put("ElementProperty.xml", File(Line("a", "1")));
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    Store().Clear();
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QCOMPARE(CopiesOf("ElementProperty.xml").size(), 1);
}

void tst_KVPropertyData::AFullDiskIsToldAndLeavesTheOldFile()
{
    Start();
    Store().AddPropInfo(Record("a"));
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    const QByteArray before = ContentOf("ElementProperty.xml");
    Store().AddPropInfo(Record("b"));
    {
        // Less than the buffer of a file: only its flush fails.
        const FullDisk full(rlim_t(before.size()));
        QVERIFY(Store().WriteXML(PropertyFile) != 0);
    }
    QCOMPARE(ContentOf("ElementProperty.xml"), before);
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QVERIFY(ContentOf("ElementProperty.xml") != before);
    QCOMPARE(CopiesOf("ElementProperty.xml"), QStringList());
}

void tst_KVPropertyData::AsMuchAsLineEditsHoldIsWritten()
{
    Start();
    // What a line edit takes, each character the longest in the file.
    const QString full(32767, '\\');
    CQLTElemPropDef* const written = Record(full);
    written->m_strMaterialName = full;
    written->m_strTypeName = full;
    Store().AddPropInfo(written);
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    Store().Clear();
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Find(full)->m_strMaterialName, full);
    QCOMPARE(Find(full)->m_strTypeName, full);
}

void tst_KVPropertyData::ManyPropertiesReadBack()
{
    Start();
    const int count = 20000;
    for (int i = 0; i < count; ++i)
        Store().AddPropInfo(Record(QString::number(i), i));
    const QStringList before = Contents();
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    Store().Clear();
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Contents(), before);
    QCOMPARE(before.size(), count);
}

void tst_KVPropertyData::TheCorpusIsReadOrRefused_data()
{
    AddCorpusRows("KVPropertyData");
}

void tst_KVPropertyData::TheCorpusIsReadOrRefused()
{
    Start();
    QFETCH(QString, file);
    Store().AddPropInfo(Record("old"));
    const int result = Store().ReadXML(file.toLocal8Bit().toStdString());
    CheckCorpusResult(file, result);
    if (result != 0) {
        QCOMPARE(Contents(), QStringList("old:old:1"));
        return;
    }
    const QStringList before = Contents();
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    Store().Clear();
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Contents(), before);
}

TARN_TEST_MAIN(tst_KVPropertyData)
#include "tst_KVPropertyData.moc"
