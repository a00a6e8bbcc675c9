#include "BuildLimits.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <QSettings>

class tst_BuildLimits : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void TheDefaultsAreFourGigabytesAndTenMinutes();
    void AStoredSettingIsRead();
    void ValuesOutOfRangeAreBroughtIntoIt_data();
    void ValuesOutOfRangeAreBroughtIntoIt();
};

void tst_BuildLimits::initTestCase()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, EnterTemporaryDirectory());
}

void tst_BuildLimits::TheDefaultsAreFourGigabytesAndTenMinutes()
{
    const BuildLimits limits = BuildLimits::Stored();
    QCOMPARE(limits.megabytes, 4096);
    QCOMPARE(limits.seconds, 600);
}

void tst_BuildLimits::AStoredSettingIsRead()
{
    BuildLimits limits;
    limits.megabytes = 2000;
    limits.seconds = 33;
    limits.Store();
    QCOMPARE(BuildLimits::Stored().megabytes, 2000);
    QCOMPARE(BuildLimits::Stored().seconds, 33);
}

void tst_BuildLimits::ValuesOutOfRangeAreBroughtIntoIt_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("megabytes");
    QTest::addColumn<int>("seconds");
    QTest::newRow("too small") << QByteArray("-5") << 512 << 1;
    QTest::newRow("too large") << QByteArray("2000000000") << 1048576 << 604800;
    QTest::newRow("not a number") << QByteArray("much") << 512 << 1;
}

void tst_BuildLimits::ValuesOutOfRangeAreBroughtIntoIt()
{
    QFETCH(QByteArray, text);
    BuildLimits().Store();
    const QString path =
        QSettings(QSettings::IniFormat, QSettings::UserScope, "tarnhost", "tarnhost").fileName();
    Put(path, "[limits]\nmegabytes=" + text + "\nseconds=" + text + "\n");
    QTEST(BuildLimits::Stored().megabytes, "megabytes");
    QTEST(BuildLimits::Stored().seconds, "seconds");
}

TARN_TEST_MAIN(tst_BuildLimits)
#include "tst_BuildLimits.moc"
