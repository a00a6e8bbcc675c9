#include "ResultWatch.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>

class tst_ResultWatch : public With<TestCase, TemporaryDirectory>
{
    Q_OBJECT

private Q_SLOTS:
    void NewResultsAreNoticedOnce();
    void WhatIsThereAlreadyIsNotNews();
    void AnotherFolderIsFollowed();
};

namespace {

/// As a solver leaves it: complete at once.
void Leave(const QString& folder)
{
    Put(folder + "/part", "9999");
    QFile::remove(folder + "/Model_Active.frd");
    QVERIFY(QFile::rename(folder + "/part", folder + "/Model_Active.frd"));
}

} // namespace

void tst_ResultWatch::NewResultsAreNoticedOnce()
{
    ResultWatch watch;
    QSignalSpy news(&watch, &ResultWatch::Appeared);
    watch.Follow(QDir::currentPath());
    Leave(".");
    Put("solver.log", "x");
    QTRY_COMPARE(news.count(), 1);
    // The next ones are news again; other files are not.
    Put("other.txt", "x");
    QFile::remove("Model_Active.frd");
    QTest::qWait(300);
    QCOMPARE(news.count(), 1);
    Leave(".");
    QTRY_COMPARE(news.count(), 2);
}

void tst_ResultWatch::WhatIsThereAlreadyIsNotNews()
{
    Leave(".");
    ResultWatch watch;
    QSignalSpy news(&watch, &ResultWatch::Appeared);
    watch.Follow(QDir::currentPath());
    Put("other.txt", "x");
    QTest::qWait(300);
    QCOMPARE(news.count(), 0);
}

void tst_ResultWatch::AnotherFolderIsFollowed()
{
    for (const char* const name : {"a", "b"})
        QVERIFY(QDir().mkpath(name));
    ResultWatch watch;
    QSignalSpy news(&watch, &ResultWatch::Appeared);
    watch.Follow(QDir::current().filePath("a"));
    watch.Follow(QDir::current().filePath("b"));
    Leave("a");
    Leave("b");
    QTRY_COMPARE(news.count(), 1);
}

TARN_TEST_MAIN(tst_ResultWatch)
#include "tst_ResultWatch.moc"
