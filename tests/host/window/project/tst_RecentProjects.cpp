#include "RecentProjects.h"
#include "TestCase.h"
#include "UserSettings.h"

#include <QDir>

class tst_RecentProjects : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override
    {
        TestCase::init();
        UserSettings().clear();
    }
    void TheLatestIsFirst();
    void OnlySomeAreKept();
    void TheFolderIsThatOfTheLatest();
};

void tst_RecentProjects::TheLatestIsFirst()
{
    for (const char* const path : {"/a", "/b", "/a"})
        RecentProjects::Add(path);
    QCOMPARE(RecentProjects::Paths(), QStringList({"/a", "/b"}));
    RecentProjects::Remove("/a");
    QCOMPARE(RecentProjects::Paths(), QStringList("/b"));
}

void tst_RecentProjects::OnlySomeAreKept()
{
    for (int i = 0; i < 20; ++i)
        RecentProjects::Add(QString("/%1").arg(i));
    QCOMPARE(RecentProjects::Paths().size(), int(RecentProjects::MaximumNumber));
    QCOMPARE(RecentProjects::Paths().first(), QString("/19"));
}

void tst_RecentProjects::TheFolderIsThatOfTheLatest()
{
    QCOMPARE(RecentProjects::Folder(), QDir::homePath());
    const QString directory = EnterTemporaryDirectory();
    RecentProjects::Add(directory + "/a.json");
    QCOMPARE(RecentProjects::Folder(), directory);
    RecentProjects::Add("/gone/a.json");
    QCOMPARE(RecentProjects::Folder(), QDir::homePath());
}

TARN_TEST_MAIN(tst_RecentProjects)
#include "tst_RecentProjects.moc"
