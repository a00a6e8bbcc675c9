#include "FullDisk.h"
#include "LostWrites.h"
#include "PropertyStoreTest.h"
#include "TestFiles.h"
#include "XmlFiles.h"

/// The backups of the old content when a file is written.
class tst_KVPropertyDataCopies : public PropertyStoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void AFileThatWasNotReadIsBackedUp_data();
    void AFileThatWasNotReadIsBackedUp();
    void AFileReadIsReplaced();
    void ADifferentPropertyInTheFileIsBackedUp();
    void ADifferentValueInTheFileIsBackedUp_data();
    void ADifferentValueInTheFileIsBackedUp();
    void AFileReplacedSinceItWasReadIsBackedUp();
    void ClearingForgetsTheFilesRead();
    void AFullDiskLeavesTheOldFile();
    void AWriteThatFailsAtItsEndLeavesTheOldFile();
    void NothingIsLostAmongProcesses();
};

void tst_KVPropertyDataCopies::AFileThatWasNotReadIsBackedUp_data()
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

void tst_KVPropertyDataCopies::AFileThatWasNotReadIsBackedUp()
{
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

void tst_KVPropertyDataCopies::AFileReadIsReplaced()
{
    Put("ElementProperty.xml", File(Line("a", "1")));
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    Store().AddPropInfo(Record("b"));
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QCOMPARE(CopiesOf("ElementProperty.xml"), QStringList());
}

void tst_KVPropertyDataCopies::ADifferentPropertyInTheFileIsBackedUp()
{
    Put("ElementProperty.xml", File(Line("a", "1")));
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    Find("a")->m_dThickness = 2.0;
    // The user's edit of a property that was read loses nothing.
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QCOMPARE(CopiesOf("ElementProperty.xml"), QStringList());

    // A value written by another program, which the store ignores, is not lost either.
    const QByteArray foreign = File(Line("a", "3"));
    Put("ElementProperty.xml", foreign);
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    QCOMPARE(Contents(), QStringList("a:a:2"));
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    const QStringList copies = CopiesOf("ElementProperty.xml");
    QCOMPARE(copies.size(), 1);
    QCOMPARE(ContentOf(copies.first()), foreign);
}

void tst_KVPropertyDataCopies::ADifferentValueInTheFileIsBackedUp_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::newRow("material") << QByteArray("material=\"m\"");
    QTest::newRow("thickness") << QByteArray("thickness=\"3\"");
    QTest::newRow("type name") << QByteArray("typeName=\"Beam\"");
    QTest::newRow("type code") << QByteArray("typeCode=\"7\"");
    QTest::newRow("reserved") << QByteArray("reserved=\"7\"");
}

void tst_KVPropertyDataCopies::ADifferentValueInTheFileIsBackedUp()
{
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

void tst_KVPropertyDataCopies::AFileReplacedSinceItWasReadIsBackedUp()
{
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

void tst_KVPropertyDataCopies::ClearingForgetsTheFilesRead()
{
    Put("ElementProperty.xml", File(Line("a", "1")));
    QCOMPARE(Store().ReadXML(PropertyFile), 0);
    Store().Clear();
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QCOMPARE(CopiesOf("ElementProperty.xml").size(), 1);
}

void tst_KVPropertyDataCopies::AFullDiskLeavesTheOldFile()
{
    FullDisk disk;
    Store().AddPropInfo(Record("a"));
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    const QByteArray before = ContentOf("ElementProperty.xml");
    Store().AddPropInfo(Record("b"));
    disk.Fill();
    QVERIFY(Store().WriteXML(PropertyFile) != 0);
    QCOMPARE(ContentOf("ElementProperty.xml"), before);
    QCOMPARE(AllFiles(), QStringList("ElementProperty.xml"));
    disk.Empty();
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QVERIFY(ContentOf("ElementProperty.xml") != before);
    QCOMPARE(AllFiles(), QStringList("ElementProperty.xml"));
}

void tst_KVPropertyDataCopies::AWriteThatFailsAtItsEndLeavesTheOldFile()
{
    Store().AddPropInfo(Record("a"));
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    const QByteArray before = ContentOf("ElementProperty.xml");
    Store().AddPropInfo(Record("b"));
    {
        const FileSizeLimit limit(rlim_t(before.size()));
        QVERIFY(Store().WriteXML(PropertyFile) != 0);
    }
    QCOMPARE(ContentOf("ElementProperty.xml"), before);
    QCOMPARE(Store().WriteXML(PropertyFile), 0);
    QVERIFY(ContentOf("ElementProperty.xml") != before);
    QCOMPARE(CopiesOf("ElementProperty.xml"), QStringList());
}

void tst_KVPropertyDataCopies::NothingIsLostAmongProcesses()
{
    const QStringList lost = LostAmongProcesses("ElementProperty.xml", [](const QString& name) {
        // Forgets what it has written, as a process that has just begun.
        Store().Clear();
        Store().AddPropInfo(Record(name));
        return Store().WriteXML(PropertyFile) == 0;
    });
    QCOMPARE(lost, QStringList());
}

TARN_TEST_MAIN(tst_KVPropertyDataCopies)
#include "tst_KVPropertyDataCopies.moc"
