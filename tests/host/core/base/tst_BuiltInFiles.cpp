#include "BuiltInFiles.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <QDir>

class tst_BuiltInFiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AFileHasTheContentOfItsSource_data();
    void AFileHasTheContentOfItsSource();
    void EveryLanguageHasAFile();
};

void tst_BuiltInFiles::AFileHasTheContentOfItsSource_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("source");
    QTest::newRow("materials") << "SysMaterial.xml"
                               << "model/TarnFEMData/SysMaterial.xml";
    QTest::newRow("sample") << "samples/flange.json"
                            << "host/samples/flange.json";
}

void tst_BuiltInFiles::AFileHasTheContentOfItsSource()
{
    QFETCH(QString, name);
    QFETCH(QString, source);
    const QByteArray content = ContentOf(SourcePath(source));
    QVERIFY(content.size() > 1000);
    QCOMPARE(ContentOf(BuiltInPath(name)), content);
}

void tst_BuiltInFiles::EveryLanguageHasAFile()
{
    QCOMPARE(QDir(BuiltInPath("translations")).entryList({"*_zh_CN.qm"}).size(), 2);
}

TARN_TEST_MAIN(tst_BuiltInFiles)
#include "tst_BuiltInFiles.moc"
