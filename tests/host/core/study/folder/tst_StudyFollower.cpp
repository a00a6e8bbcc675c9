#include "HostError.h"
#include "Journal.h"
#include "ResultsTable.h"
#include "StudyFolder.h"
#include "StudyFollower.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <QDir>
#include <QJsonArray>

class tst_StudyFollower : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void OnlyWhatHasChangedIsRead();
    void ARunThatWasTriedAgainIsReadAgain();
    void RunsThatWereAddedCount();
    void ATableAloneIsRead();
    void AnotherFolderIsReported();
};

static const QJsonObject Fingerprint{{"format", 1},
                                     {"parameters", QJsonArray{"a", "b"}},
                                     {"inputs", QJsonArray{"a"}},
                                     {"units", QJsonObject{{"a", "mm"}, {"b", ""}}},
                                     {"columns", QJsonArray{"ratio"}}};

static std::unique_ptr<StudyFolder> NewFolder(int runs)
{
    RunList list({"a"});
    for (int run = 1; run <= runs; ++run)
        list.Add({double(run)});
    return StudyFolder::Prepare("out", Fingerprint, list);
}

// Ends a run that is ok if its volume is above 0.
static void End(Journal& journal, const StudyFolder& folder, int run, double volume)
{
    RunResult result;
    result.values = {double(run), 2.0};
    result.ok = volume > 0.0;
    result.measures.volume = volume;
    result.more = {1.5};
    result.error = result.ok ? "" : "too thin";
    RunRecord record;
    record.state = result.ok ? RunRecord::Ok : RunRecord::Failed;
    record.row = folder.Table().Row(run, result);
    journal.Begin(run);
    journal.End(run, record);
}

static QString ReasonNotFollowed()
{
    try {
        StudyFollower("out").Next();
    } catch (const HostError& error) {
        return error.Reason();
    }
    return "it was followed";
}

void tst_StudyFollower::OnlyWhatHasChangedIsRead()
{
    EnterTemporaryDirectory();
    const std::unique_ptr<StudyFolder> folder = NewFolder(3);
    Journal journal("out");
    End(journal, *folder, 2, 7.0);
    StudyFollower follower("out");
    StudyFollower::News news = follower.Next();
    QCOMPARE(news.runs, 3);
    QCOMPARE(news.running, 0);
    QCOMPARE(news.inputs, QStringList({"a"}));
    QCOMPARE(news.columns.Names(),
             QStringList({"a", "b"}) + ResultsTable::MeasureNames() + QStringList({"ratio"}));
    QCOMPARE(news.columns.Title(0), QString("a (mm)"));
    QCOMPARE(news.columns.Title(1), QString("b"));
    QCOMPARE(news.columns.Count(), 1);
    QCOMPARE(news.columns.Run(0), 2);
    QCOMPARE(news.columns.Value(2, 0), 7.0);
    QCOMPARE(follower.Next().columns.Count(), 0);

    End(journal, *folder, 1, 0.0);
    news = follower.Next();
    QCOMPARE(news.columns.Count(), 1);
    QCOMPARE(news.columns.Error(0), QString("too thin"));
}

void tst_StudyFollower::ARunThatWasTriedAgainIsReadAgain()
{
    EnterTemporaryDirectory();
    const std::unique_ptr<StudyFolder> folder = NewFolder(1);
    Journal journal("out");
    End(journal, *folder, 1, 0.0);
    StudyFollower follower("out");
    QVERIFY(!follower.Next().columns.IsOk(0));
    End(journal, *folder, 1, 3.0);
    const ResultColumns again = follower.Next().columns;
    QCOMPARE(again.Count(), 1);
    QVERIFY(again.IsOk(0));
}

void tst_StudyFollower::RunsThatWereAddedCount()
{
    EnterTemporaryDirectory();
    NewFolder(2);
    StudyFollower follower("out");
    QCOMPARE(follower.Next().runs, 2);
    NewFolder(5);
    QCOMPARE(follower.Next().runs, 5);
}

void tst_StudyFollower::ATableAloneIsRead()
{
    EnterTemporaryDirectory();
    QVERIFY(QDir().mkdir("out"));
    Put("out/results.csv", "run,a,volume_mm3,status,error\n4,1,2,ok,\n");
    StudyFollower follower("out");
    const StudyFollower::News news = follower.Next();
    QCOMPARE(news.columns.Count(), 1);
    QCOMPARE(news.columns.Run(0), 4);
    QCOMPARE(news.runs, 0);
    QCOMPARE(follower.Next().columns.Count(), 0);
}

void tst_StudyFollower::AnotherFolderIsReported()
{
    EnterTemporaryDirectory();
    const QString reason = "out: is not the folder of a study; there is no study.json in it";
    QCOMPARE(ReasonNotFollowed(), reason);
    QVERIFY(QDir().mkdir("out"));
    QCOMPARE(ReasonNotFollowed(), reason);
    Put("out/study.json", "{}");
    QCOMPARE(ReasonNotFollowed(),
             QString("out/study.json: is not of format 1, which this program reads"));
}

TARN_TEST_MAIN(tst_StudyFollower)
#include "tst_StudyFollower.moc"
