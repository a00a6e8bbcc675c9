#include "TarnGUICommonVersion.h"
#include "TestCase.h"

#include <QVersionNumber>

class tst_TarnGUICommonVersion : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheRunningLibraryIsThatOfTheHeaders();
    void TheMacrosAreThePartsOfTheVersion();
};

void tst_TarnGUICommonVersion::TheRunningLibraryIsThatOfTheHeaders()
{
    QCOMPARE(TarnGUICommonVersion(), TarnGUICommon_VERSION);
}

void tst_TarnGUICommonVersion::TheMacrosAreThePartsOfTheVersion()
{
    QCOMPARE(QVersionNumber::fromString(QLatin1String(TarnGUICommonVersion())),
             QVersionNumber(TarnGUICommon_VERSION_MAJOR, TarnGUICommon_VERSION_MINOR,
                            TarnGUICommon_VERSION_PATCH));
}

TARN_TEST_MAIN(tst_TarnGUICommonVersion)
#include "tst_TarnGUICommonVersion.moc"
