#include "FullDisk.h"
#include "LostWrites.h"
#include "MaterialStoreTest.h"
#include "TestFiles.h"
#include "XmlFiles.h"

#include <QRegularExpression>

/// The backups of the old content when a file is written.
class tst_KVMaterialDataCopies : public MaterialStoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void AFileThatWasNotReadIsBackedUp_data();
    void AFileThatWasNotReadIsBackedUp();
    void AFileReadInFullIsReplaced();
    void AFileReadTwiceIsReplaced();
    void ClearingForgetsTheFilesRead();
    void AFileChangedSinceItWasReadIsBackedUp();
    void AFullDiskLeavesTheOldFile();
    void AWriteThatFailsAtItsEndLeavesTheOldFile();
    void NothingIsLostAmongProcesses();
};

void tst_KVMaterialDataCopies::AFileThatWasNotReadIsBackedUp_data()
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

void tst_KVMaterialDataCopies::AFileThatWasNotReadIsBackedUp()
{
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

void tst_KVMaterialDataCopies::AFileReadInFullIsReplaced()
{
    Put("UserMaterial.xml", File(Line("a", "1")));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    Store().RemoveItem("a");
    QCOMPARE(Store().WriteXML("UserMaterial.xml"), 0);
    QCOMPARE(CopiesOf("UserMaterial.xml"), QStringList());
}

void tst_KVMaterialDataCopies::AFileReadTwiceIsReplaced()
{
    Put("UserMaterial.xml", File(Line("a", "1") + Line("b", "2")));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    Put("UserMaterial.xml", File(Line("b", "3") + Line("c", "4")));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Contents(), QStringList({"a:1:1:", "b:1:3:", "c:1:4:"}));
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QCOMPARE(CopiesOf("UserMaterial.xml"), QStringList());
}

void tst_KVMaterialDataCopies::ClearingForgetsTheFilesRead()
{
    Put("UserMaterial.xml", File(Line("a", "1")));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    Store().ClearInfo();
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QCOMPARE(CopiesOf("UserMaterial.xml").size(), 1);
}

void tst_KVMaterialDataCopies::AFileChangedSinceItWasReadIsBackedUp()
{
    Put("UserMaterial.xml", File(Line("a", "1")));
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    const QByteArray changed = File(Line("b", "2"));
    Put("UserMaterial.xml", changed);
    QCOMPARE(Store().WriteXML(UserFile), 0);
    const QStringList copies = CopiesOf("UserMaterial.xml");
    QCOMPARE(copies.size(), 1);
    QCOMPARE(ContentOf(copies.first()), changed);
}

void tst_KVMaterialDataCopies::AFullDiskLeavesTheOldFile()
{
    FullDisk disk;
    Store().AddMaterialInfo(Record("a"));
    QCOMPARE(Store().WriteXML(UserFile), 0);
    const QByteArray before = ContentOf("UserMaterial.xml");
    Store().AddMaterialInfo(Record("b"));
    disk.Fill();
    QVERIFY(Store().WriteXML(UserFile) != 0);
    QCOMPARE(ContentOf("UserMaterial.xml"), before);
    QCOMPARE(AllFiles(), QStringList("UserMaterial.xml"));
    disk.Empty();
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QVERIFY(ContentOf("UserMaterial.xml") != before);
    QCOMPARE(AllFiles(), QStringList("UserMaterial.xml"));
}

void tst_KVMaterialDataCopies::AWriteThatFailsAtItsEndLeavesTheOldFile()
{
    Store().AddMaterialInfo(Record("a"));
    QCOMPARE(Store().WriteXML(UserFile), 0);
    const QByteArray before = ContentOf("UserMaterial.xml");
    Store().AddMaterialInfo(Record("b"));
    {
        const FileSizeLimit limit(rlim_t(before.size()));
        QVERIFY(Store().WriteXML(UserFile) != 0);
    }
    QCOMPARE(ContentOf("UserMaterial.xml"), before);
    QCOMPARE(Store().WriteXML(UserFile), 0);
    QVERIFY(ContentOf("UserMaterial.xml") != before);
    QCOMPARE(CopiesOf("UserMaterial.xml"), QStringList());
}

void tst_KVMaterialDataCopies::NothingIsLostAmongProcesses()
{
    const QStringList lost = LostAmongProcesses("UserMaterial.xml", [](const QString& name) {
        // Forgets what it has written, as a process that has just begun.
        Store().ClearInfo();
        Store().AddMaterialInfo(Record(name));
        return Store().WriteXML(UserFile) == 0;
    });
    QCOMPARE(lost, QStringList());
}

TARN_TEST_MAIN(tst_KVMaterialDataCopies)
#include "tst_KVMaterialDataCopies.moc"
