#include "TestCase.h"
#include "WholeFile.h"
#include "XmlFiles.h"

#include <sys/stat.h>

using tarn::WholeFile;

class tst_WholeFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AFileIsReadUpToItsLimit_data();
    void AFileIsReadUpToItsLimit();
    void WhatCannotBeReadIsReported_data();
    void WhatCannotBeReadIsReported();
};

void tst_WholeFile::AFileIsReadUpToItsLimit_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zero bytes") << QByteArray(10, '\0');
    QTest::newRow("larger than a block") << QByteArray(3000000, 'x');
}

void tst_WholeFile::AFileIsReadUpToItsLimit()
{
    EnterTemporaryDirectory();
    QFETCH(QByteArray, content);
    Put("file", content);
    QByteArray read;
    QVERIFY(WholeFile("file", content.size()).Read(read));
    QCOMPARE(read, content);
    Put("file", content + "x");
    QVERIFY(!WholeFile("file", content.size()).Read(read));
    QCOMPARE(read, content);
}

void tst_WholeFile::WhatCannotBeReadIsReported_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("error");
    QTest::newRow("missing") << "missing"
                             << "cannot be opened: No such file or directory";
    QTest::newRow("no name") << ""
                             << "cannot be opened: No such file or directory";
    QTest::newRow("missing resource") << ":/missing"
                                      << "cannot be opened: No such file or directory";
    QTest::newRow("folder") << "folder"
                            << "is a folder, not a file";
    QTest::newRow("pipe without a writer") << "pipe"
                                           << "is not a regular file";
    QTest::newRow("device") << "/dev/zero"
                            << "is not a regular file";
    QTest::newRow("too large") << "large"
                               << "exceeds the limit of 2 MB";
}

void tst_WholeFile::WhatCannotBeReadIsReported()
{
    EnterTemporaryDirectory();
    QFETCH(QString, path);
    QDir().mkdir("folder");
    QCOMPARE(mkfifo("pipe", 0600), 0);
    Put("large", QByteArray(2 * 1024 * 1024 + 1, 'x'));
    WholeFile file(path, 2 * 1024 * 1024);
    QByteArray content("as before");
    QVERIFY(!file.Read(content));
    QTEST(file.Error(), "error");
    QCOMPARE(content, QByteArray("as before"));
}

TARN_TEST_MAIN(tst_WholeFile)
#include "tst_WholeFile.moc"
