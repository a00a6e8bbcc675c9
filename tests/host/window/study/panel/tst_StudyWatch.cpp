#include "StudyWatch.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <QDir>
#include <QSignalSpy>

class tst_StudyWatch : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WhatComesIsReported();
    void AnExpectedFolderMayBeMissing();
    void AMissingFolderIsReported();
    void AnotherFolderIsFollowedFromItsBeginning();
};

namespace {

const QByteArray Header = "run,a,volume_mm3,status,error\n";

struct Watched
{
    Watched()
    {
        QObject::connect(&watch, &StudyWatch::NewsCame, [this](const StudyFollower::News& news) {
            ++reports;
            for (int row = 0; row < news.columns.Count(); ++row)
                runs.push_back(news.columns.Run(row));
        });
    }

    std::vector<int> runs;
    int reports = 0;
    StudyWatch watch;
    QSignalSpy failed{&watch, &StudyWatch::Failed};
};

void PutTable(const QString& folder, const QByteArray& rows)
{
    QDir().mkpath(folder);
    Put(folder + "/results.csv", Header + rows);
}

} // namespace

void tst_StudyWatch::WhatComesIsReported()
{
    EnterTemporaryDirectory();
    PutTable("out", "1,2,3,ok,\n");
    Watched watched;
    watched.watch.Follow("out", false);
    QTRY_COMPARE(watched.runs, std::vector<int>({1}));
    // Times of files have the resolution of the system's clock tick.
    QTRY_VERIFY((PutTable("out", "1,2,3,ok,\n2,2,3,ok,\n"), watched.runs.size() > 1));
    QCOMPARE(watched.runs[2], 2);
    QCOMPARE(watched.failed.count(), 0);
}

void tst_StudyWatch::AnExpectedFolderMayBeMissing()
{
    EnterTemporaryDirectory();
    Watched watched;
    watched.watch.Follow("out", true);
    // Longer than the pause between two reads.
    QVERIFY(!watched.failed.wait(700));
    QCOMPARE(watched.reports, 0);
    QDir().mkpath("out");
    Put("out/study.json", R"({"format": 1, "parameters": ["a"], "inputs": ["a"]})");
    QTRY_VERIFY(watched.reports > 0);
    QCOMPARE(watched.failed.count(), 0);
}

void tst_StudyWatch::AMissingFolderIsReported()
{
    EnterTemporaryDirectory();
    Watched watched;
    watched.watch.Follow("out", false);
    QTRY_COMPARE(watched.failed.count(), 1);
    QCOMPARE(watched.failed[0][0].toString(),
             QString("out: is not the folder of a study; there is no study.json in it"));
    watched.watch.Hurry();
}

void tst_StudyWatch::AnotherFolderIsFollowedFromItsBeginning()
{
    EnterTemporaryDirectory();
    PutTable("a", "1,2,3,ok,\n");
    PutTable("b", "7,2,3,ok,\n");
    Watched watched;
    watched.watch.Follow("a", false);
    watched.watch.Follow("b", false);
    QTRY_COMPARE(watched.runs, std::vector<int>({7}));
    watched.watch.Follow("a", false);
    QTRY_COMPARE(watched.runs, std::vector<int>({7, 1}));
}

TARN_TEST_MAIN(tst_StudyWatch)
#include "tst_StudyWatch.moc"
