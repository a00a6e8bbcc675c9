#include "NotAFile.h"
#include "PropertyStoreTest.h"
#include "TestFiles.h"
#include "XmlFiles.h"

#include <cmath>
#include <limits>

/// Reading and writing the file of element properties.
class tst_KVPropertyDataFiles : public PropertyStoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void EveryFieldReadsBack();
    void NumbersReadBackExactly_data();
    void NumbersReadBackExactly();
    void ACommaLocaleChangesNothing();
    void AnyTextReadsBackExactly_data();
    void AnyTextReadsBackExactly();
    void ARefusedEditMergesNothing();
    void ReadingAgainKeepsTheRecordsInMemory();
    void MissingAttributesHaveTheirDefaults();
    void AWrittenFileFitsItsSchema();
    void TheSchemaRefusesInvalidFiles_data();
    void TheSchemaRefusesInvalidFiles();
    void ARefusedFileChangesNothing_data();
    void ARefusedFileChangesNothing();
    void AnInvalidNumberIsRefused_data();
    void AnInvalidNumberIsRefused();
    void OnlyRegularFilesAreAccepted_data();
    void OnlyRegularFilesAreAccepted();
    void PathsWithoutAFileAreRefused();
    void UnknownContentIsSkipped();
    void AsMuchAsLineEditsHoldIsWritten();
    void ManyPropertiesReadBack();
    void TheCorpusIsReadOrRefused_data();
    void TheCorpusIsReadOrRefused();
};

void tst_KVPropertyDataFiles::EveryFieldReadsBack()
{
    CQLTElemPropDef* const written = Record("a", 2.5);
    written->m_nReserved = std::numeric_limits<qint64>::min();
    written->m_strMaterialName = "Steel";
    written->m_strTypeName = "Shell";
    written->m_nTypeCode = CQLTElemPropDef::ShellType;
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
    QCOMPARE(read.m_nTypeCode, int(CQLTElemPropDef::ShellType));
}

void tst_KVPropertyDataFiles::NumbersReadBackExactly_data()
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

void tst_KVPropertyDataFiles::NumbersReadBackExactly()
{
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

void tst_KVPropertyDataFiles::ACommaLocaleChangesNothing()
{
    UseLocale("de_DE.UTF-8");
    Store().AddPropInfo(Record("a", 1234.1));
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    const QByteArray content = ContentOf("ElementProperty.xml");
    QVERIFY2(content.contains("thickness=\"1234.0999999999999\""), content.constData());
    Store().Clear();
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QVERIFY(Find("a")->m_dThickness == 1234.1);
}

void tst_KVPropertyDataFiles::AnyTextReadsBackExactly_data()
{
    AddTextRows();
}

void tst_KVPropertyDataFiles::AnyTextReadsBackExactly()
{
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

void tst_KVPropertyDataFiles::ARefusedEditMergesNothing()
{
    Store().AddPropInfo(Record("a", 1.0));
    Store().AddPropInfo(Record("b", 2.0));
    Find("a")->m_strName.clear();
    Find("b")->m_strName.clear();
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    Store().Clear();
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Contents(), QStringList({"a:a:1", "b:b:2"}));
}

void tst_KVPropertyDataFiles::ReadingAgainKeepsTheRecordsInMemory()
{
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

void tst_KVPropertyDataFiles::MissingAttributesHaveTheirDefaults()
{
    Put("ElementProperty.xml", File("<ElementProperty name=\"a\"/>"));
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    const CQLTElemPropDef& read = *Find("a");
    QCOMPARE(read.m_nReserved, qint64(0));
    QCOMPARE(read.m_strMaterialName, QString());
    QCOMPARE(read.m_dThickness, 0.0);
    QCOMPARE(read.m_strTypeName, QString());
    QCOMPARE(read.m_nTypeCode, 0);
}

void tst_KVPropertyDataFiles::AWrittenFileFitsItsSchema()
{
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QCOMPARE(Complaints("ElementProperty.xml", "ElementProperties.xsd"), QString());
    Store().AddPropInfo(Record("<&\">"));
    Store().AddPropInfo(Record(""));
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QCOMPARE(Complaints("ElementProperty.xml", "ElementProperties.xsd"), QString());
}

void tst_KVPropertyDataFiles::TheSchemaRefusesInvalidFiles_data()
{
    AddUnfitRows("ElementProperties", "model", "ElementProperty");
    QTest::newRow("thickness of letters")
        << File("<ElementProperty name=\"a\" thickness=\"thick\"/>");
    QTest::newRow("type code with a point")
        << File("<ElementProperty name=\"a\" typeCode=\"2.5\"/>");
    QTest::newRow("reserved too large")
        << File("<ElementProperty name=\"a\" reserved=\"9223372036854775808\"/>");
}

void tst_KVPropertyDataFiles::TheSchemaRefusesInvalidFiles()
{
    QFETCH(QByteArray, content);
    Put("unfit.xml", content);
    QVERIFY(!Complaints("unfit.xml", "ElementProperties.xsd").isEmpty());
}

void tst_KVPropertyDataFiles::ARefusedFileChangesNothing_data()
{
    AddRefusedRows("ElementProperties", "model", "ElementProperty");
}

void tst_KVPropertyDataFiles::ARefusedFileChangesNothing()
{
    QFETCH(QByteArray, content);
    Store().AddPropInfo(Record("old", 1.0));
    Put("ElementProperty.xml", content);
    QVERIFY(Store().ReadXML(PropertyFile) != 0);
    QCOMPARE(Contents(), QStringList("old:old:1"));
}

void tst_KVPropertyDataFiles::AnInvalidNumberIsRefused_data()
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

void tst_KVPropertyDataFiles::AnInvalidNumberIsRefused()
{
    QFETCH(QByteArray, attribute);
    Put("ElementProperty.xml",
        File(Line("a", "1") + "<ElementProperty name=\"b\" " + attribute + "/>"));
    QVERIFY(Store().ReadXML(PropertyFile) != 0);
    QCOMPARE(Contents(), QStringList());
}

void tst_KVPropertyDataFiles::OnlyRegularFilesAreAccepted_data()
{
    AddNotAFileRows();
}

void tst_KVPropertyDataFiles::OnlyRegularFilesAreAccepted()
{
    QFETCH(QString, kind);
    QVERIFY(PutNotAFile(kind, "ElementProperty.xml"));
    const QStringList before = AllFiles();
    QVERIFY(Store().ReadXML(PropertyFile) != 0);
    QVERIFY(Store().WriteXML(PropertyFile) != 0);
    QVERIFY(!QFileInfo("ElementProperty.xml").isFile());
    QCOMPARE(AllFiles(), before);
}

void tst_KVPropertyDataFiles::PathsWithoutAFileAreRefused()
{
    QDir().mkdir("directory");
    QVERIFY(Store().ReadXML("missing.xml") != 0);
    QVERIFY(Store().ReadXML("directory") != 0);
    QVERIFY(Store().WriteXML("directory") != 0);
    QVERIFY(Store().WriteXML("missing/ElementProperty.xml") != 0);
    QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("directory"));
}

void tst_KVPropertyDataFiles::UnknownContentIsSkipped()
{
    Put("ElementProperty.xml",
        "<ElementProperties units=\"model\" version=\"1\" by=\"me\"><Note>Text<ElementProperty "
        "name=\"inner\"/></Note>text<ElementProperty colour=\"grey\" typeCode=\"2\" name=\"a\">"
        "<Layer/></ElementProperty><!-- end --></ElementProperties>\n");
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Keys(), QStringList("a"));
    QCOMPARE(Find("a")->m_nTypeCode, int(CQLTElemPropDef::ShellType));
}

void tst_KVPropertyDataFiles::AsMuchAsLineEditsHoldIsWritten()
{
    // The longest text of a line edit, with the characters that take most space in the file.
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

void tst_KVPropertyDataFiles::ManyPropertiesReadBack()
{
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

void tst_KVPropertyDataFiles::TheCorpusIsReadOrRefused_data()
{
    AddCorpusRows("KVPropertyData");
}

void tst_KVPropertyDataFiles::TheCorpusIsReadOrRefused()
{
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

TARN_TEST_MAIN(tst_KVPropertyDataFiles)
#include "tst_KVPropertyDataFiles.moc"
